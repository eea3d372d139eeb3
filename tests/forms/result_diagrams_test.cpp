// The four diagrams of a beam that is analysed, and the two value tables that come with them.
#include "core/store/project_file.h"
#include "forms/results/frmAnalysis.h"
#include "forms/results/frmBMData.h"
#include "forms/results/frmContinuousS.h"
#include "forms/results/frmContinuousTB.h"
#include "forms/results/frmSData.h"
#include "forms/settings/frmOptions.h"
#include "tests/support/editor_fixture.h"
#include "toolkit/chart/graph.h"

namespace trabeon {

static bool operator==(const GraphPoint& a, const GraphPoint& b) {
    return a.y == b.y && std::abs(a.x - b.x) < 1e-9;
}
static void PrintTo(const GraphPoint& point, std::ostream* out) {
    *out << "(" << point.x << ", " << point.y << ")";
}

namespace test {
namespace {

using Points = std::vector<GraphPoint>;
using Numbers = std::vector<std::size_t>;
constexpr StationField moment = &StationRow::moment, shear = &StationRow::shear;

const std::string again = "Of another beam or an earlier state: analyse again";

class ResultDiagrams : public EditorTest {
  protected:
    /// The example of five spans, analysed.
    ResultDiagrams() {
        Start();
        EXPECT_TRUE(unpackProject(EXAMPLES "/five-span-with-cantilever.TB", folder.path()));
        Analyse();
    }
    void Analyse() {
        Choose("&Structure|&Analyse...");
        forms().Get<frmAnalysis>().cmdAnalyse.Press();
        forms().Unload("frmAnalysis");
        Settle();
    }
    /// Both diagrams are drawn by these options; analyses again.
    void SetOptions(const std::string& ofMoment, const std::string& ofShear) {
        auto& options = forms().Get<frmOptions>();
        if (options.lblMOption.Caption() != ofMoment)
            options.cmdChangeM.Press();
        if (options.lblSOption.Caption() != ofShear)
            options.cmdChangeS.Press();
        options.Hide();
        Settle();
        Analyse();
    }

    frmContinuousTB& WholeMoment() { return forms().Get<frmContinuousTB>(); }
    frmContinuousS& WholeShear() { return forms().Get<frmContinuousS>(); }
    frmMoment1& Moment() { return forms().Get<frmMoment1>(); }
    frmShear1& Shear() { return forms().Get<frmShear1>(); }

    static void Select(ContinuousDiagram& form, const Numbers& members) {
        for (int i = 0; i < form.List1.ListCount(); ++i)
            form.List1.SetSelected(i, false);
        for (const auto member : members)
            form.List1.SetSelected(static_cast<int>(member - 1), true);
    }
    Points MomentOf(int member) {
        Moment().cboMember.SetListIndex(member - 1);
        return Moment().GraphMoment1.Points();
    }
    Points ShearOf(int member) {
        Shear().cboMember.SetListIndex(member - 1);
        return Shear().GraphShear1.Points();
    }

