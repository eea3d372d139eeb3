#include <gtest/gtest.h>

#include "forms/input/frmPoint.h"
#include "tests/support/editor_fixture.h"

namespace trabeon::test {
namespace {

using Kind = Stroke::Kind;

class PointLoadEditor : public EditorTest {
  protected:
    PointLoadEditor() {
        Start();
        folder.write("Member.txt", "1,200,2,6,\"None\"\r\n2,200,2,4,\"None\"\r\n");
    }
    frmPoint& Open() { return EditorTest::Open<frmPoint>("&Structure|&Loading|&Point Load..."); }
    std::string File() { return folder.read("Point.txt"); }

    static void ExpectLine(const Stroke& stroke, double x1, double y1, double x2, double y2) {
        EXPECT_EQ(stroke.kind, Kind::Line);
        EXPECT_NEAR(stroke.x1, x1, 1e-9);
        EXPECT_NEAR(stroke.y1, y1, 1e-9);
        EXPECT_NEAR(stroke.x2, x2, 1e-9);
        EXPECT_NEAR(stroke.y2, y2, 1e-9);
    }
};

TEST_F(PointLoadEditor, LoadsAreEnteredByKeysAlone) {
    auto& point = Open();
    EXPECT_TRUE(point.cboMember.HasFocus());
    EXPECT_EQ(point.cboMember.Text(), "Member 1");
    EXPECT_TRUE(point.cmdRemove.Enabled());
    EXPECT_EQ(context().dataChanged, 0);
    Keys("\t3\n-12.50\n");
    EXPECT_EQ(context().dataChanged, 1);
    EXPECT_TRUE(point.txtPtD.HasFocus());
    Keys("hoist\n");
    EXPECT_TRUE(point.txtPtA.HasFocus());  // Enter does not add here
    EXPECT_EQ(File(), "");
    Key(Qt::Key_A, Qt::AltModifier);
    EXPECT_EQ(File(), " 1,3,-12.50,\"hoist\"\r\n");
    EXPECT_EQ(point.txtPtD.Text(), "None");
    EXPECT_EQ(point.txtPtLoad.Text(), "-12.50");
    EXPECT_TRUE(point.txtPtA.HasFocus());

    Click(point.cboMember);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(point.cboMember.ListIndex(), 1);
    point.txtPtA.SetFocus();
    Keys("\b");
    Click(point.cmdAdd);
    EXPECT_EQ(File(), "1,3,-12.50,\"hoist\"\r\n 2,0,-12.50,\"None\"\r\n");  // an empty a is 0
    EXPECT_EQ(Shown(point.ListView1, 1), (Texts{"Member  1", "Member  2"}));
    EXPECT_EQ(point.ListView1.SelectedItem().Index(), 2);
    ClickRow(point.ListView1, 1);
    Keys("");
    Click(point.cmdAdd);
    EXPECT_EQ(File(), "1,3,-12.50,\"hoist\"\r\n 2,0,-12.50,\"None\"\r\n2,0,-12.50,\"None\"\r\n");
    ClickRow(point.ListView1, 2);
    Click(point.cmdRemove);
    EXPECT_EQ(File(), "1,3,-12.50,\"hoist\"\r\n2,0,-12.50,\"None\"\r\n");  // numbers as read
}

TEST_F(PointLoadEditor, BoxesDropWhatIsNoNumberAndALoadOfZeroIsNotAdded) {
    auto& point = Open();
    point.txtPtA.SetFocus();
    Keys("-1x.5+\n-a1-2\n");
    EXPECT_EQ(point.txtPtA.Text(), "1.5");
    EXPECT_EQ(point.txtPtLoad.Text(), "-1-2");  // reads as -1
    for (const auto* load : {"", "-", ".", "0.00"}) {
        point.txtPtLoad.SetText(load);
        point.txtPtA.SetText("0.00");
        Click(point.cmdAdd);
        EXPECT_EQ(File(), "") << load;
        EXPECT_EQ(point.txtPtA.Text(), "0");
        EXPECT_TRUE(point.txtPtA.HasFocus());
    }
}

TEST_F(PointLoadEditor, WithoutAMemberAddOnlyAsksForOneAndTheSketchStaysEmpty) {
    folder.write("Member.txt", "");
    auto& point = Open();
    EXPECT_EQ(point.cboMember.ListIndex(), -1);
    point.txtPtLoad.SetText("5");
    EXPECT_TRUE(point.picPt.Drawn().empty());
    Click(point.cmdAdd);
    EXPECT_TRUE(point.cboMember.HasFocus());
    EXPECT_EQ(point.txtPtA.Text(), "");
    EXPECT_EQ(File(), "");
}

TEST_F(PointLoadEditor, TheSketchIsDrawnToTheTwip) {
    auto& point = Open();
    point.txtPtA.SetText("3");
    EXPECT_TRUE(point.picPt.Drawn().empty());  // no load yet
    point.txtPtLoad.SetText("-5");
    const auto& drawn = point.picPt.Drawn();
    ASSERT_EQ(drawn.size(), 6U);
    ExpectLine(drawn[0], 1567.5, 700, 1567.5, 100);  // downward whatever the sign
    ExpectLine(drawn[1], 1567.5, 700, 1467.5, 600);
    ExpectLine(drawn[2], 1567.5, 700, 1667.5, 600);
    ExpectLine(drawn[3], 100, 700, 3035, 700);
    EXPECT_EQ(drawn[4].text, "a = 3        P = -5");
    EXPECT_EQ(drawn[5].text, "L =  6         Member  1 ");
    EXPECT_EQ(drawn[4].x1, 0);
    EXPECT_GT(drawn[4].y1, 700);
    EXPECT_EQ(drawn[5].y1 - drawn[4].y1, drawn[4].y1 - 700);
    EXPECT_LE(drawn[5].y1 + (drawn[4].y1 - 700), point.picPt.Height());

    point.txtPtA.SetText("9");  // past the end: clipped at the edge
    ExpectLine(point.picPt.Drawn()[0], 4502.5, 700, 4502.5, 100);
    point.cboMember.SetListIndex(1);
    ExpectLine(point.picPt.Drawn()[0], 6703.75, 700, 6703.75, 100);
    EXPECT_EQ(point.picPt.Drawn()[5].text, "L =  4         Member  2 ");
    point.txtPtA.SetText("");
    ExpectLine(point.picPt.Drawn()[0], 100, 700, 100, 100);
    point.txtPtLoad.SetText("");  // left as it was
    EXPECT_EQ(point.picPt.Drawn().size(), 6U);
    point.txtPtLoad.SetText("5");
    Click(point.cmdAdd);
    EXPECT_TRUE(point.picPt.Drawn().empty());
    Type(point.txtPtD, "x");
    EXPECT_EQ(point.picPt.Drawn().size(), 6U);
}

TEST_F(PointLoadEditor, NothingToScaleByLeavesTheSketchEmpty) {
    folder.write("Member.txt", "1,200,2,0,a\r\n2,200,2,1e999,b\r\n3,200,2,1,c\r\n");
    auto& point = Open();
    point.txtPtLoad.SetText("5");
    for (int member = 0; member < 2; ++member) {
        point.cboMember.SetListIndex(member);
        EXPECT_TRUE(point.picPt.Drawn().empty()) << member;
    }
    point.cboMember.SetListIndex(2);
    EXPECT_FALSE(point.picPt.Drawn().empty());
    for (const auto* a : {"1e300", "1e999"}) {
        point.txtPtA.SetText(a);
        EXPECT_TRUE(point.picPt.Drawn().empty()) << a;
    }
}

TEST_F(PointLoadEditor, OnlyTheDescriptionTurnsRemoveOff) {
    folder.write("Point.txt", "1,1,5,a\r\n2,2,6,b\r\n");
    auto& point = Open();
    EXPECT_EQ(point.ListView1.SelectedItem().Index(), 2);
    point.txtPtLoad.SetFocus();
    EXPECT_TRUE(point.cmdRemove.Enabled());
    point.txtPtD.SetFocus();
    EXPECT_EQ(point.txtPtD.SelLength(), 4);
    EXPECT_FALSE(point.cmdRemove.Enabled());
    DoubleClickRow(point.ListView1, 1);
    EXPECT_EQ(File(), "2,2,6,\"b\"\r\n");
    EXPECT_TRUE(point.cmdRemove.Enabled());
    Click(point.cmdRemove);
    EXPECT_EQ(File(), "");
    EXPECT_FALSE(point.cmdRemove.Enabled());
}

TEST_F(PointLoadEditor, TheSketchGoesToTheReportWhenThereIsOne) {
    EXPECT_FALSE(Open().cmdReport.Enabled());
    EXPECT_EQ(Open().cmdReport.Widget()->toolTip(), "The report is not part of this version.");
    Open().Unload();
    Settle();
    int pasted = 0;
    context().pasteIntoReport = [&] { pasted += !outside.clipboardPicture.isNull(); };
    auto& point = Open();
    point.txtPtLoad.SetText("5");
    Click(point.cmdReport);
    EXPECT_EQ(pasted, 1);
    EXPECT_TRUE(point.picPt.Drawn().empty());
    EXPECT_TRUE(point.Visible());
}

}  // namespace
}  // namespace trabeon::test
