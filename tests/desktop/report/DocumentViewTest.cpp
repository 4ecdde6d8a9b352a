#include "desktop/richtext/LayoutLimits.h"
#include "desktop/richtext/QtText.h"
#include "desktop/richtext/RichTextBridge.h"
#include "tests/desktop/report/ReportFixture.h"

#include <QClipboard>
#include <QFontInfo>
#include <QInputMethodEvent>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextLayout>
#include <QTimer>

using namespace caudalera;

class DocumentViewTest : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<ReportFixture> on;

    /// Model and document hold the same, formats included.
    void verifyInLine() {
        QVERIFY(richtext::paragraphsOf(*on->view()->document()) == on->text().paragraphs());
    }
    void type(const QString& keys) {
        for (const QChar key : keys)
            QTest::sendKeyEvent(QTest::Click, on->view(), Qt::Key(key.toUpper().unicode()), key,
                                {});
    }
    void key(Qt::Key which, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(on->view(), which, modifiers);
    }

private slots:
    void initTestCase() { style::apply(*qApp); }
    void init() {
        on = std::make_unique<ReportFixture>();
        QVERIFY(on->open());
    }
    void cleanup() { on.reset(); }

    void aReportThatTheModelComposesAppears() {
        on->compose("Ajuste de una serie de datos a la distribución normal", 3);
        QCOMPARE(on->view()->toPlainText(), on->plainText());
        QVERIFY(on->plainText().startsWith("Resultados\n\nAjuste de una serie"));
        const QTextDocument& document = *on->view()->document();
        QCOMPARE(document.begin().blockFormat().alignment(), Qt::AlignHCenter);
        QCOMPARE(document.lastBlock().blockFormat().alignment(), Qt::AlignLeft);
        // 200 twips are 200/1440 of an inch.
        QCOMPARE(document.begin().blockFormat().leftMargin(),
                 200.0 / 1440 * on->view()->logicalDpiX());
        verifyInLine();
    }

    void itIsReadFromItsBeginning() {
        on->compose("Largo", 499);
        QCOMPARE(on->view()->verticalScrollBar()->value(), 0);
        QVERIFY(on->view()->verticalScrollBar()->maximum() > 0);
        // The caret stands behind it all the same.
        QVERIFY(on->view()->textCursor().atEnd());
    }

    void typingGoesToTheModel() {
        type("Hola mundo");
        QCOMPARE(on->plainText(), QStringLiteral("Hola mundo"));
        QCOMPARE(on->text().selStart(), std::size_t{10});
        key(Qt::Key_Backspace);
        key(Qt::Key_Return);
        type("otra");
        QCOMPARE(on->plainText(), QStringLiteral("Hola mund\notra"));
        key(Qt::Key_Home);
        key(Qt::Key_Backspace);
        QCOMPARE(on->plainText(), QStringLiteral("Hola mundotra"));
        QCOMPARE(on->text().selStart(), std::size_t{9});
        verifyInLine();
    }

    void typingInsideAReportKeepsItsFormats() {
        on->compose("Título", 3);
        key(Qt::Key_Home, Qt::ControlModifier);
        key(Qt::Key_End);
        type("!");
        key(Qt::Key_Return);
        type("más");
        verifyInLine();
        QVERIFY(on->plainText().startsWith("Resultados!\nmás\n"));
        QVERIFY(on->text().paragraphs()[1].format.alignment == Alignment::center);
        QCOMPARE(on->text().paragraphs()[1].format.indent, 200);
        // From the centred title into the table: both paragraphs become one.
        for (int i = 0; i < 7; ++i)
            key(Qt::Key_Down, Qt::ShiftModifier);
        key(Qt::Key_Delete);
        verifyInLine();
        QCOMPARE(on->view()->toPlainText(), on->plainText());
    }

    void charactersBehindFormattedOnesTakeTheirFormat() {
        on->session->act([this] {
            on->text().assign(
                {{{{"negrita", {true, false, false, "", 0, -1}}, {" llana", {}}}, {}}});
        });
        QTest::keyClick(on->view(), Qt::Key_Home);
        for (int i = 0; i < 7; ++i)
            key(Qt::Key_Right);
        type("s");
        QCOMPARE(QString::fromStdString(on->text().paragraphs()[0].runs[0].text),
                 QStringLiteral("negritas"));
        verifyInLine();
    }

    void undoAndRedoReachTheModel() {
        on->compose("Título", 2);
        const QString before = on->plainText();
        type("abc");
        QTest::keyClick(on->view(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(on->plainText(), before);
        verifyInLine();
        on->view()->redo();
        QCOMPARE(on->plainText(), before + "abc");
        verifyInLine();
    }

    void charactersPastTheFirstPlaneCountOnce() {
        QInputMethodEvent event;
        event.setCommitString(QStringLiteral("a\U0001F4A7b"));
        QApplication::sendEvent(on->view(), &event);
        QCOMPARE(on->plainText(), QStringLiteral("a\U0001F4A7b"));
        QCOMPARE(on->text().selStart(), std::size_t{3});
        type("c");
        key(Qt::Key_Left, Qt::ShiftModifier);
        key(Qt::Key_Left, Qt::ShiftModifier);
        QCOMPARE(on->text().selStart(), std::size_t{2});
        QCOMPARE(on->text().selLength(), std::size_t{2});
        verifyInLine();
        // And back: the model selects the drop, two units of Qt's.
        on->session->act([this] { on->text().select(1, 1); });
        QCOMPARE(on->view()->textCursor().selectedText(), QStringLiteral("\U0001F4A7"));
    }

    void aByteOrderMarkCountsOnceToo() {
        on->session->act([this] {
            on->text().setSelText("\uFEFFabc");
            on->text().select(2, 1);
        });
        QCOMPARE(on->view()->textCursor().selectedText(), QStringLiteral("b"));
        type("x");
        QCOMPARE(on->plainText(), QStringLiteral("\uFEFFaxc"));
        QCOMPARE(on->text().selStart(), std::size_t{3});
        verifyInLine();
    }

    void aSavedReportNamesTheFontOfTheBox() {
        const FixedFont saved = on->session->platform().reportFont();
        QCOMPARE(toQString(saved.name), QFontInfo(on->view()->font()).family());
        QCOMPARE(saved.halfPoints / 2.0, on->view()->font().pointSizeF());
    }

    void theSelectionGoesBothWays() {
        type("uno dos");
        key(Qt::Key_Left, Qt::ShiftModifier | Qt::ControlModifier);
        QCOMPARE(on->text().selStart(), std::size_t{4});
        QCOMPARE(on->text().selLength(), std::size_t{3});
        on->session->act([this] { on->text().select(0, 3); });
        QCOMPARE(on->view()->textCursor().selectedText(), QStringLiteral("uno"));
    }

    void aLineSeparatorIsAParagraphHere() {
        type("a");
        key(Qt::Key_Return, Qt::ShiftModifier);
        type("b");
        QCOMPARE(on->plainText(), QStringLiteral("a\nb"));
        verifyInLine();
    }

    void copyPutsRichTextIntoTheClipboard() {
        on->compose("Título", 1);
        key(Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(on->view(), Qt::Key_C, Qt::ControlModifier);
        const QMimeData& copied = *QGuiApplication::clipboard()->mimeData();
        for (const char* name : {"text/rtf", "application/rtf"}) {
            const RichText text = readRtf(copied.data(QLatin1String(name)).toStdString());
            QCOMPARE(QString::fromStdString(text.text()), on->plainText());
            QVERIFY(text.paragraphs()[0].format.alignment == Alignment::center);
        }
        QVERIFY(copied.html().contains("Resultados"));
        QCOMPARE(copied.text(), on->plainText());
    }

    void pastingTakesTheRichestForm() {
        const auto pasted = [this](QMimeData* data) {
            QGuiApplication::clipboard()->setMimeData(data);
            key(Qt::Key_A, Qt::ControlModifier);
            key(Qt::Key_V, Qt::ControlModifier);
            return on->plainText();
        };
        auto* all = new QMimeData;
        all->setData("text/rtf", "{\\rtf1 {\\b de} RTF}");
        all->setHtml("<b>de</b> HTML");
        all->setText("llano");
        QCOMPARE(pasted(all), QStringLiteral("de RTF"));
        QVERIFY(on->text().paragraphs()[0].runs[0].format.bold);
        auto* noRtf = new QMimeData;
        noRtf->setData("text/rtf", "no lo es");
        noRtf->setHtml("<b>de</b> HTML");
        noRtf->setText("llano");
        QCOMPARE(pasted(noRtf), QStringLiteral("de HTML"));
        QVERIFY(on->text().paragraphs()[0].runs[0].format.bold);
        auto* source = new QMimeData;
        source->setHtml("<p>{\\rtf1 fuente}</p>");
        source->setText("{\\rtf1 {\\i fuente}}");
        QCOMPARE(pasted(source), QStringLiteral("fuente"));
        QVERIFY(on->text().paragraphs()[0].runs[0].format.italic);
        verifyInLine();
    }

    void aSecondReportComesIntoViewAtItsHeading() {
        on->compose("Primero", 80);
        const int second = on->view()->document()->blockCount() - 1;
        on->compose("Segundo", 80);
        const QTextBlock top = on->view()->cursorForPosition({5, 1}).block();
        QCOMPARE(top.text(), QStringLiteral("Resultados"));
        QCOMPARE(top.blockNumber(), second);
        QVERIFY(on->view()->textCursor().atEnd());
    }

    void aReportAtTheCaretComesIntoViewToo() {
        on->compose("Primero", 300);
        // In the middle of a line, far from what is in sight.
        QTextCursor caret(on->view()->document()->findBlockByNumber(200));
        caret.movePosition(QTextCursor::Right, QTextCursor::MoveAnchor, 3);
        on->view()->setTextCursor(caret);
        on->view()->verticalScrollBar()->setValue(0);
        const QString before = caret.block().text().left(3);
        on->compose("Segundo", 80);
        const QTextBlock top = on->view()->cursorForPosition({5, 1}).block();
        QCOMPARE(top.text(), before + "Resultados");
    }

    void whatIsPastedLeavesTheViewWhereItIs() {
        on->compose("Largo", 300);
        on->view()->setTextCursor(QTextCursor(on->view()->document()->findBlockByNumber(150)));
        on->view()->ensureCursorVisible();
        on->view()->verticalScrollBar()->setValue(on->view()->verticalScrollBar()->value() + 40);
        const int value = on->view()->verticalScrollBar()->value();
        QGuiApplication::clipboard()->setText(QStringLiteral("llano"));
        key(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(on->view()->verticalScrollBar()->value(), value);
        QVERIFY(on->plainText().contains(QStringLiteral("llano")));
    }

    void whatIsPastedOutOfSightComesIntoIt() {
        on->compose("Largo", 300);
        QCOMPARE(on->view()->verticalScrollBar()->value(), 0);
        QGuiApplication::clipboard()->setText(QStringLiteral("llano"));
        key(Qt::Key_V, Qt::ControlModifier);
        QVERIFY(on->view()->viewport()->rect().intersects(on->view()->cursorRect()));
    }

    void copyingAndSavingLeaveTheViewWhereItIs() {
        on->compose("Largo", 300);
        key(Qt::Key_C, Qt::ControlModifier);
        const QTemporaryDir folder;
        on->session->act(
            [&] { on->padre().active()->caption = folder.filePath("a.rtf").toStdString(); });
        key(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(QFile::exists(folder.filePath("a.rtf")));
        QCOMPARE(on->view()->verticalScrollBar()->value(), 0);
    }

    void whatIsDroppedIsPlainTextAndRefusedIfTooLong() {
        const auto drop = [this](const QString& text) {
            QMimeData data;
            data.setText(text);
            data.setHtml("<b>" + text.left(10) + "</b>");
            QWidget& target = *on->view()->viewport();
            QDragEnterEvent enters({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(&target, &enters);
            QDropEvent drops({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
            QString told;
            QTimer::singleShot(0, [&told] {
                if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                    told = box->text();
                    box->buttons().constFirst()->click();
                }
            });
            QApplication::sendEvent(&target, &drops);
            QCoreApplication::processEvents();
            return told;
        };
        QVERIFY(drop(QString(400000, u'x')).contains(QStringLiteral("No se ha pegado nada.")));
        QCOMPARE(on->plainText(), QString());
        QCOMPARE(drop(QStringLiteral("abc")), QString());
        QCOMPARE(on->plainText(), QStringLiteral("abc"));
        QVERIFY(!on->text().paragraphs()[0].runs[0].format.bold);
        verifyInLine();
    }

    void theWidestRuleStandsInOneLineAndFitsAWideWindow() {
        on->session->act([this] { on->text().setSelText(std::string(165, '-')); });
        on->window()->resize(1366, 600);
        QCoreApplication::processEvents();
        const QTextLayout* layout = on->view()->document()->begin().layout();
        QCOMPARE(layout->lineCount(), 1);
        QCOMPARE(on->view()->horizontalScrollBar()->maximum(), 0);
        on->window()->resize(500, 600);
        QCoreApplication::processEvents();
        QCOMPARE(on->view()->document()->begin().layout()->lineCount(), 1);
        QVERIFY(on->view()->horizontalScrollBar()->maximum() > 0);
        QCOMPARE(on->plainText(), QString(165, u'-'));
    }

    void ofATextThatIsTooLongTheBeginningIsShown() {
        on->session->act(
            [this] { on->text().assign(std::vector<Paragraph>(richtext::mostParagraphs + 1)); });
        QVERIFY(!on->view()->shownWhole());
        QVERIFY(on->view()->isReadOnly());
        QCOMPARE(on->view()->document()->blockCount(), static_cast<int>(richtext::mostParagraphs));
        const auto* notice = on->window()->findChild<QLabel*>(QStringLiteral("notice"));
        QVERIFY(notice->isVisible());
        QVERIFY(notice->text().contains(on->view()->excess()));
        type("x");
        key(Qt::Key_Return, Qt::ShiftModifier);
        QCOMPARE(on->view()->document()->blockCount(), static_cast<int>(richtext::mostParagraphs));
        on->view()->moveCursor(QTextCursor::End);
        // The model's text and caret are as they were.
        QCOMPARE(on->text().paragraphs().size(), richtext::mostParagraphs + 1);
        QCOMPARE(on->text().selStart(), std::size_t{0});
        on->session->act([this] { on->text().assign({}); });
        QVERIFY(on->view()->shownWhole());
        QVERIFY(!notice->isVisible());
        type("x");
        QCOMPARE(on->plainText(), QStringLiteral("x"));
    }

    void cutAndPasteAreTheModels() {
        type("uno dos");
        key(Qt::Key_Left, Qt::ShiftModifier | Qt::ControlModifier);
        key(Qt::Key_X, Qt::ControlModifier);
        QCOMPARE(on->plainText(), QStringLiteral("uno "));
        QCOMPARE(on->view()->toPlainText(), QStringLiteral("uno "));
        key(Qt::Key_V, Qt::ControlModifier);
        key(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(on->view()->toPlainText(), QStringLiteral("uno dosdos"));
        QCOMPARE(on->view()->textCursor().position(), 10);
        QGuiApplication::clipboard()->setText(QStringLiteral("llano"));
        key(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(on->plainText(), QStringLiteral("uno dosdosllano"));
        verifyInLine();
    }

    void theContextMenuIsTheEditMenu() {
        QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5},
                                on->view()->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(on->view()->viewport(), &event);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        QVERIFY(menu);
        QStringList entries;
        for (const QAction* action : menu->actions())
            entries.append(action->text());
        menu->close();
        QCOMPARE(entries, (QStringList{"Cor&tar", "&Copiar", "&Pegar"}));
    }

    void aSecondReportStandsAtTheCaret() {
        on->compose("Primero", 1);
        key(Qt::Key_Home, Qt::ControlModifier);
        on->compose("Segundo", 1);
        const QString both = on->view()->toPlainText();
        QCOMPARE(both, on->plainText());
        QVERIFY(both.indexOf("Segundo") < both.indexOf("Primero"));
        QCOMPARE(both.count("Resultados"), 2);
    }
};

QTEST_MAIN(DocumentViewTest)
#include "DocumentViewTest.moc"
