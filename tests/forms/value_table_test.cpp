#include "forms/results/frmBMData.h"
#include "forms/results/frmSData.h"
#include "tests/forms/diagram_fixture.h"

namespace trabeon::test {
namespace {

class Values : public DiagramTest {
  protected:
    void SetUp() override {
        Start();
        folder.write("Member.txt", "1,200,2,6,\"None\"\r\n2,200,2,6,\"None\"\r\n");
        folder.write("BM.txt",
                     "Span 1 \r\n" + FileRows("0.00E+00,0.00E+00,-2.70E+01\r\n", "6.00E-01") +
                         "Span 2 \r\n" + FileRows("1.00E-09,-5.40E+01,-4.50E+01\r\n", "1.50E+00"));
    }
    /// Twelve of them.
    static std::string FileRows(const std::string& first, const std::string& x) {
        std::string rows = first;
        for (int i = 0; i < 11; ++i)
            rows += x + ",1.40E+0" + std::to_string(i % 10) + ",-1.98E+01\r\n";
        return rows;
    }
    static std::string Line(ValueTable& table, int row) {
        const auto item = table.ListView1.ListItems(row);
        return item.Text() + "|" + item.SubItems(1);
    }
};

TEST_F(Values, DistancesArePlainAndValuesTheFilesOwnText) {
    auto& diagram = forms().Get<frmMoment1>();
    diagram.cboMember.SetListIndex(0);
    auto& first = forms().Get<frmBMData>();
    EXPECT_EQ(first.Caption(), "Bending Moment Values");
    EXPECT_EQ(first.ListView1.ListItems.Count(), 12);
    EXPECT_EQ(Line(first, 1), " 0|0.00E+00");
    EXPECT_EQ(Line(first, 2), " 0.6|1.40E+00");
    EXPECT_EQ(Line(first, 12), " 0.6|1.40E+00");
    diagram.cboMember.SetListIndex(1);
    auto& second = forms().Get<frmBMData>();
    EXPECT_EQ(second.ListView1.ListItems.Count(), 12);
    EXPECT_EQ(Line(second, 1), " 1E-09|-5.40E+01");  // Option B leaves the sign alone
    EXPECT_EQ(Line(second, 3), " 1.5|1.40E+01");
}

TEST_F(Values, TheShearTableFollowsTheShearDiagram) {
    forms().Get<frmMoment1>().cboMember.SetListIndex(0);
    forms().Get<frmShear1>().cboMember.SetListIndex(1);
    auto& table = forms().Get<frmSData>();
    EXPECT_EQ(table.Caption(), "Shear Force Values");
    EXPECT_EQ(Line(table, 1), " 1E-09|-4.50E+01");
    EXPECT_EQ(Line(table, 12), " 1.5|-1.98E+01");
}

TEST_F(Values, AShortFileIsListedAsFarAsItGoes) {
    folder.write("BM.txt", "Span 1 \r\n0.00E+00,1.00E+00,2.00E+00\r\n9.99E+999,3.00E+00,4");
    forms().Get<frmMoment1>().cboMember.SetListIndex(0);
    auto& table = forms().Get<frmBMData>();
    ASSERT_EQ(table.ListView1.ListItems.Count(), 2);
    EXPECT_EQ(Line(table, 2), "9.99E+999|3.00E+00");  // a number that no plain text holds
}

TEST_F(Values, ASelectionIsCopiedAsASpreadsheetTakesIt) {
    forms().Get<frmShear1>().cboMember.SetListIndex(0);
    auto& list = forms().Get<frmSData>().ListView1;
    list.SetFocus();
    QTest::keyClick(list.Widget(), Qt::Key_Home);
    QTest::keyClick(list.Widget(), Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(list.Widget(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(outside.clipboardText, "0\t-2.70E+01\n0.6\t-1.98E+01\n");
    QTest::keyClick(list.Widget(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(list.Widget(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(std::count(outside.clipboardText.begin(), outside.clipboardText.end(), '\n'), 12);
}

TEST_F(Values, TheListFillsTheFormButForAStripBelow) {
    forms().Get<frmShear1>().cmdPlot.Press();
    auto& table = forms().Get<frmSData>();
    EXPECT_EQ(std::pair(table.Width(), table.Height()), std::pair(3600, 4005));  // whole pixels
    EXPECT_EQ(table.ListView1.Width(), table.ScaleWidth());
    EXPECT_NEAR(table.ListView1.Height(), table.ScaleHeight() - 500, 15);
    table.Move(0, 0, 0, 0);
    EXPECT_EQ(table.ListView1.Height(), 0);
}

}  // namespace
}  // namespace trabeon::test
