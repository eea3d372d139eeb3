#include "forms/design/frmBeamDimensions.h"
#include "forms/settings/frmOptions.h"
#include "tests/support/editor_fixture.h"

namespace trabeon::test {
namespace {

class BeamDimensions : public EditorTest {
  protected:
    BeamDimensions() { folder.write("Member.txt", "1,200,2,6,a\r\n2,200,2,4.50,b\r\n"); }

    frmBeamDimensions& OpenWith(const std::string& rows) {
        folder.write("BeamDim.txt", rows);
        auto& form = Reopen<frmBeamDimensions>();
        constexpr const char* values[] = {"300", "500", "450", "30", "460", "200000", "250"};
        Fill({&form.txtBreadth, &form.txtDepth, &form.txtEffDepth, &form.txtfcu, &form.txtfy,
              &form.txtYM, &form.txtfyv},
             values);
        return form;
    }
    std::string File() { return folder.read("BeamDim.txt"); }
    static void Add(frmBeamDimensions& form, int member) {
        form.cboMember.SetListIndex(member - 1);
        Click(form.cmdAdd);
    }
    static void Vary(frmBeamDimensions& form, int member, int section) {
        form.optVary.Choose();
        form.cboSection.SetListIndex(section - 1);
        Add(form, member);
    }
    /// Sections first to last of a member of 6 m or 4.5 m, as the form writes them.
    static std::string Lines(int member, int first, int last, const std::string& blank = "") {
        std::string text;
        for (int i = first; i <= last; ++i)
            text += blank + std::to_string(member) + "," + blank + std::to_string(i) +
                    ",300,500,450,30,460,200000,250," + (member == 2 ? "4.5\r\n" : "6\r\n");
        return text;
    }
};

TEST_F(BeamDimensions, AUniformMemberIsEnteredByKeysAlone) {
    auto& form = Open<frmBeamDimensions>();
    ExpectBounds(form, 0, 0, 8000, 5000);
    EXPECT_FALSE(form.cboSection.Enabled() || form.cmdRemove.Enabled());
    EXPECT_EQ(form.cboMember.List(1) + "|" + form.cboSection.List(11), "Member 2|12");
    EXPECT_EQ(form.cboSection.ListCount(), 12);
    EXPECT_TRUE(form.cboMember.HasFocus());
    Key(Qt::Key_Down);
    Keys("\t\t300\n500\n450\n30\n460\n200000\n250\n ");
    EXPECT_EQ(File(), Lines(1, 1, 11) + Lines(1, 12, 12, " "));
    EXPECT_EQ(form.ListView1.ListItems(1).Text(), "Member  1");
    EXPECT_EQ(form.ListView1.SelectedItem().Index(), 12);
    EXPECT_EQ(TakeFlag(), 0);  // an Add leaves the flag alone
    Add(form, 2);
    EXPECT_EQ(File(), Lines(1, 1, 12) + Lines(2, 1, 11) + Lines(2, 12, 12, " "));
    ClickRow(form.ListView1, 1);
    Add(form, 2);  // behind the selected row, then at the end
    EXPECT_TRUE(File().starts_with(Lines(1, 1, 1) + Lines(2, 1, 1) + Lines(1, 2, 12)));
    EXPECT_TRUE(File().ends_with(Lines(2, 12, 12) + Lines(2, 2, 11) + Lines(2, 12, 12, " ")));
    EXPECT_EQ(form.ListView1.SelectedItem().SubItems(1), "12");
}

TEST_F(BeamDimensions, AVaryingSectionLandsInItsPlaceAndADuplicateBehindTheFirst) {
    auto& form = OpenWith("2,1,x,,,,,,,4.5\r\n1,12,y,,,,,,,6\r\n1,2,z,,,,,,,6\r\n");
    Vary(form, 1, 10);
    EXPECT_EQ(File(),
              "1,2,z,,,,,,,6\r\n" + Lines(1, 10, 10) + "1,12,y,,,,,,,6\r\n2,1,x,,,,,,,4.5\r\n");
    form.txtBreadth.SetText("200");
    Vary(form, 1, 2);
    EXPECT_EQ(Shown(form.ListView1, 3), "z|200|300|y|x");
    const auto unused = [&] {
        std::string rows;
        for (int i = 0; i < Tree(form.ListView1).topLevelItemCount(); ++i)
            if (Tree(form.ListView1).topLevelItem(i)->toolTip(0).startsWith("Not used"))
                rows += std::to_string(i + 1);
        return rows;
    };
    EXPECT_EQ(unused(), "2");
    EXPECT_EQ(Tree(form.ListView1).topLevelItem(1)->foreground(4).color(), QColor(0x8a8a8a));
    DoubleClickRow(form.ListView1, 1);  // the first goes, the second takes its place
    EXPECT_EQ(unused(), "");
}

TEST_F(BeamDimensions, TheSectionThatWasAddedIsInSight) {
    auto& form = OpenWith(Lines(1, 1, 12) + Lines(2, 1, 12));
    form.txtBreadth.SetText("200");
    Vary(form, 1, 3);
    EXPECT_TRUE(
        Tree(form.ListView1)
            .viewport()
            ->rect()
            .contains(Tree(form.ListView1).visualItemRect(Tree(form.ListView1).topLevelItem(3))));
}

TEST_F(BeamDimensions, ANumberBoxSaysWhatItIsReadAs) {
    auto& form = OpenWith("");
    TextBox& box = form.txtBreadth;
    const QColor plain = box.Widget()->palette().color(QPalette::Base);
    for (const auto& [text, remark] : {std::pair{"1,200", "\nread as 1"},
                                       {"2e2x", "\nread as 200"},
                                       {"-", "\nread as 0"},
                                       {"1.2.3", "\nread as 1.2"},
                                       {"1.", ""},
                                       {" 28e6", ""},
                                       {"x", "\nread as 0"},
                                       {"", ""}}) {
        box.SetFocus();
        box.SelectAll();
        box.SetText("");
        Paste(text);
        EXPECT_EQ(box.Widget()->toolTip().toStdString(), std::string("Breadth b, mm") + remark);
        EXPECT_EQ(box.Widget()->palette().color(QPalette::Base) != plain, *remark != 0) << text;
    }
}

TEST_F(BeamDimensions, WhatIsNotChosenIsWrittenAsZeroAndLeftOutWhenPutInOrder) {
    folder.write("BeamDim.txt", "1,99,b,,,,,,,6\r\n1,1,a,,,,,,,6\r\n");
    auto& form = Open<frmBeamDimensions>();
    Click(form.cmdAdd);  // no member
    EXPECT_EQ(File().substr(0, 32), "1,99,b,,,,,,,6\r\n0,1,,,,,,,,0\r\n1,");
    form.optVary.Choose();
    EXPECT_TRUE(form.cboSection.Enabled());
    Click(form.cmdAdd);
    EXPECT_EQ(File(), "1,1,a,,,,,,,6\r\n");
    form.optUniform.Choose();
    EXPECT_FALSE(form.cboSection.Enabled());
}

TEST_F(BeamDimensions, ARowRefersToItsLineWithTenMembersAndMore) {
    std::string rows, left;
    for (int i = 1; i <= 11; ++i) {
        rows += Lines(i, 1, 1);
        left += i == 10 ? "" : Lines(i, 1, 1);
    }
    folder.write("Member.txt", MemberRows(11));
    auto& form = OpenWith(rows);
    EXPECT_TRUE(Shown(form.ListView1, 1).starts_with("Member  1|Member  10|Member  11|Member  2|"));
    ClickRow(form.ListView1, 2);
    Alt(Qt::Key_R);
    EXPECT_EQ(File(), left);
    EXPECT_EQ(TakeFlag(), 1);
    EXPECT_FALSE(form.cmdRemove.Enabled());
    EXPECT_EQ(form.ListView1.SelectedItem().Index(), 10);
    ClickRow(form.ListView1, 3);  // member 2
    Add(form, 10);
    EXPECT_TRUE(File().starts_with(Lines(1, 1, 1) + Lines(2, 1, 1) + "10,1,3"));
    EXPECT_EQ(form.ListView1.SelectedItem().Text(), "Member  10");
}

TEST_F(BeamDimensions, AltALeadsToAddFirstAndPressedAgainAtOnceToRemoveAll) {
    auto& form = OpenWith(Lines(1, 1, 1));
    for (Control* from :
         std::initializer_list<Control*>{&form.txtfy, &form.Command1, &form.cmdAdd, &form.txtYM}) {
        from->SetFocus();
        Key(Qt::Key_Shift);
        Alt(Qt::Key_A);
        EXPECT_TRUE(form.cmdAdd.HasFocus());
    }
    Key(Qt::Key_Space);
    Alt(Qt::Key_A);
    EXPECT_TRUE(form.cmdAdd.HasFocus()) << "not at Remove All, which Space would press";
    Alt(Qt::Key_A);
    EXPECT_TRUE(form.Command1.HasFocus());
    EXPECT_TRUE(File().starts_with(Lines(1, 1, 1)));
}

TEST_F(BeamDimensions, ADoubleClickRemovesAndTitlesDoNotSort) {
    auto& form = OpenWith(Lines(1, 1, 2));
    ClickTitle(form.ListView1, 2);
    ClickTitle(form.ListView1, 2);
    EXPECT_EQ(Shown(form.ListView1, 2), "1|2");
    EXPECT_FALSE(form.cmdRemove.Enabled());
    DoubleClickRow(form.ListView1, 1);
    EXPECT_EQ(File(), Lines(1, 2, 2));
    EXPECT_TRUE(form.cmdRemove.Enabled());
    TakeFlag();
    Click(form.Command1);  // removes all
    EXPECT_EQ(File(), "");
    EXPECT_FALSE(std::filesystem::exists(folder / "BeamDim.tmp"));
    EXPECT_EQ(form.ListView1.ListItems.Count() + TakeFlag(), 0);
    EXPECT_FALSE(form.cmdRemove.Enabled());
}

TEST_F(BeamDimensions, LinkStrengthStopsAt460AndNoOtherBoxIsTested) {
    auto& form = Open<frmBeamDimensions>();
    for (const auto& [typed, stays] : {std::pair{"460", "460"}, {"460.5", "460"}, {"abc", "abc"}}) {
        form.txtfyv.SetText(typed);
        EXPECT_EQ(form.txtfyv.Text(), stays);
    }
    form.txtfy.SetFocus();
    Keys("500\"");
    EXPECT_EQ(form.txtfy.Text(), "500");
}

TEST_F(BeamDimensions, SectionsFollowThePlottingOptionsAndUnfitOnesAreRefused) {
    auto& options = forms().Get<frmOptions>();
    options.txtDivision.SetText("25");
    auto& form = OpenWith("");
    EXPECT_EQ(form.cboSection.ListCount(), 27);
    EXPECT_TRUE(options.Visible());  // the user's own window stays up
    Add(form, 1);
    EXPECT_EQ(form.ListView1.ListItems.Count(), 27);
    options.txtDivision.SetText("1000000000");
    outside.ExpectMsgBox(unfitDivisions(1e9)->sentence);
    Click(form.cmdAdd);
    EXPECT_EQ(form.ListView1.ListItems.Count(), 27);
    auto& unfit = Reopen<frmBeamDimensions>();
    EXPECT_EQ(unfit.cboSection.ListCount(), 0);
    options.txtDivision.SetText("25");
    unfit.optVary.Choose();
    Click(unfit.cmdAdd);  // without sections to put them in order every row would be lost
    EXPECT_EQ(unfit.ListView1.ListItems.Count(), 27);
    EXPECT_TRUE(unfit.cboSection.HasFocus());
}

TEST_F(BeamDimensions, AFailedWriteIsToldAndLosesNothing) {
    auto& form = OpenWith(Lines(1, 1, 2));
    BlockWriting("BeamDim.tmp");
    Add(form, 1);
    EXPECT_EQ(File(), Lines(1, 1, 2));
    EXPECT_EQ(Shown(form.ListView1, 2) + form.txtBreadth.Text(), "1|2300");
}

TEST_F(BeamDimensions, ALongBeamFitsTheWindowAndKeepsEveryLine) {
    std::string rows;
    for (int i = 1; i <= 1000; ++i)
        rows += Lines(i, 1, 12);
    folder.write("Member.txt", MemberRows(1000));
    auto& form = OpenWith(rows);
    ExpectTidy(form);
    ExpectFits(form.ListView1);
    Add(form, 500);
    Vary(form, 500, 5);
    EXPECT_EQ(form.ListView1.ListItems.Count(), 12013);
}

}  // namespace
}  // namespace trabeon::test
