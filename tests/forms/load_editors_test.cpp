// The windows of point loads and of distributed loads.
#include "forms/input/frmPoint.h"
#include "forms/input/frmUDL.h"
#include "tests/support/editor_fixture.h"

namespace trabeon::test {
namespace {

class PointLoadEditor : public EditorTest {
  protected:
    frmPoint& With(const std::string& members) {
        folder.write("Member.txt", members);
        return Reopen<frmPoint>();
    }
    std::string File() { return folder.read("Point.txt"); }
    frmPoint& point = With("1,200,2,6,\"None\"\r\n2,200,2,4,\"None\"\r\n");
};

TEST_F(PointLoadEditor, LoadsAreEnteredByKeysAlone) {
    EXPECT_TRUE(point.cboMember.HasFocus());
    EXPECT_EQ(point.cboMember.Text(), "Member 1");
    EXPECT_TRUE(point.cmdRemove.Enabled());
    EXPECT_EQ(TakeFlag(), 0);
    Keys("\t3\n-12.50\n");
    EXPECT_EQ(TakeFlag(), 1);
    EXPECT_TRUE(point.txtPtD.HasFocus());
    Keys("hoist\n");
    EXPECT_TRUE(point.txtPtA.HasFocus());  // Enter does not add here
    EXPECT_EQ(File(), "");
    Alt(Qt::Key_A);
    EXPECT_EQ(File(), " 1,3,-12.50,\"hoist\"\r\n");
    EXPECT_EQ(point.txtPtD.Text() + point.txtPtLoad.Text(), "None-12.50");
    EXPECT_TRUE(point.txtPtA.HasFocus());
    point.cboMember.SetFocus();
    Key(Qt::Key_Down);
    Keys("\t\b");  // an empty a is 0
    Click(point.cmdAdd);
    EXPECT_EQ(Shown(point.ListView1, 1), "Member  1|Member  2");
    ClickRow(point.ListView1, 1);
    Click(point.cmdAdd);
    EXPECT_EQ(File(), "1,3,-12.50,\"hoist\"\r\n 2,0,-12.50,\"None\"\r\n2,0,-12.50,\"None\"\r\n");
    ClickRow(point.ListView1, 2);
    Click(point.cmdRemove);
    EXPECT_EQ(File(), "1,3,-12.50,\"hoist\"\r\n2,0,-12.50,\"None\"\r\n");  // numbers as read
    point.txtPtD.SetFocus();
    EXPECT_EQ(point.txtPtD.SelLength(), 4);
    EXPECT_FALSE(point.cmdRemove.Enabled());
    point.txtPtLoad.SetFocus();  // the description alone turns it off
    DoubleClickRow(point.ListView1, 1);
    EXPECT_TRUE(point.cmdRemove.Enabled());
}

TEST_F(PointLoadEditor, BoxesDropWhatIsNoNumberAndALoadOfZeroIsNotAdded) {
    point.txtPtA.SetFocus();
    Keys("-1x.5+\n-a1-2\n");
    EXPECT_EQ(point.txtPtA.Text() + "|" + point.txtPtLoad.Text(), "1.5|-1-2");
    for (const auto* load : {"", "-", ".", "0.00"}) {
        point.txtPtLoad.SetText(load);
        point.txtPtA.SetText("0.00");
        Click(point.cmdAdd);
        EXPECT_EQ(File(), "") << load;
        EXPECT_EQ(point.txtPtA.Text(), "0");
        EXPECT_TRUE(point.txtPtA.HasFocus());
    }
    auto& none = With("");
    none.txtPtLoad.SetText("5");
    EXPECT_TRUE(none.picPt.Drawn().empty());
    Click(none.cmdAdd);
    EXPECT_TRUE(none.cboMember.HasFocus());
    EXPECT_EQ(none.txtPtA.Text() + File(), "");
}

TEST_F(PointLoadEditor, TheSketchIsDrawnToTheTwip) {
    const auto& drawn = point.picPt.Drawn();
    point.txtPtA.SetText("3");
    EXPECT_TRUE(drawn.empty());  // no load yet
    point.txtPtLoad.SetText("-5");
    ASSERT_EQ(drawn.size(), 6U);
    ExpectLine(drawn[0], 1567.5, 700, 1567.5, 100);  // downward whatever the sign
    ExpectLine(drawn[1], 1567.5, 700, 1467.5, 600);
    ExpectLine(drawn[2], 1567.5, 700, 1667.5, 600);
    ExpectLine(drawn[3], 100, 700, 3035, 700);
    EXPECT_EQ(drawn[4].text, "a = 3        P = -5");
    EXPECT_EQ(drawn[5].text, "L =  6         Member  1 ");
    EXPECT_EQ(drawn[4].x1, 0);
    EXPECT_LE(drawn[5].y1 + (drawn[4].y1 - 700), point.picPt.Height());
    point.txtPtA.SetText("9");  // past the end
    ExpectLine(drawn[0], 4502.5, 700, 4502.5, 100);
    point.cboMember.SetListIndex(1);
    ExpectLine(drawn[0], 6703.75, 700, 6703.75, 100);
    EXPECT_EQ(drawn[5].text, "L =  4         Member  2 ");
    point.txtPtA.SetText("");
    ExpectLine(drawn[0], 100, 700, 100, 100);
    point.txtPtLoad.SetText("");  // left as it was
    EXPECT_EQ(drawn.size(), 6U);
    point.txtPtLoad.SetText("5");
    for (const auto* a : {"1e300", "1e999"}) {
        point.txtPtA.SetText(a);
        EXPECT_TRUE(drawn.empty()) << a;
    }
    point.txtPtA.SetText("1");
    Click(point.cmdAdd);
    EXPECT_TRUE(drawn.empty());
    for (const auto* L : {"0", "1e999"}) {
        folder.write("Member.txt", "1,200,2," + std::string(L) + ",a\r\n");
        Type(point.txtPtD, "x");
        EXPECT_TRUE(drawn.empty()) << L;
    }
}

TEST_F(PointLoadEditor, TheSketchGoesToTheReport) {
    int pasted = 0;
    context().pasteIntoReport = [&] { pasted += !outside.clipboardPicture.isNull(); };
    point.txtPtLoad.SetText("5");
    Click(point.cmdReport);
    EXPECT_EQ(pasted, 1);
    EXPECT_TRUE(point.Visible() && point.picPt.Drawn().empty());
}

class UdlEditor : public EditorTest {
  protected:
    frmUDL& With(const std::string& members) {
        folder.write("Member.txt", members);
        return Reopen<frmUDL>();
    }
    std::string File() { return folder.read("Udl.txt"); }
    static void Fill(frmUDL& udl, std::array<const char*, 4> texts) {
        EditorTest::Fill({&udl.txtUdlA, &udl.txtUDLB, &udl.txtUDLw1, &udl.txtUDLw2}, texts.data());
    }
    static std::string Filled(const frmUDL& udl) {
        return udl.txtUdlA.Text() + '|' + udl.txtUDLB.Text() + '|' + udl.txtUDLw1.Text() + '|' +
               udl.txtUDLw2.Text();
    }
    /// The strokes behind the hatching: two sides, the top, the member, three texts.
    std::vector<Stroke> Outline() {
        const auto& drawn = udl.picUDL.Drawn();
        return {drawn.end() - 7, drawn.end()};
    }
    frmUDL& udl = With("1,200,2,10,\"None\"\r\n2,200,2,4.5,\"None\"\r\n");
};

TEST_F(UdlEditor, LoadsAreEnteredByKeysAloneWithPlusAndL) {
    EXPECT_TRUE(udl.cboMember.HasFocus());
    EXPECT_TRUE(udl.cmdRemove.Enabled());
    EXPECT_EQ(TakeFlag(), 0);
    Keys("m");
    EXPECT_TRUE(udl.txtUdlA.HasFocus());
    Keys("0\n4\n12\n12\n\n");
    EXPECT_EQ(File(), " 1,0,4,12,12,\"None\"\r\n");
    EXPECT_TRUE(udl.txtUdlA.HasFocus());
    Keys("+");
    EXPECT_EQ(udl.txtUdlA.Text(), " 4");
    EXPECT_TRUE(udl.txtUDLB.HasFocus());
    Keys("l");
    EXPECT_EQ(udl.txtUDLB.Text(), " 6");
    EXPECT_TRUE(udl.txtUDLB.HasFocus());
    Keys("\n-8\n0\nsnow\n");
    EXPECT_EQ(File(), "1,0,4,12,12,\"None\"\r\n 1, 4, 6,-8,0,\"snow\"\r\n");
    EXPECT_EQ(Shown(udl.ListView1, 6) + udl.txtUDLD.Text(), "None|snowNone");
    Keys("-1a.5\n-2b\n-1-\n2x-\n");  // boxes drop what is no number
    EXPECT_EQ(Filled(udl), "1.5|2|-1-|2-");
    Alt(Qt::Key_M);
    EXPECT_TRUE(udl.cboMember.HasFocus());
}

TEST_F(UdlEditor, NarrowButtonsDoWhatTheKeysDo) {
    Fill(udl, {"2.5", "", "", ""});
    Click(udl.cmdPlus);  // an empty b is 0
    EXPECT_TRUE(udl.txtUDLB.HasFocus());
    Click(udl.cmdL);
    EXPECT_EQ(Filled(udl), " 2.5| 7.5||");
    udl.cboMember.SetListIndex(1);
    udl.txtUdlA.SetText("6");
    Click(udl.cmdL);
    EXPECT_EQ(udl.picUDL.Drawn().size(), 7U);  // no hatching to the left
    Click(udl.cmdAdd);
    EXPECT_EQ(File(), " 2,6,-1.5,0,0,\"None\"\r\n");
    folder.write("Member.txt", "");
    udl.txtUDLB.SetText("3");
    Click(udl.cmdL);  // no length to take
    EXPECT_EQ(udl.txtUDLB.Text(), "3");
}

TEST_F(UdlEditor, EmptyBoxesCountAsZeroButALoadNeedsAWidth) {
    udl.txtUDLD.SetFocus();
    EXPECT_EQ(udl.txtUDLD.SelLength(), 4);
    EXPECT_FALSE(udl.cmdRemove.Enabled());
    EXPECT_EQ(TakeFlag(), 1);
    Keys("\n");
    EXPECT_TRUE(udl.txtUDLB.HasFocus());
    EXPECT_EQ(Filled(udl), "0||0|0");
    Fill(udl, {"0.0", "0", "", ""});
    Click(udl.cmdAdd);
    EXPECT_TRUE(udl.txtUDLB.HasFocus());
    EXPECT_EQ(udl.txtUDLw1.Text() + File(), "");
    Fill(udl, {"", "2", "", "7"});
    Click(udl.cmdAdd);
    EXPECT_EQ(File(), " 1,0,2,0,7,\"None\"\r\n");
    auto& none = With("");
    Fill(none, {"", "2", "3", "-3"});
    Click(none.cmdAdd);  // no member: not even the sign rule is asked
    EXPECT_TRUE(none.cboMember.HasFocus());
    EXPECT_EQ(none.txtUdlA.Text(), "");
    EXPECT_TRUE(none.picUDL.Drawn().empty());
}

TEST_F(UdlEditor, SignsThatDifferAreRefusedWithTheMessage) {
    for (const auto& [w1, w2] : {std::pair{"-5", "5"}, {"5", "-5"}}) {
        Fill(udl, {"1", "2", w1, w2});
        outside.ExpectMsgBox("w1 and w2 should be of same sign. (+w1 +w2 or -w1 -w2 only)");
        Click(udl.cmdAdd);
        EXPECT_EQ(Filled(udl), std::string("1|2|") + w1 + '|' + w2);
        EXPECT_FALSE(udl.picUDL.Drawn().empty());
    }
    EXPECT_EQ(outside.lastTitle, "+w1 +w2 or -w1 -w2 only");
    udl.txtUDLw2.SetText("-5");
    udl.txtUDLw1.SetText("-5");
    Click(udl.cmdAdd);
    EXPECT_EQ(File(), " 1,1,2,-5,-5,\"None\"\r\n");
    Type(udl.txtUDLD, "x");  // the description is not drawn
    EXPECT_TRUE(udl.picUDL.Drawn().empty());
}

TEST_F(UdlEditor, LoadsAreDrawnToTheTwip) {
    const auto& drawn = udl.picUDL.Drawn();
    Fill(udl, {"2", "5", "10", "20"});
    auto outline = Outline();
    ExpectLine(outline[0], 687, 700, 687, 400);
    ExpectLine(outline[1], 2154.5, 700, 2154.5, 100);
    ExpectLine(outline[2], 687, 400, 2154.5, 100);
    ExpectLine(outline[3], 100, 700, 3035, 700);
    EXPECT_EQ(outline[4].text, "a = 2        b = 5        ");
    EXPECT_EQ(outline[5].text, "w1 = 10        w2 = 20        ");
    EXPECT_EQ(outline[6].text, "L =  10         Member  1 ");
    EXPECT_LE(outline[6].y1 + (outline[6].y1 - outline[5].y1), udl.picUDL.Height());
    ASSERT_EQ(drawn.size(), 51U + 7U);
    ExpectLine(drawn[0], 687, 700, 687, 400);
    ExpectLine(drawn[25], 1420.75, 700, 1420.75, 250);
    EXPECT_EQ(std::pair(drawn[50].colour, outline[0].colour), std::pair(QBColor(1), Colour()));
    Fill(udl, {"0", "5", "-5", "0"});
    outline = Outline();
    ExpectLine(outline[0], 100, 700, 100, 100);
    ExpectLine(outline[1], 1567.5, 700, 1567.5, 700);
    ExpectLine(drawn[25], 833.75, 700, 833.75, 400);
    Fill(udl, {"8", "1000000", "3", "3"});  // the picture ends at 3135, and so does the hatching
    ExpectLine(Outline()[0], 2448, 700, 2448, 100);
    EXPECT_EQ(drawn.size(), 24U + 7U);
    Fill(udl, {"0", "5", "0", "0"});
    ExpectLine(Outline()[2], 100, 700, 1567.5, 700);
    Fill(udl, {"0", "1e300", "3", "3"});
    EXPECT_TRUE(drawn.empty());
    udl.txtUDLB.SetText("5");
    udl.txtUDLB.SetText("0");  // left as it was
    EXPECT_FALSE(drawn.empty());
}

}  // namespace
}  // namespace trabeon::test
