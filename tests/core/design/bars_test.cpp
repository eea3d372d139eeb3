#include "core/design/bars.h"

#include "tests/support/close.h"

namespace trabeon {
namespace {

using test::close;

MiscProperties withAggregate(double hagg) {
    MiscProperties misc;
    misc.hagg = hagg;
    return misc;
}

TEST(Bars, GradeIsMildUpTo250) {
    EXPECT_EQ(gradeLetter(210), 'R');
    EXPECT_EQ(gradeLetter(250), 'R');
    EXPECT_EQ(gradeLetter(250.5), 'Y');
    EXPECT_EQ(gradeLetter(251), 'Y');
}

TEST(Bars, CountIsTheSmallestWhoseAreaReachesTheTargetAndNeverOne) {
    // 4 bars of 16: 256 × 3.141592654 = 804.247719424, a little more than with pi itself
    EXPECT_EQ(barsNeeded(804.2477193, 16), 4);
    EXPECT_EQ(barsNeeded(804.247719424, 16), 4);  // equal is enough
    EXPECT_EQ(barsNeeded(804.2477194241, 16), 5);
    EXPECT_EQ(barsNeeded(804.2477194, 16), 4);
    EXPECT_EQ(barsNeeded(603.185, 16), 3);
    EXPECT_EQ(barsNeeded(60, 10), 2);
    EXPECT_EQ(barsNeeded(1e-9, 25), 2);
    EXPECT_EQ(barsNeeded(0, 10), 0);
    EXPECT_EQ(barsNeeded(-100, 10), 0);
    for (int n = 2; n < 2000; ++n) {  // as counting up finds it
        const double area = n * 3.141592654 * 156.25;
        EXPECT_EQ(barsNeeded(area, 25), n);
        EXPECT_EQ(barsNeeded(std::nextafter(area, 1e9), 25), n + 1);
    }
}

TEST(Bars, BreadthHasGapsOfTwiceTheAggregateAndFive) {
    EXPECT_EQ(breadthNeeded({2, 12}, {}), 99);                  // 24 + 5 + 20 + 50
    EXPECT_EQ(breadthNeeded({3, 16}, withAggregate(20)), 208);  // 48 + 2 × 45 + 70
    EXPECT_EQ(breadthNeeded({4, 25}, {30, 8, 10, true}), 251);  // 100 + 3 × 25 + 16 + 60
}

TEST(Bars, TrialGoesUpTheSizesWhileThreeBarsAreNeeded) {
    struct Row {
        double area, b, hagg, count, size;
    };
    const Row rows[] = {
        {60, 1000, 0, 2, 10},     // one bar would do: two, and the trial ends
        {157.07, 300, 0, 2, 10},  // 157.0796
        {157.08, 300, 0, 2, 12},  // three of 10 fit, so the next size is tried
        {200, 1000, 0, 2, 12},    // likewise
        {60, 135.1, 20, 2, 10},   // 20 + 45 + 70 = 135, narrower than b
        {60, 135, 20, 2, 25},     // equal does not fit; 139, 147, 155: none does; 25 always
        {428.4, 225, 20, 2, 20},  // 6 of 10 (355) and 4 of 12 (253) not, 3 of 16 (208), 2 of 20
        {500, 400, 0, 2, 20},     // 7, 5 and 3 bars fit before
        {1000, 1000, 0, 3, 25},   // ends at 25 with three: 13, 9, 5, 4 fit before
        {3000, 1, 0, 7, 25},      // nothing fits: 3000 / 490.87
        {1500, 450, 20, 4, 25},   // 5 of 20 (350) fit
        {0, 300, 0, 0, 10},       // no steel, no bars
    };
    for (const auto& row : rows) {
        const auto bars = barsFor(row.area, row.b, withAggregate(row.hagg));
        EXPECT_EQ(bars.count, row.count) << row.area << " in " << row.b;
        EXPECT_EQ(bars.size, row.size) << row.area << " in " << row.b;
    }
}

TEST(ProvideReinforcement, GivesTheBarsOfBothFacesInOneText) {
    double Asprov = 0, Aspprov = 0;
    std::string text;
    ProvideReinforcement(300, 460, 1234, 200, Asprov, Aspprov, text, -1, 0, {});
    EXPECT_EQ(text, " 3Y 25 &   2Y 12");
    EXPECT_TRUE(close(Asprov, 1472.6215565625));  // 3 × 3.141592654 × 156.25
    EXPECT_TRUE(close(Aspprov, 226.194671088));   // 2 × 3.141592654 × 36
    ProvideReinforcement(135, 250, 60, 1, Asprov, Aspprov, text, 1, 0, withAggregate(19.9));
    EXPECT_EQ(text, " 2R 10 &   2R 10");  // the properties count: 134.8
}

}  // namespace
}  // namespace trabeon
