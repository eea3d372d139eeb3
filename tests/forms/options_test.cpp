#include <gtest/gtest.h>

#include "forms/results/frmAnalysis.h"
#include "forms/results/frmOptions.h"
#include "tests/support/program_fixture.h"

namespace trabeon::test {
namespace {

class Options : public ProgramTest {
  protected:
    frmOptions& Open() {
        Choose("&Diagram|Plotting &Options...");
        return forms().Get<frmOptions>();
    }
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
};

TEST_F(Options, OkWithoutAChangeLeavesTheResults) {
    Start();
    ShowResults();
    auto& options = Open();
    EXPECT_TRUE(options.txtDivision.HasFocus());
    Click(options.cmdOptionsOK);
    EXPECT_FALSE(options.Visible());
    EXPECT_TRUE(ResultsStand());
    EXPECT_TRUE(Open().txtDivision.HasFocus());  // again, though hiding moved the focus
    EXPECT_EQ(options.txtDivision.SelLength(), 2);
}

TEST_F(Options, EachChangeWithdrawsTheResultsAtOnce) {
    Start();
    auto& options = Open();
    const std::function<void()> changes[] = {
        [&] { Type(options.txtDivision, "2"); }, [&] { Type(options.txtPlaces, "x"); },
        [&] { Click(options.cmdChangeM); }, [&] { Click(options.cmdChangeS); }};
    for (const auto& change : changes) {
        ShowResults();
        options.Show();
        change();
        EXPECT_FALSE(ResultsStand());
    }
}

TEST_F(Options, DivisionTakesDigitsAndPointsAndIsAtLeastTen) {
    Start();
    for (const auto& [typed, becomes] : {std::pair{"9", "10"},
                                         {"", "10"},
                                         {"1a2-0", "120"},
                                         {"12.7", "12"},
                                         {"1.2.3", "10"},
                                         {"25", "25"}}) {
        auto& options = Open();
        options.txtDivision.SelectAll();
        Press(options.txtDivision, Qt::Key_Backspace);
        Type(options.txtDivision, typed);
        Click(options.cmdOptionsOK);
        EXPECT_EQ(options.txtDivision.Text(), becomes) << typed;
    }
}

TEST_F(Options, ChangeTurnsTheConventionAndItsPicture) {
    std::filesystem::copy(PICTURES, folder.path());
    Start();
    auto& options = Open();
    EXPECT_TRUE(options.WebMoment.HasPicture());
    EXPECT_TRUE(options.WebShear.HasPicture());
    EXPECT_EQ(options.lblMOption.Caption(), "Option B");
    for (const auto* now : {"Option A", "Option B"}) {
        Click(options.cmdChangeM);
        EXPECT_EQ(options.lblMOption.Caption(), now);
        EXPECT_EQ(options.lblSOption.Caption(), "Option B");
        EXPECT_TRUE(options.WebMoment.HasPicture());
    }
    Click(options.cmdChangeS);
    EXPECT_EQ(options.lblSOption.Caption(), "Option A");
    EXPECT_TRUE(options.WebShear.HasPicture());
}

TEST_F(Options, ClosedFormComesBackWithItsDefaultsAndResultsStay) {
    Start();
    auto& options = Open();
    Type(options.txtPlaces, "5");
    Click(options.cmdChangeM);
    ShowResults();
    options.Unload();
    Settle();
    EXPECT_TRUE(ResultsStand());
    const auto& fresh = forms().Get<frmOptions>();
    EXPECT_EQ(fresh.txtDivision.Text(), "10");
    EXPECT_EQ(fresh.txtPlaces.Text(), "3");
    EXPECT_EQ(fresh.lblMOption.Caption(), "Option B");
}

/// A form that notes when it goes.
std::string unloaded;
template <char Letter>
struct Result : Form {
    static const char* const Name;
    explicit Result(Context&) : Form("Result") {}
    ~Result() override { unloaded += Letter; }
};
template <>
const char* const Result<'s'>::Name = "frmShear1";
template <>
const char* const Result<'m'>::Name = "frmMoment1";
template <>
const char* const Result<'t'>::Name = "frmContinuousTB";
template <>
const char* const Result<'c'>::Name = "frmContinuousS";
template <>
const char* const Result<'b'>::Name = "frmBMData";
template <>
const char* const Result<'d'>::Name = "frmSData";
template <>
const char* const Result<'a'>::Name = "frmAnalysis";

TEST_F(Options, ResultFormsGoInTheirOrder) {
    Start();
    forms().Register<Result<'a'>>(context());
    forms().Register<Result<'b'>>(context());
    forms().Register<Result<'c'>>(context());
    forms().Register<Result<'d'>>(context());
    forms().Register<Result<'m'>>(context());
    forms().Register<Result<'s'>>(context());
    forms().Register<Result<'t'>>(context());
    for (const auto* form : {"frmAnalysis", "frmBMData", "frmContinuousS", "frmContinuousTB",
                             "frmMoment1", "frmSData", "frmShear1"})
        forms().Show(form);
    unloaded.clear();
    DisablePlot(context());
    Settle();
    EXPECT_EQ(unloaded, "smtcbda");
}

}  // namespace
}  // namespace trabeon::test
