#include "forms/results/frmBMData.h"
#include "forms/results/frmSData.h"
#include "tests/forms/diagram_fixture.h"

namespace trabeon::test {
namespace {

class SingleSpan : public DiagramTest {
  protected:
    frmMoment1& Moment() { return forms().Get<frmMoment1>(); }
    frmShear1& Shear() { return forms().Get<frmShear1>(); }

    void ExpectEachMember(SingleSpanDiagram& form, Graph& chart, std::size_t field, double sign) {
        ASSERT_EQ(form.cboMember.ListCount(), 5);
        for (std::size_t member = 1; member <= 5; ++member) {
            form.cboMember.SetListIndex(static_cast<int>(member - 1));
            EXPECT_EQ(chart.Points(), Expected({member}, field, sign)) << "member " << member;
            EXPECT_EQ(chart.PointCount(), 12);
            EXPECT_EQ(chart.ValueFactor(), sign);
        }
    }
};

TEST_F(SingleSpan, HoldsTheFilesRowsInBothOptions) {
    StartWithResults();
    for (const auto& [option, sign] : {std::pair{"Option B", -1.0}, {"Option A", 1.0}}) {
        SetOption(option);
        ExpectEachMember(Moment(), Moment().GraphMoment1, moment, sign);
        ExpectEachMember(Shear(), Shear().GraphShear1, shear, sign);
        EXPECT_EQ(Moment().GraphMoment1.Note(),
                  sign > 0 ? "Sagging drawn upward" : "Sagging drawn downward");
        EXPECT_EQ(Shear().GraphShear1.Note(),
                  sign > 0 ? "Upward reactions step down" : "Upward reactions step up");
    }
    Moment().cboMember.SetListIndex(0);
    EXPECT_EQ(Moment().GraphMoment1.GreatestLabel(), "30.7 at 2.16");
    EXPECT_EQ(Moment().GraphMoment1.LeastLabel(), "-200 at 6");
    EXPECT_TRUE(Moment().GraphMoment1.Marks().empty());
}

TEST_F(SingleSpan, OpensFromTheMenuAndPlotsOnAUsersChoice) {
    StartWithResults();
    Choose("&Diagram|&Single Span Diagram|&Bending Moment Diagram...");
    auto& form = Moment();
    EXPECT_EQ(form.Caption(), "Bending Moment Diagram");
    EXPECT_EQ(form.cboMember.List(4), "Member 5");
    EXPECT_EQ(form.cboMember.ListIndex(), -1);
    EXPECT_TRUE(form.GraphMoment1.Points().empty());
    EXPECT_TRUE(form.cboMember.HasFocus());
    Press(form.cboMember, Qt::Key_Down);
    EXPECT_EQ(form.GraphMoment1.Points(), Expected({1}, moment, -1));
    Choose("&Diagram|&Single Span Diagram|&Shear Force Diagram...");
    EXPECT_EQ(Shear().Caption(), "Shear Force Diagram");
}

TEST_F(SingleSpan, WithNothingChosenPlotLeavesTheChartAndListsTheFirstMember) {
    StartWithResults();
    auto& form = Moment();
    form.cmdPlot.Press();
    EXPECT_TRUE(form.GraphMoment1.Points().empty());
    EXPECT_EQ(form.GraphMoment1.PointCount(), 0);
    auto* table = forms().Loaded<frmBMData>();
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->ListView1.ListItems(1).SubItems(1), "-3.17E+01");
}

TEST_F(SingleSpan, EachPlotOpensTheValueTableAnewWhereItStood) {
    StartWithResults();
    auto& form = Moment();
    form.cboMember.SetListIndex(0);
    auto& first = forms().Get<frmBMData>();
    first.SetLeft(4500);
    first.SetTop(1500);
    first.ListView1.ListItems.Clear();
    form.cboMember.SetListIndex(0);  // the same once more
    auto& second = forms().Get<frmBMData>();
    EXPECT_EQ(second.ListView1.ListItems.Count(), 12);
    EXPECT_EQ(second.Left(), 4500);
    EXPECT_EQ(second.Top(), 1500);
    EXPECT_FALSE(forms().IsLoaded("frmSData"));
    form.Unload();
    EXPECT_TRUE(forms().IsLoaded("frmBMData"));
}

TEST_F(SingleSpan, AShortFileIsPlottedAsFarAsItGoes) {
    StartWithResults();
    auto& form = Shear();
    form.cboMember.SetListIndex(1);
    const auto whole = form.GraphShear1.Points();
    const auto text = folder.read("BM.txt");
    auto cut = text.find("Span 2");
    for (int line = 0; line < 6; ++line)  // the heading and five rows
        cut = text.find('\n', cut) + 1;
    folder.write("BM.txt", text.substr(0, cut));
    form.cmdPlot.Press();
    EXPECT_EQ(form.GraphShear1.Points(), Points(whole.begin(), whole.begin() + 5));
    EXPECT_EQ(form.GraphShear1.PointCount(), 12);
    EXPECT_EQ(form.GraphShear1.Note(), "Incomplete: analyse again");
    form.cboMember.SetListIndex(4);  // nothing of it is there: no other member's curve stays
    EXPECT_TRUE(form.GraphShear1.Points().empty());
    std::filesystem::remove(folder / "BM.txt");
    form.cboMember.SetListIndex(0);
    EXPECT_TRUE(form.GraphShear1.Points().empty());
    EXPECT_EQ(forms().Get<frmSData>().ListView1.ListItems.Count(), 0);
}

TEST_F(SingleSpan, ResultsOfOtherDivisionsAreNotReadAskew) {
    StartWithResults();
    forms().Get<frmOptions>().txtDivision.SetText("20");
    Settle();
    Analyse();
    forms().Get<frmOptions>().Unload();  // its close box: the default of 10 comes back
    Moment().cboMember.SetListIndex(0);
    EXPECT_EQ(Moment().GraphMoment1.Points().size(), 12);  // of 22
    Moment().cboMember.SetListIndex(1);
    EXPECT_TRUE(Moment().GraphMoment1.Points().empty());
    EXPECT_FALSE(forms().Get<frmOptions>().Visible());  // read, and not brought up
}

TEST_F(SingleSpan, AChangeOfAnOptionClosesDiagramsAndTables) {
    StartWithResults();
    Moment().cboMember.SetListIndex(0);
    Shear().cboMember.SetListIndex(0);
    forms().Get<frmOptions>().cmdChangeM.Press();
    for (const auto* form : {"frmMoment1", "frmShear1", "frmBMData", "frmSData"})
        EXPECT_FALSE(forms().IsLoaded(form)) << form;
    EXPECT_FALSE(Entry("&Diagram|&Single Span Diagram")->isEnabled());
}

TEST_F(SingleSpan, AddToReportPastesTheChartOnceThereIsAReport) {
    StartWithResults();
    EXPECT_FALSE(Moment().cmdReport.Enabled());
    int pastes = 0;
    context().pasteIntoReport = [&] { ++pastes; };
    auto& form = Shear();
    form.cboMember.SetListIndex(0);
    Click(form.cmdReport);
    EXPECT_EQ(pastes, 1);
    EXPECT_EQ(outside.clipboardPicture, form.GraphShear1.Picture());
}

TEST_F(SingleSpan, LayoutFollowsTheWindowAndNeverGoesBelowZero) {
    StartWithResults();
    auto& form = Moment();
    EXPECT_EQ(std::pair(form.Width(), form.Height()), std::pair(4305, 2505));  // whole pixels
    EXPECT_LE(form.cboMember.Left() + form.cboMember.Width(), form.ScaleWidth());
    EXPECT_LE(form.cmdReport.Left() + form.cmdReport.Width(), form.cboMember.Left());
    form.Move(0, 0, 9000, 6000);
    EXPECT_EQ(form.GraphMoment1.Width(), form.ScaleWidth());
    EXPECT_NEAR(form.GraphMoment1.Height(), form.ScaleHeight() - 500, 15);
    EXPECT_NEAR(form.cmdPlot.Top(), form.GraphMoment1.Height() + 30, 15);
    EXPECT_NEAR(form.cboMember.Left(), form.cmdReport.Left() + 1500, 15);
    form.Move(0, 0, 0, 0);
    EXPECT_EQ(form.GraphMoment1.Height(), 0);
    EXPECT_EQ(form.cmdPlot.Top(), 30);
}

}  // namespace
}  // namespace trabeon::test
