#include "core/text/number_text.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cmath>
#include <limits>
#include <random>

#include "core/text/decimal.h"
#include "core/text/number_masks.h"

namespace trabeon {
namespace {

using PutMask = char* (*)(char*, double);

std::string masked(PutMask mask, double value) {
    std::array<char, longestMask> text{};
    return {text.data(), mask(text.data(), value)};
}

TEST(LeadingNumber, IsTheLongestDecimalNumberAtTheStart) {
    const std::pair<const char*, double> rows[] = {
        {"1.2.3", 1.2},    {"-", 0},      {"", 0},       {"   ", 0},           {".", 0},
        {"-.", 0},         {".5", 0.5},   {"5.", 5},     {"  -7.25kN", -7.25}, {"+3", 3},
        {"1.50E+00", 1.5}, {"2e3", 2000}, {"2E", 2},     {"2E+", 2},           {"2E-1x", 0.2},
        {"0x10", 0},       {"inf", 0},    {"nan", 0},    {"\t1", 0},           {"1,5", 1},
        {"1 2", 1},        {"--1", 0},    {"1E-400", 0}, {"0E99999", 0},       {"0.0000", 0},
    };
    for (const auto& [text, value] : rows)
        EXPECT_EQ(leadingNumber(text), value) << '"' << text << '"';
}

TEST(LeadingNumber, TooLargeForADoubleReadsAsInfinity) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(leadingNumber("1E999"), infinity);
    EXPECT_EQ(leadingNumber("-1E99999999999"), -infinity);
    EXPECT_EQ(leadingNumber(std::string(400, '9')), infinity);
    EXPECT_EQ(leadingNumber("0." + std::string(400, '0') + "1"), 0);
    EXPECT_EQ(leadingNumber("0." + std::string(400, '0') + "1E800"), infinity);
}

TEST(NumberOfWholeText, IsANumberFromEndToEnd) {
    EXPECT_EQ(numberOfWholeText(" 3.5 "), 3.5);
    for (const auto* text : {"", " ", "3x", "1.2.3", "three"})
        EXPECT_FALSE(numberOfWholeText(text)) << text;
}

TEST(GeneratedText, HasAtMostFifteenDigitsAndABlankForASign) {
    const std::pair<double, const char*> rows[] = {
        {3, " 3"},
        {0, " 0"},
        {-0.0, " 0"},
        {-1.5, "-1.5"},
        {0.386, " 0.386"},
        {0.1 + 0.2, " 0.3"},
        {1.0 / 3, " 0.333333333333333"},
        {2.0 / 3, " 0.666666666666667"},
        {100000, " 100000"},
        {123456789012345, " 123456789012345"},
        {999999999999999, " 999999999999999"},
        {999999999999999.9, " 1E+15"},
        {1e15, " 1E+15"},
        {1234567890123445, " 1.23456789012345E+15"},   // a tie in the 16th digit goes up
        {-1234567890123435, "-1.23456789012344E+15"},  // and away from zero
        {0.0001, " 0.0001"},
        {0.00012345, " 0.00012345"},
        {0.00001, " 1E-05"},
        {-2.5e-7, "-2.5E-07"},
        {1.7976931348623157e308, " 1.79769313486232E+308"},
        {5e-324, " 4.94065645841247E-324"},
    };
    for (const auto& [value, text] : rows)
        EXPECT_EQ(generatedText(value), text);
    EXPECT_EQ(printForm(6), " 6 ");
}

TEST(ThreeFigures, RoundOnFifteenDigitsATieAwayFromZero) {
    const std::pair<double, const char*> rows[] = {
        {0, "0.00E+00"},
        {-0.0, "0.00E+00"},
        {12.345, "1.23E+01"},
        {-0.045, "-4.50E-02"},
        {2.345, "2.35E+00"},  // below the tie as a double, on it in 15 digits
        {2.3449999999999, "2.34E+00"},
        {1.005, "1.01E+00"},
        {-30.25, "-3.03E+01"},
        {9.994999, "9.99E+00"},
        {9.995, "1.00E+01"},
        {999.5, "1.00E+03"},
        {0.0099999, "1.00E-02"},
        {1e100, "1.00E+100"},
        {1e-99, "1.00E-99"},
        {1e23, "1.00E+23"},
        {9.99e-101, "9.99E-101"},
        {5e-324, "4.94E-324"},
    };
    for (const auto& [value, text] : rows)
        EXPECT_EQ(threeFigures(value), text) << value;
    EXPECT_EQ(masked(putSignedThreeFigures, 0), "+0.00E+00");
    EXPECT_EQ(masked(putSignedThreeFigures, -0.0), "+0.00E+00");
    EXPECT_EQ(masked(putSignedThreeFigures, 54), "+5.40E+01");
    EXPECT_EQ(masked(putSignedThreeFigures, -0.01), "-1.00E-02");
}

TEST(ThreeFigures, FastWayAgreesWithThePlainOne) {
    std::mt19937_64 random(20261122);
    std::uniform_real_distribution<double> mantissa(1, 10);
    std::uniform_int_distribution<int> power(-90, 90), figures(1, 16), step(-4, 4);
    const auto check = [](double value) {
        ASSERT_EQ(masked(putThreeFigures, value), masked(putThreeFiguresPlainly, value))
            << std::hexfloat << value;
    };
    for (int i = 0; i < 1'000'000; ++i) {
        const double value = mantissa(random) * std::pow(10, power(random));
        const double unit = std::pow(10, figures(random));
        check(i % 2 == 0 ? value
                         : std::round(mantissa(random) * unit) / unit);  // as people type them
    }
    for (int i = 0; i < 100'000; ++i) {  // on a tie, and a few doubles beside it
        const double tie = (100 + i % 900 + 0.5) * std::pow(10, power(random) / 4);
        check(std::bit_cast<double>(std::bit_cast<std::uint64_t>(tie) +
                                    static_cast<std::uint64_t>(step(random))));
    }
    for (int k = -320; k <= 308; ++k) {
        const double whole = leadingNumber("1e" + std::to_string(k));
        for (double value :
             {whole, std::nextafter(whole, 0.0), std::nextafter(whole, 1e308), -5 * whole})
            if (std::isfinite(value))
                check(value);
    }
}

TEST(TableMasks, FillTheirColumns) {
    EXPECT_EQ(masked(putPercent, 0), "00.00000%");
    EXPECT_EQ(masked(putPercent, 1), "100.00000%");
    EXPECT_EQ(masked(putPercent, 0.5), "50.00000%");
    EXPECT_EQ(masked(putPercent, 1.0 / 3), "33.33333%");
    EXPECT_EQ(masked(putPercent, 5.0 / 9), "55.55556%");
    EXPECT_EQ(masked(putPercent, 0.00000005), "00.00001%");
    EXPECT_EQ(masked(putPercent, 0.0000000499999), "00.00000%");
    EXPECT_EQ(masked(putPercent, 0.99999995), "100.00000%");
    EXPECT_EQ(masked(putNineDigits, 1), "000000001");
    EXPECT_EQ(masked(putNineDigits, 999999999), "999999999");
    EXPECT_EQ(masked(putNineDigits, 1234567890), "1234567890");
}

}  // namespace
}  // namespace trabeon
