// The four diagrams of a beam that is analysed, and the two value tables that come with them.
#include <sstream>

#include "core/store/project_file.h"
#include "forms/results/frmAnalysis.h"
#include "forms/results/frmBMData.h"
#include "forms/results/frmContinuousS.h"
#include "forms/results/frmContinuousTB.h"
#include "forms/results/frmOptions.h"
#include "forms/results/frmSData.h"
#include "tests/support/editor_fixture.h"
#include "toolkit/graph.h"

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
constexpr std::size_t moment = 1, shear = 2;

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

    /// What a chart must hold of members that are laid end to end, read from the file in a way of
    /// its own.
    Points Expected(const Numbers& members, std::size_t field, double sign) {
        std::vector<Points> rows;
        std::istringstream lines(folder.read("BM.txt"));
        for (std::string line; std::getline(lines, line);) {
            double row[3];
            if (line.starts_with("Span"))
                rows.emplace_back();
            else if (std::sscanf(line.c_str(), "%lf,%lf,%lf", &row[0], &row[1], &row[2]) == 3)
                rows.back().push_back({row[0], sign * row[field]});
        }
        Points points;
        for (const auto member : members) {
            const double begin = points.empty() ? 0 : points.back().x;
            for (const auto& [x, y] : rows.at(member - 1))
                points.push_back({begin + x, y});
        }
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
        for (const int member : {1, 5}) {
            const Numbers one{static_cast<std::size_t>(member)};
            EXPECT_EQ(MomentOf(member), Expected(one, moment, sign));
            EXPECT_EQ(ShearOf(member), Expected(one, shear, sign));
            EXPECT_EQ(Moment().GraphMoment1.PointCount(), 12);
        }
        for (const Graph* chart : {&WholeMoment().GraphCMoment, &Moment().GraphMoment1}) {
            EXPECT_EQ(chart->ValueFactor(), sign);
            EXPECT_EQ(chart->Note(), sign > 0 ? "Sagging drawn upward" : "Sagging drawn downward");
        }
        for (const Graph* chart : {&WholeShear().GraphCshear, &Shear().GraphShear1})
            EXPECT_EQ(chart->Note(),
                      sign > 0 ? "Upward reactions step down" : "Upward reactions step up");
    }
    SetOptions("Option B", "Option A");  // each follows its own
    EXPECT_EQ(MomentOf(1), Expected({1}, moment, -1));
    EXPECT_EQ(ShearOf(1), Expected({1}, shear, 1));
    EXPECT_EQ(Moment().GraphMoment1.GreatestLabel(), "30.7 at 2.16");
    EXPECT_EQ(Moment().GraphMoment1.LeastLabel(), "-200 at 6");
    EXPECT_TRUE(Moment().GraphMoment1.Marks().empty());
}

TEST_F(ResultDiagrams, JointsAreMarkedAlsoWhereMembersMeetThatAreNoNeighbours) {
    Select(WholeMoment(), {1, 2, 3, 4, 5});
    EXPECT_EQ(Marks(WholeMoment().GraphCMoment),
              "0.00 Joint 1; 6.00 2; 13.5 3; 18.5 4; 24.5 5; 26.5 6; ");
    Select(WholeMoment(), {1, 3});
    EXPECT_EQ(Marks(WholeMoment().GraphCMoment), "0.00 Joint 1; 6.00 2, 3; 11.0 4; ");
}

TEST_F(ResultDiagrams, OpenFromTheMenuAndPlotOnAUsersChoice) {
    Choose("&Diagram|&Continuous Beam Diagram|&Shear Force Diagram...");
    auto& whole = WholeShear();
    EXPECT_EQ(whole.Caption(), "Continuous Shear Force Diagram");
    EXPECT_EQ(whole.List1.List(4), "Member  5");
    EXPECT_TRUE(whole.GraphCshear.Points().empty());
    EXPECT_TRUE(whole.List1.HasFocus());
    Press(whole.List1, Qt::Key_Space);
    EXPECT_EQ(whole.GraphCshear.Points(), Expected({1}, shear, -1));
    QTest::keyClick(whole.List1.Widget(), Qt::Key_End, Qt::ShiftModifier);
    EXPECT_EQ(whole.GraphCshear.Points(), Expected({1, 2, 3, 4, 5}, shear, -1));
    Choose("&Diagram|&Continuous Beam Diagram|&Bending Moment Diagram...");
    EXPECT_EQ(WholeMoment().Caption(), "Continuous Bending Moment Diagram");

    Choose("&Diagram|&Single Span Diagram|&Shear Force Diagram...");
    EXPECT_EQ(Shear().Caption(), "Shear Force Diagram");
    Choose("&Diagram|&Single Span Diagram|&Bending Moment Diagram...");
    EXPECT_EQ(Moment().Caption(), "Bending Moment Diagram");
    EXPECT_EQ(Moment().cboMember.List(4), "Member 5");
    EXPECT_EQ(Moment().cboMember.ListIndex(), -1);
    EXPECT_TRUE(Moment().GraphMoment1.Points().empty());
    EXPECT_TRUE(Moment().cboMember.HasFocus());
    Press(Moment().cboMember, Qt::Key_Down);
    EXPECT_EQ(Moment().GraphMoment1.Points(), Expected({1}, moment, -1));
}

