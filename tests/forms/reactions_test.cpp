// The window of reactions and deflections.
#include <QTreeWidget>

#include "forms/check/frmReactions.h"
#include "forms/input/frmUDL.h"
#include "tests/support/program_fixture.h"

namespace trabeon::test {
namespace {

class Reactions : public ProgramTest {
  protected:
    Reactions() { Start(); }

    /// E I is 2000 for each member; a joint type or a length to each line.
    void Write(const std::vector<std::string>& types, const std::vector<double>& lengths,
               const std::string& points, const std::string& udls) {
        std::string joints, members;
        for (const auto& type : types)
            joints += "1," + type + ",None\r\n";
        for (const auto length : lengths)
            members += "1,1000,2," + std::to_string(length) + ",None\r\n";
        folder.write("Joint.txt", joints);
        folder.write("Member.txt", members);
        folder.write("Point.txt", points);
        folder.write("Udl.txt", udls);
    }
    /// Two spans of 6 under 12: the middle reaction is 10/8 w L, its moment w L2 / 8.
    void WriteTwoSpans() {
        Write({"Pin Jointed", "Continuous", "Pin Jointed"}, {6, 6}, "",
              "1,0,6,12,12,None\r\n2,0,6,12,12,None\r\n");
    }
    frmReactions& Window() {
        Choose("&Check|Reactions and &Deflections...");
        Settle();
        return forms().Get<frmReactions>();
    }
    static std::string Row(const ListView& list, int row) {
        std::string texts;
        const auto item = list.ListItems(row);
        for (int n = 0; n < static_cast<QTreeWidget*>(list.Widget())->columnCount(); ++n)
            texts += (n > 0 ? "|" : "") + item.SubItems(n);
        return texts;
    }
    static bool Highlights(const frmReactions& form, const std::string& label) {
        for (const auto& shape : form.picBeam.Drawn())
            if (const auto* text = std::get_if<TextShape>(&shape); text != nullptr && text->bold)
                if (text->text == label && text->colour == HighlightColour)
                    return true;
        return false;
    }
    static void ClickAt(const frmReactions& form, double x, double y) {
        QTest::mouseClick(form.picBeam.Widget(), Qt::LeftButton, {}, QPoint(int(x), int(y)));
    }
    static void ClickRow(const ListView& list, int row, Qt::KeyboardModifiers held = {}) {
        auto& tree = *static_cast<QTreeWidget*>(list.Widget());
        QTest::mouseClick(tree.viewport(), Qt::LeftButton, held,
                          tree.visualItemRect(tree.topLevelItem(row - 1)).center());
    }
};

TEST_F(Reactions, ListsAgreeWithClosedForms) {
    WriteTwoSpans();
    auto& form = Window();
    EXPECT_EQ(form.Caption(), "Reactions and Deflections");
    // 3/8 w L, w L3 / 48 E I at the ends; 10/8 w L and no rotation in the middle.
    EXPECT_EQ(Row(form.lvwJoints, 1), "1|Pin Jointed|0|27|0|0.027");
    EXPECT_EQ(Row(form.lvwJoints, 2), "2|Continuous|6|90|0|0");
    EXPECT_EQ(Row(form.lvwJoints, 3), "3|Pin Jointed|12|27|0|-0.027");
    EXPECT_EQ(Row(form.lvwJoints, 4), "Sum|Loads 144||144||");
    // 9/128 w L2 at 3/8 L; w L4 / 185 E I (exactly 0.00541613 of it) at 0.421535 L.
    EXPECT_EQ(Row(form.lvwMembers, 1),
              "1|0|-54|-27|45|30.375|2.25|-54|6|0.0421158|2.52921|142.464");
    Write({"Fixed", "Cantilever"}, {4}, "1,4,10,None\r\n", "");
    form.Refresh();
    // P L2 / 2 E I and P L3 / 3 E I.
    EXPECT_EQ(Row(form.lvwJoints, 1), "1|Fixed|0|10|-40|0");
    EXPECT_EQ(Row(form.lvwJoints, 2), "2|Cantilever|4|0|0|0.04");
    EXPECT_EQ(Row(form.lvwMembers, 1), "1|-40|0|-10|-10|0|4|-40|0|0.106667|4|37.5");
}

TEST_F(Reactions, RowsAreCopiedUnderTheirTitles) {
    WriteTwoSpans();
    auto& form = Window();
    ClickRow(form.lvwJoints, 2);
    ClickRow(form.lvwJoints, 4, Qt::ShiftModifier);
    QTest::keyClick(form.lvwJoints.Widget(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(outside.clipboardText,
              "Joint\tType\tx\tReaction\tMoment\tRotation\n2\tContinuous\t6\t90\t0\t0\n"
              "3\tPin Jointed\t12\t27\t0\t-0.027\nSum\tLoads 144\t\t144\t\t\n");
}

TEST_F(Reactions, AChoiceInAListShowsInThePictureAndTheOtherWayRound) {
    WriteTwoSpans();
    auto& form = Window();
    EXPECT_TRUE(form.lvwJoints.HasFocus());
    EXPECT_TRUE(Highlights(form, "1"));
    QTest::keyClick(form.lvwJoints.Widget(), Qt::Key_Down);
    EXPECT_TRUE(Highlights(form, "90"));
    ClickRow(form.lvwMembers, 2);
    EXPECT_FALSE(Highlights(form, "90"));
    EXPECT_TRUE(Highlights(form, "0.04212 at 3.471"));
    ClickRow(form.lvwJoints, 4);  // the sum is no joint
    EXPECT_FALSE(Highlights(form, "0.04212 at 3.471"));
    const double width = form.picBeam.InnerWidth(), height = form.picBeam.InnerHeight();
    ClickAt(form, width / 4, height / 4);
    EXPECT_EQ(form.lvwMembers.SelectedItem().Index(), 1);
    EXPECT_TRUE(form.lvwMembers.HasFocus());
    ClickAt(form, width / 2, height / 2);
    EXPECT_EQ(form.lvwJoints.SelectedItem().Index(), 2);
    EXPECT_TRUE(Highlights(form, "90"));
}

TEST_F(Reactions, WhatHasNoResultsSaysWhyInTheWindowAndWritesNothing) {
    auto& form = Window();
    const auto expect = [&](const std::string& why) {
        const auto before = folder.contents();
        form.Refresh();
        EXPECT_EQ(form.lblRefusal.Caption(), why);
        EXPECT_EQ(form.lvwJoints.ListItems.Count() + form.lvwMembers.ListItems.Count(), 0) << why;
        EXPECT_TRUE(form.picBeam.Drawn().empty());
        EXPECT_FALSE(form.cmdReport.Enabled());
        EXPECT_EQ(folder.contents(), before);
    };
    expect("The beam has no joints yet. Enter its joints, members and loads.");
    Write({"Pin Jointed", "Pin Jointed", "Pin Jointed"}, {6, 6}, "", "");
    expect(
        "You can't have a Fix Joint, Cantilever Joint or Pin Joint in a continuous position of the "
        "beam.");
    Write({"Pin Jointed", "Pin Jointed"}, {6}, "1,2,5,None\r\n1,7,5,None\r\n", "");
    expect(
        "Row 2 of the point loads, on member 1: a is 7, beyond the member's end at 6. A beam with "
        "such a load has no reactions and no deflections; correct the row.");
    Write({"Pin Jointed", "Pin Jointed"}, {6}, "", "1,4,-2,5,5,None\r\n");
    EXPECT_NE((form.Refresh(), form.lblRefusal.Caption()).find("Row 1 of the distributed loads"),
              std::string::npos);
    folder.write("Member.txt", "1,1000,0,6,None\r\n");
    form.Refresh();
    EXPECT_EQ(form.lblRefusal.Caption().substr(0, 9), "Member 1:");
    WriteTwoSpans();
    const auto before = folder.contents();
    form.Refresh();
    EXPECT_EQ(form.lblRefusal.Height(), 0);
    EXPECT_TRUE(form.cmdReport.Enabled());
    EXPECT_EQ(form.lvwJoints.ListItems.Count(), 4);
    EXPECT_EQ(folder.contents(), before);
}

TEST_F(Reactions, AnEditedRowShowsAtOnce) {
    WriteTwoSpans();
    auto& form = Window();
    ClickRow(form.lvwMembers, 2);
    auto& loads = forms().Get<frmUDL>();
    loads.ListView1.SetSelectedItem(loads.ListView1.ListItems(2));
    loads.cmdRemove.SetEnabled(true);
    loads.cmdRemove.Press();
    EXPECT_EQ(Row(form.lvwJoints, 4), "Sum|Loads 72||72||");
    EXPECT_EQ(form.lvwMembers.SelectedItem().Index(), 2);  // as chosen before
    EXPECT_EQ(context().dataChanged, 1);
}

TEST_F(Reactions, TheReportGetsThePictureWithoutAHighlight) {
    WriteTwoSpans();
    int pasted = 0;
    context().pasteIntoReport = [&] { ++pasted; };
    auto& form = Window();
    ClickRow(form.lvwMembers, 1);
    form.cmdReport.Press();
    EXPECT_EQ(pasted, 1);
    const auto& picture = outside.clipboardPicture;
    EXPECT_EQ(picture.width(), 4 * form.picBeam.InnerWidth());
    EXPECT_TRUE(Highlights(form, "12"));  // the window keeps it
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            ASSERT_NE(picture.pixel(x, y) & 0xffffff, HighlightColour);
}

}  // namespace
}  // namespace trabeon::test
