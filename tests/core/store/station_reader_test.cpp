#include "core/store/station_reader.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

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

TEST(StationReader, KnowsTheRowsOfAMemberFromDivisions) {
    EXPECT_EQ(stationRowsOf(10), 12);
    EXPECT_EQ(stationRowsOf(10.9), 12);
    EXPECT_EQ(stationRowsOf(0), 2);
    EXPECT_EQ(stationRowsOf(-1), 1);
    EXPECT_EQ(stationRowsOf(-7), 0);
    EXPECT_EQ(stationRowsOf(10'000), 10'002);
    EXPECT_EQ(stationRowsOf(INFINITY), 10'002);
}

TEST(StationReader, WalksByPositionWhateverTheHeadingsSay) {
    const std::vector<std::string> rows{
        "1.1 0.00E+00|1.00E+00|2.00E+00", "1.2 3.00E+00|-4.00E+00|-5.00E+00",
        "2.1 0.00E+00|6.00E+00|7.00E+00", "2.2 9.00E+00|8.00E+00|-1.00E-01"};
    EXPECT_EQ(walk(twoMembers, 2), rows);
    auto other = twoMembers;
    other.replace(0, 6, "Span 9");
    other.resize(other.size() - 2);  // no line end at the end
    EXPECT_EQ(walk(other, 2), rows);
    EXPECT_TRUE(walk(twoMembers, 0).empty());
}

TEST(StationReader, EndsWhereTheFileDoesOrNoLongerFits) {
    EXPECT_TRUE(walk("", 2).empty());
    EXPECT_TRUE(walk("Span 1 \r\n", 2).empty());
    EXPECT_EQ(walk(twoMembers, 1).size(), 1);  // a row stands where a heading should
    EXPECT_EQ(walk(twoMembers, 3).size(), 2);  // a heading stands where a row should
    const auto short1 = twoMembers.substr(0, twoMembers.rfind(','));
    EXPECT_EQ(walk(short1, 2).size(), 3);
    const auto short2 = twoMembers.substr(0, twoMembers.rfind("9.00E+00") + 8);
    EXPECT_EQ(walk(short2, 2).size(), 3);
    EXPECT_EQ(walk("Span 1 \r\n1,2,3,4\r\n1,2,3\r\n", 2).size(), 0);
}

TEST(StationReader, GivesTheRowsOfOneMember) {
    EXPECT_EQ(stationRows(twoMembers, 2, 2).size(), 2);
    EXPECT_EQ(stationRows(twoMembers, 2, 2)[1].moment, "8.00E+00");
    EXPECT_TRUE(stationRows(twoMembers, 2, 0).empty());
    EXPECT_TRUE(stationRows(twoMembers, 2, 3).empty());
}

}  // namespace
}  // namespace trabeon
