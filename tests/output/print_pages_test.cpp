#include "report/output/print_pages.h"

#include <gtest/gtest.h>

namespace trabeon::test {
namespace {

constexpr OutputKinds nothing{false, false, false, false, false, false, false, false, false};

OutputKinds only(bool OutputKinds::*kind) {
    OutputKinds kinds = nothing;
    kinds.*kind = true;
    return kinds;
}

PrintSource source(std::size_t joints) {
    PrintSource source{"HEAD", {}, {}, {}, {}, ""};
    for (std::size_t i = 1; i <= joints; ++i)
        source.joints.push_back({std::to_string(i), "Fixed", "None"});
    return source;
}

std::vector<std::string> texts(const PrintedPage& page) {
    std::vector<std::string> texts;
    for (const auto& line : page.lines)
        texts.push_back(line.text);
    return texts;
}

using Texts = std::vector<std::string>;

TEST(PrintHeadingLine, HasNoBlankBehindDesigner) {
    EXPECT_EQ(printHeadingLine("P", "D", "Monday", "9:5:7"),
              "P     Designer:D     Monday     9:5:7");
}

TEST(PrintedPages, NothingTickedIsABlankPage) {
    const auto pages = printedPages(source(3), nothing, true);
    ASSERT_EQ(pages.size(), 1U);
    EXPECT_TRUE(pages[0].lines.empty());
    EXPECT_FALSE(pages[0].landscape);
}

TEST(PrintedPages, RowsStandBelowTheirTitleInMillimetres) {
    const auto pages = printedPages(source(1), only(&OutputKinds::joints), true);
    ASSERT_EQ(pages.size(), 1U);
    EXPECT_FALSE(pages[0].landscape);  // the orientation is that of the balance table alone
    ASSERT_EQ(texts(pages[0]), (Texts{"HEAD", "Joint Data", "1     Fixed     None"}));
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(pages[0].lines[i].x, 20);
        EXPECT_NEAR(pages[0].lines[i].y, 20 + 3.2 * static_cast<double>(i), 1e-9);
    }
}

TEST(PrintedPages, AllRowKindsInTheirOrder) {
    PrintSource all = source(1);
    all.members = {{"1", "200", "2", "6", "None"}};
    all.points = {{"1", "2", "10", "Q"}};
    all.udls = {{"1", "0", "6", "12", "13", "R"}};
    OutputKinds kinds;  // as they are ticked at start: the five others change nothing
    const auto pages = printedPages(all, kinds, true);
    ASSERT_EQ(pages.size(), 1U);
    EXPECT_EQ(
        texts(pages[0]),
        (Texts{"HEAD", "Joint Data", "1     Fixed     None", "HEAD", "Member Data",
               "1     200     2     6     None", "HEAD", "Point Load Data", "1     2     10     Q",
               "Uniformly Distributed Load Data", "1     0     6     12     13     R"}));
}

TEST(PrintedPages, EmptyFilesPrintTheirHeadings) {
    const auto pages = printedPages(source(0), only(&OutputKinds::loads), false);
    EXPECT_EQ(texts(pages.at(0)),
              (Texts{"HEAD", "Point Load Data", "Uniformly Distributed Load Data"}));
}

TEST(PrintedPages, APageOfRowsHoldsFiftyFiveLines) {
    const auto full = printedPages(source(52), only(&OutputKinds::joints), false);
    ASSERT_EQ(full.size(), 1U);
    EXPECT_EQ(full[0].lines.size(), 54U);

    const auto turned = printedPages(source(53), only(&OutputKinds::joints), false);
    ASSERT_EQ(turned.size(), 2U);  // the 55th line turns the page at once
    EXPECT_EQ(turned[0].lines.size(), 55U);
    EXPECT_NEAR(turned[0].lines.back().y, 192.8, 1e-9);
    EXPECT_EQ(texts(turned[1]), Texts{"HEAD"});
    EXPECT_EQ(turned[1].lines[0].y, 20);

    const auto long_ = printedPages(source(53 + 54), only(&OutputKinds::joints), false);
    ASSERT_EQ(long_.size(), 3U);  // the heading and 54 rows: the heading's line counts 2, then 3
    EXPECT_EQ(long_[1].lines.size(), 55U);
    EXPECT_EQ(texts(long_[2]), Texts{"HEAD"});
}

TEST(StripCount, IsTheLeastThatHoldsTheLineAndAtLeastOne) {
    EXPECT_EQ(stripCount(0, 84), 1U);
    EXPECT_EQ(stripCount(9, 84), 1U);
    EXPECT_EQ(stripCount(94, 84), 1U);
    EXPECT_EQ(stripCount(95, 84), 2U);
    EXPECT_EQ(stripCount(10 + 168, 84), 2U);
    EXPECT_EQ(stripCount(10 + 169, 84), 3U);
    EXPECT_EQ(stripCount(66, 56), 1U);
    EXPECT_EQ(stripCount(67, 56), 2U);
}

TEST(PrintedPages, TheBalanceTableGoesInStrips) {
    PrintSource table = source(0);
    const std::string label = "Final     ", first(56, 'a'), second(56, 'b');
    table.balanceTable = label + first + second + "c\r\n" + label + "short";
    const auto pages = printedPages(table, only(&OutputKinds::table), false);
    ASSERT_EQ(pages.size(), 4U);  // a blank one, then the strips
    EXPECT_TRUE(pages[0].lines.empty());
    EXPECT_EQ(texts(pages[1]),
              (Texts{"HEAD", "Trabeon Results    Page  1 of  3", label + first, label + "short"}));
    EXPECT_EQ(texts(pages[2]),
              (Texts{"HEAD", "Trabeon Results    Page  2 of  3", label + second, label}));
    EXPECT_EQ(texts(pages[3]),
              (Texts{"HEAD", "Trabeon Results    Page  3 of  3", label + "c", label}));
    EXPECT_NEAR(pages[2].lines[0].y, 20, 1e-9);
    EXPECT_FALSE(pages[3].landscape);

    const auto wide = printedPages(table, only(&OutputKinds::table), true);
    ASSERT_EQ(wide.size(), 3U);
    EXPECT_EQ(wide[1].lines[2].text, label + first + std::string(28, 'b'));
    EXPECT_FALSE(printedPages(table, {}, true)[0].landscape);
    EXPECT_TRUE(wide[1].landscape && wide[2].landscape);
}

TEST(PrintedPages, ALongBalanceTableGoesOnUnderItsPageLine) {
    PrintSource table = source(0);
    for (int i = 0; i < 60; ++i)
        table.balanceTable += (i == 0 ? "" : "\r\n") + std::string("Row ") + std::to_string(i);
    const auto pages = printedPages(table, only(&OutputKinds::table), true);
    ASSERT_EQ(pages.size(), 3U);
    EXPECT_EQ(pages[1].lines.size(), 2 + 53U);
    EXPECT_NEAR(pages[1].lines.back().y + printLineHeight, 196, 1e-9);  // fits 210 mm
    EXPECT_EQ(pages[1].lines.back().text, "Row 52");
    EXPECT_EQ(texts(pages[2])[1], "Trabeon Results    Page  1 of  1");
    EXPECT_EQ(texts(pages[2])[2], "Row 53");
    EXPECT_EQ(pages[2].lines.size(), 2 + 7U);
}

TEST(PrintedPages, AnEmptyBalanceTableHasItsHeadings) {
    const auto pages = printedPages(source(0), only(&OutputKinds::table), true);
    EXPECT_EQ(texts(pages.at(1)), (Texts{"HEAD", "Trabeon Results    Page  1 of  1"}));
}

}  // namespace
}  // namespace trabeon::test
