// What holds for the input windows as a set: their layout, and a whole beam from empty project to
// results.
#include <gtest/gtest.h>

#include "core/analysis/result_files.h"
#include "forms/input/frmDiagram.h"
#include "forms/input/frmJoints.h"
#include "forms/input/frmMembers.h"
#include "forms/input/frmPoint.h"
#include "forms/input/frmUDL.h"
#include "forms/results/frmAnalysis.h"
#include "tests/support/editor_fixture.h"

namespace trabeon::test {
namespace {

constexpr auto joints = "&Structure|&Joints...";
constexpr auto members = "&Structure|&Members...";
constexpr auto pointLoad = "&Structure|&Loading|&Point Load...";
constexpr auto udl = "&Structure|&Loading|&Uniformly Distributed Load...";
constexpr auto analyse = "&Structure|&Analyse...";

class EditorsTogether : public EditorTest {
  protected:
    EditorsTogether() { Start(); }

    template <class F>
    void ExpectLayout(const char* entry, int width, int height) {
        auto& form = Open<F>(entry);
        EXPECT_EQ(form.Left(), 0);
        EXPECT_EQ(form.Top(), 0);
        EXPECT_EQ(form.Width(), width);
        EXPECT_EQ(form.Height(), height);
        ExpectTidy(form);
        const int listWide = form.ListView1.Width();
        const int listHigh = form.ListView1.Height();
        form.Move(0, 0, width + 1500, height + 900);
        ExpectTidy(form);
        EXPECT_NEAR(form.ListView1.Width(), listWide + 1500, 15);
        EXPECT_NEAR(form.ListView1.Height(), listHigh + 900, 15);
        form.Move(0, 0, 600, 600);
        EXPECT_GT(form.ListView1.Width(), 1000);  // cut off by the frame, but there
        EXPECT_GT(form.ListView1.Height(), 500);
        form.Move(0, 0, width, height);
        EXPECT_EQ(form.ListView1.Width(), listWide);
        ExpectTidy(form);
    }

