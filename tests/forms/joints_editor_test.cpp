#include <gtest/gtest.h>

#include "forms/input/frmJoints.h"
#include "tests/support/editor_fixture.h"

namespace trabeon::test {
namespace {

class JointsEditor : public EditorTest {
  protected:
    JointsEditor() {
        Start();
        Reopen("");
    }
    void Reopen(const std::string& rows) {
        forms().Unload("frmJoints");
        Settle();
        folder.write("Joint.txt", rows);
        joints = &Open<frmJoints>("&Structure|&Joints...");
    }
    std::string File() { return folder.read("Joint.txt"); }
    Texts Descriptions() { return Shown(joints->ListView1, 3); }
    int Selected() { return joints->ListView1.SelectedItem().Index(); }

    frmJoints* joints = nullptr;
};

TEST_F(JointsEditor, ALineOfJointsIsEnteredByKeysAlone) {
    EXPECT_TRUE(joints->cmdBackJoint.HasFocus());
    EXPECT_EQ(context().dataChanged, 0);
    Keys("\t ");  // Next
    EXPECT_EQ(joints->lblJoint.Caption(), "Pin Jointed");
    Keys("\tWall A\t ");
    EXPECT_EQ(File(), " 1,Pin Jointed,\"Wall A\"\r\n");
    EXPECT_EQ(context().dataChanged, 1);
    EXPECT_EQ(joints->txtDescription.Text(), "None");
    Alt(Qt::Key_N);
    Keys(" ");
    EXPECT_EQ(folder.read("Joint.tmp"), File());
    Alt(Qt::Key_A);
    const std::string three =
        "1,Pin Jointed,\"Wall A\"\r\n2,Continuous,\"None\"\r\n 3,Continuous,\"None\"\r\n";
    EXPECT_EQ(File(), three);
    EXPECT_EQ(Shown(joints->ListView1, 1), (Texts{"Joint  1", "Joint  2", "Joint  3"}));
    EXPECT_EQ(Selected(), 3);
    EXPECT_TRUE(joints->cmdAddJoint.HasFocus());
    joints->txtDescription.SetFocus();
    for (const auto* next : {"Wall D", "Wall E"}) {  // each is typed over the "None" of an Add
        Keys(next);
        Alt(Qt::Key_A);
    }
    Reopen(File());
    EXPECT_EQ(Descriptions(), (Texts{"Wall A", "None", "None", "Wall D", "Wall E"}));
    EXPECT_EQ(Selected(), 5);
    EXPECT_EQ(joints->lblJoint.Caption(), "Cantilever");
}

TEST_F(JointsEditor, TheTypesFormARingEachWithItsPicture) {
    std::filesystem::copy(PICTURES, folder.path());
    for (const auto* type : {"Pin Jointed", "Continuous", "Fixed", "Cantilever"}) {
        Click(joints->cmdNextJoint);
        EXPECT_EQ(joints->lblJoint.Caption(), type);
        EXPECT_TRUE(joints->WebJoint.HasPicture());
    }
    for (const auto* type : {"Fixed", "Continuous", "Pin Jointed", "Cantilever"}) {
        Click(joints->cmdBackJoint);
        EXPECT_EQ(joints->lblJoint.Caption(), type);
    }
    EXPECT_EQ(context().dataChanged, 0);
}

TEST_F(JointsEditor, ARowGoesBehindTheSelectedOneAndRemoveNumbersAnew) {
    Reopen("1,Fixed,a\r\n2,Fixed,\"b, c\"\r\n3,Fixed,\"\"\r\n");
    ClickRow(joints->ListView1, 1);
    Click(joints->cmdAddJoint);
    EXPECT_EQ(File(),
              "1,Fixed,\"a\"\r\n 4,Cantilever,\"None\"\r\n2,Fixed,\"b, c\"\r\n3,Fixed,\"\"\r\n");
    EXPECT_EQ(Shown(joints->ListView1, 1), (Texts{"Joint  1", "Joint  4", "Joint  2", "Joint  3"}));
    EXPECT_EQ(Selected(), 4);
    ClickRow(joints->ListView1, 3);
    Click(joints->cmdRemove);
    EXPECT_EQ(File(), " 1,Fixed,\"a\"\r\n 2,Cantilever,\"None\"\r\n 3,Fixed,\"\"\r\n");
    EXPECT_EQ(Selected(), 3);
    EXPECT_FALSE(joints->cmdRemove.Enabled());
}

TEST_F(JointsEditor, ASortIsForTheEyesOnlyAndRemoveTakesTheRowSeenSelected) {
    const std::string file = "1,Fixed,b\r\n2,Fixed,c\r\n3,Fixed,a\r\n";
    Reopen(file);
    ClickTitle(joints->ListView1, 3);
    EXPECT_TRUE(joints->cmdRemove.Enabled());
    EXPECT_EQ(Descriptions(), (Texts{"c", "b", "a"}));
    ClickTitle(joints->ListView1, 3);
    EXPECT_EQ(Descriptions(), (Texts{"a", "b", "c"}));
    EXPECT_EQ(File(), file);
    ClickRow(joints->ListView1, 3);
    Click(joints->cmdRemove);
    EXPECT_EQ(File(), " 1,Fixed,\"b\"\r\n 2,Fixed,\"a\"\r\n");
    EXPECT_EQ(Descriptions(), (Texts{"a", "b"}));  // still sorted, last one selected
    Click(joints->cmdAddJoint);  // behind "b", and the list shows the file's order again
    EXPECT_EQ(Descriptions(), (Texts{"b", "None", "a"}));
    ClickTitle(joints->ListView1, 3);
    EXPECT_EQ(Descriptions(), (Texts{"a", "b", "None"}));
}

TEST_F(JointsEditor, RemoveIsOnWhileTheFocusIsInTheList) {
    ClickTitle(joints->ListView1, 1);
    EXPECT_TRUE(joints->cmdRemove.Enabled());
    Click(joints->cmdRemove);  // an empty list: nothing but that
    EXPECT_FALSE(joints->cmdRemove.Enabled());
    EXPECT_EQ(context().dataChanged, 0);
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
    context().dataChanged = 0;
    DoubleClickRow(joints->ListView1, 1);  // removes at once, down to an empty file
    EXPECT_EQ(File(), " 1,Pin Jointed,\"None\"\r\n");
    EXPECT_TRUE(joints->cmdRemove.Enabled());
    EXPECT_EQ(context().dataChanged, 1);
    DoubleClickRow(joints->ListView1, 1);
    EXPECT_EQ(File(), "");
    EXPECT_FALSE(joints->cmdRemove.Enabled());
}

TEST_F(JointsEditor, ADescriptionKeepsToItsField) {
    joints->txtDescription.SetFocus();
    EXPECT_EQ(context().dataChanged, 1);  // entering the box is what counts
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
    const auto before = File();
    context().dataChanged = 0;
    joints->txtDescription.SetText("Wall B");
    BlockWriting("Joint.tmp");
    Click(joints->cmdAddJoint);
    EXPECT_EQ(joints->txtDescription.Text(), "Wall B");
    ExpectUnwritten("Joint.tmp");
    DoubleClickRow(joints->ListView1, 1);
    EXPECT_EQ(File(), before);
    EXPECT_EQ(Descriptions(), Texts{"None"});
    EXPECT_EQ(context().dataChanged, 0);
}

}  // namespace
}  // namespace trabeon::test
