#include <gtest/gtest.h>

#include "forms/input/frmMembers.h"
#include "tests/support/editor_fixture.h"

namespace trabeon::test {
namespace {

class MembersEditor : public EditorTest {
  protected:
    MembersEditor() {
        Start();
        Reopen();
    }
    void Reopen() {
        forms().Unload("frmMembers");
        Settle();
        members = &Open<frmMembers>("&Structure|&Members...");
    }
    std::string File() { return folder.read("Member.txt"); }
    frmMembers* members = nullptr;
};

TEST_F(MembersEditor, EnterThroughTheBoxesAddsAndBeginsAgain) {
    EXPECT_TRUE(members->txtYM.HasFocus());
    EXPECT_EQ(context().dataChanged, 0);
    Keys("200\n2.5\n6\n\n");
    EXPECT_EQ(File(), " 1,200,2.5,6,\"None\"\r\n");
    EXPECT_EQ(context().dataChanged, 1);
    EXPECT_TRUE(members->txtYM.HasFocus());
    EXPECT_EQ(members->txtYM.SelLength(), 3);  // the next value replaces it
    Keys("\n\n4.20\nhall, east\n");
    EXPECT_EQ(File(), "1,200,2.5,6,\"None\"\r\n 2,200,2.5,4.20,\"hall, east\"\r\n");
    EXPECT_EQ(members->txtMemberD.Text(), "None");
    Keys("\t\t\t\t ");
    EXPECT_EQ(Shown(members->ListView1, 1), (Texts{"Member  1", "Member  2", "Member  3"}));
    EXPECT_EQ(Shown(members->ListView1, 4), (Texts{"6", "4.20", "4.20"}));
    EXPECT_EQ(Shown(members->ListView1, 5), (Texts{"None", "hall, east", "None"}));
    ClickRow(members->ListView1, 1);
    Click(members->cmdRemove);
    EXPECT_EQ(File(), " 1,200,2.5,4.20,\"hall, east\"\r\n 2,200,2.5,4.20,\"None\"\r\n");
}

TEST_F(MembersEditor, ZeroIsRefusedInSilenceAndBoxesTakeDigitsAndPoints) {
    for (const auto* keys :
         {"\n2\n6\n\n", "0.0\n2\n6\n\n", ".\n2\n6\n\n", "200\n0\n6\n\n", "200\n2\n\b\n\n"}) {
        Keys("\b");
        Keys(keys);
        EXPECT_TRUE(members->txtYM.HasFocus()) << keys;
        EXPECT_EQ(File(), "") << keys;
    }
    Click(members->cmdAddJoint);
    EXPECT_TRUE(members->txtYM.HasFocus());
    Keys("-1a2.3 .4e5\b6\n2\n");
    Paste("6\"\r\n,5");  // is not filtered, and one field still
    Keys("\n\n");
    EXPECT_EQ(File(), " 1,12.3.46,2,\"6,5\",\"None\"\r\n");
    EXPECT_EQ(Shown(members->ListView1, 4), (Texts{"6,5"}));
}

TEST_F(MembersEditor, EveryChangeSetsTheFlagAndOtherControlsTurnRemoveOff) {
    Keys("200\n2\n6\n\n");
    for (TextBox* box :
         {&members->txtYM, &members->txtMI, &members->txtLength, &members->txtMemberD}) {
        ClickRow(members->ListView1, 1);
        EXPECT_TRUE(members->cmdRemove.Enabled());
        context().dataChanged = 0;
        box->SetFocus();
        EXPECT_FALSE(members->cmdRemove.Enabled());
        EXPECT_EQ(box->SelLength(), static_cast<int>(box->Text().size()));
        EXPECT_EQ(context().dataChanged, 0);
        Keys("7");
        EXPECT_EQ(context().dataChanged, 1);
    }
    ClickRow(members->ListView1, 1);
    members->cmdAddJoint.SetFocus();
    EXPECT_FALSE(members->cmdRemove.Enabled());
}

TEST_F(MembersEditor, TheListIsReachedByTabAndRemoveByShiftTabFromIt) {
    Keys("200\n2\n6\n\n3\n\n\n\n\t\t\t\t\t");
    EXPECT_TRUE(members->ListView1.HasFocus());
    Key(Qt::Key_Up);
    Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(members->cmdRemove.HasFocus());
    Keys(" ");
    EXPECT_EQ(File(), " 1,3,2,6,\"None\"\r\n");
    EXPECT_TRUE(members->ListView1.HasFocus());
    Key(Qt::Key_Home);
    Alt(Qt::Key_R);
    EXPECT_EQ(File(), "");
    Alt(Qt::Key_D);
    EXPECT_TRUE(forms().IsLoaded("frmDiagram"));
}

TEST_F(MembersEditor, AddAndRemoveStayQuickWithTwoThousandRows) {
    folder.write("Member.txt", MemberRows(2000));
    Reopen();
    Keys("200\n2\n6\n");
    const double add = Cost([] { Keys("\n"); });
    ClickRow(members->ListView1, 2001);
    const double remove = Cost([this] { members->cmdRemove.Press(); });
    ClickTitle(members->ListView1, 1);
    const double sorted = Cost([this] { DoubleClickRow(members->ListView1, 1); });
    EXPECT_EQ(members->ListView1.ListItems.Count(), 1999);
    for (const double cost : {add, remove, sorted})
        EXPECT_LT(cost, limit(100));
}

}  // namespace
}  // namespace trabeon::test
