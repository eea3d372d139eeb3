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
    ExpectTidy(form);
    Keys("40");
    Alt(Qt::Key_O);
    EXPECT_FALSE(form.Visible());
    EXPECT_EQ(Open<frmMisc>(misc).txtCover.Text(), "40");
    form.Unload();
    Settle();
    EXPECT_EQ(forms().Get<frmMisc>().txtCover.Text(), "25");
}

TEST_F(MiscAndTables, TablesAreWrittenAndReadBack) {
    folder.write("Asvosv.txt", "an older table");
    auto& bars = Open<frmSteelArea>(areas);
    EXPECT_EQ(bars.Caption(), "Area of Given Number of Bars");
    EXPECT_EQ(std::pair(bars.Width(), bars.Height()), std::pair(9330, 4545));
    EXPECT_EQ(Shown(bars.ListView1, 1), (Texts{"8", "10", "12", "16", "20", "25", "32", "40"}));
    EXPECT_EQ(bars.ListView1.ListItems(8).SubItems(10), "12566");
    EXPECT_EQ(folder.read("AreaofS.txt").substr(0, 14), " 8 , 50, 100, ");
    ExpectFits(bars.ListView1);
    ClickRow(bars.ListView1, 2);
    Key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(outside.clipboardText, "10\t78\t157\t235\t314\t392\t471\t549\t628\t706\t785\n");
    auto& resistances = Open<frmShearResistance>(links);
    EXPECT_EQ(resistances.Caption(), "Shear Resistance for Links");
    EXPECT_EQ(std::pair(resistances.Width(), resistances.Height()), std::pair(9645, 6090));
    ASSERT_EQ(resistances.ListView1.ListItems.Count(), 15);
    EXPECT_EQ(resistances.ListView1.ListItems(15).SubItems(6), "1.005");
    ExpectFits(resistances.ListView1);
    bars.Unload();
    Settle();
    BlockWriting("AreaofS.txt");
    EXPECT_EQ(Open<frmSteelArea>(areas).ListView1.ListItems.Count(), 0);
}

}  // namespace
}  // namespace trabeon::test