    void EnterBeam() {
        Open<frmJoints>(joints);
        for (const auto key :
             {Qt::Key_N, Qt::Key_A, Qt::Key_N, Qt::Key_A, Qt::Key_A, Qt::Key_N, Qt::Key_A})
            Alt(key);
        Open<frmMembers>(members);
        Keys("200\n2\n6\n\n\n\n8\nmiddle, wide\n\n\n4.5\n\n");
        Open<frmPoint>(pointLoad);
        Key(Qt::Key_Down);
        Keys("\t2.5\n20\n");
        Alt(Qt::Key_A);
        Open<frmUDL>(udl);
        Keys("m\nL\n12\n12\n\n");  // the first member, over its whole length
        Alt(Qt::Key_M);
        Key(Qt::Key_Down);
        Key(Qt::Key_Down);
        Keys("m0\n2\n6\n9\n\n+l\n\n0\nsnow\n");
    }
};

TEST_F(EditorsTogether, NothingOverlapsAndTheListTakesTheRoom) {
    ExpectLayout<frmJoints>(joints, 7650, 4095);
    ExpectLayout<frmMembers>(members, 8600 / 15 * 15, 4095);
    ExpectLayout<frmPoint>(pointLoad, 8600 / 15 * 15, 4500);
    ExpectLayout<frmUDL>(udl, 8600 / 15 * 15, 5000 / 15 * 15);
    forms().Show("frmDiagram");
    ExpectTidy(forms().Get<frmDiagram>());
}

TEST_F(EditorsTogether, ControlsFollowTheTabOrderThatWasTold) {
    folder.write("Member.txt", "1,200,2,6,a\r\n");
    auto& load = Open<frmUDL>(udl);
    context().pasteIntoReport = [] {};
    load.cmdReport.SetEnabled(true);
    for (Control* control : std::initializer_list<Control*>{
             &load.cboMember, &load.txtUdlA, &load.txtUDLB, &load.txtUDLw1, &load.txtUDLw2,
             &load.txtUDLD, &load.cmdAdd, &load.cmdReport, &load.ListView1}) {
        EXPECT_TRUE(control->HasFocus());
        Keys("\t");
    }
}

TEST_F(EditorsTogether, ABeamEnteredByKeysGivesTheResultsOfOneWrittenByHand) {
    EnterBeam();
    EXPECT_EQ(folder.read("Joint.txt"),
              "1,Pin Jointed,\"None\"\r\n2,Continuous,\"None\"\r\n3,Continuous,\"None\"\r\n"
              " 4,Fixed,\"None\"\r\n");
    EXPECT_EQ(folder.read("Member.txt"),
              "1,200,2,6,\"None\"\r\n2,200,2,8,\"middle, wide\"\r\n 3,200,2,4.5,\"None\"\r\n");
    EXPECT_EQ(folder.read("Point.txt"), " 2,2.5,20,\"None\"\r\n");
    EXPECT_EQ(folder.read("Udl.txt"),
              "1,0,6,12,12,\"None\"\r\n3,0,2,6,9,\"None\"\r\n 3, 2, 2.5,6,0,\"snow\"\r\n");
    TemporaryFolder byHand;
    byHand.write("Joint.txt",
                 "1,Pin Jointed,x\r\n2,Continuous,x\r\n3,Continuous,x\r\n4,Fixed,x\r\n");
    byHand.write("Member.txt", "1,200,2,6,x\r\n2,200,2,8,x\r\n3,200,2,4.5,x\r\n");
    byHand.write("Point.txt", "2,2.5,20,None\r\n");
    byHand.write("Udl.txt", "1,0,6,12,12,None\r\n3,0,2,6,9,None\r\n3,2,2.5,6,0,snow\r\n");
    ASSERT_TRUE(analyseFolder(byHand.path(), {10, 3}, {[](const Message&) {}}));
    Open<frmAnalysis>(analyse);
    Keys(" ");
    for (const auto* result : {"TB.txt", "BM.txt", "BMMax.txt", "Point.txt", "Udl.txt"})
        EXPECT_EQ(folder.read(result), byHand.read(result)) << result;
}

TEST_F(EditorsTogether, AnAnalysisRefillsTheLoadListsAndHidesThem) {
    EnterBeam();
    auto& point = forms().Get<frmPoint>();
    auto& load = forms().Get<frmUDL>();
    ClickTitle(load.ListView1, 1);
    ClickRow(load.ListView1, 3);
    auto& analysis = Open<frmAnalysis>(analyse);
    Keys(" ");
    EXPECT_FALSE(point.Visible());
    EXPECT_FALSE(load.Visible());
    EXPECT_TRUE(analysis.cmdAnalyse.HasFocus());
    EXPECT_EQ(Shown(point.ListView1, 4), (Texts{"Zero Load", "None", "Zero Load"}));
    EXPECT_EQ(Shown(load.ListView1, 1),
              (Texts{"Member  1", "Member  2", "Member  3", "Member  3"}));
    EXPECT_EQ(Shown(load.ListView1, 6), (Texts{"None", "Zero Load", "None", "snow"}));

    Open<frmPoint>(pointLoad);
    EXPECT_EQ(point.ListView1.SelectedItem().Index(), 1);  // the first counts as selected
    point.txtPtA.SetFocus();
    Keys("1");
    Click(point.cmdAdd);
    EXPECT_EQ(folder.read("Point.txt"),
              "1,1,0,\"Zero Load\"\r\n 2,1,20,\"None\"\r\n2,2.5,20,\"None\"\r\n"
              "3,1,0,\"Zero Load\"\r\n");
    ClickTitle(point.ListView1, 2);  // the order stands at 1, so this sorts rising
    EXPECT_EQ(Shown(point.ListView1, 2), (Texts{"1", "1", "1", "2.5"}));
}

TEST_F(EditorsTogether, AnAnalysisLoadsTheListsAndARefusedOneTouchesNothing) {
    auto& analysis = Open<frmAnalysis>(analyse);
    outside.ExpectMsgBox("You can't have 0 number of joint!");
    outside.ExpectMsgBox(
        " Please provide more Joints as Total Joints are less than Total Members.");
    Keys(" ");
    EXPECT_FALSE(forms().IsLoaded("frmPoint"));
    folder.write("Joint.txt", "1,Fixed,a\r\n2,Fixed,b\r\n");
    folder.write("Member.txt", "1,200,2,6,a\r\n");
    Keys(" ");
    EXPECT_FALSE(forms().Get<frmPoint>().Visible());
    EXPECT_EQ(Shown(forms().Get<frmUDL>().ListView1, 6), (Texts{"Zero Load"}));
    EXPECT_TRUE(analysis.cmdAnalyse.HasFocus());
    EXPECT_EQ(context().dataChanged, 0);
}

TEST_F(EditorsTogether, AnAnalysisOfAHundredSpansIsNotHeldUpByTheLists) {
    std::string jointRows = "1,Fixed,a\r\n", pointRows, udlRows;
    for (int i = 1; i <= 100; ++i) {
        const auto number = std::to_string(i);
        jointRows += std::to_string(i + 1) + (i < 100 ? ",Continuous,a\r\n" : ",Fixed,a\r\n");
        for (int k = 1; k <= 5; ++k) {
            pointRows += number + "," + std::to_string(k) + ",20,hoist\r\n";
            udlRows += number + "," + std::to_string(k) + ",1,12,6,snow\r\n";
        }
    }
    const TemporaryFolder other;
    for (const auto* place : {&other, &std::as_const(folder)}) {
        place->write("Joint.txt", jointRows);
        place->write("Member.txt", MemberRows(100));
        place->write("Point.txt", pointRows);
        place->write("Udl.txt", udlRows);
    }
    const auto run = [&] {
        ASSERT_TRUE(analyseFolder(other.path(), {10, 3}, {[](const Message&) {}}));
    };
    run();
    const double plain = Cost(run);
    Open<frmAnalysis>(analyse);
    Keys(" ");
    const double again = Cost([] { Keys(" "); });
    EXPECT_EQ(forms().Get<frmPoint>().ListView1.ListItems.Count(), 500);
    EXPECT_LT(again, 2 * plain + limit(20));
}

}  // namespace
}  // namespace trabeon::test
