#include "shell/text/ForeignNumber.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace caudalera {
namespace {

struct Case {
    std::string text;
    std::string withPoint;
    std::string withComma;
};

TEST(ForeignNumber, ByEitherSign) {
    const std::vector<Case> cases = {
        {"12", "12", "12"},
        {"+12", "12", "12"},
        {"-.5", "-.5", ""},
        {"-,5", "", "-.5"},
        {"5.", "5.", ""},
        {"1.5", "1.5", ""},
        {"1,5", "", "1.5"},
        {"1,234", "1234", "1.234"},
        {"1.234", "1.234", "1234"},
        {"12,345,678.9", "12345678.9", ""},
        {"12.345.678,9", "", "12345678.9"},
        {"123,456", "123456", "123.456"},
        {"1234,567", "", "1234.567"},
        {"0,123", "", "0.123"},
        {"00.123,5", "", ""},
        {"1,23,456", "", ""},
        {"1,2345", "", "1.2345"},
        {"1,234,5", "", ""},
        {"1,234e-2", "1234e-2", "1.234e-2"},
        {"1d+3", "1d+3", "1d+3"},
        {"1e3.5", "", ""},
        {"1e+", "", ""},
        {"12 ", "", ""},
        {"--1", "", ""},
        {"+", "", ""},
        {"", "", ""},
    };
    for (const auto& [text, withPoint, withComma] : cases) {
        EXPECT_EQ(foreignNumber(text, DecimalSign::point), withPoint) << text;
        EXPECT_EQ(foreignNumber(text, DecimalSign::comma), withComma) << text;
    }
}

} // namespace
} // namespace caudalera
