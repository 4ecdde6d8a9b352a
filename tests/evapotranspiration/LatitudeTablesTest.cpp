// The table files by latitude: what the build writes, what is read of them, and what the sun says.

#include "evapotranspiration/tablasDeLatitud.h"
#include "tests/support/PosixFiles.h"
#include "tests/support/SeriesBytes.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <map>
#include <numbers>
#include <sstream>
#include <string>
#include <vector>

namespace caudalera {
namespace {

using Months = std::vector<float>;

struct Line {
    std::string latitude;
    Months values;
};

/// The lines of a text of tables/.
std::vector<Line> linesOf(const std::string& name) {
    std::ifstream file(std::filesystem::path(CAUDALERA_SOURCE_DIR) / "tables" / name);
    std::vector<Line> lines;
    std::string text;
    std::getline(file, text);
    std::getline(file, text);
    while (std::getline(file, text)) {
        std::istringstream cells(text);
        Line line;
        std::getline(cells, line.latitude, ',');
        for (std::string cell; std::getline(cells, cell, ',');)
            line.values.push_back(std::stof(cell));
        lines.push_back(line);
    }
    return lines;
}

Months monthsOf(const TablaDeLatitud& table, const std::string& key, float before = -1) {
    SerieSimple months(12);
    for (long month = 1; month <= 12; ++month)
        months[month] = before;
    table.copiar(key, months);
    const auto values = months.primeros(12);
    return {values.begin(), values.end()};
}

Months monthsOf(const FormatoDeTabla& format, const std::filesystem::path& folder,
                const std::string& key) {
    TablaDeLatitud table(format);
    table.cargar(folder);
    return monthsOf(table, key);
}

struct Starts {
    const FormatoDeTabla* format;
    std::map<std::string, std::size_t> blocks;
};

const std::vector<Starts> starts = {
    {&tablaFactorThornthwaite,
     {{"50N", 0},   {"45N", 12},  {"40N", 24},  {"35N", 36},  {"30N", 48},  {"25N", 60},
      {"20N", 72},  {"15N", 84},  {"10N", 96},  {"5N", 108},  {"0N", 120},  {"0S", 120},
      {"5S", 132},  {"10S", 144}, {"15S", 156}, {"20S", 168}, {"25S", 180}, {"30S", 192},
      {"35S", 204}, {"40S", 216}, {"45S", 228}, {"50S", 240}}},
    {&tablaHorasDiurnas,
     {{"60N", 0},   {"58N", 12},  {"56N", 24},  {"54N", 36},  {"52N", 48},  {"50N", 60},
      {"48N", 72},  {"46N", 84},  {"44N", 96},  {"42N", 108}, {"40N", 120}, {"35N", 132},
      {"30N", 144}, {"25N", 156}, {"20N", 168}, {"15N", 180}, {"10N", 192}, {"5N", 204},
      {"0N", 216},  {"0S", 216},  {"5S", 228},  {"10S", 240}, {"15S", 252}, {"20S", 264},
      {"25S", 276}, {"30S", 288}, {"35S", 300}, {"40S", 312}, {"42S", 324}, {"44S", 336},
      {"46S", 348}, {"48S", 360}, {"50S", 372}, {"52S", 384}, {"54S", 396}, {"56S", 408},
      {"58S", 420}, {"60S", 432}}},
    {&tablaInsolacionMaxima,
     {{"60N", 0},   {"58N", 0},   {"56N", 0},   {"54N", 0},   {"52N", 0},   {"50N", 0},
      {"48N", 12},  {"46N", 24},  {"44N", 36},  {"42N", 48},  {"40N", 60},  {"35N", 72},
      {"30N", 84},  {"25N", 96},  {"20N", 108}, {"15N", 120}, {"10N", 132}, {"5N", 144},
      {"0N", 156},  {"0S", 156},  {"5S", 168},  {"10S", 180}, {"15S", 192}, {"20S", 204},
      {"25S", 216}, {"30S", 228}, {"35S", 240}, {"40S", 252}, {"42S", 264}, {"44S", 276},
      {"46S", 288}, {"48S", 300}, {"50S", 312}, {"52S", 312}, {"54S", 312}, {"56S", 312},
      {"58S", 312}, {"60S", 312}}},
};

TEST(LatitudeTables, EveryLatitudeHasItsBlock) {
    for (const auto& [format, blocks] : starts) {
        for (const auto& [key, start] : blocks)
            EXPECT_EQ(inicioDeBloque(*format, key), start) << format->archivo << " " << key;
    }
}

TEST(LatitudeTables, AnyOtherTextHasNone) {
    for (const auto& [format, blocks] : starts) {
        for (const char* key : {"", "N", "S", "10", "10E", "10n", "010N", " 10N", "10 N", "12N",
                                "55N", "10NN", "-10N", "62N"})
            EXPECT_EQ(inicioDeBloque(*format, key), std::nullopt) << format->archivo << key;
    }
    EXPECT_EQ(inicioDeBloque(tablaFactorThornthwaite, "42N"), std::nullopt);
    EXPECT_EQ(inicioDeBloque(tablaFactorThornthwaite, "60N"), std::nullopt);
    EXPECT_EQ(inicioDeBloque(tablaHorasDiurnas, "45N"), std::nullopt);
}

TEST(LatitudeTables, TheWindowsOfferWhatHasABlock) {
    const auto joined = [](std::span<const std::string_view> latitudes) {
        std::string all;
        for (const auto latitude : latitudes)
            all.append(latitude).append(" ");
        return all;
    };
    EXPECT_EQ(joined(latitudesThornthwaite()), "0 5 10 15 20 25 30 35 40 45 50 ");
    EXPECT_EQ(joined(latitudesBlaneyCriddle()),
              "0 5 10 15 20 25 30 35 40 42 44 46 48 50 52 54 56 58 60 ");
}

struct Built {
    const FormatoDeTabla* format;
    const char* text;
    const char* file;
    std::size_t blocks;
};
const std::vector<Built> files = {
    {&tablaFactorThornthwaite, "thornthwaite_factors.csv", "FThornthwite.TF", 21},
    {&tablaHorasDiurnas, "blaney_criddle_p.csv", "PBlaneyCriddle.BP", 37},
    {&tablaInsolacionMaxima, "max_sunshine_hours.csv", "InsolacionMaxN.NN", 27},
};

TEST(LatitudeTables, TheBuildWritesEveryLineOfTheTextsInItsBlock) {
    const std::filesystem::path folder = CAUDALERA_DATA_DIR;
    for (const auto& [format, text, file, blocks] : files) {
        EXPECT_EQ(std::filesystem::file_size(folder / file), blocks * 12 * 4) << file;
        const auto lines = linesOf(text);
        EXPECT_EQ(lines.size(), blocks) << file;
        for (const Line& line : lines) {
            for (const char* hemisphere : {"N", "S"}) {
                // The texts name the equator without one.
                const bool equator = line.latitude == "0";
                if (!equator && line.latitude.back() != *hemisphere)
                    continue;
                const std::string key = line.latitude + (equator ? hemisphere : "");
                EXPECT_EQ(monthsOf(*format, folder, key), line.values) << file << " " << key;
            }
        }
    }
}

/// Singles 1, 2, 3 ...
std::vector<float> counted(int count) {
    std::vector<float> values;
    for (int value = 1; value <= count; ++value)
        values.push_back(static_cast<float>(value));
    return values;
}

class TableFilesTest : public ::testing::Test {
protected:
    std::string path() const { return folder.file("FThornthwite.TF"); }
    Months read(const std::string& key) const {
        return monthsOf(tablaFactorThornthwaite, folder.path(), key);
    }
    TemporaryFolder folder;
};

TEST_F(TableFilesTest, AMissingOrEmptyFileIsAllZeros) {
    EXPECT_EQ(read("50N"), Months(12, 0));
    writeSingles(path(), {});
    EXPECT_EQ(read("50N"), Months(12, 0));
    EXPECT_EQ(read("50S"), Months(12, 0));
}

TEST_F(TableFilesTest, AShortFileIsZerosBehindItsEnd) {
    writeSingles(path(), counted(14));
    EXPECT_EQ(read("50N"), (Months{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}));
    EXPECT_EQ(read("45N"), (Months{13, 14, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(read("50S"), Months(12, 0));
}

TEST_F(TableFilesTest, APartOfARecordAtTheEndIsLeftOut) {
    writeSingles(path(), counted(2));
    Bytes bytes = bytesOf(path());
    bytes.resize(7);
    writeBytes(path(), bytes);
    EXPECT_EQ(read("50N"), (Months{1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
}

TEST_F(TableFilesTest, ALongFileIsReadAsFarAsTheTableGoes) {
    writeSingles(path(), counted(40000));
    EXPECT_EQ(read("50S"), (Months{241, 242, 243, 244, 245, 246, 247, 248, 249, 250, 251, 252}));
}

TEST_F(TableFilesTest, WhatIsNoFileIsAllZeros) {
    std::filesystem::create_directory(path());
    EXPECT_EQ(read("50N"), Months(12, 0));
    EXPECT_EQ(monthsOf(tablaFactorThornthwaite, folder.path() / "none", "50N"), Months(12, 0));
}

#ifdef CAUDALERA_POSIX_FILES
TEST_F(TableFilesTest, APipeIsNotWaitedFor) {
    ASSERT_TRUE(makeNamedPipe(path()));
    EXPECT_EQ(read("50N"), Months(12, 0));
}

TEST_F(TableFilesTest, AFileThatMayNotBeReadIsAllZeros) {
    writeSingles(path(), counted(252));
    std::filesystem::permissions(path(), std::filesystem::perms::none);
    // The superuser may read it all the same.
    const Months expected =
        std::ifstream(path()) ? Months{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12} : Months(12, 0);
    EXPECT_EQ(read("50N"), expected);
}
#endif

TEST_F(TableFilesTest, EachReadingReplacesTheOneBefore) {
    TablaDeLatitud table(tablaFactorThornthwaite);
    EXPECT_EQ(monthsOf(table, "50N"), Months(12, 0));
    writeSingles(path(), counted(252));
    table.cargar(folder.path());
    EXPECT_EQ(monthsOf(table, "50N").front(), 1);
    writeSingles(path(), {7});
    table.cargar(folder.path());
    EXPECT_EQ(monthsOf(table, "50N"), (Months{7, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
}

TEST_F(TableFilesTest, AnUnknownKeyCopiesNothing) {
    const TablaDeLatitud table(tablaFactorThornthwaite);
    EXPECT_EQ(monthsOf(table, "12N", 5), Months(12, 5));
}

// What the sun says: FAO Irrigation and Drainage Paper 56, equations 24 and 34, in the middle of
// each month.
constexpr int middles[] = {15, 46, 74, 105, 135, 166, 196, 227, 258, 288, 319, 349};
constexpr double daysOf[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

double hoursOfDay(double degrees, int day) {
    constexpr double pi = std::numbers::pi;
    const double declination = 0.409 * std::sin(2 * pi * day / 365 - 1.39);
    return 24 / pi * std::acos(-std::tan(degrees * pi / 180) * std::tan(declination));
}

double astronomicalHours(double degrees, int month) {
    return hoursOfDay(degrees, middles[month]);
}

double degreesOf(const std::string& latitude) {
    return latitude.back() == 'S' ? -std::stod(latitude) : std::stod(latitude);
}

/// Largest difference between a text's values and those computed, up to so many degrees.
template <typename Computed>
double largestDifference(const std::string& text, double degrees, Computed computed) {
    double largest = 0;
    for (const Line& line : linesOf(text)) {
        const double latitude = degreesOf(line.latitude);
        for (int month = 0; month < 12 && std::abs(latitude) <= degrees; ++month)
            largest = std::max(largest, std::abs(line.values[static_cast<std::size_t>(month)] -
                                                 computed(latitude, month)));
    }
    return largest;
}

// The printed hours count the sun's disc and the refraction of its light, which grows with the
// latitude: 0.20 h at 20 degrees, 0.37 h at 50 (November at 50 N: 9.1 for 8.73).
TEST(LatitudeTables, SunshineIsNearTheAstronomicalHours) {
    // The paper's example 9: 11.7 hours at 20 S on the 3rd of September.
    EXPECT_NEAR(hoursOfDay(-20, 246), 11.7, 0.05);
    const auto largest = [](double degrees) {
        return largestDifference("max_sunshine_hours.csv", degrees, astronomicalHours);
    };
    EXPECT_NEAR(largest(20), 0.1974, 0.0001);
    EXPECT_NEAR(largest(30), 0.2540, 0.0001);
    EXPECT_NEAR(largest(40), 0.3096, 0.0001);
    EXPECT_NEAR(largest(50), 0.3681, 0.0001);
}

// A year has 4380 hours of day everywhere. Two decimals leave 0.005; at 60 S it is 0.011.
TEST(LatitudeTables, DaytimePercentagesAreNearTheAstronomicalOnes) {
    const auto largest = [](double degrees) {
        return largestDifference("blaney_criddle_p.csv", degrees, [](double latitude, int month) {
            return 100 * astronomicalHours(latitude, month) / 4380;
        });
    };
    EXPECT_NEAR(largest(40), 0.0075, 0.0001);
    EXPECT_NEAR(largest(60), 0.0111, 0.0001);
}

// In units of 30 days of 12 hours: 0.019 at 20 degrees, 0.040 in August at 50 S.
TEST(LatitudeTables, ThornthwaitesFactorsAreNearTheAstronomicalOnes) {
    const auto largest = [](double degrees) {
        return largestDifference(
            "thornthwaite_factors.csv", degrees, [](double latitude, int month) {
                return astronomicalHours(latitude, month) / 12 * daysOf[month] / 30;
            });
    };
    EXPECT_NEAR(largest(20), 0.0191, 0.0001);
    EXPECT_NEAR(largest(50), 0.0404, 0.0001);
}

} // namespace
} // namespace caudalera
