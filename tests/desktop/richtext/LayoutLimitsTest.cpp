#include "desktop/richtext/LayoutLimits.h"

#include <QTest>

using namespace caudalera;
using namespace caudalera::richtext;

namespace {

RichText of(std::size_t paragraphs, const std::string& each) {
    Paragraph paragraph;
    if (!each.empty())
        paragraph.runs = {{each, {}}};
    return RichText(std::vector<Paragraph>(paragraphs, paragraph));
}

/// Words of nine letters and a blank.
std::string prose(std::size_t characters) {
    std::string text;
    while (text.size() < characters)
        text += "nuevesiet ";
    text.resize(characters);
    return text;
}

std::string drops(std::size_t characters) {
    std::string text;
    for (std::size_t i = 0; i < characters; ++i)
        text += "ñ";
    return text;
}

} // namespace

class LayoutLimitsTest : public QObject {
    Q_OBJECT

private:
    /// Whether the text is refused with these words, and what is shown of it would not be.
    static void verifyRefused(const RichText& text, const char* words) {
        QCOMPARE(excess(text), QString::fromUtf8(words));
        QCOMPARE(excess(showable(text)), QString());
    }

private slots:
    void paragraphsAreCounted() {
        QCOMPARE(excess(of(100000, "")), QString());
        const RichText text = of(100001, "");
        verifyRefused(text, "100\u00A0001 párrafos, y caben 100\u00A0000");
        QCOMPARE(showable(text).paragraphs().size(), std::size_t{100000});
    }

    void aParagraphHasItsLength() {
        QCOMPARE(excess(of(2, prose(500000))), QString());
        const RichText text = of(2, prose(500001));
        verifyRefused(text, "un párrafo de 500\u00A0001 caracteres, y caben 500\u00A0000");
        QCOMPARE(showable(text).paragraphs()[1].length(), std::size_t{500000});
    }

    void aWordHasItsLengthInCharacters() {
        QCOMPARE(excess(of(1, "a " + drops(50000) + " b")), QString());
        const RichText text = of(1, "a " + drops(50001) + " b");
        verifyRefused(text, "una palabra de 50\u00A0001 caracteres, y caben 50\u00A0000");
        QCOMPARE(showable(text).text(), "a " + drops(49998));
    }

    void theRowsOfTablesAndRulesAreNoWords() {
        QCOMPARE(excess(of(1, std::string(60000, '-'))), QString());
        QCOMPARE(excess(of(1, "1\t" + drops(60000))), QString());
    }

    void charactersAreCountedInAll() {
        // 100 characters and a line end each, but the last: 99,010 rows make 10,000,009.
        const std::string row = "1\t" + prose(98);
        QCOMPARE(excess(of(99009, row)), QString());
        const RichText text = of(99010, row);
        verifyRefused(text, "10\u00A0000\u00A0009 caracteres, y caben 10\u00A0000\u00A0000");
        QVERIFY(text.text().starts_with(showable(text).text()));
        QVERIFY(showable(text).length() > 9999900);
    }

    void linesAreCountedAsInTheNarrowestBox() {
        // 20 characters a line: 40 are two lines, 41 three.
        QCOMPARE(excess(of(100000, prose(40))), QString());
        const RichText text = of(66667, prose(41));
        verifyRefused(text, "200\u00A0001 líneas, y caben 200\u00A0000");
        QCOMPARE(showable(text).paragraphs().size(), std::size_t{66666});
        // Of 40 points a line is four times as high, and 10 characters are as long as 40.
        Paragraph large;
        large.runs = {{"diez letra", {false, false, false, "", 80, -1}}};
        QCOMPARE(excess(RichText(std::vector<Paragraph>(25000, large))), QString());
        verifyRefused(RichText(std::vector<Paragraph>(25001, large)),
                      "200\u00A0008 líneas, y caben 200\u00A0000");
    }

    void whatFitsIsShownAsItIs() {
        Paragraph heading;
        heading.format.alignment = Alignment::center;
        heading.runs = {{"Resultados", {true, false, false, "", 0, -1}}, {" ñ", {}}};
        const RichText text({heading, {}});
        QVERIFY(showable(text).paragraphs() == text.paragraphs());
    }
};

QTEST_GUILESS_MAIN(LayoutLimitsTest)
#include "LayoutLimitsTest.moc"