TEST_F(ResultDiagrams, WithNothingChosenTheChartStays) {
    auto& whole = WholeMoment();
    whole.cmdPlot.Press();
    EXPECT_EQ(whole.GraphCMoment.PointCount(), 0);
    whole.List1.SetSelected(0, true);
    whole.List1.SetSelected(0, false);
    EXPECT_EQ(whole.PBCBTB.Value(), 0);
    EXPECT_EQ(whole.GraphCMoment.Points(), Expected({1}, moment, -1));
    Moment().cmdPlot.Press();
    EXPECT_EQ(Moment().GraphMoment1.PointCount(), 0);
    EXPECT_EQ(Line(forms().Get<frmBMData>().ListView1, 1), " 0|-3.17E+01");  // the first member
}

TEST_F(ResultDiagrams, FollowAChangeOfTheMemberCount) {
    folder.write("Member.txt", MemberRows(2));
    Select(WholeMoment(), {1, 2});
    EXPECT_EQ(WholeMoment().GraphCMoment.Points(), Expected({1, 2}, moment, -1));
    WholeMoment().Unload();
    Settle();
    folder.write("Member.txt", MemberRows(6));
    Select(WholeMoment(), {5, 6});  // the file ends with the fifth
    EXPECT_EQ(WholeMoment().GraphCMoment.Points(), Expected({5}, moment, -1));
    EXPECT_EQ(WholeMoment().GraphCMoment.Note(), "Incomplete: analyse again");
    Select(WholeMoment(), {6});
    EXPECT_TRUE(WholeMoment().GraphCMoment.Points().empty());
    EXPECT_EQ(WholeMoment().PBCBTB.Value(), 0);
    folder.write("Member.txt", MemberRows(2));
    Select(WholeMoment(), {1, 2, 3, 4, 5});  // the list is that of before
    EXPECT_EQ(WholeMoment().GraphCMoment.Points(), Expected({1, 2}, moment, -1));
    EXPECT_EQ(WholeMoment().GraphCMoment.PointCount(), 60);
    EXPECT_NEAR(WholeMoment().PBCBTB.Value(), 40, 1e-9);
}

TEST_F(ResultDiagrams, AThousandMembersTakeLessThanASecond) {
    std::string joints = "1,Pin Jointed,a\r\n", loads;
    for (int k = 1; k <= 1000; ++k) {
        joints += "1," + std::string(k == 1000 ? "Pin Jointed" : "Continuous") + ",a\r\n";
        loads += std::to_string(k) + ",0,6,12,12,a\r\n";
    }
    folder.write("Joint.txt", joints);
    folder.write("Member.txt", MemberRows(1000));
    folder.write("Udl.txt", loads);
    Analyse();
    auto& form = WholeMoment();
    form.List1.SetFocus();
    EXPECT_LT(Cost([] { Key(Qt::Key_A, Qt::ControlModifier); }), limit(1000));
    EXPECT_EQ(form.GraphCMoment.Points().size(), 12000);
    EXPECT_LT(Cost([&] { Select(WholeShear(), {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}); }), limit(2000));
}

