#include "core/analysis/diagram_curve.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

namespace trabeon {

static bool operator==(const CurvePoint& a, const CurvePoint& b) {
    return a.x == b.x && a.value == b.value;
}
static bool operator==(const CurveJoint& a, const CurveJoint& b) {
    return std::tie(a.x, a.left, a.right) == std::tie(b.x, b.left, b.right);
}
static void PrintTo(const CurvePoint& point, std::ostream* out) {
    *out << point.x << ": " << point.value;
}
static void PrintTo(const CurveJoint& joint, std::ostream* out) {
    *out << joint.x << ": " << joint.left << "|" << joint.right;
}

namespace {

using Points = std::vector<CurvePoint>;
using Joints = std::vector<CurveJoint>;

const std::string threeMembers =
    "Span 1 \r\n0.00E+00,1,-1\r\n2.00E+00,2,-2\r\n4.00E+00,3,-3\r\n"
    "Span 2 \r\n0.00E+00,4,-4\r\n2.50E-01,5,-5\r\n5.00E-01,6,-6\r\n"
    "Span 3 \r\n0.00E+00,7,-7\r\n0.00E+00,8,-8\r\n1.00E+00,9,-9\r\n";

TEST(SpanCurve, HasTheFilesRowsAsTheyStand) {
    const auto curve = spanCurve(threeMembers, 3, &StationRow::moment, 2);
    EXPECT_EQ(curve.points, (Points{{0, 4}, {0.25, 5}, {0.5, 6}}));
    EXPECT_TRUE(curve.joints.empty());
    EXPECT_TRUE(curve.whole);
    EXPECT_EQ(spanCurve(threeMembers, 3, &StationRow::shear, 3).points,
              (Points{{0, -7}, {0, -8}, {1, -9}}));
}

TEST(BeamCurve, CarriesTheDistanceOnFromMemberToMember) {
    const auto curve = beamCurve(threeMembers, 3, &StationRow::shear, {1, 2, 3});
    EXPECT_EQ(curve.points, (Points{{0, -1},
                                    {2, -2},
                                    {4, -3},
                                    {4, -4},
                                    {4.25, -5},
                                    {4.5, -6},
                                    {4.5, -7},
                                    {4.5, -8},
                                    {5.5, -9}}));
    EXPECT_EQ(curve.joints, (Joints{{0, 0, 1}, {4, 2, 2}, {4.5, 3, 3}, {5.5, 4, 0}}));
    EXPECT_TRUE(curve.whole);
}

TEST(BeamCurve, GivesNoRoomToAMemberLeftOut) {
    const auto curve = beamCurve(threeMembers, 3, &StationRow::moment, {1, 3});
    EXPECT_EQ(curve.points, (Points{{0, 1}, {2, 2}, {4, 3}, {4, 7}, {4, 8}, {5, 9}}));
    EXPECT_EQ(curve.joints, (Joints{{0, 0, 1}, {4, 2, 3}, {5, 4, 0}}));
    const auto last = beamCurve(threeMembers, 3, &StationRow::moment, {3});
    EXPECT_EQ(last.points, spanCurve(threeMembers, 3, &StationRow::moment, 3).points);
    EXPECT_EQ(last.joints, (Joints{{0, 0, 3}, {1, 4, 0}}));
}

TEST(BeamCurve, NeverRunsBackWhereAnOldFileDoes) {
    const auto curve = beamCurve("Span 1 \r\n3,1,0\r\n1,2,0\r\n", 2, &StationRow::moment, {1});
    EXPECT_EQ(curve.points, (Points{{3, 1}, {5, 2}}));
}

TEST(Curves, GoAsFarAsTheFile) {
    const auto cut = threeMembers.substr(0, threeMembers.find("5.00E-01"));
    const auto beam = beamCurve(cut, 3, &StationRow::moment, {1, 2, 3});
    EXPECT_EQ(beam.points.size(), 5);
    EXPECT_EQ(beam.joints, (Joints{{0, 0, 1}, {4, 2, 2}}));
    EXPECT_FALSE(beam.whole);
    EXPECT_FALSE(beamCurve(threeMembers, 3, &StationRow::moment, {2, 4}).whole);
    EXPECT_EQ(spanCurve(cut, 3, &StationRow::moment, 2).points, (Points{{0, 4}, {0.25, 5}}));
    EXPECT_FALSE(spanCurve(cut, 3, &StationRow::moment, 2).whole);
    EXPECT_TRUE(spanCurve("", 3, &StationRow::moment, 1).points.empty());
    EXPECT_TRUE(beamCurve("", 3, &StationRow::moment, {1}).points.empty());
}

}  // namespace
}  // namespace trabeon
