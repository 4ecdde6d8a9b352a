#include "desktop/richtext/RichTextBridge.h"

#include "desktop/richtext/QtText.h"
#include "desktop/style/LongWork.h"

#include <QBuffer>
#include <QFontInfo>
#include <QPdfWriter>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <cmath>
#include <random>

using namespace caudalera;

namespace {

Paragraph plain(const std::string& text) {
    Paragraph paragraph;
    if (!text.empty())
        paragraph.runs = {{text, {}}};
    return paragraph;
}

RichText lines(const std::vector<std::string>& texts) {
    std::vector<Paragraph> paragraphs;
    for (const std::string& text : texts)
        paragraphs.push_back(plain(text));
    return RichText(std::move(paragraphs));
}

/// A4 without the margins of a usual printer, in inches.
const QSizeF paper(8.0, 11.4);

} // namespace

class RichTextBridgeTest : public QObject {
    Q_OBJECT

private slots:
    void formatsComeBackAsTheyWere() {
        const CharacterFormat heavy{true, true, true, "Courier New", 23, 0x123456};
        Paragraph first;
        first.format = {Alignment::center, 200, 333};
        first.runs = {{"Caudal máximo", heavy}, {" de diseño", {}}};
        Paragraph second = plain("justificado");
        second.format = {Alignment::justify, 0, 1};
        Paragraph third;
        third.format = {Alignment::right, 1441, 0};
        third.runs = {{"negro", {false, false, false, "", 0, 0}}};
        const RichText text({first, second, plain(""), third});
        QTextDocument document;
        richtext::update(document, text);
        QVERIFY(richtext::paragraphsOf(document) == text.paragraphs());
        QCOMPARE(document.begin().blockFormat().alignment(), Qt::AlignHCenter);
        QVERIFY(document.begin().begin().fragment().charFormat().fontItalic());
        QCOMPARE(document.begin().begin().fragment().charFormat().fontPointSize(), 11.5);
    }

    void whatTheTextLeavesOpenShowsInTheDefaultFont() {
        QTextDocument document;
        richtext::update(document, lines({"sin formato"}));
        const QTextCharFormat format = document.begin().begin().fragment().charFormat();
        QVERIFY(!format.hasProperty(QTextFormat::FontFamilies));
        QVERIFY(!format.hasProperty(QTextFormat::FontPointSize));
        QVERIFY(!format.hasProperty(QTextFormat::ForegroundBrush));
    }

    void onlyTheBlocksThatDifferAreReplaced() {
        QTextDocument document;
        // A document tells of changes from the moment that it is laid out.
        document.documentLayout();
        richtext::update(document, lines({"uno", "dos", "tres", "cuatro"}));
        QSignalSpy changes(&document, &QTextDocument::contentsChange);
        QCOMPARE(richtext::update(document, lines({"uno", "dos", "tres", "cuatro"})), -1);
        QCOMPARE(changes.count(), 0);
        QCOMPARE(richtext::update(document, lines({"uno", "DOS!", "tres", "cuatro"})), 1);
        QCOMPARE(changes.count(), 1);
        // "dos" stands behind "uno" and its end; with its own end it has four characters, "DOS!"
        // five.
        QCOMPARE(changes.front().at(0).toInt(), 4);
        QVERIFY(changes.front().at(1).toInt() <= 4);
        QVERIFY(changes.front().at(2).toInt() <= 5);
    }

    void anUpdateIsOneStepOfTheHistory() {
        QTextDocument document;
        richtext::update(document, lines({"a", "b", "c"}));
        const auto before = richtext::paragraphsOf(document);
        richtext::update(document, lines({"a", "x", "y", "z", "c"}));
        document.undo();
        QVERIFY(richtext::paragraphsOf(document) == before);
    }

    void aLongUpdateIsOneStepToo() {
        QTextDocument document;
        document.documentLayout();
        richtext::update(document, lines({"a", "b"}));
        std::vector<std::string> texts(5001, "x");
        texts.front() = "a";
        texts.back() = "b";
        const RichText text = lines(texts);
        richtext::update(document, text);
        QVERIFY(richtext::paragraphsOf(document) == text.paragraphs());
        document.undo();
        QCOMPARE(document.toPlainText(), QStringLiteral("a\nb"));
        document.redo();
        QVERIFY(richtext::paragraphsOf(document) == text.paragraphs());
    }

    void longUpdatesAndLayoutsTellThatTheyGoOn() {
        QTextDocument document;
        document.documentLayout();
        document.setTextWidth(800);
        const LongWork work;
        const auto tells = [](const std::function<void()>& act) {
            // Past the half second, the first sign makes the pointer busy.
            QTest::qSleep(550);
            act();
            const bool busy = QGuiApplication::overrideCursor() != nullptr;
            const LongWork::Pause startsAnew;
            return busy;
        };
        const RichText text = lines(std::vector<std::string>(2001, "x"));
        QVERIFY(tells([&] { richtext::update(document, text); }));
        QVERIFY(tells([&] { richtext::layOut(document); }));
        QVERIFY(!QGuiApplication::overrideCursor());
    }

