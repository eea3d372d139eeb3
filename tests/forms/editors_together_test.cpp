// What holds for the input windows as a set: their layout, and a whole beam from empty project to
// results.
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

class EditorsTogether : public EditorTest {
  protected:
    template <class F>
    void ExpectLayout(int width, int height) {
        auto& form = Open<F>();
        ExpectBounds(form, 0, 0, width, height);
        ExpectTidy(form);
        const int listWide = form.ListView1.Width(), listHigh = form.ListView1.Height();
        form.Move(0, 0, width + 1500, height + 900);
        ExpectTidy(form);
        ExpectBounds(form.ListView1, form.ListView1.Left(), form.ListView1.Top(), listWide + 1500,
                     listHigh + 900);
        form.Move(0, 0, 600, 600);
        EXPECT_GT(form.ListView1.Width(), 1000);  // cut off by the frame, but there
    }

    void EnterBeam() {
        Open<frmJoints>();
        for (const auto key :
             {Qt::Key_N, Qt::Key_A, Qt::Key_N, Qt::Key_A, Qt::Key_A, Qt::Key_N, Qt::Key_A})
            Alt(key);
        Open<frmMembers>();
        Keys("200\n2\n6\n\n\n\n8\nmiddle, wide\n\n\n4.5\n\n");
        Open<frmPoint>();
        Key(Qt::Key_Down);
        Keys("\t2.5\n20\n");
        Alt(Qt::Key_A);
        Open<frmUDL>();
        Keys("m\nL\n12\n12\n\n");  // the first member, over its whole length
        Alt(Qt::Key_M);
        Key(Qt::Key_Down);
        Key(Qt::Key_Down);
        Keys("m0\n2\n6\n9\n\n+l\n\n0\nsnow\n");
    }
};

TEST_F(EditorsTogether, NothingOverlapsAndTheListTakesTheRoom) {
    ExpectLayout<frmJoints>(7650, 4095);
    ExpectLayout<frmMembers>(8600, 4095);
    ExpectLayout<frmPoint>(8600, 4500);
    ExpectLayout<frmUDL>(8600, 5000);
    ExpectTidy(Open<frmDiagram>());
}

TEST_F(EditorsTogether, ControlsFollowTheTabOrderThatWasTold) {
    folder.write("Member.txt", MemberRows(1));
    auto& load = Open<frmUDL>();
    for (Control* control : std::initializer_list<Control*>{
             &load.cboMember, &load.txtUdlA, &load.txtUDLB, &load.txtUDLw1, &load.txtUDLw2,
             &load.txtUDLD, &load.cmdAdd, &load.cmdReport, &load.ListView1}) {
        EXPECT_TRUE(control->HasFocus());
        Keys("\t");
    }
}

TEST_F(EditorsTogether, ABeamEnteredByKeysGivesTheResultsOfOneWrittenByHand) {
    EnterBeam();
    const TemporaryFolder byHand;
    byHand.write("Joint.txt",
                 "1,Pin Jointed,\"None\"\r\n2,Continuous,\"None\"\r\n3,Continuous,\"None\"\r\n"
                 " 4,Fixed,\"None\"\r\n");
    byHand.write("Member.txt",
                 "1,200,2,6,\"None\"\r\n2,200,2,8,\"middle, wide\"\r\n 3,200,2,4.5,\"None\"\r\n");
    byHand.write("Point.txt", " 2,2.5,20,\"None\"\r\n");
    byHand.write("Udl.txt",
                 "1,0,6,12,12,\"None\"\r\n3,0,2,6,9,\"None\"\r\n 3, 2, 2.5,6,0,\"snow\"\r\n");
    for (const auto& [name, text] : byHand.contents())
        EXPECT_EQ(folder.read(name), text) << name;
    ASSERT_TRUE(analyseFolder(byHand.path(), {10, 3}, {[](const Message&) {}}));
    Open<frmAnalysis>();
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
    auto& analysis = Open<frmAnalysis>();
    Keys(" ");
    EXPECT_FALSE(point.Visible() || load.Visible());
    EXPECT_TRUE(analysis.cmdAnalyse.HasFocus());
    EXPECT_EQ(Shown(point.ListView1, 4), "Zero Load|None|Zero Load");
    EXPECT_EQ(Shown(load.ListView1, 1), "Member  1|Member  2|Member  3|Member  3");
    EXPECT_EQ(Shown(load.ListView1, 6), "None|Zero Load|None|snow");

    Open<frmPoint>();
    point.txtPtA.SetFocus();
    Keys("1");
    Click(point.cmdAdd);  // behind the first, which counts as selected
    EXPECT_EQ(folder.read("Point.txt"),
              "1,1,0,\"Zero Load\"\r\n 2,1,20,\"None\"\r\n2,2.5,20,\"None\"\r\n"
              "3,1,0,\"Zero Load\"\r\n");
    ClickTitle(point.ListView1, 2);  // the order stands at 1, so this sorts rising
    EXPECT_EQ(Shown(point.ListView1, 2), "1|1|1|2.5");
}

}  // namespace
}  // namespace trabeon::test
