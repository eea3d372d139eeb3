// Expected numbers: the formulas of the clause in 40-digit decimal arithmetic.
#include "core/design/flexure.h"

#include <array>

#include "tests/support/close.h"

namespace trabeon {
namespace {

using test::close;

TEST(Flexure, LeverArmIsHeldToNineTenthsOfD) {
    // z = 0.9 d where 0.25 - K / 0.9 = 0.16: K = 0.081
    const std::pair<double, double> rows[] = {
        {0, 360}, {0.0809, 360}, {0.081, 360}, {0.0811, 359.944434796}, {0.156, 310.7549848389}};
    for (const auto& [K, z] : rows)
        EXPECT_TRUE(close(leverArm(400, K), z)) << K;
}

TEST(Flexure, CompressionSteelYieldsUpToADepthOf215Thousandths) {
    EXPECT_EQ(compressionSteelDepth(25), 37.5);
    EXPECT_EQ(compressionSteelDepth(30.5), 43);
    // d' / d = 43 / 200 is 0.215; beyond it fsc = 0.0035 (x - d') / x E with x = 0.49581 d
    EXPECT_TRUE(close(compressionSteelStress(200, 42.9, 460, 2e5), 400.2));
    EXPECT_TRUE(close(compressionSteelStress(200, 43, 460, 2e5), 400.2));
    EXPECT_TRUE(close(compressionSteelStress(200, 43.1, 460, 2e5), 395.7477126203));
    EXPECT_TRUE(close(compressionSteelStress(150, 37.5, 250, 205e3), 355.7150875125));
}

TEST(Flexure, SteelOnBothSidesOfK0156) {
    // b 250, d 400, fcu 25, d' 37.5: K = M / 1000; the last is beyond what the lever arm could take
    const std::array<double, 3> rows[] = {{0, 0, 0},
                                          {50, 347.0486978733, 0},
                                          {81, 562.2188905547, 0},
                                          {82, 570.0410901234, 0},
                                          {155.9, 1253.253190358, 0},
                                          {156, 1254.380835285, 0},
                                          {156.1, 1255.070145802, 0.6893105171552},
                                          {200, 1557.677462834, 303.2966275483},
                                          {300, 2246.987979989, 992.6071447035}};
    for (const auto& [M, As, Asp] : rows) {
        const auto steel = steelFor(250, 400, 25, 460, 2e5, M, 37.5);
        EXPECT_TRUE(close(steel.As, As)) << M;
        EXPECT_TRUE(close(steel.Asp, Asp)) << M;
    }
    // K exactly 0.156 belongs to compression steel: no modulus, no stress, 0 / 0
    EXPECT_TRUE(std::isnan(steelFor(250, 100, 25, 460, 0, 9.75, 37.5).Asp));
    EXPECT_FALSE(std::isnan(steelFor(250, 100, 25, 460, 0, 9.74, 37.5).Asp));
    // d' / d = 0.25, fy 250: the tension steel carries As' in full
    const auto shallow = steelFor(250, 150, 30, 250, 205e3, 40, 37.5);
    EXPECT_TRUE(close(shallow.As, 1380.349006695));
    EXPECT_TRUE(close(shallow.Asp, 341.7216750787));
}

TEST(DesignMoment, PutsTheTensionSteelIntoTheFaceThatTheSignNames) {
    const auto design = [](double OriginMoment, double cover) {
        double d = 450, Asreq = -1, Aspreq = -1;
        MiscProperties misc;
        misc.cover = cover;
        DesignMoment(250, d, 400, 25, 460, 2e5, 250, 6, 3, std::fabs(OriginMoment), 10, Asreq,
                     Aspreq, OriginMoment, -10, misc);
        EXPECT_EQ(d, 400);
        return std::pair(Asreq, Aspreq);
    };
    EXPECT_TRUE(close(design(200, 25).first, 1557.677462834));
    EXPECT_TRUE(close(design(200, 25).second, 303.2966275483));
    EXPECT_TRUE(close(design(-200, 25).first, 303.2966275483));
    EXPECT_TRUE(close(design(-200, 25).second, 1557.677462834));
    EXPECT_TRUE(close(design(200, 50).second, 325.7630444037));  // d' 62.5: 44E6 / 400.2 / 337.5
    EXPECT_EQ(design(0, 25), std::pair(0.0, 0.0));
    double d = 0, Asreq = 0, Aspreq = 0;  // the cover left out is 25
    DesignMoment(250, d, 400, 25, 460, 2e5, 0, 0, 0, 200, 0, Asreq, Aspreq, 200, 0, {});
    EXPECT_TRUE(close(Aspreq, 303.2966275483));
}

TEST(Reinforcement, LeastAndMostArePercentagesOfTheEffectiveSection) {
    // 0.24 % and 0.2 % of 300 × 400 are 288 and 240
    const std::pair<double, double> rows[] = {{209, 288},   {210, 288}, {211, 288}, {250, 288},
                                              {250.5, 240}, {251, 240}, {460, 240}};
    for (const auto& [fy, tension] : rows) {
        double MinTenRein = 0, MinCompRein = 0;
        MinReinforcement(fy, 300, 400, MinTenRein, MinCompRein);
        EXPECT_TRUE(close(MinTenRein, tension)) << fy;
        EXPECT_TRUE(close(MinCompRein, 240)) << fy;
    }
    double MaxRein = 0;
    MaxReinforcement(300, 400, MaxRein);
    EXPECT_TRUE(close(MaxRein, 4800));
}

TEST(Reinforcement, EachFaceIsRaisedToItsOwnMinimum) {
    const auto raised = [](double OriginMoment, double Asreq, double Aspreq) {
        raiseToMinimum(OriginMoment, 288, 240, Asreq, Aspreq);
        return std::pair(Asreq, Aspreq);
    };
    EXPECT_EQ(raised(1, 100, 0), std::pair(288.0, 240.0));
    EXPECT_EQ(raised(0, 0, 0), std::pair(288.0, 240.0));
    EXPECT_EQ(raised(-1, 0, 100), std::pair(240.0, 288.0));
    EXPECT_EQ(raised(1, 289, 241), std::pair(289.0, 241.0));
    EXPECT_EQ(raised(-1, 241, 289), std::pair(241.0, 289.0));
}

}  // namespace
}  // namespace trabeon
