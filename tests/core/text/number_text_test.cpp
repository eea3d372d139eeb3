#include "core/text/number_text.h"

#include <array>
#include <bit>
#include <limits>
#include <random>

#include "core/text/number_masks.h"
#include "tests/support/table.h"

namespace trabeon {
namespace {

using test::Row;
using Cells = std::vector<test::Cell>;
using PutMask = char* (*)(char*, double);

std::string masked(PutMask mask, double value) {
    std::array<char, longestMask> text{};
    return {text.data(), mask(text.data(), value)};
}

test::Formulas::mapped_type column(PutMask mask) {
    return [mask](const Row& row) { return Cells{masked(mask, row(0))}; };
}

Cells wholeNumber(const Row& row) {
    const auto number = numberOfWholeText(row[0]);
    return number ? Cells{*number} : Cells{"none"};
}

TEST(Numbers, AgreeWithTheirTables) {
    test::expectTables(
        TABLES "/text/numbers.csv",
        {{"leadingNumber", [](const Row& row) { return Cells{leadingNumber(row[0])}; }},
         {"numberOfWholeText", wholeNumber},
         {"generatedText", [](const Row& row) { return Cells{generatedText(row(0))}; }},
         {"significantText",
          [](const Row& row) { return Cells{significantText(row(0), static_cast<int>(row(1)))}; }},
         {"threeFigures", [](const Row& row) { return Cells{threeFigures(row(0))}; }},
         {"putSignedThreeFigures", column(putSignedThreeFigures)},
         {"putPercent", column(putPercent)},
         {"putNineDigits", column(putNineDigits)}});
    EXPECT_EQ(printForm(6), " 6 ");
}

TEST(LeadingNumber, TooLargeForADoubleReadsAsInfinity) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(leadingNumber("1E999"), infinity);
    EXPECT_EQ(leadingNumber("-1E99999999999"), -infinity);
    EXPECT_EQ(leadingNumber(std::string(400, '9')), infinity);
    EXPECT_EQ(leadingNumber("0." + std::string(400, '0') + "1"), 0);
    EXPECT_EQ(leadingNumber("0." + std::string(400, '0') + "1E800"), infinity);
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

}  // namespace
}  // namespace trabeon