TEST_F(ResultDiagrams, LayoutFollowsTheWindowAndNeverGoesBelowZero) {
    auto& whole = WholeShear();
    EXPECT_EQ(std::pair(whole.Width(), whole.Height()), std::pair(8595, 4995));  // whole pixels
    EXPECT_NEAR(whole.List1.Left(), whole.ScaleWidth() - 1000, 15);
    EXPECT_NEAR(whole.GraphCshear.Width(), whole.List1.Left(), 15);
    EXPECT_NEAR(whole.List1.Height(), whole.ScaleHeight() - 350, 15);
    EXPECT_EQ(whole.GraphCshear.Height(), whole.List1.Height());
    ExpectTidy(whole);
    whole.Move(0, 0, 0, 0);
    EXPECT_EQ(whole.GraphCshear.Width() + whole.GraphCshear.Height() + whole.PBCS.Width(), 0);
    auto& single = Moment();
    EXPECT_EQ(std::pair(single.Width(), single.Height()), std::pair(4305, 2505));
    ExpectTidy(single);
    single.Move(0, 0, 9000, 6000);
    EXPECT_EQ(single.GraphMoment1.Width(), single.ScaleWidth());
    EXPECT_NEAR(single.GraphMoment1.Height(), single.ScaleHeight() - 500, 15);
    EXPECT_NEAR(single.cboMember.Left(), single.cmdReport.Left() + 1500, 15);
    ExpectTidy(single);
    single.Move(0, 0, 0, 0);
    EXPECT_EQ(single.GraphMoment1.Height(), 0);
    ShearOf(1);
    auto& table = forms().Get<frmSData>();
    EXPECT_EQ(std::pair(table.Width(), table.Height()), std::pair(3600, 4005));
    EXPECT_EQ(table.ListView1.Width(), table.ScaleWidth());
    EXPECT_NEAR(table.ListView1.Height(), table.ScaleHeight() - 500, 15);
    table.Move(0, 0, 0, 0);
    EXPECT_EQ(table.ListView1.Height(), 0);
}

TEST_F(ResultDiagrams, EachPlotOpensTheValueTableAnewWhereItStood) {
    MomentOf(1);
    auto& first = forms().Get<frmBMData>();
    first.SetLeft(4500);
    first.SetTop(1500);
    first.ListView1.ListItems.Clear();
    MomentOf(1);  // the same once more
    auto& second = forms().Get<frmBMData>();
    EXPECT_EQ(second.ListView1.ListItems.Count(), 12);
    EXPECT_EQ(std::pair(second.Left(), second.Top()), std::pair(4500, 1500));
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
    auto& moments = forms().Get<frmBMData>();
    auto& shears = forms().Get<frmSData>();
    EXPECT_EQ(moments.Caption() + shears.Caption(), "Bending Moment ValuesShear Force Values");
    ASSERT_EQ(moments.ListView1.ListItems.Count(), 3);  // as far as the file goes
    EXPECT_EQ(Line(moments.ListView1, 1), " 0|1.00E+00");
    EXPECT_EQ(Line(moments.ListView1, 2), " 0.6|-5.40E+01");      // Option B leaves the sign alone
    EXPECT_EQ(Line(moments.ListView1, 3), "9.99E+999|3.00E+00");  // no plain text holds it
    EXPECT_EQ(Line(shears.ListView1, 1), " 0|-2.70E+01");
    shears.ListView1.SetFocus();
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
    EXPECT_EQ(Shear().GraphShear1.Note(), "Incomplete: analyse again");
    EXPECT_TRUE(ShearOf(5).empty());  // nothing of it is there: no other member's curve stays
    std::filesystem::remove(folder / "BM.txt");
    EXPECT_TRUE(ShearOf(1).empty());
    EXPECT_EQ(forms().Get<frmSData>().ListView1.ListItems.Count(), 0);

    forms().Get<frmOptions>().txtDivision.SetText("20");
    Settle();
    Analyse();
    forms().Get<frmOptions>().Unload();  // its close box: the default of 10 comes back
    EXPECT_EQ(MomentOf(1).size(), 12);   // of 22
    EXPECT_TRUE(MomentOf(2).empty());
    EXPECT_FALSE(forms().Get<frmOptions>().Visible());  // read, and not brought up
}

TEST_F(ResultDiagrams, AddToReportPastesTheChartOnceThereIsAReport) {
    EXPECT_FALSE(Moment().cmdReport.Enabled());
    int pastes = 0;
    context().pasteIntoReport = [&] { ++pastes; };
    ShearOf(1);
    Click(Shear().cmdReport);
    EXPECT_EQ(pastes, 1);
    EXPECT_EQ(outside.clipboardPicture, Shear().GraphShear1.Picture());
    forms().Get<frmOptions>().cmdChangeM.Press();  // closes diagrams and tables
    for (const auto* form : {"frmMoment1", "frmShear1", "frmBMData", "frmSData"})
        EXPECT_FALSE(forms().IsLoaded(form)) << form;
    EXPECT_FALSE(Entry("&Diagram|&Single Span Diagram")->isEnabled());
}

}  // namespace
}  // namespace test
}  // namespace trabeon
