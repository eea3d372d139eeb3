#include <gtest/gtest.h>

#include "forms/results/frmAnalysis.h"
#include "forms/results/frmOptions.h"
#include "tests/support/program_fixture.h"

namespace trabeon::test {
namespace {

class AnalysisWindow : public ProgramTest {
  protected:
    frmAnalysis& Open() {
        Choose("&Structure|&Analyse...");
        return forms().Get<frmAnalysis>();
    }
    void WriteBeam() {
        folder.write(
            "Joint.txt",
            "1,Pin Jointed,\"None\"\r\n2,Continuous,\"None\"\r\n3,Pin Jointed,\"None\"\r\n");
        folder.write("Member.txt", "1,200,2,6,\"None\"\r\n2,200,2,6,\"None\"\r\n");
        folder.write("Udl.txt", "1,0,6,12,12,\"None\"\r\n2,0,6,12,12,\"None\"\r\n");
    }
};

TEST_F(AnalysisWindow, ShowsTheWholeTableAndOpensTheDiagrams) {
    Start();
    WriteBeam();
    auto& analysis = Open();
    EXPECT_EQ(analysis.txtTBResults.Text(), "");
    EXPECT_TRUE(analysis.cmdAnalyse.HasFocus());
    Press(analysis.cmdAnalyse, Qt::Key_Space);
    const auto table = analysis.txtTBResults.Text();
    EXPECT_EQ(table, folder.read("TB.txt"));
    EXPECT_TRUE(
        table.ends_with("Final     +0.00E+00     +5.40E+01     -5.40E+01     +0.00E+00     "))
        << table;
    EXPECT_EQ(analysis.PBAnalysis.Value(), 100);
    EXPECT_TRUE(context().mnuContinuous.Enabled());
    EXPECT_TRUE(context().mnuSingle.Enabled());
    EXPECT_FALSE(forms().Get<frmOptions>().Visible());  // read, and hidden again
    EXPECT_EQ(context().dataChanged, 0);

    Press(analysis.cmdAnalyse, Qt::Key_Space);  // a second press repeats everything
    EXPECT_EQ(analysis.txtTBResults.Text(), table);
}

TEST_F(AnalysisWindow, SettingsAreReadAnewAtEachPress) {
    Start();
    WriteBeam();
    Click(Open().cmdAnalyse);
    EXPECT_NE(folder.read("BM.txt").find("\r\n6.00E-01,"), std::string::npos);
    forms().Get<frmOptions>().txtDivision.SetText("12");  // withdraws the window
    Settle();
    Click(Open().cmdAnalyse);
    EXPECT_NE(folder.read("BM.txt").find("\r\n5.00E-01,"), std::string::npos);
    forms().Get<frmOptions>().txtPlaces.SetText("three");
    Settle();
    const auto before = folder.contents();
    outside.ExpectMsgBox("The decimal places of the maximum must be a number from 0 to 12.");
    Click(Open().cmdAnalyse);
    EXPECT_EQ(folder.contents(), before);
}

TEST_F(AnalysisWindow, UnfitStructureIsToldInOrderAndChangesNothingElse) {
    Start();
    WriteBeam();
    Click(Open().cmdAnalyse);
    const auto table = Open().txtTBResults.Text();
    folder.write("Joint.txt", "");
    const auto before = folder.contents();
    DisablePlot(context());
    Settle();
    auto& again = Open();
    again.ShowTable();
    outside.ExpectMsgBox("You can't have 0 number of joint!");
    outside.ExpectMsgBox(
        " Please provide more Joints as Total Joints are less than Total Members.");
    Click(again.cmdAnalyse);
    EXPECT_EQ(outside.lastTitle, "Joint Error");
    EXPECT_EQ(outside.lastStyle, 48);
    EXPECT_EQ(again.PBAnalysis.Value(), 0);
    EXPECT_EQ(again.txtTBResults.Text(), table);
    EXPECT_EQ(folder.contents(), before);
    EXPECT_TRUE(context().mnuSingle.Enabled());  // pressing the button counts
}

TEST_F(AnalysisWindow, LayoutFollowsTheWindowAndNeverGoesBelowZero) {
    Start();
    auto& analysis = Open();
    EXPECT_EQ(std::pair(analysis.Width(), analysis.Height()), std::pair(4755, 4020));
    analysis.Move(0, 0, 9000, 6000);
    EXPECT_NEAR(analysis.txtTBResults.Left(), 100, 15);
    EXPECT_EQ(analysis.txtTBResults.Top(), 600);
    EXPECT_NEAR(analysis.txtTBResults.Width(), analysis.ScaleWidth() - 200, 15);
    EXPECT_NEAR(analysis.txtTBResults.Height(), analysis.ScaleHeight() - 600, 15);
    EXPECT_NEAR(analysis.PBAnalysis.Left(), analysis.cmdAnalyse.Width() + 350, 15);
    EXPECT_NEAR(analysis.PBAnalysis.Width(), 9000 - analysis.PBAnalysis.Left() - 300, 15);
    analysis.Move(0, 0, 0, 0);
    EXPECT_GE(std::min(analysis.txtTBResults.Width(), analysis.PBAnalysis.Width()), 0);
}

}  // namespace
}  // namespace trabeon::test
