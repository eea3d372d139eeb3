// The station file row by row, and the curves of a diagram from it.
#include "core/store/station_reader.h"

#include <gtest/gtest.h>

#include <cmath>
#include <sstream>
#include <string>

#include "core/analysis/diagram_curve.h"

namespace trabeon {
namespace {

const std::string twoMembers =
    "Span 1 \r\n0.00E+00,1.00E+00,2.00E+00\r\n3.00E+00,-4.00E+00,-5.00E+00\r\n"
    "Span 2 \r\n0.00E+00,6.00E+00,7.00E+00\r\n9.00E+00,8.00E+00,-1.00E-01\r\n";

/// "member.section x|moment|shear" of each row.
std::vector<std::string> walk(const std::string& text, std::size_t rowsPerMember) {
    std::vector<std::string> rows;
    StationReader reader(text, rowsPerMember);
    while (reader.next()) {
        const auto& [x, moment, shear] = reader.row();
        rows.push_back(std::to_string(reader.member()) + "." + std::to_string(reader.section()) +
                       " " + std::string(x) + "|" + std::string(moment) + "|" + std::string(shear));
    }
    EXPECT_FALSE(reader.next());  // an end stays an end
    return rows;
}

TEST(StationReader, WalksByPositionWhateverTheHeadingsSay) {
    const std::pair<double, std::size_t> rowCounts[] = {
        {10, 12}, {10.9, 12}, {-1, 1}, {-7, 0}, {10'000, 10'002}, {INFINITY, 10'002}};
    for (const auto& [Divisions, count] : rowCounts)
        EXPECT_EQ(stationRowsOf(Divisions), count);
    const std::vector<std::string> rows{
        "1.1 0.00E+00|1.00E+00|2.00E+00", "1.2 3.00E+00|-4.00E+00|-5.00E+00",
        "2.1 0.00E+00|6.00E+00|7.00E+00", "2.2 9.00E+00|8.00E+00|-1.00E-01"};
    EXPECT_EQ(walk(twoMembers, 2), rows);
    auto other = twoMembers;
    other.replace(0, 6, "Span 9");
    other.resize(other.size() - 2);  // no line end at the end
    EXPECT_EQ(walk(other, 2), rows);
    EXPECT_EQ(stationRows(twoMembers, 2, 2)[1].moment, "8.00E+00");
    EXPECT_EQ(stationRows(twoMembers, 2, 0).size() + stationRows(twoMembers, 2, 3).size(), 0);
}

TEST(StationReader, EndsWhereTheFileDoesOrNoLongerFits) {
    const auto upTo = [](std::size_t end) { return twoMembers.substr(0, end); };
    EXPECT_EQ(walk("", 2).size() + walk("Span 1 \r\n", 2).size() + walk(twoMembers, 0).size(), 0);
    EXPECT_EQ(walk(twoMembers, 1).size(), 1);  // a row in the place of a heading
    EXPECT_EQ(walk(twoMembers, 3).size(), 2);  // a heading in the place of a row
    EXPECT_EQ(walk(upTo(twoMembers.rfind(',')), 2).size(), 3);
    EXPECT_EQ(walk(upTo(twoMembers.rfind("9.00E+00") + 8), 2).size(), 3);
    EXPECT_EQ(walk("9,1,2,3\r\n", 1).size(), 0);  // no heading, so nothing after it is read
    EXPECT_EQ(walk("Span 1 \r\n1,2,3,4\r\n1,2,3\r\n", 2).size(), 0);
}

const std::string threeMembers =
    "Span 1 \r\n0.00E+00,1,-1\r\n2.00E+00,2,-2\r\n4.00E+00,3,-3\r\n"
    "Span 2 \r\n0.00E+00,4,-4\r\n2.50E-01,5,-5\r\n5.00E-01,6,-6\r\n"
    "Span 3 \r\n0.00E+00,7,-7\r\n0.00E+00,8,-8\r\n1.00E+00,9,-9\r\n";

/// "x:value" of each point, "(x:left|right)" of each joint, and whether more was asked for.
std::string textOf(const DiagramCurve& curve) {
    std::ostringstream text;
    for (const auto& point : curve.points)
        text << point.x << ':' << point.value << ' ';
    for (const auto& [x, left, right] : curve.joints)
        text << '(' << x << ':' << left << '|' << right << ") ";
    text << (curve.whole ? "whole" : "cut");
    return text.str();
}
std::string span(const std::string& file, StationField field, std::size_t member) {
    return textOf(spanCurve({file, ""}, 3, field, member));
}
std::string beam(const std::string& file, StationField field,
                 const std::vector<std::size_t>& members) {
    return textOf(beamCurve({file, ""}, 3, field, members));
}

TEST(DiagramCurve, LaysMembersEndToEndAsFarAsTheFileGoes) {
    constexpr auto moment = &StationRow::moment, shear = &StationRow::shear;
    EXPECT_EQ(span(threeMembers, moment, 2), "0:4 0.25:5 0.5:6 whole");
    EXPECT_EQ(span(threeMembers, shear, 3), "0:-7 0:-8 1:-9 whole");
    EXPECT_EQ(beam(threeMembers, shear, {1, 2, 3}),
              "0:-1 2:-2 4:-3 4:-4 4.25:-5 4.5:-6 4.5:-7 4.5:-8 5.5:-9 "
              "(0:0|1) (4:2|2) (4.5:3|3) (5.5:4|0) whole");
    EXPECT_EQ(beam(threeMembers, moment, {1, 3}),  // a member left out takes no room
              "0:1 2:2 4:3 4:7 4:8 5:9 (0:0|1) (4:2|3) (5:4|0) whole");
    EXPECT_EQ(beam(threeMembers, moment, {3}), "0:7 0:8 1:9 (0:0|3) (1:4|0) whole");
    EXPECT_EQ(textOf(beamCurve({"Span 1 \r\n3,1,0\r\n1,2,0\r\n", ""}, 2, moment, {1})),
              "3:1 5:2 (0:0|1) (5:2|0) whole");  // never back where an old file runs back
    const auto cut = threeMembers.substr(0, threeMembers.find("5.00E-01"));
    EXPECT_EQ(beam(cut, moment, {1, 2, 3}), "0:1 2:2 4:3 4:4 4.25:5 (0:0|1) (4:2|2) cut");
    EXPECT_EQ(span(cut, moment, 2), "0:4 0.25:5 cut");
    EXPECT_FALSE(beamCurve({threeMembers, ""}, 3, moment, {2, 4}).whole);
    EXPECT_TRUE(spanCurve({}, 3, moment, 1).points.empty());
    EXPECT_TRUE(beamCurve({}, 3, moment, {1}).points.empty());
}

TEST(DiagramCurve, MarksNoJointWhereAMemberHasMoreRowsThanExpected) {
    constexpr auto moment = &StationRow::moment;
    const ResultTexts results{threeMembers, ""};  // three rows a member
    EXPECT_EQ(textOf(beamCurve(results, 2, moment, {1, 2})), "0:1 2:2 (0:0|1) cut");
    EXPECT_EQ(textOf(spanCurve(results, 2, moment, 1)), "0:1 2:2 cut");
}

TEST(DiagramCurve, LabelsTheRowOfTheExactExtreme) {
    const auto labels = [](const std::string& file, const std::string& maxima) {
        const auto curve = beamCurve({file, maxima}, 6, &StationRow::moment, {1});
        return std::to_string(curve.greatest) + ' ' + std::to_string(curve.least);
    };
    const std::string sagging =
        "Span 1 \r\n0.00E+00,-5,0\r\n1.00E+00,3,0\r\n1.80E+00,8,0\r\n2.00E+00,8,0\r\n"
        "3.00E+00,8,0\r\n4.00E+00,-5,0\r\n";
    EXPECT_EQ(labels(sagging, "Span # 1 \r\n 1.8049 ,8,0\r\n"), "2 0");
    EXPECT_EQ(labels(sagging, "Span # 1 \r\n 3.0001 ,8,0\r\n"), "4 0");
    for (const auto* none : {"", "Span # 1 \r\n 1.81 ,8,0\r\n", "Span # 1 \r\n 1.8 ,9,0\r\n"})
        EXPECT_EQ(labels(sagging, none), "3 0") << "the middle of the three that round to 8";
    EXPECT_EQ(labels("Span 1 \r\n0.00E+00,0,0\r\n1.00E+00,9,0\r\n1.80E+00,-2,0\r\n"
                     "2.00E+00,-7,0\r\n3.00E+00,-7,0\r\n4.00E+00,-7,0\r\n",
                     ""),
              "1 5")
        << "the end of the member";
}

}  // namespace
}  // namespace trabeon
