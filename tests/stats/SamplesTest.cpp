#include "tests/support/PublishedSeries.h"
#include "tests/support/WindowTest.h"

namespace caudalera {
namespace {

/// The series files that users get hold what their texts say.
class SamplesTest : public WindowTest {
protected:
    void expectLoads(const std::string& file, const std::vector<std::string>& values) {
        open("frmParamEsta");
        platform.answers.emplace_back(samplePath(file).string());
        click("bAccesar");
        auto& grdt = control<MSFlexGrid>("grdt");
        ASSERT_EQ(grdt.Rows(), static_cast<long>(values.size()) + 2);
        for (std::size_t i = 0; i < values.size(); ++i) {
            EXPECT_DOUBLE_EQ(std::stod(grdt.TextMatrix(static_cast<long>(i) + 1, 1)),
                             std::stod(values[i]));
        }
    }
};

TEST_F(SamplesTest, TheHarricanaPeaksLoad) {
    expectLoads("harricana_amos.X", valuesOf(samplePath("harricana_amos.csv")));
}

TEST_F(SamplesTest, TheSugarCreekPeaksLoad) {
    const auto values = valuesOf(samplePath("sugar_creek_crawfordsville.csv"));
    ASSERT_EQ(values.size(), 53U);
    expectLoads("sugar_creek_crawfordsville.X", values);
}

TEST_F(SamplesTest, TheWhiteRiverPeaksLoad) {
    const auto values = valuesOf(samplePath("white_river_nora.csv"));
    ASSERT_EQ(values.size(), 62U);
    expectLoads("white_river_nora.X", values);
}

TEST_F(SamplesTest, TheNileVolumesLoad) {
    auto values = valuesOf(samplePath("nilo_asuan.csv"));
    ASSERT_EQ(values.size(), 100U);
    for (auto& value : values)
        value.erase(0, value.find(',') + 1);
    expectLoads("nilo_asuan.X", values);
}

} // namespace
} // namespace caudalera
