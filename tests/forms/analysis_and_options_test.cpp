// The analysis window, and the plotting options that withdraw what it made.
#include <QMdiArea>
#include <QMdiSubWindow>

#include "forms/results/frmAnalysis.h"
#include "forms/settings/frmOptions.h"
#include "tests/support/editor_fixture.h"

namespace trabeon::test {
namespace {

class AnalysisWindow : public EditorTest {
  protected:
    AnalysisWindow() {
        folder.write("Joint.txt", "1,Pin Jointed,a\r\n2,Continuous,b\r\n3,Pin Jointed,c\r\n");
        folder.write("Member.txt", MemberRows(2));
        folder.write("Udl.txt", "1,0,6,12,12,\"None\"\r\n2,0,6,12,12,\"None\"\r\n");
        Press(Open<frmAnalysis>().cmdAnalyse, Qt::Key_Space);
    }
    bool HasStation(const std::string& x) {
        return folder.read("BM.txt").find("\r\n" + x + ",") != std::string::npos;
    }
};

TEST_F(AnalysisWindow, ShowsTheWholeTableAndOpensTheDiagrams) {
    auto& analysis = Open<frmAnalysis>();
    const auto table = analysis.txtTBResults.Text();
    EXPECT_EQ(table, folder.read("TB.txt"));
    EXPECT_TRUE(
        table.ends_with("Final     +0.00E+00     +5.40E+01     -5.40E+01     +0.00E+00     "))
        << table;
    EXPECT_EQ(analysis.PBAnalysis.Value(), 100);
    EXPECT_TRUE(context().mnuContinuous.Enabled());
    EXPECT_TRUE(context().mnuSingle.Enabled());
    EXPECT_FALSE(forms().Get<frmOptions>().Visible());  // read, and hidden again
    EXPECT_EQ(TakeFlag(), 0);
    Click(analysis.cmdAnalyse);  // a second press repeats everything
    EXPECT_EQ(analysis.txtTBResults.Text(), table);
}

TEST_F(AnalysisWindow, SettingsAreReadAnewAtEachPress) {
    EXPECT_TRUE(HasStation("6.00E-01"));
    forms().Get<frmOptions>().txtDivision.SetText("12");  // withdraws the window
    Settle();
    Click(Open<frmAnalysis>().cmdAnalyse);
    EXPECT_TRUE(HasStation("5.00E-01"));
    forms().Get<frmOptions>().txtPlaces.SetText("three");
    Settle();
    const auto before = folder.contents();
    outside.ExpectMsgBox("The decimal places of the maximum must be a number from 0 to 12.");
    Click(Open<frmAnalysis>().cmdAnalyse);
    EXPECT_EQ(folder.contents(), before);
}

TEST_F(AnalysisWindow, UnfitStructureIsToldInOrderAndChangesNothingElse) {
    const auto table = Open<frmAnalysis>().txtTBResults.Text();
    folder.write("Joint.txt", "");
    const auto before = folder.contents();
    DisablePlot(context());
    forms().Unload("frmPoint");
    Settle();
    auto& again = Open<frmAnalysis>();
    EXPECT_EQ(again.txtTBResults.Text(), "");
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
    EXPECT_FALSE(forms().IsLoaded("frmPoint"));
    EXPECT_TRUE(context().mnuSingle.Enabled());  // pressing the button counts
}

TEST_F(AnalysisWindow, LayoutFollowsTheWindowAndNeverGoesBelowZero) {
    auto& analysis = Open<frmAnalysis>();
    ExpectBounds(analysis, 0, 0, 4755, 4020);
    analysis.SetScaleSize(9000, 6000);
    ExpectBounds(analysis.txtTBResults, 100, 600, 8800, 5400);
    const int left = analysis.cmdAnalyse.Width() + 350;
    ExpectBounds(analysis.PBAnalysis, left, 50, analysis.Width() - left - 300,
                 analysis.PBAnalysis.Height());
    analysis.Move(0, 0, 0, 0);
    EXPECT_GE(std::min(analysis.txtTBResults.Width(), analysis.PBAnalysis.Width()), 0);
}

class Options : public EditorTest {
  protected:
    /// The state after an analysis: the menus are on and the analysis window is up.
    void ShowResults() {
        forms().Show("frmAnalysis");
        context().mnuContinuous.SetEnabled(true);
        context().mnuSingle.SetEnabled(true);
    }
    bool ResultsStand() {
        const bool stand = forms().IsLoaded("frmAnalysis");
        EXPECT_EQ(context().mnuContinuous.Enabled(), stand);
        EXPECT_EQ(context().mnuSingle.Enabled(), stand);
        return stand;
    }
    frmOptions& options = Open<frmOptions>();
};

TEST_F(Options, OkWithoutAChangeLeavesTheResults) {
    ShowResults();
    Click(Open<frmOptions>().cmdOptionsOK);
    EXPECT_FALSE(options.Visible());
    EXPECT_TRUE(ResultsStand());
    EXPECT_TRUE(Open<frmOptions>().txtDivision.HasFocus());  // again, though hiding moved the focus
    EXPECT_EQ(options.txtDivision.SelLength(), 2);
}

TEST_F(Options, EachChangeWithdrawsTheResultsAtOnceAndTurnsItsConvention) {
    std::filesystem::copy(PICTURES, folder.path());
    for (const auto& [change, conventions] :
         std::initializer_list<std::pair<std::function<void()>, const char*>>{
             {[&] { Type(options.txtDivision, "2"); }, "Option B, Option B"},
             {[&] { Type(options.txtPlaces, "x"); }, "Option B, Option B"},
             {[&] { Click(options.cmdChangeM); }, "Option A, Option B"},
             {[&] { Click(options.cmdChangeM); }, "Option B, Option B"},
             {[&] { Click(options.cmdChangeS); }, "Option B, Option A"}}) {
        ShowResults();
        options.Show();
        change();
        EXPECT_FALSE(ResultsStand());
        EXPECT_EQ(options.lblMOption.Caption() + ", " + options.lblSOption.Caption(), conventions);
    }
    EXPECT_TRUE(options.WebMoment.HasPicture() && options.WebShear.HasPicture());
    ShowResults();
    options.Unload();
    Settle();
    EXPECT_TRUE(ResultsStand());
    const auto& fresh = forms().Get<frmOptions>();
    EXPECT_EQ(fresh.txtDivision.Text() + fresh.txtPlaces.Text() + fresh.lblSOption.Caption(),
              "103Option B");
}

TEST_F(Options, TheKeysOfTheConventionsLeadToTheirButtonsAndSpacePresses) {
    ShowResults();
    Open<frmOptions>();
    for (auto [key, button] :
         {std::pair{Qt::Key_B, &options.cmdChangeM}, {Qt::Key_S, &options.cmdChangeS}}) {
        Alt(key);
        EXPECT_TRUE(button->HasFocus());
        EXPECT_EQ(options.lblMOption.Caption() + options.lblSOption.Caption(), "Option BOption B");
    }
    EXPECT_TRUE(ResultsStand());
    Key(Qt::Key_Space);
    EXPECT_EQ(options.lblSOption.Caption(), "Option A");
}

TEST_F(Options, DivisionTakesDigitsAndPointsAndIsAtLeastTen) {
    for (const auto& [typed, becomes] : {std::pair{"9", "10"},
                                         {"", "10"},
                                         {"1a2-0", "120"},
                                         {"12.7", "12"},
                                         {"1.2.3", "10"},
                                         {"25", "25"}}) {
        Open<frmOptions>().txtDivision.SelectAll();
        Press(options.txtDivision, Qt::Key_Backspace);
        Type(options.txtDivision, typed);
        Click(options.cmdOptionsOK);
        EXPECT_EQ(options.txtDivision.Text(), becomes) << typed;
    }
}

TEST_F(Options, ResultFormsGoInTheirOrder) {
    std::string gone;
    for (const auto* form : {"frmAnalysis", "frmShear1", "frmSData", "frmMoment1", "frmBMData",
                             "frmContinuousS", "frmContinuousTB"}) {
        forms().Show(form);
        QObject::connect(window().findChild<QMdiArea*>()->activeSubWindow(), &QObject::destroyed,
                         [&gone, form] { gone += std::string(form) + ' '; });
    }
    DisablePlot(context());
    Settle();
    EXPECT_EQ(
        gone,
        "frmShear1 frmMoment1 frmContinuousTB frmContinuousS frmBMData frmSData frmAnalysis ");
}

}  // namespace
}  // namespace trabeon::test
