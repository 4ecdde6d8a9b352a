// The file of a gauging: a record a stretch, and the margin's behind them.

#include "tests/gauging/AforoCorrenTest.h"
#include "tests/support/SeriesBytes.h"

namespace caudalera::testing {
namespace {

class AforoCorrenFiles : public AforoCorrenTest {
protected:
    /// Loads a file that holds these singles.
    void load(const std::vector<float>& singles) {
        writeSingles(file("a.LHV"), singles);
        platform.answers = {file("a.LHV")};
        click("bAccesar");
    }
    void expectSaved(const std::vector<float>& singles) {
        platform.answers = {file("b.LHV")};
        click("bCrear");
        writeSingles(file("c.LHV"), singles);
        EXPECT_EQ(bytesOf(file("b.LHV")), bytesOf(file("c.LHV")));
    }
};

TEST_F(AforoCorrenFiles, StretchesAndThenTheMargin) {
    enter("txtho", "0.3");
    enter("txtvo", "0.15");
    rows({{"2", "1.1", "0.5"}, {"3", "0", "0"}});
    expectSaved({2, 1.1F, 0.5F, 3, 0, 0, 0, 0.3F, 0.15F});
    EXPECT_EQ(platform.dialogsSeen.at(0).title,
              "Ubicar directorio y escribir el nombre archivo a crear");
    EXPECT_EQ(platform.dialogsSeen.at(0).filter, "Trio valores L,h,v|*.LHV");
}

TEST_F(AforoCorrenFiles, WithoutStretchesTheMarginAlone) {
    enter("txtvo", "-1");
    expectSaved({0, 0, -1});
    platform.answers = {file("b.LHV")};
    click("bAccesar");
    EXPECT_EQ(control<MSFlexGrid>("grdt").Rows(), 2);
    EXPECT_EQ(text("txtho"), "0.");
    EXPECT_EQ(text("txtvo"), "-1.");
}

TEST_F(AforoCorrenFiles, ALoadFillsTheGridAndTheMargin) {
    load({2, 1.1F, 0.5F, 3, 0.75F, 0.125F, 7, 0.456F, 0.3F});
    EXPECT_EQ(platform.dialogsSeen.at(0).title, "Seleccionar el archivo a cargar");
    EXPECT_EQ(platform.dialogsSeen.at(0).filter, "Trio valores L,h,V|*.LHV");
    EXPECT_EQ(control<MSFlexGrid>("grdt").Rows(), 4);
    EXPECT_EQ(rowText("grdt", 1), " 1|2.0|1.1|0.5");
    EXPECT_EQ(rowText("grdt", 2), " 2|3.0|0.75|0.125");
    EXPECT_EQ(rowText("grdt", 3), "[->]|||");
    EXPECT_EQ(text("txtho"), "0.46");
    EXPECT_EQ(text("txtvo"), "0.3");
    // (0.46 + 1.1) / 2 * 2: the margin is what its field shows.
    click("bCalcular");
    EXPECT_EQ(cellText("grdavq", 1, 1), "1.56");
}

TEST_F(AforoCorrenFiles, AnEmptyFileFailsSilently) {
    load({});
    EXPECT_TRUE(messages().empty());
    EXPECT_FALSE(program.ended());
    EXPECT_EQ(control<MSFlexGrid>("grdt").Rows(), 2);
    EXPECT_EQ(text("txtho"), "0");
}

} // namespace
} // namespace caudalera::testing
