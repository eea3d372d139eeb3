#include <gtest/gtest.h>

#include "forms/design/frmBeamDimensions.h"
#include "forms/results/frmOptions.h"
#include "tests/support/editor_fixture.h"

namespace trabeon::test {
namespace {

class BeamDimensions : public EditorTest {
  protected:
    BeamDimensions() {
        Start();
        folder.write("Member.txt", "1,200,2,6,\"None\"\r\n2,200,2,4.50,\"None\"\r\n");
    }
    frmBeamDimensions& Open() {
        return EditorTest::Open<frmBeamDimensions>("&Design|Beam &Dimensions...");
    }
    frmBeamDimensions& OpenWith(const std::string& rows) {
        folder.write("BeamDim.txt", rows);
        return Open();
    }
    std::string File() { return folder.read("BeamDim.txt"); }
    static void Fill(frmBeamDimensions& form) {
        const char* values[] = {"300", "500", "450", "30", "460", "200000", "250"};
        TextBox* boxes[] = {&form.txtBreadth, &form.txtDepth, &form.txtEffDepth, &form.txtfcu,
                            &form.txtfy,      &form.txtYM,    &form.txtfyv};
        for (int k = 0; k < 7; ++k)
            boxes[k]->SetText(values[k]);
    }
    static void Vary(frmBeamDimensions& form, int member, int section) {
        form.optVary.Choose();
        form.cboMember.SetListIndex(member - 1);
        form.cboSection.SetListIndex(section - 1);
        Click(form.cmdAdd);
    }
    /// Sections first to last of a member, as the form writes them.
    static std::string Lines(int member, int first, int last, const std::string& L) {
        std::string text;
        for (int i = first; i <= last; ++i)
            text += std::to_string(member) + "," + std::to_string(i) +
                    ",300,500,450,30,460,200000,250," + L + "\r\n";
        return text;
    }
    static std::string Newest(int member, int section, const std::string& L) {
        return " " + std::to_string(member) + ", " + std::to_string(section) +
               ",300,500,450,30,460,200000,250," + L + "\r\n";
    }
};

TEST_F(BeamDimensions, AUniformMemberIsEnteredByKeysAlone) {
    auto& form = Open();
    EXPECT_EQ(form.Width(), 8000 / 15 * 15);
    EXPECT_EQ(form.Height(), 5000 / 15 * 15);
    EXPECT_FALSE(form.cboSection.Enabled());
    EXPECT_FALSE(form.cmdRemove.Enabled());
    EXPECT_EQ(form.cboMember.List(1), "Member 2");
    EXPECT_EQ(form.cboSection.ListCount(), 12);
    EXPECT_EQ(form.cboSection.List(11), "12");
    EXPECT_TRUE(form.cboMember.HasFocus());
    Key(Qt::Key_Down);
    Keys("\t\t300\n500\n450\n30\n460\n200000\n250\n");
    EXPECT_TRUE(form.cmdAdd.HasFocus());
    Keys(" ");
    EXPECT_EQ(File(), Lines(1, 1, 11, "6") + Newest(1, 12, "6"));
    EXPECT_EQ(Shown(form.ListView1, 1), Texts(12, "Member  1"));
    EXPECT_EQ(Shown(form.ListView1, 2).back(), "12");
    EXPECT_EQ(form.ListView1.SelectedItem().Index(), 12);
    EXPECT_EQ(context().dataChanged, 0);  // an Add leaves the flag alone
    form.cboMember.SetListIndex(1);
    Click(form.cmdAdd);
    EXPECT_EQ(File(), Lines(1, 1, 12, "6") + Lines(2, 1, 11, "4.5") + Newest(2, 12, "4.5"));
}

TEST_F(BeamDimensions, UniformLinesLandBehindTheSelectedRowAndThenAtTheEnd) {
    auto& form = OpenWith(Lines(1, 1, 2, "6"));
    Fill(form);
    ClickRow(form.ListView1, 1);
    form.cboMember.SetListIndex(1);
    Click(form.cmdAdd);
    EXPECT_EQ(File(), Lines(1, 1, 1, "6") + Lines(2, 1, 1, "4.5") + Lines(1, 2, 2, "6") +
                          Lines(2, 2, 11, "4.5") + Newest(2, 12, "4.5"));
    EXPECT_FALSE(form.cmdRemove.Enabled());
    EXPECT_EQ(form.ListView1.SelectedItem().SubItems(1), "12");
}

TEST_F(BeamDimensions, AVaryingSectionLandsInItsPlaceAndADuplicateBehindTheFirst) {
    auto& form = OpenWith("2,1,x,,,,,,,4.5\r\n1,12,y,,,,,,,6\r\n1,2,z,,,,,,,6\r\n");
    Fill(form);
    Vary(form, 1, 10);
    EXPECT_EQ(File(), "1,2,z,,,,,,,6\r\n" + Lines(1, 10, 10, "6") +
                          "1,12,y,,,,,,,6\r\n2,1,x,,,,,,,4.5\r\n");
    form.txtBreadth.SetText("200");
    Vary(form, 1, 2);
    EXPECT_EQ(Shown(form.ListView1, 3), (Texts{"z", "200", "300", "y", "x"}));
}

TEST_F(BeamDimensions, WhatIsNotChosenIsWrittenAsZeroAndLeftOutWhenPutInOrder) {
    auto& form = OpenWith("1,99,b,,,,,,,6\r\n1,1,a,,,,,,,6\r\n");
    Click(form.cmdAdd);  // no member
    EXPECT_EQ(File().substr(0, 32), "1,99,b,,,,,,,6\r\n0,1,,,,,,,,0\r\n1,");
    EXPECT_EQ(form.ListView1.ListItems.Count(), 14);
    form.optVary.Choose();
    Click(form.cmdAdd);
    EXPECT_EQ(File(), "1,1,a,,,,,,,6\r\n");
}

TEST_F(BeamDimensions, ARowRefersToItsLineWithTenMembersAndMore) {
    std::string rows;
    for (int i = 1; i <= 11; ++i)
        rows += Lines(i, 1, 1, "6");
    folder.write("Member.txt", MemberRows(11));
    auto& form = OpenWith(rows);
    EXPECT_EQ(Shown(form.ListView1, 1)[1], "Member  10");  // sorted as text
    EXPECT_EQ(Shown(form.ListView1, 1)[3], "Member  2");
    ClickRow(form.ListView1, 2);
    EXPECT_TRUE(form.cmdRemove.Enabled());
    Alt(Qt::Key_R);
    std::string left;
    for (const int i : {1, 2, 3, 4, 5, 6, 7, 8, 9, 11})
        left += Lines(i, 1, 1, "6");
    EXPECT_EQ(File(), left);
    EXPECT_EQ(context().dataChanged, 1);
    EXPECT_FALSE(form.cmdRemove.Enabled());
    EXPECT_EQ(form.ListView1.SelectedItem().Index(), 10);
    form.ListView1.SetSelectedItem(form.ListView1.ListItems(3));  // member 2
    Fill(form);
    form.cboMember.SetListIndex(9);
    Click(form.cmdAdd);
    EXPECT_EQ(File().substr(0, Lines(1, 1, 2, "6").size() + 6),
              Lines(1, 1, 1, "6") + Lines(2, 1, 1, "6") + "10,1,3");
    EXPECT_EQ(form.ListView1.SelectedItem().Text(), "Member  10");
    EXPECT_EQ(form.ListView1.SelectedItem().SubItems(1), "12");
}

TEST_F(BeamDimensions, ADoubleClickRemovesAndTitlesDoNotSort) {
    auto& form = OpenWith(Lines(1, 1, 2, "6"));
    ClickTitle(form.ListView1, 2);
    ClickTitle(form.ListView1, 2);
    EXPECT_EQ(Shown(form.ListView1, 2), (Texts{"1", "2"}));
    EXPECT_FALSE(form.cmdRemove.Enabled());
    DoubleClickRow(form.ListView1, 1);
    EXPECT_EQ(File(), Lines(1, 2, 2, "6"));
    EXPECT_TRUE(form.cmdRemove.Enabled());
    DoubleClickRow(form.ListView1, 1);
    EXPECT_EQ(File(), "");
    EXPECT_FALSE(form.cmdRemove.Enabled());

    Fill(form);
    Vary(form, 1, 1);
    folder.write("BeamDim.tmp", "x");
    context().dataChanged = 0;
    ClickRow(form.ListView1, 1);
    Click(form.Command1);  // removes all
    EXPECT_EQ(File(), "");
    EXPECT_FALSE(std::filesystem::exists(folder / "BeamDim.tmp"));
    EXPECT_EQ(form.ListView1.ListItems.Count(), 0);
    EXPECT_FALSE(form.cmdRemove.Enabled());
    EXPECT_EQ(context().dataChanged, 0);
}

TEST_F(BeamDimensions, LinkStrengthStopsAt460AndNoOtherBoxIsTested) {
    auto& form = Open();
    form.txtfyv.SetFocus();
    Keys("460");
    EXPECT_EQ(form.txtfyv.Text(), "460");
    form.txtfyv.SetText("460.5");
    EXPECT_EQ(form.txtfyv.Text(), "460");
    form.txtfyv.SelectAll();
    Keys("abc");
    EXPECT_EQ(form.txtfyv.Text(), "abc");
    form.txtfy.SetFocus();
    Keys("500\"");
    EXPECT_EQ(form.txtfy.Text(), "500");
    form.optVary.Choose();
    EXPECT_TRUE(form.cboSection.Enabled());
    form.optUniform.Choose();
    EXPECT_FALSE(form.cboSection.Enabled());
}

TEST_F(BeamDimensions, SectionsFollowThePlottingOptionsAndUnfitOnesAreRefused) {
    auto& options = forms().Get<frmOptions>();
    options.txtDivision.SetText("25");
    auto& form = Open();
    EXPECT_EQ(form.cboSection.ListCount(), 27);
    EXPECT_TRUE(options.Visible());  // the user's own window stays up
    Fill(form);
    form.cboMember.SetListIndex(0);
    Click(form.cmdAdd);
    EXPECT_EQ(form.ListView1.ListItems.Count(), 27);
    options.txtDivision.SetText("1000000000");
    outside.ExpectMsgBox(unfitDivisions(1e9)->sentence);
    Click(form.cmdAdd);
    EXPECT_EQ(form.ListView1.ListItems.Count(), 27);
    form.Unload();
    Settle();
    auto& unfit = Open();
    EXPECT_EQ(unfit.cboSection.ListCount(), 0);
    options.txtDivision.SetText("25");
    unfit.optVary.Choose();
    Click(unfit.cmdAdd);  // without sections to put them in order every row would be lost
    EXPECT_EQ(unfit.ListView1.ListItems.Count(), 27);
    EXPECT_TRUE(unfit.cboSection.HasFocus());
}

TEST_F(BeamDimensions, AFailedWriteIsToldAndLosesNothing) {
    auto& form = OpenWith(Lines(1, 1, 2, "6"));
    Fill(form);
    BlockWriting("BeamDim.tmp");
    form.cboMember.SetListIndex(0);
    Click(form.cmdAdd);
    EXPECT_EQ(File(), Lines(1, 1, 2, "6"));
    EXPECT_EQ(form.ListView1.ListItems.Count(), 2);
    EXPECT_EQ(form.txtBreadth.Text(), "300");
}

TEST_F(BeamDimensions, AddStaysQuickWithTwelveThousandLines) {
    std::string rows;
    for (int i = 1; i <= 1000; ++i)
        rows += Lines(i, 1, 12, "6");
    folder.write("Member.txt", MemberRows(1000));
    auto& form = OpenWith(rows);
    ExpectTidy(form);
    ExpectFits(form.ListView1);
    Fill(form);
    form.cboMember.SetListIndex(499);
    EXPECT_LT(Cost([&] { Click(form.cmdAdd); }), limit(300));
    form.optVary.Choose();
    form.cboSection.SetListIndex(4);
    EXPECT_LT(Cost([&] { Click(form.cmdAdd); }), limit(300));
    EXPECT_EQ(form.ListView1.ListItems.Count(), 12013);
}

}  // namespace
}  // namespace trabeon::test
