// Expected numbers: the formulas of the clause in 40-digit decimal arithmetic; links by walking
// the search step by step there.
#include "core/design/shear.h"

#include <array>

#include "core/design/links.h"
#include "tests/support/close.h"

namespace trabeon {
namespace {

using test::close;

TEST(Shear, ConcreteStressAtAndBesideItsLimits) {
    // d, fcu, Asprov, vc; b = 250. The first: p 1, both factors 1, 0.79 / 1.25
    const std::array<double, 4> rows[] = {
        {400, 25, 1000, 0.632},           {400, 25, 2999, 0.9114004392093},
        {400, 25, 3000, 0.9115017284343}, {400, 25, 3001, 0.9115017284343},
        {400, 20, 1000, 0.5866968285687}, {400, 39.9, 1000, 0.7385751771083},
        {400, 40, 1000, 0.7391916842202}, {400, 40.1, 1000, 0.7391916842202},
        {400, 60, 1000, 0.7391916842202}, {300, 25, 1000, 0.6956060071005},
        {399, 25, 1000, 0.6325275461548}, {401, 25, 1000, 0.6310801535471},
        {800, 25, 1000, 0.4218093939177}};
    for (const auto& [d, fcu, Asprov, vc] : rows)
        EXPECT_TRUE(close(concreteShearStress(250, d, fcu, Asprov), vc)) << d << ' ' << fcu;
}

TEST(Shear, LinksAreTheLeastUpToFourTenthsAboveTheConcreteStress) {
    // b, fyv, v, vc, Asv / sv. The first: 0.4 × 250 / 217.5
    const std::array<double, 5> rows[] = {
        {250, 250, 0.1, 0.6, 0.4597701149425},   {250, 250, 0.3, 0.6, 0.4597701149425},
        {250, 250, 0.99, 0.6, 0.4597701149425},  {250, 250, 1.0, 0.6, 0.4597701149425},
        {250, 250, 1.001, 0.6, 0.4609195402299}, {250, 250, 1.01, 0.6, 0.4712643678161},
        {300, 460, 2.5, 0.6, 1.424287856072}};
    for (const auto& [b, fyv, v, vc, AsvOsv] : rows)
        EXPECT_TRUE(close(linksRequired(b, fyv, v, vc), AsvOsv)) << v;
}

TEST(DesignShear, StressOnTheLimitPassesAndAboveItSetsTheFlag) {
    EXPECT_TRUE(close(greatestShearStress(33), 4.997769502488));
    EXPECT_EQ(greatestShearStress(33.1), 5);
    const auto design = [](double fcu, double Shear, bool& failed) {
        double AsvOsvreq = 7;
        DesignShear(250, 400, fcu, 250, Shear, 1000, AsvOsvreq, failed);
        return AsvOsvreq;
    };
    bool failed = false;
    // b d = 100,000: 435 kN are 4.35 = 0.87 sqrt(25), 500 kN are 5 N/mm2
    EXPECT_TRUE(close(design(25, 435, failed), 4.273563218391));  // (4.35 - 0.632) × 250 / 217.5
    EXPECT_TRUE(close(design(40, 500, failed), 4.897480822735));  // 5 - 0.7391916842
    EXPECT_FALSE(failed);
    EXPECT_EQ(design(25, 435.001, failed), 7);  // left as it was
    EXPECT_TRUE(failed);
    failed = false;
    EXPECT_EQ(design(40, 500.001, failed), 7);
    EXPECT_TRUE(failed);
    EXPECT_TRUE(close(design(25, 50, failed), 0.4597701149425));  // still worked out,
    EXPECT_TRUE(failed);                                          // and the flag stays
}

TEST(ProvideShearLinks, SpacingBeforeSizeBeforeSets) {
    struct Row {
        double d, AsvOsvreq;
        const char* text;
        double provided;
    };
    const Row rows[] = {
        {333, 0, " 1R 6- 249", 0.2271031555084},  // 0.75 × 333 = 249.75
        {333, 0.3, " 1R 6- 188", 0.3007908814979},
        {333, 0.5654868, " 1R 6- 100", 0.565486857216},
        {333, 0.5654869, " 1R 8- 177", 0.5679717335503},     // 6 mm is used up
        {171, 0.7853984127, " 1R 8- 128", 0.7853984128},     // 32 × 3.1415936512 / 128
        {171, 0.7853984128, " 1R 8- 127", 0.7915826522709},  // equal is not enough
        {333, 2.2619, " 1R 12- 100", 2.261947428864},
        {333, 2.262, " 2R 10- 138", 2.276517138551},  // 12 mm is used up; 2 × 8 reach 2.01
        {333, 45.23, " 20R 12- 100", 45.23894857728},
        {133.4, 0.2, " 1R 6- 100", 0.565486857216},  // 100.05
        {1e9, 0.2005, " 1R 6- 282", 0.2005272543319},
    };
    for (const auto& row : rows) {
        double provided = -1;
        std::string text;
        EXPECT_TRUE(ProvideShearLinks(250, row.d, row.AsvOsvreq, provided, text));
        EXPECT_EQ(text, row.text);
        EXPECT_TRUE(close(provided, row.provided)) << row.text;
    }
    double provided = 0;
    std::string text;
    EXPECT_TRUE(ProvideShearLinks(250, 333, linksProvided(1, 8, 100), provided, text));
    EXPECT_EQ(text, " 1R 10- 156");  // equal at 100 is not enough either: 157.08 / 1.00531
    EXPECT_TRUE(ProvideShearLinks(251, 334, 0.4, provided, text));
    EXPECT_EQ(text, " 1Y 6- 141");
}

TEST(ProvideShearLinks, ShallowSectionsAndTwentySetsThatAreTooFewGetNone) {
    for (const auto& [d, AsvOsvreq] : {std::pair{133.3, 0.2}, {333.0, 45.24}, {1.0, 0.0}}) {
        double provided = 3;
        std::string text = "old";
        EXPECT_FALSE(ProvideShearLinks(250, d, AsvOsvreq, provided, text));
        EXPECT_EQ(provided, 0);
        EXPECT_EQ(text, "");
    }
}

}  // namespace
}  // namespace trabeon