    /// What a chart must hold of members that are laid end to end.
    Points Expected(const Numbers& members, StationField field, double sign) {
        Points points;
        const auto file = folder.read("BM.txt");
        for (const auto& point : beamCurve({file, ""}, 12, field, members).points)
            points.push_back({point.x, sign * point.value});
        return points;
    }
    static std::string Marks(const Graph& chart) {
        std::string text;
        for (const auto& [x, label] : chart.Marks())
            text += std::to_string(x).substr(0, 4) + ' ' + label + "; ";
        return text;
    }
    static std::string Line(const ListView& table, int row) {
        return table.ListItems(row).Text() + "|" + table.ListItems(row).SubItems(1);
    }
};

TEST_F(ResultDiagrams, HoldTheFilesRowsByTheOptions) {
    for (const auto& [option, sign] : {std::pair{"Option B", -1.0}, {"Option A", 1.0}}) {
        SetOptions(option, option);
        for (const auto& members : {Numbers{2}, Numbers{1, 3}, Numbers{1, 2, 3, 4, 5}}) {
            Select(WholeMoment(), members);
            Select(WholeShear(), members);
            EXPECT_EQ(WholeMoment().GraphCMoment.Points(), Expected(members, moment, sign));
            EXPECT_EQ(WholeShear().GraphCshear.Points(), Expected(members, shear, sign));
            EXPECT_EQ(WholeMoment().GraphCMoment.PointCount(), 12 * members.size());
            EXPECT_EQ(WholeMoment().PBCBTB.Value() + WholeShear().PBCS.Value(), 200);
        }
        EXPECT_EQ(MomentOf(5), Expected({5}, moment, sign));
        EXPECT_EQ(ShearOf(5), Expected({5}, shear, sign));
        const std::string sagging = sign > 0 ? "Sagging drawn upward" : "Sagging drawn downward";
        const std::string steps =
            sign > 0 ? "Upward reactions step down" : "Upward reactions step up";
        EXPECT_EQ(WholeMoment().GraphCMoment.ValueFactor(), sign);
        EXPECT_EQ(WholeMoment().GraphCMoment.Note(), sagging);
        EXPECT_EQ(WholeShear().GraphCshear.Note(), steps);
        EXPECT_EQ(Moment().GraphMoment1.Note(), "Member 5. " + sagging);
        EXPECT_EQ(Shear().GraphShear1.Note(), "Member 5. " + steps);
    }
    SetOptions("Option B", "Option A");  // each follows its own
    EXPECT_EQ(MomentOf(1), Expected({1}, moment, -1));
    EXPECT_EQ(ShearOf(1), Expected({1}, shear, 1));
    const auto& chart = Moment().GraphMoment1;
    EXPECT_EQ(chart.GreatestLabel() + ", " + chart.LeastLabel(), "30.7 at 2.16, -200 at 6");
    EXPECT_TRUE(chart.Marks().empty());
}

TEST_F(ResultDiagrams, JointsAreMarkedAlsoWhereMembersMeetThatAreNoNeighbours) {
    Select(WholeMoment(), {1, 2, 3, 4, 5});
    EXPECT_EQ(Marks(WholeMoment().GraphCMoment),
              "0.00 Joint 1; 6.00 2; 13.5 3; 18.5 4; 24.5 5; 26.5 6; ");
    Select(WholeMoment(), {1, 3});
    EXPECT_EQ(Marks(WholeMoment().GraphCMoment), "0.00 Joint 1; 6.00 2, 3; 11.0 4; ");
}

TEST_F(ResultDiagrams, LabelAndReadTheRowsOfTheFileAsTheyAre) {
    // One span of 6, both ends fixed, whose maximum lies between two stations that round alike.
    folder.write("BM.txt",
                 "Span 1 \r\n0.00E+00,-2.00E+02,-1.00E+02\r\n2.40E+00,1.03E+02,-1.00E+01\r\n"
                 "2.55E+00,1.03E+02,0.00E+00\r\n3.00E+00,1.03E+02,4.00E+01\r\n"
                 "5.40E+00,-2.00E+02,9.00E+01\r\n6.00E+00,-2.00E+02,1.00E+02\r\n");
    folder.write("BMMax.txt", "Span # 1 \r\n 2.5518 ,1.03E+02,0.00E+00\r\n");
    forms().Get<frmOptions>().txtDivision.SetText("4");
    MomentOf(1);
    auto& chart = Moment().GraphMoment1;
    EXPECT_EQ(chart.GreatestLabel() + ", " + chart.LeastLabel(), "103 at 2.55, -200 at 0");
    Settle();
    QTest::mouseMove(chart.Widget(), chart.Widget()->rect().center() + QPoint(20, 0));
    EXPECT_EQ(chart.ReadOut(), "member 1, row 4: x = 3, M = 103");
}

TEST_F(ResultDiagrams, PlotOnAUsersChoiceAndWithNoneTheChartStays) {
    auto& whole = Open<frmContinuousS>();
    EXPECT_EQ(whole.List1.List(4), "Member  5");
    EXPECT_TRUE(whole.List1.HasFocus());
    whole.cmdPlot.Press();
    EXPECT_EQ(whole.GraphCshear.PointCount(), 0);
    Press(whole.List1, Qt::Key_Space);
    EXPECT_EQ(whole.GraphCshear.Points(), Expected({1}, shear, -1));
    whole.List1.SetSelected(0, false);
    EXPECT_EQ(whole.PBCS.Value(), 0);
    EXPECT_EQ(whole.GraphCshear.Points(), Expected({1}, shear, -1));
    whole.List1.SetFocus();
    Key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(whole.GraphCshear.Points(), Expected({1, 2, 3, 4, 5}, shear, -1));

    auto& single = Open<frmMoment1>();
    EXPECT_EQ(single.cboMember.List(4), "Member 5");
    EXPECT_EQ(single.cboMember.ListIndex(), -1);
    single.cmdPlot.Press();
    EXPECT_EQ(single.GraphMoment1.PointCount(), 0);
    EXPECT_EQ(Line(forms().Get<frmBMData>().ListView1, 1), " 0|-3.17E+01");  // the first member
    single.cboMember.SetFocus();
    for (const std::size_t member : {1, 2, 3}) {
        Key(Qt::Key_Down);  // the value table that opens leaves the focus in the list
        EXPECT_EQ(single.GraphMoment1.Points(), Expected({member}, moment, -1));
        Settle();
    }
    EXPECT_TRUE(forms().Get<frmBMData>().Visible());
}

TEST_F(ResultDiagrams, SayWhenTheyAreOfAnotherBeam) {
    Select(WholeMoment(), {1, 2});
    EXPECT_EQ(WholeMoment().GraphCMoment.Note(), "Sagging drawn downward");
    ASSERT_TRUE(unpackProject(EXAMPLES "/two-span-floor-beam.TB", folder.path()));
    WholeMoment().cmdPlot.Press();
    EXPECT_EQ(WholeMoment().GraphCMoment.Note(), again);
    EXPECT_EQ(program.window().Event(), again);
    Moment().cboMember.SetListIndex(1);
    EXPECT_EQ(Moment().GraphMoment1.Note(), again);
    auto& table = forms().Get<frmBMData>();
    EXPECT_EQ(table.remark.lblRemark.Caption(), again);
    EXPECT_TRUE(table.remark.lblRemark.Visible());
    EXPECT_GE(table.remark.lblRemark.Top(), table.ListView1.Top() + table.ListView1.Height());
    Analyse();
    WholeMoment().cmdPlot.Press();
    EXPECT_EQ(WholeMoment().GraphCMoment.Note(), "Sagging drawn downward");
    Moment().cmdPlot.Press();
    EXPECT_FALSE(forms().Get<frmBMData>().remark.lblRemark.Visible());
    folder.write("BM.txt", "");
    WholeMoment().cmdPlot.Press();
    EXPECT_EQ(WholeMoment().GraphCMoment.Note(), "Not analysed yet: analyse first");
}

TEST_F(ResultDiagrams, FollowAChangeOfTheMemberCount) {
    folder.write("Member.txt", MemberRows(6));
    Reopen<frmContinuousTB>();
    const auto& chart = WholeMoment().GraphCMoment;
    Select(WholeMoment(), {5, 6});  // the file ends with the fifth
    EXPECT_EQ(chart.Points(), Expected({5}, moment, -1));
    EXPECT_EQ(chart.Note(), again);
    folder.write("Member.txt", MemberRows(2));
    Select(WholeMoment(), {1, 2, 3, 4, 5});  // the list is that of before
    EXPECT_EQ(chart.Points(), Expected({1, 2}, moment, -1));
    EXPECT_EQ(chart.Note(), again);
    EXPECT_EQ(chart.PointCount(), 60);
    EXPECT_NEAR(WholeMoment().PBCBTB.Value(), 40, 1e-9);
}

TEST_F(ResultDiagrams, LayoutFollowsTheWindowAndNeverGoesBelowZero) {
    auto& whole = WholeShear();
    ExpectBounds(whole, 0, 0, 8600, 5000);
    ExpectTidy(whole);
    whole.SetScaleSize(9000, 6000);
    ExpectBounds(whole.List1, 8000, 0, 1000, 5650);
    ExpectBounds(whole.GraphCshear, 0, 0, 8000, 5650);
    ExpectBounds(whole.cmdPlot, 0, 5680, 900, 300);
    ExpectBounds(whole.cmdReport, 950, 5680, 1425, 300);
    ExpectBounds(whole.PBCS, 2425, 5700, 6500, whole.PBCS.Height());
    whole.Move(0, 0, 0, 0);
    EXPECT_EQ(whole.GraphCshear.Width() + whole.GraphCshear.Height() + whole.PBCS.Width(), 0);
    auto& single = Moment();
    ExpectBounds(single, 0, 0, 4300, 2500);
    ExpectTidy(single);
    single.SetScaleSize(9000, 6000);
    ExpectBounds(single.GraphMoment1, 0, 0, 9000, 5500);
    ExpectBounds(single.cmdReport, 950, 5530, 1425, single.cmdReport.Height());
    ExpectBounds(single.cboMember, 2450, 5530, 1650, single.cboMember.Height());
    single.Move(0, 0, 0, 0);
    EXPECT_EQ(single.GraphMoment1.Height(), 0);
}

TEST_F(ResultDiagrams, BothTablesMarkTheRowOfTheMaximum) {
    MomentOf(2);
    ShearOf(2);
    for (const ListView* table :
         {&forms().Get<frmBMData>().ListView1, &forms().Get<frmSData>().ListView1}) {
        std::string marked;
        for (int row = 0; row < Tree(*table).topLevelItemCount(); ++row)
            if (Tree(*table).topLevelItem(row)->toolTip(0).contains("maximum"))
                marked += std::to_string(row + 1) + Line(*table, row + 1);
        EXPECT_EQ(marked, table == &forms().Get<frmBMData>().ListView1 ? "6 3.63|1.65E+02"
                                                                       : "6 3.63|1.15E-03");
    }
}

TEST_F(ResultDiagrams, EachPlotOpensTheValueTableAnewWhereItStood) {
    MomentOf(1);
    auto& first = forms().Get<frmBMData>();
    first.Move(4500, 1500, 3000, 3000);
    first.ListView1.ListItems.Clear();
    MomentOf(1);  // the same once more
    auto& second = forms().Get<frmBMData>();
    EXPECT_EQ(second.ListView1.ListItems.Count(), 12);
    ExpectBounds(second, 4500, 1500, 3600, 4000);
    ExpectBounds(second.ListView1, 0, 0, second.ScaleWidth(), second.ScaleHeight() - 500);
    EXPECT_FALSE(forms().IsLoaded("frmSData"));
    Moment().Unload();
    EXPECT_TRUE(forms().IsLoaded("frmBMData"));
}

TEST_F(ResultDiagrams, DistancesArePlainAndValuesTheFilesOwnText) {
    folder.write("BM.txt",
                 "Span 1 \r\n0.00E+00,1.00E+00,-2.70E+01\r\n6.00E-01,-5.40E+01,4.0E+00\r\n"
                 "9.99E+999,3.00E+00,4");
    MomentOf(1);
    ShearOf(1);
    auto& moments = forms().Get<frmBMData>().ListView1;
    auto& shears = forms().Get<frmSData>().ListView1;
    EXPECT_EQ(Shown(moments, 1), " 0| 0.6|9.99E+999");            // no plain text holds the last
    EXPECT_EQ(Shown(moments, 2), "1.00E+00|-5.40E+01|3.00E+00");  // Option B leaves the sign alone
    shears.SetFocus();
    Key(Qt::Key_Home);
    Key(Qt::Key_Down, Qt::ShiftModifier);
    Key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(outside.clipboardText, "0\t-2.70E+01\n0.6\t4.0E+00\n");
}

TEST_F(ResultDiagrams, AFileThatIsShortOrOfOtherDivisionsIsNotReadAskew) {
    const auto whole = ShearOf(2);
    const auto text = folder.read("BM.txt");
    auto cut = text.find("Span 2");
    for (int line = 0; line < 6; ++line)  // the heading and five rows
        cut = text.find('\n', cut) + 1;
    folder.write("BM.txt", text.substr(0, cut));
    EXPECT_EQ(ShearOf(2), Points(whole.begin(), whole.begin() + 5));
    EXPECT_EQ(Shear().GraphShear1.PointCount(), 12);
    EXPECT_EQ(Shear().GraphShear1.Note(), "Member 2. Incomplete: analyse again");
    EXPECT_TRUE(ShearOf(5).empty());  // nothing of it is there: no other member's curve stays

    forms().Get<frmOptions>().txtDivision.SetText("20");
    Settle();
    Analyse();
    forms().Get<frmOptions>().Unload();  // its close box: the default of 10 comes back
    EXPECT_EQ(MomentOf(1).size(), 12);   // of 22
    EXPECT_TRUE(MomentOf(2).empty());
    EXPECT_FALSE(forms().Get<frmOptions>().Visible());  // read, and not brought up
}

}  // namespace
}  // namespace test
}  // namespace trabeon
