#include <QElapsedTimer>

#include "forms/results/frmContinuousS.h"
#include "forms/results/frmContinuousTB.h"
#include "tests/forms/diagram_fixture.h"
#include "tests/support/time_limit.h"

namespace trabeon::test {
namespace {

class Continuous : public DiagramTest {
  protected:
    frmContinuousTB& Moment() { return forms().Get<frmContinuousTB>(); }
    frmContinuousS& Shear() { return forms().Get<frmContinuousS>(); }

    static void Select(ContinuousDiagram& form, const std::vector<std::size_t>& members) {
        for (int i = 0; i < form.List1.ListCount(); ++i)
            form.List1.SetSelected(i, false);
        for (const auto member : members)
            form.List1.SetSelected(static_cast<int>(member - 1), true);
    }
    static std::string Joints(const Graph& chart) {
        std::ostringstream text;
        for (const auto& [x, label] : chart.Marks())
            text << x << " \"" << label << "\" ";
        return text.str();
    }
};

TEST_F(Continuous, HoldsTheRowsOfTheSelectedMembersInBothOptions) {
    StartWithResults();
    for (const auto& [option, sign] : {std::pair{"Option B", -1.0}, {"Option A", 1.0}}) {
        SetOption(option);
        for (const auto& members :
             {std::vector<std::size_t>{2}, {1, 3}, {1, 2, 3, 4, 5}, {3, 4, 5}}) {
            Select(Moment(), members);
            Select(Shear(), members);
            const auto count = static_cast<int>(12 * members.size());
            EXPECT_EQ(Moment().GraphCMoment.Points(), Expected(members, moment, sign));
            EXPECT_EQ(Shear().GraphCshear.Points(), Expected(members, shear, sign));
            EXPECT_EQ(Moment().GraphCMoment.PointCount(), count);
            EXPECT_EQ(Moment().PBCBTB.Value(), 100);
            EXPECT_EQ(Shear().PBCS.Value(), 100);
        }
        EXPECT_EQ(Moment().GraphCMoment.ValueFactor(), sign);
        EXPECT_EQ(Moment().GraphCMoment.Note(),
                  sign > 0 ? "Sagging drawn upward" : "Sagging drawn downward");
    }
}

TEST_F(Continuous, JointsAreMarkedAlsoWhereMembersMeetThatAreNoNeighbours) {
    StartWithResults();
    auto& form = Moment();
    Select(form, {1, 2, 3, 4, 5});
    EXPECT_EQ(Joints(form.GraphCMoment),
              "0 \"Joint 1\" 6 \"2\" 13.5 \"3\" 18.5 \"4\" 24.5 \"5\" 26.5 \"6\" ");
    Select(form, {1, 3});
    EXPECT_EQ(Joints(form.GraphCMoment), "0 \"Joint 1\" 6 \"2, 3\" 11 \"4\" ");
}

TEST_F(Continuous, OpensFromTheMenuAndPlotsAtEachChangeOfTheSelection) {
    StartWithResults();
    Choose("&Diagram|&Continuous Beam Diagram|&Shear Force Diagram...");
    auto& form = Shear();
    EXPECT_EQ(form.Caption(), "Continuous Shear Force Diagram");
    EXPECT_EQ(form.List1.List(4), "Member  5");
    EXPECT_TRUE(form.GraphCshear.Points().empty());
    EXPECT_TRUE(form.List1.HasFocus());
    Press(form.List1, Qt::Key_Space);
    EXPECT_EQ(form.GraphCshear.Points(), Expected({1}, shear, -1));
    QTest::keyClick(form.List1.Widget(), Qt::Key_End, Qt::ShiftModifier);
    EXPECT_EQ(form.GraphCshear.Points(), Expected({1, 2, 3, 4, 5}, shear, -1));
}

TEST_F(Continuous, WithNothingSelectedTheChartStaysAndTheBarIsEmpty) {
    StartWithResults();
    auto& form = Moment();
    form.cmdPlot.Press();
    EXPECT_EQ(form.GraphCMoment.PointCount(), 0);
    form.List1.SetSelected(0, true);
    EXPECT_EQ(form.PBCBTB.Value(), 100);
    form.List1.SetSelected(0, false);
    EXPECT_EQ(form.PBCBTB.Value(), 0);
    EXPECT_EQ(form.GraphCMoment.Points(), Expected({1}, moment, -1));
}

TEST_F(Continuous, FollowsAChangeOfTheMemberCount) {
    StartWithResults();
    auto& form = Moment();
    folder.write("Member.txt", "1,1,1,6,\"None\"\r\n2,1,1,7.5,\"None\"\r\n");
    Select(form, {1, 2, 3, 4, 5});  // the list is that of before
    EXPECT_EQ(form.GraphCMoment.Points(), Expected({1, 2}, moment, -1));
    EXPECT_EQ(form.GraphCMoment.PointCount(), 60);
    EXPECT_NEAR(form.PBCBTB.Value(), 40, 1e-9);
    EXPECT_EQ(form.GraphCMoment.Note(), "Incomplete: analyse again");
    form.Unload();
    std::string six;
    for (int k = 1; k <= 6; ++k)
        six += std::to_string(k) + ",1,1,6,\"None\"\r\n";
    folder.write("Member.txt", six);
    ASSERT_EQ(Moment().List1.ListCount(), 6);
    Select(Moment(), {5, 6});
    EXPECT_EQ(Moment().GraphCMoment.Points(), Expected({5}, moment, -1));
    Select(Moment(), {6});
    EXPECT_TRUE(Moment().GraphCMoment.Points().empty());
    EXPECT_EQ(Moment().PBCBTB.Value(), 0);
}

TEST_F(Continuous, AThousandMembersTakeLessThanASecond) {
    Start();
    WriteBeam(1000);
    Analyse();
    auto& form = Moment();
    form.List1.SetFocus();
    QElapsedTimer timer;
    timer.start();
    QTest::keyClick(form.List1.Widget(), Qt::Key_A, Qt::ControlModifier);
    Settle();
    EXPECT_LT(static_cast<double>(timer.elapsed()), limit(1000));
    EXPECT_EQ(form.GraphCMoment.Points().size(), 12000);
}

TEST_F(Continuous, SelectingByCodePlotsEachTimeAndStaysQuick) {
    Start();
    WriteBeam(200);
    Analyse();
    auto& form = Shear();
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < 200; ++i) {
        form.List1.SetSelected(i, true);
        ASSERT_EQ(form.GraphCshear.Points().size(), 12 * (static_cast<std::size_t>(i) + 1));
    }
    Settle();
    EXPECT_LT(static_cast<double>(timer.elapsed()), limit(5000));
}

TEST_F(Continuous, LayoutFollowsTheWindowAndNeverGoesBelowZero) {
    StartWithResults();
    auto& form = Shear();
    EXPECT_EQ(std::pair(form.Width(), form.Height()), std::pair(8595, 4995));  // whole pixels
    EXPECT_NEAR(form.List1.Left(), form.ScaleWidth() - 1000, 15);
    EXPECT_NEAR(form.List1.Left() + form.List1.Width(), form.ScaleWidth(), 15);
    EXPECT_NEAR(form.GraphCshear.Width(), form.List1.Left(), 15);
    EXPECT_NEAR(form.List1.Height(), form.ScaleHeight() - 350, 15);
    EXPECT_EQ(form.GraphCshear.Height(), form.List1.Height());
    EXPECT_NEAR(form.cmdPlot.Top(), form.List1.Height() + 30, 15);
    for (const Control* control :
         {static_cast<Control*>(&form.cmdPlot), static_cast<Control*>(&form.cmdReport),
          static_cast<Control*>(&form.PBCS)}) {
        EXPECT_LE(control->Top() + control->Height(), form.ScaleHeight());
        EXPECT_LE(control->Left() + control->Width(), form.ScaleWidth() + 15);
    }
    form.Move(0, 0, 0, 0);
    EXPECT_EQ(form.GraphCshear.Width(), 0);
    EXPECT_EQ(form.GraphCshear.Height(), 0);
    EXPECT_EQ(form.PBCS.Width(), 0);
}

}  // namespace
}  // namespace trabeon::test
