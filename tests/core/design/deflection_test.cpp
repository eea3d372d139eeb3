#include "core/design/deflection.h"

#include <array>

#include "tests/support/close.h"

namespace trabeon {
namespace {

using test::close;

constexpr auto cantilever = SpanKind::cantilever;
constexpr auto simple = SpanKind::simplySupported;
constexpr auto continuous = SpanKind::continuous;

TEST(Deflection, KindOfASpanIsThatOfItsFreestEnd) {
    EXPECT_EQ(spanKind("Cantilever", "Pin Jointed"), cantilever);
    EXPECT_EQ(spanKind("Fixed", "Cantilever"), cantilever);
    EXPECT_EQ(spanKind("Pin Jointed", "Continuous"), simple);
    EXPECT_EQ(spanKind("Fixed", "Pin Jointed"), simple);
    EXPECT_EQ(spanKind("Continuous", "Continuous"), continuous);
    EXPECT_EQ(spanKind("Fixed", "Fixed"), continuous);
}

TEST(Deflection, BasicRatioIsThatOfTheKindButInAWebOfThreeMillimetres) {
    const std::pair<SpanKind, double> rows[] = {
        {cantilever, 5.6}, {simple, 16}, {continuous, 20.8}};
    for (const auto& [kind, ratio] : rows) {
        EXPECT_EQ(basicRatio(kind, 300), ratio);
        EXPECT_EQ(basicRatio(kind, 10.0 / 3), ratio);                   // r is 0.3
        EXPECT_TRUE(close(basicRatio(kind, 3.333), 20.8002228794));     // 0.3000300030
        EXPECT_EQ(basicRatio(kind, 3.34), ratio);                       // 1 / 3.34 = 0.2994
        EXPECT_TRUE(close(basicRatio(kind, 3.2), 20.892857142857143));  // 0.0125 × 5.2 / 0.7
    }
}

TEST(Deflection, SpansOverTenMetresAreHeldToLess) {
    EXPECT_EQ(ratioForLength(simple, 300, 10, true), 16);
    EXPECT_TRUE(close(*ratioForLength(simple, 300, 10.1, true), 15.841584158416));    // 160 / 10.1
    EXPECT_TRUE(close(*ratioForLength(simple, 300, 10.001, true), 15.998400159984));  // 160 / L
    EXPECT_TRUE(close(*ratioForLength(continuous, 300, 13, true), 16));               // 208 / 13
    EXPECT_EQ(ratioForLength(continuous, 300, 13, false), 20.8);
    EXPECT_EQ(ratioForLength(cantilever, 300, 10, true), 5.6);
    EXPECT_EQ(ratioForLength(cantilever, 300, 12, false), 5.6);
    EXPECT_FALSE(ratioForLength(cantilever, 300, 10.1, true));
}

TEST(Deflection, TensionFactor) {
    // 0.55 + (477 - fs) / (120 (0.9 + M / b d²)) in 40-digit decimals; b 300, d 400
    EXPECT_TRUE(close(tensionFactor(200, 226, 300, 400, 460, 50), 1.505258460253));
    EXPECT_TRUE(close(tensionFactor(200, 226, 300, 400, 460, -50), 1.505258460253));
    EXPECT_TRUE(close(tensionFactor(400, 402, 300, 400, 250, 100), 1.448121126213));
    EXPECT_TRUE(close(tensionFactor(240, 100, 300, 400, 460, 30), -0.6139344262295));
    // without a moment it is 2 at fs = 477 - 1.45 × 108 = 320.4, fy = 512.64 with As as required
    EXPECT_EQ(tensionFactor(200, 200, 300, 400, 512.48, 0), 2);
    EXPECT_TRUE(close(tensionFactor(200, 200, 300, 400, 512.64, 0), 2));
    EXPECT_TRUE(close(tensionFactor(200, 200, 300, 400, 512.8, 0), 1.999074074074));
    EXPECT_EQ(tensionFactor(200, 0, 300, 400, 460, 50), 1);  // no steel
}

TEST(Deflection, CompressionFactor) {
    const std::pair<double, double> rows[] = {
        {0, 1}, {500, 1.142857142857143}, {2999, 1.499916652775}, {3000, 1.5}, {3001, 1.5}};
    for (const auto& [Aspprov, factor] : rows)
        EXPECT_TRUE(close(compressionFactor(Aspprov, 250, 400), factor)) << Aspprov;
}

TEST(DesignDeflection, AppendsItsVerdict) {
    const std::vector<JointRow> joints{{"1", "Pin Jointed", ""},
                                       {"2", "Continuous", ""},
                                       {"3", "Continuous", ""},
                                       {"4", "Cantilever", ""}};
    double actual = -1, allowed = -1;
    const auto note = [&](std::size_t Member, double L, double d, double Asprov, double Aspprov,
                          bool restricted) {
        std::string text = "Shear Failed!";
        DesignDeflection(Member, L, 200, Asprov, 300, d, 460, 50, actual, allowed, text, Aspprov,
                         joints, restricted);
        return text;
    };
    // without steel both factors are 1: 6000 / 375 is just the 16 of a simple span
    EXPECT_EQ(note(1, 6, 375, 0, 0, true), "Shear Failed! Def. OK");
    EXPECT_EQ(actual, 16);
    EXPECT_EQ(allowed, 16);
    EXPECT_EQ(note(1, 6, 374, 0, 0, true), "Shear Failed! Def. Failed!");
    EXPECT_EQ(note(2, 6, 374, 0, 0, true), "Shear Failed! Def. OK");
    note(2, 6, 400, 226, 600, true);  // 20.8 × 1.505258460253 × (1 + 0.5 / 3.5)
    EXPECT_TRUE(close(allowed, 35.78214396944));
    EXPECT_EQ(note(3, 10.1, 2000, 226, 600, true), "Please Provide Manual Calculation");
    EXPECT_EQ(actual, 0);
    EXPECT_EQ(allowed, 0);
    EXPECT_EQ(note(3, 10.1, 2000, 226, 600, false), "Shear Failed! Def. OK");
}

}  // namespace
}  // namespace trabeon
