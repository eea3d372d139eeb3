// The windows of the design but for its input: the results, the properties, the two tables.
#include "core/analysis/result_files.h"
#include "core/store/project_file.h"
#include "forms/design/frmBeamDesign.h"
#include "forms/design/frmBeamDimensions.h"
#include "forms/design/frmShearResistance.h"
#include "forms/design/frmSteelArea.h"
#include "forms/settings/frmMisc.h"
#include "forms/settings/frmOptions.h"
#include "tests/support/editor_fixture.h"

namespace trabeon::test {
namespace {

class DesignWindows : public EditorTest {
  protected:
    /// An example with its results, the dimensions window in front.
    void OpenExample(const std::string& name) {
        ASSERT_TRUE(unpackProject(std::string(EXAMPLES) + "/" + name + ".TB", folder.path()));
        ASSERT_TRUE(analyseFolder(folder.path(), {10, 3}, {[](const Message&) {}}));
        Open<frmBeamDimensions>();
    }
    frmBeamDesign& Design() {
        Click(forms().Get<frmBeamDimensions>().cmdDesign);
        Settle();
        return forms().Get<frmBeamDesign>();
    }
    /// The marked rows, from the first on.
    static int Marked(const frmBeamDesign& results) {
        int marked = 0;
        for (int i = 0; i < results.ListView1.ListItems.Count(); ++i) {
            const QTreeWidgetItem& item = *Tree(results.ListView1).topLevelItem(i);
            const bool coloured = item.foreground(13).style() != Qt::NoBrush;
            EXPECT_EQ(coloured, !item.icon(0).isNull());
            marked += coloured && marked == i;
        }
        return marked;
    }
};

TEST_F(DesignWindows, ARunShowsALineForEachSection) {
    folder.write("DResult.txt", " 1, 0\r\n");
    auto& opened = Open<frmBeamDesign>();
    EXPECT_EQ(opened.ListView1.ListItems.Count(), 0);  // opened from the menu it is empty
    ExpectBounds(opened, 0, 300, 9630, 5040);
    OpenExample("two-span-floor-beam");
    const auto& results = Design();
    EXPECT_EQ(results.Caption(), "Beam Design");
    EXPECT_TRUE(results.ListView1.HasFocus());
    ASSERT_EQ(results.ListView1.ListItems.Count(), 24);
    const auto row = results.ListView1.ListItems(12);
    EXPECT_EQ(row.Text() + "|" + row.SubItems(1) + "|" + row.SubItems(7), " 1|6|2Y 16 &   2Y 16");
    EXPECT_EQ(row.SubItems(13), "Shear OK Def. OK");
    EXPECT_EQ(Marked(results), 0);
    EXPECT_FALSE(forms().Get<frmMisc>().Visible());
    EXPECT_FALSE(forms().Get<frmOptions>().Visible());
    EXPECT_EQ(TakeFlag(), 0);
}

TEST_F(DesignWindows, ADesignOfAnotherBeamSaysSo) {
    OpenExample("two-span-floor-beam");
    const auto& strip = Design().remark.lblRemark;
    EXPECT_FALSE(strip.Visible());
    ASSERT_TRUE(unpackProject(EXAMPLES "/five-span-with-cantilever.TB", folder.path()));
    auto& results = Design();
    EXPECT_EQ(results.remark.lblRemark.Caption(),
              "Of another beam or an earlier state: analyse again");
    EXPECT_TRUE(results.remark.lblRemark.Visible());
    EXPECT_GE(results.remark.lblRemark.Top(), results.ListView1.Height());
    EXPECT_EQ(results.ListView1.ListItems(60).SubItems(13), "No Data");  // no station for it
}

TEST_F(DesignWindows, WhatFailedStandsOutAndTheNextRunStartsPlain) {
    OpenExample("fixed-ended-transfer-beam");
    EXPECT_EQ(Design().Caption(), "Please Increase bv or d of beam.");
    EXPECT_EQ(Marked(forms().Get<frmBeamDesign>()), 12);
    OpenExample("two-span-floor-beam");
    std::string rows;
    for (int i = 0; i < 24; ++i)  // the first member a slab of 140 mm, the second stout
        rows += std::to_string(i / 12 + 1) + "," + std::to_string(i % 12 + 1) +
                (i < 12 ? ",3000,180,140" : ",300,500,450") + ",30,460,200000,250,6\r\n";
    folder.write("BeamDim.txt", rows);
    const auto& results = Design();
    EXPECT_EQ(results.Caption(), "Beam Design");
    EXPECT_EQ(results.ListView1.ListItems(12).SubItems(13), "Shear OK Def. Failed!");
    EXPECT_EQ(Marked(results), 12);
}

TEST_F(DesignWindows, WhatTheDesignCouldNotDoStandsOutToo) {
    auto& results = Open<frmBeamDesign>();
    for (const auto& [words, marked] : {std::pair{"No Data", 1},
                                        {"Shear OKPlease Provide Manual Calculation", 1},
                                        {"Shear OK Def. OK", 0}}) {
        folder.write("DResult.txt", std::string(" 1, 0, 0, 0, 0, 0, 0,, 0, 0,, 0, 0,") + words);
        results.AddtoListbox();
        EXPECT_EQ(Marked(results), marked) << words;
    }
}

TEST_F(DesignWindows, ColumnsAreReadAtTheWindowsSizeAndRowsAreCopied) {
    OpenExample("five-span-with-cantilever");
    const auto& results = Design();
    QTreeWidget& tree = Tree(results.ListView1);
    ExpectFits(results.ListView1);
    for (int i = 0; i < tree.topLevelItemCount(); ++i)
        for (int column = 0; column < 14; ++column)
            EXPECT_LE(tree.fontMetrics().horizontalAdvance(tree.topLevelItem(i)->text(column)) + 6,
                      tree.columnWidth(column))
                << tree.topLevelItem(i)->text(column).toStdString();
    EXPECT_LE(tree.fontMetrics().horizontalAdvance(" 99999") + 6, tree.columnWidth(6));
    EXPECT_TRUE(tree.headerItem()->toolTip(6).endsWith("mm2"));
    ClickRow(results.ListView1, 1);
    Key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(outside.clipboardText.substr(0, 4), "1\t0\t");
}

TEST_F(DesignWindows, TheRunReadsTheSettingsAndTellsWhatItCannotDo) {
    OpenExample("two-span-floor-beam");
    auto& misc = forms().Get<frmMisc>();
    misc.txtCover.SetText("1e999");
    outside.ExpectMsgBox(
        "Cover, link size and aggregate size must be numbers of mm; one of them is too large.");
    EXPECT_EQ(Design().ListView1.ListItems.Count(), 0);
    misc.txtCover.SetText("140");  // the bars find less room between the covers
    EXPECT_NE(Design().ListView1.ListItems(12).SubItems(7), "2Y 16 &   2Y 16");
    EXPECT_TRUE(misc.Visible());
    BlockWriting("DResult.txt");
    EXPECT_EQ(Design().ListView1.ListItems.Count(), 0);
}

TEST_F(DesignWindows, PropertiesAreReadFromTheControlsAndLastUntilTheFormCloses) {
    auto& form = Open<frmMisc>();
    ExpectTidy(form);
    const auto expect = [&](double cover, double links, double hagg, bool restricted) {
        const auto read = forms().Get<frmMisc>().Properties();
        EXPECT_EQ((std::vector{read.cover, read.links, read.hagg}),
                  (std::vector{cover, links, hagg}));
        EXPECT_EQ(read.restrictDeflection, restricted);
    };
    expect(25, 10, 0, true);
    Keys("3a0.5\n8\n-20\n ");
    expect(30.5, 8, 20, false);
    form.txthagg.SetText("");
    Alt(Qt::Key_O);
    EXPECT_FALSE(form.Visible());
    expect(30.5, 8, 0, false);
    Reopen<frmMisc>();
    expect(25, 10, 0, true);
    EXPECT_EQ(TakeFlag(), 0);
}

TEST_F(DesignWindows, TablesAreWrittenAndReadBack) {
    folder.write("Asvosv.txt", "an older table");
    auto& bars = Open<frmSteelArea>();
    ExpectBounds(bars, 0, 0, 9330, 4545);
    EXPECT_EQ(Shown(bars.ListView1, 1), "8|10|12|16|20|25|32|40");
    EXPECT_EQ(bars.ListView1.ListItems(8).SubItems(10), "12566");
    EXPECT_EQ(folder.read("AreaofS.txt").substr(0, 14), " 8 , 50, 100, ");
    ExpectFits(bars.ListView1);
    ClickRow(bars.ListView1, 2);
    Key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(outside.clipboardText, "10\t78\t157\t235\t314\t392\t471\t549\t628\t706\t785\n");
    auto& resistances = Open<frmShearResistance>();
    ExpectBounds(resistances, 0, 0, 9645, 6090);
    ASSERT_EQ(resistances.ListView1.ListItems.Count(), 15);
    EXPECT_EQ(resistances.ListView1.ListItems(15).SubItems(6), "1.005");
    ExpectFits(resistances.ListView1);
    BlockWriting("AreaofS.txt");
    EXPECT_EQ(Reopen<frmSteelArea>().ListView1.ListItems.Count(), 0);
}

}  // namespace
}  // namespace trabeon::test
