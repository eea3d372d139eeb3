#include <gtest/gtest.h>

#include "core/analysis/result_files.h"
#include "core/store/project_file.h"
#include "forms/design/frmBeamDesign.h"
#include "forms/design/frmBeamDimensions.h"
#include "forms/design/frmMisc.h"
#include "forms/results/frmOptions.h"
#include "tests/support/editor_fixture.h"

namespace trabeon::test {
namespace {

constexpr auto dimensions = "&Design|Beam &Dimensions...";

class BeamDesignWindow : public EditorTest {
  protected:
    BeamDesignWindow() { Start(); }

    /// An example with its results, the dimensions window in front.
    void OpenExample(const std::string& name) {
        ASSERT_TRUE(unpackProject(std::string(EXAMPLES) + "/" + name + ".TB", folder.path()));
        ASSERT_TRUE(analyseFolder(folder.path(), {10, 3}, {[](const Message&) {}}));
        Open<frmBeamDimensions>(dimensions);
    }
    frmBeamDesign& Design() {
        Click(forms().Get<frmBeamDimensions>().cmdDesign);
        Settle();
        return forms().Get<frmBeamDesign>();
    }
    static bool IsMarked(const frmBeamDesign& results, int row) {
        const QTreeWidgetItem& item = *Tree(results.ListView1).topLevelItem(row - 1);
        const bool coloured = item.foreground(13).style() != Qt::NoBrush;
        EXPECT_EQ(coloured, !item.icon(0).isNull());
        return coloured;
    }
};

TEST_F(BeamDesignWindow, ARunShowsALineForEachSection) {
    folder.write("DResult.txt", " 1, 0\r\n");
    auto& opened = Open<frmBeamDesign>("&Design|&Design Beam...");
    EXPECT_EQ(opened.ListView1.ListItems.Count(), 0);  // opened from the menu it is empty
    EXPECT_EQ((std::vector{opened.Top(), opened.Width(), opened.Height()}),
              (std::vector{300, 9630, 5040}));
    OpenExample("two-span-floor-beam");
    const auto& results = Design();
    EXPECT_EQ(results.Caption(), "Beam Design");
    EXPECT_TRUE(results.ListView1.HasFocus());
    ASSERT_EQ(results.ListView1.ListItems.Count(), 24);
    const auto row = results.ListView1.ListItems(12);
    EXPECT_EQ(row.Text(), " 1");
    EXPECT_EQ(row.SubItems(1), "6");
    EXPECT_EQ(row.SubItems(7), "2Y 16 &   2Y 16");
    EXPECT_EQ(row.SubItems(13), "Shear OK Def. OK");
    for (int i = 1; i <= 24; ++i)
        EXPECT_FALSE(IsMarked(results, i));
    EXPECT_FALSE(forms().Get<frmMisc>().Visible());
    EXPECT_FALSE(forms().Get<frmOptions>().Visible());
    EXPECT_EQ(context().dataChanged, 0);
}

TEST_F(BeamDesignWindow, WhatFailedStandsOutAndTheNextRunStartsPlain) {
    OpenExample("fixed-ended-transfer-beam");
    EXPECT_EQ(Design().Caption(), "Please Increase bv or d of beam.");
    auto& results = forms().Get<frmBeamDesign>();
    EXPECT_EQ(results.ListView1.ListItems(1).SubItems(13), "Shear Failed! Def. OK");
    for (int i = 1; i <= 12; ++i)
        EXPECT_TRUE(IsMarked(results, i));
    ASSERT_TRUE(unpackProject(EXAMPLES "/two-span-floor-beam.TB", folder.path()));
    EXPECT_EQ(Design().Caption(), "Beam Design");
    EXPECT_EQ(forms().Get<frmBeamDesign>().ListView1.ListItems.Count(), 24);
}

TEST_F(BeamDesignWindow, ADeflectionThatFailsIsMarkedOnItsOwnRows) {
    OpenExample("two-span-floor-beam");
    std::string rows;
    for (int i = 1; i <= 12; ++i)  // the first member a slab of 140 mm, the second stout
        rows += "1," + std::to_string(i) + ",3000,180,140,30,460,200000,250,6\r\n";
    for (int i = 1; i <= 12; ++i)
        rows += "2," + std::to_string(i) + ",300,500,450,30,460,200000,250,6\r\n";
    folder.write("BeamDim.txt", rows);
    const auto& results = Design();
    for (int i = 1; i <= 24; ++i) {
        EXPECT_EQ(results.ListView1.ListItems(i).SubItems(13),
                  i <= 12 ? "Shear OK Def. Failed!" : "Shear OK Def. OK");
        EXPECT_EQ(IsMarked(results, i), i <= 12);
    }
}

TEST_F(BeamDesignWindow, ColumnsAreReadAtTheWindowsSizeAndRowsAreCopied) {
    OpenExample("five-span-with-cantilever");
    const auto& results = Design();
    QTreeWidget& tree = Tree(results.ListView1);
    ExpectFits(results.ListView1);
    for (int i = 0; i < tree.topLevelItemCount(); ++i)
        for (int column = 0; column < 14; ++column)
            EXPECT_LE(tree.fontMetrics().horizontalAdvance(tree.topLevelItem(i)->text(column)) + 6,
                      tree.columnWidth(column))
                << tree.topLevelItem(i)->text(column).toStdString();
    ClickRow(results.ListView1, 1);
    Key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(outside.clipboardText.substr(0, 4), "1\t0\t");
    EXPECT_EQ(std::count(outside.clipboardText.begin(), outside.clipboardText.end(), '\t'), 13);
}

TEST_F(BeamDesignWindow, TheRunReadsTheSettingsAndTellsWhatItCannotDo) {
    OpenExample("two-span-floor-beam");
    auto& misc = forms().Get<frmMisc>();
    misc.txtCover.SetText("1e999");
    outside.ExpectMsgBox(
        "Cover, link size and aggregate size must be numbers of mm; one of them is too large.");
    EXPECT_EQ(Design().ListView1.ListItems.Count(), 0);
    misc.txtCover.SetText("140");  // the bars find less room between the covers
    EXPECT_NE(Design().ListView1.ListItems(12).SubItems(7), "2Y 16 &   2Y 16");
    EXPECT_TRUE(misc.Visible());
    forms().Get<frmBeamDesign>().Unload();
    Settle();
    BlockWriting("DResult.txt");
    EXPECT_EQ(Design().ListView1.ListItems.Count(), 0);
}

}  // namespace
}  // namespace trabeon::test
