// The windows of joints and of members. What all row editors share is tried on the joints.
#include "forms/input/frmJoints.h"
#include "forms/input/frmMembers.h"
#include "tests/support/editor_fixture.h"

namespace trabeon::test {
namespace {

class JointsEditor : public EditorTest {
  protected:
    void With(const std::string& rows) {
        folder.write("Joint.txt", rows);
        joints = &Reopen<frmJoints>();
    }
    std::string File() { return folder.read("Joint.txt"); }
    std::string Descriptions() { return Shown(joints->ListView1, 3); }
    int Selected() { return joints->ListView1.SelectedItem().Index(); }

    frmJoints* joints = &Open<frmJoints>();
};

TEST_F(JointsEditor, ALineOfJointsIsEnteredByKeysAlone) {
    EXPECT_TRUE(joints->cmdBackJoint.HasFocus());
    Keys("\t ");  // Next
    EXPECT_EQ(TakeFlag(), 0);
    Keys("\tWall A\t ");
    EXPECT_EQ(File(), " 1,Pin Jointed,\"Wall A\"\r\n");
    EXPECT_EQ(TakeFlag(), 1);
    EXPECT_EQ(joints->txtDescription.Text(), "None");
    Alt(Qt::Key_N);
    Keys(" ");
    EXPECT_EQ(folder.read("Joint.tmp"), File());
    Alt(Qt::Key_A);
    EXPECT_EQ(File(),
              "1,Pin Jointed,\"Wall A\"\r\n2,Continuous,\"None\"\r\n 3,Continuous,\"None\"\r\n");
    EXPECT_EQ(Shown(joints->ListView1, 1), "Joint  1|Joint  2|Joint  3");
    EXPECT_TRUE(joints->cmdAddJoint.HasFocus());
    joints->txtDescription.SetFocus();
    for (const auto* next : {"Wall D", "Wall E"}) {  // each is typed over the "None" of an Add
        Keys(next);
        Alt(Qt::Key_A);
    }
    With(File());
    EXPECT_EQ(Descriptions(), "Wall A|None|None|Wall D|Wall E");
    EXPECT_EQ(Selected(), 5);
    EXPECT_EQ(joints->lblJoint.Caption(), "Cantilever");
}

TEST_F(JointsEditor, TheTypesFormARingEachWithItsPicture) {
    std::filesystem::copy(PICTURES, folder.path());
    const char* ring[] = {"Cantilever", "Pin Jointed", "Continuous", "Fixed"};
    for (int k = 1; k <= 8; ++k) {  // around and back
        Click(k <= 4 ? joints->cmdNextJoint : joints->cmdBackJoint);
        EXPECT_EQ(joints->lblJoint.Caption(), ring[std::min(k, 8 - k) % 4]);
        EXPECT_TRUE(joints->WebJoint.HasPicture());
    }
}

TEST_F(JointsEditor, RowsGoBehindTheSelectedOneASortIsForTheEyesAndRemoveNumbersAnew) {
    With("1,Fixed,b\r\n2,Fixed,\"c, d\"\r\n3,Fixed,\"\"\r\n");
    ClickTitle(joints->ListView1, 3);
    EXPECT_EQ(Descriptions(), "c, d|b|");
    ClickRow(joints->ListView1, 2);
    Click(joints->cmdAddJoint);
    const std::string added =
        "1,Fixed,\"b\"\r\n 4,Cantilever,\"None\"\r\n2,Fixed,\"c, d\"\r\n3,Fixed,\"\"\r\n";
    EXPECT_EQ(File(), added);
    EXPECT_EQ(Selected(), 4);
    for (const auto* order : {"|b|c, d|None", "None|c, d|b|"}) {
        ClickTitle(joints->ListView1, 3);
        EXPECT_EQ(Descriptions(), order);
    }
    EXPECT_EQ(File(), added);
    ClickRow(joints->ListView1, 1);
    Click(joints->cmdRemove);
    EXPECT_EQ(File(), " 1,Fixed,\"b\"\r\n 2,Fixed,\"c, d\"\r\n 3,Fixed,\"\"\r\n");
    EXPECT_EQ(Descriptions(), "c, d|b|");  // still sorted, the last one selected
    ClickRow(joints->ListView1, 2);
    Click(joints->cmdAddJoint);  // behind "b", and the list shows the file's order again
    EXPECT_EQ(Descriptions(), "b|None|c, d|");
    ClickTitle(joints->ListView1, 3);
    EXPECT_EQ(Descriptions(), "|b|c, d|None");
}

TEST_F(JointsEditor, RemoveIsOnWhileTheFocusIsInTheList) {
    ClickTitle(joints->ListView1, 1);
    EXPECT_TRUE(joints->cmdRemove.Enabled());
    Click(joints->cmdRemove);  // an empty list: nothing but that
    EXPECT_FALSE(joints->cmdRemove.Enabled());
    EXPECT_EQ(TakeFlag(), 0);
    Click(joints->cmdAddJoint);
    for (Control* other : std::initializer_list<Control*>{
             &joints->cmdBackJoint, &joints->cmdNextJoint, &joints->WebJoint,
             &joints->txtDescription, &joints->cmdAddJoint}) {
        ClickRow(joints->ListView1, 1);
        EXPECT_TRUE(joints->cmdRemove.Enabled());
        other->SetFocus();
        EXPECT_FALSE(joints->cmdRemove.Enabled());
    }
    Click(joints->cmdNextJoint);
    Click(joints->cmdAddJoint);
    TakeFlag();
    DoubleClickRow(joints->ListView1, 1);  // removes at once, down to an empty file
    EXPECT_EQ(File(), " 1,Pin Jointed,\"None\"\r\n");
    EXPECT_TRUE(joints->cmdRemove.Enabled());
    EXPECT_EQ(TakeFlag(), 1);
    DoubleClickRow(joints->ListView1, 1);
    EXPECT_EQ(File(), "");
    EXPECT_FALSE(joints->cmdRemove.Enabled());
}

TEST_F(JointsEditor, ADescriptionKeepsToItsField) {
    joints->txtDescription.SetFocus();
    EXPECT_EQ(TakeFlag(), 1);  // entering the box is what counts
    EXPECT_EQ(joints->txtDescription.SelLength(), 4);
    Keys("a \"b\", c");
    Paste("\"d\"\r\ne");
    Click(joints->cmdAddJoint);
    EXPECT_EQ(File(), " 1,Cantilever,\"a b, cde\"\r\n");
    joints->txtDescription.SetFocus();
    Keys("\b");
    Click(joints->cmdAddJoint);
    EXPECT_TRUE(File().ends_with(" 2,Cantilever,\"\"\r\n"));
    joints->txtDescription.SetText("none");
    joints->txtDescription.SetFocus();
    EXPECT_EQ(joints->txtDescription.SelLength(), 0);
}

TEST_F(JointsEditor, AWriteThatFailsIsToldAndLosesNothing) {
    Click(joints->cmdAddJoint);
    TakeFlag();
    joints->txtDescription.SetText("Wall B");
    BlockWriting("Joint.tmp");
    Click(joints->cmdAddJoint);
    EXPECT_EQ(joints->txtDescription.Text(), "Wall B");
    ExpectUnwritten("Joint.tmp");
    DoubleClickRow(joints->ListView1, 1);
    EXPECT_EQ(File(), " 1,Cantilever,\"None\"\r\n");
    EXPECT_EQ(Descriptions(), "None");
    EXPECT_EQ(TakeFlag(), 0);
}

class MembersEditor : public EditorTest {
  protected:
    std::string File() { return folder.read("Member.txt"); }
    frmMembers* members = &Open<frmMembers>();
};

TEST_F(MembersEditor, EnterThroughTheBoxesAddsAndBeginsAgain) {
    EXPECT_TRUE(members->txtYM.HasFocus());
    Keys("200\n2.5\n6\n\n");
    EXPECT_EQ(File(), " 1,200,2.5,6,\"None\"\r\n");
    EXPECT_TRUE(members->txtYM.HasFocus());
    EXPECT_EQ(members->txtYM.SelLength(), 3);  // the next value replaces it
    Keys("\n\n4.20\nhall, east\n\t\t\t\t ");
    EXPECT_EQ(Shown(members->ListView1, 1), "Member  1|Member  2|Member  3");
    EXPECT_EQ(Shown(members->ListView1, 4), "6|4.20|4.20");
    EXPECT_EQ(Shown(members->ListView1, 5), "None|hall, east|None");
    Keys("\t\t\t\t\t");
    EXPECT_TRUE(members->ListView1.HasFocus());
    Key(Qt::Key_Home);
    Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(members->cmdRemove.HasFocus());
    Keys(" ");
    EXPECT_EQ(File(), " 1,200,2.5,4.20,\"hall, east\"\r\n 2,200,2.5,4.20,\"None\"\r\n");
    EXPECT_TRUE(members->ListView1.HasFocus());
    Alt(Qt::Key_D);
    EXPECT_TRUE(forms().IsLoaded("frmDiagram"));
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
    EXPECT_EQ(Shown(members->ListView1, 4), "6,5");
}

TEST_F(MembersEditor, EveryChangeSetsTheFlagAndOtherControlsTurnRemoveOff) {
    Keys("200\n2\n6\n\n");
    for (TextBox* box :
         {&members->txtYM, &members->txtMI, &members->txtLength, &members->txtMemberD}) {
        ClickRow(members->ListView1, 1);
        EXPECT_TRUE(members->cmdRemove.Enabled());
        TakeFlag();
        box->SetFocus();
        EXPECT_FALSE(members->cmdRemove.Enabled());
        EXPECT_EQ(box->SelLength(), static_cast<int>(box->Text().size()));
        EXPECT_EQ(TakeFlag(), 0);
        Keys("7");
        EXPECT_EQ(TakeFlag(), 1);
    }
    ClickRow(members->ListView1, 1);
    members->cmdAddJoint.SetFocus();
    EXPECT_FALSE(members->cmdRemove.Enabled());
}

}  // namespace
}  // namespace trabeon::test
