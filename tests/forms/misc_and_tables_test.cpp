#include <gtest/gtest.h>

#include "forms/design/frmMisc.h"
#include "forms/design/frmShearResistance.h"
#include "forms/design/frmSteelArea.h"
#include "tests/support/editor_fixture.h"

namespace trabeon::test {
namespace {

constexpr auto misc = "&Design|&Miscellaneous Properties...";
constexpr auto areas = "&Tools|&Table of Steel Reinforcement Areas";
constexpr auto links = "&Tools|Table of &Shear Resistance For Links";

class MiscAndTables : public EditorTest {
  protected:
    MiscAndTables() { Start(); }
    static void ExpectFits(const ListView& list) {
        const QTreeWidget& tree = Tree(list);
        EXPECT_LE(tree.header()->length(), tree.viewport()->width());
        EXPECT_LE(Place(list, list.ListItems.Count()).y(), tree.viewport()->height());
    }
};

TEST_F(MiscAndTables, PropertiesAreReadFromTheControls) {
    auto& form = Open<frmMisc>(misc);
    EXPECT_EQ(form.Caption(), "Miscellaneous Properties");
    auto read = form.Properties();
    EXPECT_EQ(read.cover, 25);
    EXPECT_EQ(read.links, 10);
    EXPECT_EQ(read.hagg, 0);
    EXPECT_TRUE(read.restrictDeflection);
    Keys("3a0.5\n8\n-20\n ");
    EXPECT_EQ(form.txtCover.Text(), "30.5");
    read = form.Properties();
    EXPECT_EQ(read.cover, 30.5);
    EXPECT_EQ(read.links, 8);
    EXPECT_EQ(read.hagg, 20);
    EXPECT_FALSE(read.restrictDeflection);
    form.txthagg.SetText("");
    EXPECT_EQ(form.Properties().hagg, 0);
    EXPECT_EQ(context().dataChanged, 0);
}

TEST_F(MiscAndTables, OkHidesThePropertiesAndClosingBringsTheDefaultsBack) {
    auto& form = Open<frmMisc>(misc);
    Keys("40");
    Key(Qt::Key_O, Qt::AltModifier);
    EXPECT_FALSE(form.Visible());
    EXPECT_EQ(Open<frmMisc>(misc).txtCover.Text(), "40");
    EXPECT_TRUE(form.Visible());
    form.Unload();
    Settle();
    EXPECT_EQ(forms().Get<frmMisc>().txtCover.Text(), "25");
}

TEST_F(MiscAndTables, SteelAreasAreWrittenAndReadBack) {
    auto& form = Open<frmSteelArea>(areas);
    EXPECT_EQ(form.Caption(), "Area of Given Number of Bars");
    EXPECT_EQ(form.Width(), 9330);
    EXPECT_EQ(form.Height(), 4545);
    EXPECT_EQ(Shown(form.ListView1, 1), (Texts{"8", "10", "12", "16", "20", "25", "32", "40"}));
    EXPECT_EQ(form.ListView1.ListItems(6).SubItems(4), "1963");
    EXPECT_EQ(form.ListView1.ListItems(8).SubItems(10), "12566");
    EXPECT_EQ(folder.read("AreaofS.txt").substr(0, 14), " 8 , 50, 100, ");
    ExpectFits(form.ListView1);
    ClickRow(form.ListView1, 2);
    Key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(outside.clipboardText, "10\t78\t157\t235\t314\t392\t471\t549\t628\t706\t785\n");
}

TEST_F(MiscAndTables, LinkResistancesAreWrittenAndReadBack) {
    folder.write("Asvosv.txt", "an older table");
    auto& form = Open<frmShearResistance>(links);
    EXPECT_EQ(form.Caption(), "Shear Resistance for Links");
    EXPECT_EQ(form.Width(), 9645);
    EXPECT_EQ(form.Height(), 6090);
    ASSERT_EQ(form.ListView1.ListItems.Count(), 15);
    EXPECT_EQ(form.ListView1.ListItems(3).Text(), "100");
    EXPECT_EQ(form.ListView1.ListItems(3).SubItems(2), "1.005");
    EXPECT_EQ(form.ListView1.ListItems(15).SubItems(6), "1.005");
    ExpectFits(form.ListView1);
}

TEST_F(MiscAndTables, ATableThatCannotBeWrittenIsTold) {
    std::filesystem::create_directory(folder / "AreaofS.txt.new");
    outside.ExpectMsgBox("\"" + (folder / "AreaofS.txt").string() +
                         "\" could not be written (Is a directory). What stood there before is "
                         "unchanged; make room or choose another folder, then try again.");
    EXPECT_EQ(Open<frmSteelArea>(areas).ListView1.ListItems.Count(), 0);
}

}  // namespace
}  // namespace trabeon::test