    /// Any text after any other: 400 random steps over texts of up to six paragraphs with few
    /// different contents, so that beginnings, ends and middles agree by chance.
    void anyTextFollowsAnyOther() {
        std::mt19937 random(7);
        const auto upTo = [&](unsigned n) { return random() % (n + 1); };
        QTextDocument document;
        for (int step = 0; step < 400; ++step) {
            std::vector<Paragraph> paragraphs(1 + upTo(5));
            for (Paragraph& paragraph : paragraphs) {
                paragraph = plain(std::string(upTo(2), 'a'));
                paragraph.format.alignment = upTo(2) == 0 ? Alignment::center : Alignment::left;
                paragraph.format.indent = upTo(1) == 0 ? 200 : 0;
                if (!paragraph.runs.empty() && upTo(2) == 0)
                    paragraph.runs.push_back({"b", {true, false, false, "", 0, -1}});
            }
            const RichText text(std::move(paragraphs));
            richtext::update(document, text);
            QVERIFY2(richtext::paragraphsOf(document) == text.paragraphs(),
                     qPrintable(QStringLiteral("step %1").arg(step)));
        }
    }

    void separatorsInsideARunDoNotSplitTheBlock() {
        QTextDocument document;
        const RichText text = lines({"a\u2029b", "c"});
        richtext::update(document, text);
        QCOMPARE(document.blockCount(), 2);
        QCOMPARE(document.characterCount() - 1, static_cast<int>(text.length()));
    }

    void aByteOrderMarkIsACharacterLikeAnyOther() {
        QCOMPARE(toQString("\uFEFF\uFEFFa"), QStringLiteral("\uFEFF\uFEFFa"));
        QCOMPARE(toQString("ñ\uFEFF"), QStringLiteral("ñ\uFEFF"));
        QCOMPARE(toQString(""), QString());
        QTextDocument document;
        Paragraph first = plain("\uFEFFab");
        first.runs.push_back({"\uFEFFcd", {true, false, false, "", 0, -1}});
        const RichText text({first, plain("\uFEFF")});
        richtext::update(document, text);
        QVERIFY(richtext::paragraphsOf(document) == text.paragraphs());
        QCOMPARE(document.characterCount() - 1, static_cast<int>(text.length()));
    }

    void theModelKnowsTheFontByTheFamilyThatIsThere() {
        const QFont font = richtext::reportFont();
        const FixedFont box = richtext::boxFont();
        QCOMPARE(toQString(box.name), QFontInfo(font).family());
        QCOMPARE(box.halfPoints / 2.0, font.pointSizeF());
        // At 200 points, where whole pixels tell the width to a third of a per cent.
        QFont large = font;
        large.setPointSizeF(200);
        const QFontMetricsF metrics(large);
        const double points = metrics.horizontalAdvance(u'm') * 72 /
                              QGuiApplication::primaryScreen()->logicalDotsPerInchY();
        QVERIFY(std::abs(points / 200 - box.width) < 0.005);
    }

    void aFragmentHasThePartsOfItsBlocks() {
        QTextDocument document;
        Paragraph first;
        first.format = {Alignment::center, 200, 200};
        first.runs = {{"ab", {}}, {"cd", {true, false, false, "", 0, -1}}};
        richtext::update(document, RichText({first, plain("efg")}));
        const RichText middle = richtext::fragment(document, 1, 5);
        QCOMPARE(QString::fromStdString(middle.text()), QStringLiteral("bcd\ne"));
        QVERIFY(middle.paragraphs()[0].format == first.format);
        QVERIFY(middle.paragraphs()[0].runs[1].format.bold);
        QCOMPARE(richtext::fragment(document, 3, 0).length(), std::size_t{0});
    }

    void rowsOfTablesDoNotBreak() {
        QTextDocument document;
        richtext::update(document, lines({"1\t122.0\t0.0143", std::string(145, '-'),
                                          "     N°           X", "Una frase de prosa común"}));
        QVector<bool> kept;
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
            kept.append(block.blockFormat().nonBreakableLines());
        QCOMPARE(kept, (QVector<bool>{true, true, true, false}));
    }

    void tabsStandEveryEightCharacters() {
        QTextDocument document;
        richtext::prepare(document, richtext::reportFont());
        richtext::update(document, lines({"\tx", "12345678x"}));
        document.setTextWidth(2000);
        document.size();
        const QTextLayout* tabbed = document.begin().layout();
        const QTextLayout* typed = document.lastBlock().layout();
        QVERIFY(std::abs(tabbed->lineAt(0).cursorToX(1) - typed->lineAt(0).cursorToX(8)) < 1);
    }

    void pagesKeepTheProportionsOfThePaper() {
        const auto narrow = richtext::toTextDocument(lines({"corto"}), paper);
        QCOMPARE(narrow->pageSize(), paper * 96);
        const auto wide = richtext::toTextDocument(lines({std::string(220, '-')}), paper);
        QVERIFY(wide->pageSize().width() > paper.width() * 96);
        QCOMPARE(wide->pageSize().height() / wide->pageSize().width(),
                 paper.height() / paper.width());
        // Nothing reaches past the page any more.
        QVERIFY(wide->size().width() <= wide->pageSize().width() + 0.5);
    }

    void aLongReportPrintsOnAsManyPagesAsItNeeds() {
        std::vector<std::string> rows;
        for (int i = 1; i <= 300; ++i)
            rows.push_back(std::to_string(i) + "\t122.0");
        const RichText text = lines(rows);
        QBuffer file;
        file.open(QIODevice::WriteOnly);
        {
            QPdfWriter writer(&file);
            writer.setPageSize(QPageSize(QPageSize::A4));
            richtext::print(text, writer);
        }
        QVERIFY(file.data().startsWith("%PDF"));
        // 300 lines of 10 points and their leading, some 11.6 points each, on pages of 9.9 to 10.9
        // inches (713 to 785 points): 4.4 to 4.9 pages.
        QCOMPARE(file.data().count("/Type /Page\n"), 5);
    }
};

QTEST_MAIN(RichTextBridgeTest)
#include "RichTextBridgeTest.moc"
