// The sample of a gauging: the file holds what its text says, and the flow is that of the text.

#include "tests/support/PublishedTable.h"
#include "tests/support/WindowTest.h"

#include <string>
#include <vector>

namespace caudalera {
namespace {

class GaugingSampleTest : public WindowTest {};

// The flow of each stretch and their sum 7.173695 by hand.
TEST_F(GaugingSampleTest, NineStretchesAndTheMargin) {
    open("frmAforoCorren");
    platform.answers.emplace_back(samplePath("aforo.LHV").string());
    click("bAccesar");
    const auto table =
        tableOf(samplePath("aforo.csv"), {"tramo", "longitud_m", "profundidad_m", "velocidad_ms"});
    ASSERT_EQ(table.size(), 10U);
    for (std::size_t row = 0; row < 9; ++row) {
        for (std::size_t column = 1; column < 4; ++column) {
            EXPECT_DOUBLE_EQ(
                std::stod(cellText("grdt", static_cast<long>(row) + 1, static_cast<long>(column))),
                std::stod(table[row][column]))
                << row << " " << column;
        }
    }
    EXPECT_EQ(table[9][0], "margen");
    EXPECT_EQ(text("txtho"), table[9][2]);
    EXPECT_EQ(text("txtvo"), table[9][3]);
    EXPECT_EQ(control<MSFlexGrid>("grdt").Rows(), 11);

    click("bCalcular");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(rowText("grdavq", 1), "1|0.36|0.145|0.0522");
    EXPECT_EQ(rowText("grdavq", 4), "4|2.0025|0.73|1.4618");
    EXPECT_EQ(rowText("grdavq", 9), "9|0.164|0.13|0.0213");
    EXPECT_EQ(text("txtQ"), "7.1737");
    click("bGraficar");
    // Ten points and the bank at the margin; the last stretch ends on the water line.
    EXPECT_EQ(control<Graph>("Graph1").points(), 11);
}

} // namespace
} // namespace caudalera
