#include <gtest/gtest.h>

#include <QElapsedTimer>

#include "forms/input/frmUDL.h"
#include "tests/support/editor_fixture.h"
#include "tests/support/time_limit.h"

namespace trabeon::test {
namespace {

class UdlEditor : public EditorTest {
  protected:
    UdlEditor() {
        Start();
        folder.write("Member.txt", "1,200,2,10,\"None\"\r\n2,200,2,4.5,\"None\"\r\n");
    }
    frmUDL& Open() {
        return EditorTest::Open<frmUDL>("&Structure|&Loading|&Uniformly Distributed Load...");
    }
    std::string File() { return folder.read("Udl.txt"); }
    static void Fill(frmUDL& udl, const char* a, const char* b, const char* w1, const char* w2) {
        udl.txtUdlA.SetText(a);
        udl.txtUDLB.SetText(b);
        udl.txtUDLw1.SetText(w1);
        udl.txtUDLw2.SetText(w2);
    }
    /// The strokes behind the hatching: two sides, the top, the member, three texts.
    static std::vector<Stroke> Outline(const frmUDL& udl) {
        const auto& drawn = udl.picUDL.Drawn();
        return drawn.size() < 7 ? drawn : std::vector<Stroke>(drawn.end() - 7, drawn.end());
    }
    static void ExpectLine(const Stroke& stroke, double x1, double y1, double x2, double y2) {
        EXPECT_NEAR(stroke.x1, x1, 1e-6);
        EXPECT_NEAR(stroke.y1, y1, 1e-6);
        EXPECT_NEAR(stroke.x2, x2, 1e-6);
        EXPECT_NEAR(stroke.y2, y2, 1e-6);
    }
};

TEST_F(UdlEditor, LoadsAreEnteredByKeysAloneWithPlusAndL) {
    auto& udl = Open();
    EXPECT_TRUE(udl.cboMember.HasFocus());
    EXPECT_TRUE(udl.cmdRemove.Enabled());
    EXPECT_EQ(context().dataChanged, 0);
    Keys("m");
    EXPECT_EQ(udl.cboMember.ListIndex(), 0);
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
    EXPECT_EQ(udl.txtUDLD.Text(), "None");
    EXPECT_EQ(Shown(udl.ListView1, 4), (Texts{"12", "-8"}));
    EXPECT_EQ(Shown(udl.ListView1, 6), (Texts{"None", "snow"}));
    Key(Qt::Key_M, Qt::AltModifier);
    EXPECT_TRUE(udl.cboMember.HasFocus());
}

TEST_F(UdlEditor, NarrowButtonsDoWhatTheKeysDo) {
    auto& udl = Open();
    Fill(udl, "2.5", "", "", "");
    Click(udl.cmdPlus);  // an empty b is 0
    EXPECT_EQ(udl.txtUdlA.Text(), " 2.5");
    EXPECT_TRUE(udl.txtUDLB.HasFocus());
    Click(udl.cmdL);
    EXPECT_EQ(udl.txtUDLB.Text(), " 7.5");
    udl.cboMember.SetListIndex(1);
    udl.txtUdlA.SetText("6");
    Click(udl.cmdL);
    EXPECT_EQ(udl.txtUDLB.Text(), "-1.5");
    EXPECT_EQ(Outline(udl).size(), udl.picUDL.Drawn().size());  // no hatching to the left
    Click(udl.cmdAdd);
    EXPECT_EQ(File(), " 2,6,-1.5,0,0,\"None\"\r\n");
    folder.write("Member.txt", "");
    udl.txtUDLB.SetText("3");
    Click(udl.cmdL);  // no length to take
    EXPECT_EQ(udl.txtUDLB.Text(), "3");
}

TEST_F(UdlEditor, BoxesDropWhatIsNoNumber) {
    auto& udl = Open();
    Keys("m-1a.5\n-2b\n-1-\n2x-\n");
    EXPECT_EQ(udl.txtUdlA.Text(), "1.5");
    EXPECT_EQ(udl.txtUDLB.Text(), "2");
    EXPECT_EQ(udl.txtUDLw1.Text(), "-1-");
    EXPECT_EQ(udl.txtUDLw2.Text(), "2-");
    EXPECT_TRUE(udl.txtUDLD.HasFocus());
}

TEST_F(UdlEditor, EmptyBoxesCountAsZeroButALoadNeedsAWidth) {
    auto& udl = Open();
    udl.txtUDLD.SetFocus();
    EXPECT_EQ(udl.txtUDLD.SelLength(), 4);
    EXPECT_FALSE(udl.cmdRemove.Enabled());
    EXPECT_EQ(context().dataChanged, 1);
    Keys("\n");
    EXPECT_TRUE(udl.txtUDLB.HasFocus());
    EXPECT_EQ(udl.txtUdlA.Text(), "0");
    EXPECT_EQ(udl.txtUDLw1.Text(), "0");
    EXPECT_EQ(udl.txtUDLw2.Text(), "0");
    Fill(udl, "0.0", "0", "", "");
    Click(udl.cmdAdd);
    EXPECT_TRUE(udl.txtUDLB.HasFocus());
    EXPECT_EQ(udl.txtUDLw1.Text(), "");
    EXPECT_EQ(File(), "");
    Fill(udl, "", "2", "", "7");
    Click(udl.cmdAdd);
    EXPECT_EQ(File(), " 1,0,2,0,7,\"None\"\r\n");
    folder.write("Member.txt", "");
    udl.Unload();
    Settle();
    auto& none = Open();
    Fill(none, "", "2", "3", "-3");
    Click(none.cmdAdd);  // no member: not even the sign rule is asked
    EXPECT_TRUE(none.cboMember.HasFocus());
    EXPECT_EQ(none.txtUdlA.Text(), "");
    EXPECT_TRUE(none.picUDL.Drawn().empty());
}

TEST_F(UdlEditor, SignsThatDifferAreRefusedWithTheMessage) {
    auto& udl = Open();
    Fill(udl, "1", "2", "-5", "5");
    outside.ExpectMsgBox("w1 and w2 should be of same sign. (+w1 +w2 or -w1 -w2 only)");
    Click(udl.cmdAdd);
    EXPECT_EQ(outside.lastTitle, "+w1 +w2 or -w1 -w2 only");
    EXPECT_EQ(File(), "");
    EXPECT_EQ(udl.txtUDLw1.Text(), "-5");
    EXPECT_FALSE(udl.picUDL.Drawn().empty());
    Fill(udl, "1", "2", "5", "-5");
    outside.ExpectMsgBox("w1 and w2 should be of same sign. (+w1 +w2 or -w1 -w2 only)");
    Click(udl.cmdAdd);
    Fill(udl, "1", "2", "-5", "-5");
    Click(udl.cmdAdd);
    EXPECT_EQ(File(), " 1,1,2,-5,-5,\"None\"\r\n");
    EXPECT_TRUE(udl.picUDL.Drawn().empty());
    Type(udl.txtUDLD, "x");  // the description is not drawn
    EXPECT_TRUE(udl.picUDL.Drawn().empty());
}

TEST_F(UdlEditor, ARisingLoadIsDrawnToTheTwip) {
    auto& udl = Open();
    Fill(udl, "2", "5", "10", "20");
    const auto outline = Outline(udl);
    ExpectLine(outline[0], 687, 700, 687, 400);
    ExpectLine(outline[1], 2154.5, 700, 2154.5, 100);
    ExpectLine(outline[2], 687, 400, 2154.5, 100);
    ExpectLine(outline[3], 100, 700, 3035, 700);
    EXPECT_EQ(outline[4].text, "a = 2        b = 5        ");
    EXPECT_EQ(outline[5].text, "w1 = 10        w2 = 20        ");
    EXPECT_EQ(outline[6].text, "L =  10         Member  1 ");
    EXPECT_LE(outline[6].y1 + (outline[6].y1 - outline[5].y1), udl.picUDL.Height());
    const auto& drawn = udl.picUDL.Drawn();
    ASSERT_EQ(drawn.size(), 51U + 7U);
    ExpectLine(drawn[0], 687, 700, 687, 400);
    ExpectLine(drawn[25], 1420.75, 700, 1420.75, 250);
    ExpectLine(drawn[50], 2154.5, 700, 2154.5, 100);
    for (int i = 0; i < 51; ++i)
        EXPECT_EQ(drawn[static_cast<std::size_t>(i)].colour, QBColor(1));
    EXPECT_EQ(outline[0].colour, 0U);
}

TEST_F(UdlEditor, FallingNegativeAndLongLoadsShowTheirSize) {
    auto& udl = Open();
    Fill(udl, "0", "5", "-5", "0");
    auto outline = Outline(udl);
    ExpectLine(outline[0], 100, 700, 100, 100);
    ExpectLine(outline[1], 1567.5, 700, 1567.5, 700);
    ExpectLine(udl.picUDL.Drawn()[25], 833.75, 700, 833.75, 400);
    Fill(udl, "8", "1000000", "3", "3");  // the picture ends at 3135, and so does the hatching
    outline = Outline(udl);
    ASSERT_EQ(outline.size(), 7U);
    ExpectLine(outline[0], 2448, 700, 2448, 100);
    EXPECT_EQ(udl.picUDL.Drawn().size(), 24U + 7U);
    Fill(udl, "0", "5", "0", "0");
    ExpectLine(Outline(udl)[2], 100, 700, 1567.5, 700);
    Fill(udl, "0", "1e300", "3", "3");
    EXPECT_TRUE(udl.picUDL.Drawn().empty());
    udl.txtUDLB.SetText("5");
    udl.txtUDLB.SetText("0");  // left as it was
    EXPECT_FALSE(udl.picUDL.Drawn().empty());
}

TEST_F(UdlEditor, ASketchOnEachKeyStaysQuickWithTwoThousandMembers) {
    std::string rows;
    for (int i = 1; i <= 2000; ++i)
        rows += std::to_string(i) + ",200,2,6,\"a description of the usual length\"\r\n";
    folder.write("Member.txt", rows);
    auto& udl = Open();
    udl.cboMember.SetListIndex(1999);
    udl.txtUDLB.SetText("3");
    udl.txtUDLw1.SetFocus();
    const auto begin = std::clock();
    Keys("12345678901234567890");
    const double each = 1000.0 * static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC / 20;
    EXPECT_LT(each, limit(20));
    std::printf("2,000 members: a key with its sketch %.2f ms\n", each);
}

}  // namespace
}  // namespace trabeon::test
