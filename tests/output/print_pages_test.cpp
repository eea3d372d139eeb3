#include "output/print_pages.h"

#include <gtest/gtest.h>

#include <QFontInfo>
#include <QFontMetricsF>

#include "toolkit/look/look.h"
#include "toolkit/pages/printer.h"

namespace trabeon::test {
namespace {

constexpr OutputKinds nothing{false, false, false, false, false, false, false, false, false};
constexpr OutputKinds joints{true, false, false, false, false, false, false, false, false};
constexpr OutputKinds loads{false, false, true, false, false, false, false, false, false};
constexpr OutputKinds table{false, false, false, true, false, false, false, false, false};

PrintSource source(std::size_t jointRows, const std::string& balanceTable = "") {
    PrintSource source{"HEAD", {}, {}, {}, {}, balanceTable};
    for (std::size_t i = 1; i <= jointRows; ++i)
        source.joints.push_back({std::to_string(i), "Fixed", "None"});
    return source;
}

using Texts = std::vector<std::string>;

/// The texts of each page; every line must be below the one before it, from the corner on.
std::vector<Texts> printed(const std::vector<PrintedPage>& pages) {
    std::vector<Texts> all;
    for (const auto& page : pages) {
        auto& texts = all.emplace_back();
        for (const auto& [x, y, text] : page.lines) {
            EXPECT_EQ(x, 20);
            EXPECT_NEAR(y, 20 + 3.2 * static_cast<double>(texts.size()), 1e-9);
            texts.push_back(text);
        }
    }
    return all;
}

std::vector<Texts> printed(const PrintSource& source, const OutputKinds& kinds) {
    return printed(printedPages(source, kinds, false));
}

TEST(PrintHeadingLine, HasNoBlankBehindDesigner) {
    EXPECT_EQ(printHeadingLine("P", "D", "Monday", "9:5:7"),
              "P     Designer:D     Monday     9:5:7");
    EXPECT_TRUE(printHeadingLine("\xDC", "Ü", "", "").starts_with("Ü     Designer:Ü "));
}

TEST(PrintedPages, NothingTickedIsABlankPage) {
    EXPECT_EQ(printed(source(3), nothing), std::vector<Texts>{{}});
}

TEST(PrintedPages, HoldTheRowKindsInTheirOrder) {
    PrintSource all = source(1);
    all.members = {{"1", "200", "2", "6", "None"}};
    all.points = {{"1", "2", "10", "\xC4"}};
    all.udls = {{"1", "0", "6", "12", "13", "R"}};
    EXPECT_EQ(
        printed(all, {}),  // as they are ticked at start: the five others change nothing
        (std::vector<Texts>{{"HEAD", "Joint Data", "1     Fixed     None", "HEAD", "Member Data",
                             "1     200     2     6     None", "HEAD", "Point Load Data",
                             "1     2     10     Ä", "Uniformly Distributed Load Data",
                             "1     0     6     12     13     R"}}));
    EXPECT_EQ(printed(source(0), loads),
              (std::vector<Texts>{{"HEAD", "Point Load Data", "Uniformly Distributed Load Data"}}));
}

TEST(PrintedPages, OfRowsHoldFiftyFiveLines) {
    using Sizes = std::vector<std::size_t>;
    for (const auto& [rows, lines] : {std::pair{52, Sizes{54}},  // two of them above the rows
                                      {53, Sizes{55, 1}},        // the 55th turns the page at once
                                      {53 + 53, Sizes{55, 54}},  // the heading's line counts 2
                                      {53 + 54, Sizes{55, 55, 1}}}) {
        Sizes found;
        for (const auto& page : printed(source(static_cast<std::size_t>(rows)), joints)) {
            EXPECT_EQ(page[0], "HEAD");
            found.push_back(page.size());
        }
        EXPECT_EQ(found, lines) << rows;
    }
}

TEST(StripCount, IsTheLeastThatHoldsTheLineAndAtLeastOne) {
    for (const auto& [length, width, strips] : {std::array{0, 84, 1},
                                                {9, 84, 1},
                                                {94, 84, 1},
                                                {95, 84, 2},
                                                {178, 84, 2},
                                                {179, 84, 3},
                                                {66, 56, 1},
                                                {67, 56, 2}})
        EXPECT_EQ(stripCount(static_cast<std::size_t>(length), static_cast<std::size_t>(width)),
                  static_cast<std::size_t>(strips))
            << length;
}

TEST(PrintedPages, OfTheBalanceTableAreStrips) {
    const std::string label = "Final     ", first(56, 'a'), second(56, 'b');
    const auto strips = source(0, label + first + second + "c\r\n" + label + "short");
    const std::string page = "Trabeon Results    Page  ";
    EXPECT_EQ(printed(strips, table),
              (std::vector<Texts>{{},  // the rows' page
                                  {"HEAD", page + "1 of  3", label + first, label + "short"},
                                  {"HEAD", page + "2 of  3", label + second, label},
                                  {"HEAD", page + "3 of  3", label + "c", label}}));
    auto old = strips;
    old.tableRemark = "Of another beam";
    EXPECT_EQ(printed(old, table).at(1).at(1), page + "1 of  3     Of another beam");
    const auto wide = printedPages(strips, table, true);
    EXPECT_EQ(printed(wide).at(1).at(2), label + first + std::string(28, 'b'));
    EXPECT_FALSE(wide[0].landscape);
    EXPECT_TRUE(wide[1].landscape && wide[2].landscape);
    EXPECT_FALSE(printedPages(strips, table, false)[3].landscape);
    EXPECT_FALSE(printedPages(strips, joints, true)[0].landscape);
}

TEST(PrintedPages, OfALongBalanceTableGoOnUnderTheirPageLine) {
    std::string rows = "Row 0";
    for (int i = 1; i < 60; ++i)
        rows += "\r\nRow " + std::to_string(i);
    const auto pages = printed(source(0, rows), table);
    ASSERT_EQ(pages.size(), 3U);
    EXPECT_EQ(pages[1].size(), 2 + 53U);
    EXPECT_EQ(pages[1].back(), "Row 52");
    EXPECT_EQ(Texts(pages[2].begin(), pages[2].begin() + 3),
              (Texts{"HEAD", "Trabeon Results    Page  1 of  1", "Row 53"}));
    EXPECT_EQ(pages[2].size(), 2 + 7U);
    EXPECT_EQ(printed(source(0), table).at(1), (Texts{"HEAD", "Trabeon Results    Page  1 of  1"}));
}

}  // namespace
}  // namespace trabeon::test
