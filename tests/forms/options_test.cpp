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
    const std::function<void()> presses[] = {[&] { Click(options.cmdChangeM); },
                                             [&] { Click(options.cmdChangeM); },
                                             [&] { Click(options.cmdChangeS); }};
    std::string conventions;
    for (const auto& press : presses) {
        EXPECT_TRUE(options.WebMoment.HasPicture() && options.WebShear.HasPicture());
        press();
        conventions += options.lblMOption.Caption() + options.lblSOption.Caption() + ' ';
    }
    EXPECT_EQ(conventions, "Option AOption B Option BOption B Option BOption A ");
    EXPECT_TRUE(options.WebMoment.HasPicture() && options.WebShear.HasPicture());
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
constexpr const char* resultForms[] = {"frmShear1",      "frmMoment1", "frmContinuousTB",
                                       "frmContinuousS", "frmBMData",  "frmSData",
                                       "frmAnalysis"};
template <int Number>
struct Result : Form {
    static constexpr const char* Name = resultForms[Number];
    explicit Result(Context&) : Form("Result") {}
    ~Result() override { unloaded += std::to_string(Number); }
};

TEST_F(Options, ResultFormsGoInTheirOrder) {
    Start();
    [&]<int... Number>(std::integer_sequence<int, Number...>) {
        (forms().Register<Result<Number>>(context()), ...);
    }
    (std::make_integer_sequence<int, 7>());
    for (const int number : {6, 4, 3, 2, 1, 5, 0})
        forms().Show(resultForms[number]);
    unloaded.clear();
    DisablePlot(context());
    Settle();
    EXPECT_EQ(unloaded, "0123456");
}

}  // namespace
}  // namespace trabeon::test
