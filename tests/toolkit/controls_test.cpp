// Which events each control fires, by the user and by code, and what its setters leave alone.
#include <QAbstractItemView>
#include <QComboBox>
#include <QHeaderView>
#include <QTableView>
#include <QWheelEvent>

#include "tests/toolkit/controls_fixture.h"
#include "toolkit/controls/button.h"
#include "toolkit/controls/combo_box.h"
#include "toolkit/controls/picture_view.h"
#include "toolkit/controls/text_table.h"
#include "toolkit/controls/vertical_button.h"

namespace trabeon {
namespace {

TEST_F(ControlsTest, ButtonClicksByMouseSpaceEnterAndCodeWhileEnabled) {
    Button button(Bench(), "&Add >");
    int clicks = 0;
    button.Click = Count(clicks);
    for (const int expected : {4, 4}) {  // the second time it is off
        Click(button);
        Key(button, Qt::Key_Space);
        Key(button, Qt::Key_Return);
        button.Press();
        EXPECT_EQ(clicks, expected);
        button.SetEnabled(false);
    }
}

TEST_F(ControlsTest, AVerticalButtonShowsItsCaptionAndClicks) {
    VerticalButton high(Bench(), "Send To WordPad"), another(Bench(), "Read To WordPad");
    int clicks = 0;
    high.Click = Count(clicks);
    Click(high);
    EXPECT_EQ(clicks, 1);
    EXPECT_GT(high.Widget()->height(),
              high.Widget()->fontMetrics().horizontalAdvance("Send To WordPad"));
    for (auto* button : {&high, &another})
        button->Move(0, 0, 375, 2400);
    EXPECT_NE(Face(high), Face(another));
}

TEST_F(ControlsTest, ComboBoxClicksForEveryChoiceAlsoTheSameOne) {
    ComboBox combo(Bench());
    int clicks = 0;
    combo.Click = Count(clicks);
    const auto expect = [&](int choice, int clicked) {
        EXPECT_EQ(combo.ListIndex(), choice);
        EXPECT_EQ(combo.Text(), choice < 0 ? "" : combo.List(choice));
        EXPECT_EQ(clicks, clicked);
    };
    combo.AddItem("Member 1");
    combo.AddItem("Member 2");
    expect(-1, 0);
    combo.SetListIndex(1);
    combo.SetListIndex(1);
    expect(1, 2);
    combo.SetListIndex(7);
    expect(-1, 2);
    combo.SetText("Member 2");
    combo.SetText("Member 3");
    expect(1, 2);
    Key(combo, Qt::Key_Up);
    expect(0, 3);
    auto* inner = static_cast<QComboBox*>(combo.Widget());
    inner->showPopup();
    QTest::keyClick(inner->view(), Qt::Key_Return);  // the same entry again
    Settle();
    expect(0, 4);
}

TEST_F(ControlsTest, TheWheelPassesByAClosedComboBox) {
    ComboBox combo(Bench());
    int clicks = 0;
    combo.Click = Count(clicks);
    for (const char* entry : {"Member 1", "Member 2"})
        combo.AddItem(entry);
    combo.SetFocus();
    QWheelEvent wheel({5, 5}, combo.Widget()->mapToGlobal(QPoint(5, 5)), {}, {0, -120},
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(combo.Widget(), &wheel);
    EXPECT_EQ(combo.ListIndex() + clicks, -1);
}

TEST_F(ControlsTest, AClickIntoThePictureViewTakesTheFocus) {
    PictureView view(Bench());
    int focused = 0;
    view.GotFocus = Count(focused);
    Click(view);
    EXPECT_EQ(focused, 1);
    view.Navigate("no such picture.gif");
    EXPECT_FALSE(view.HasPicture());
    view.Move(100, 600, -200, -600);  // a negative size is held at nothing
    EXPECT_EQ((std::vector{view.Width(), view.Height(), view.Left()}), (std::vector{0, 0, 105}));
}

TEST_F(ControlsTest, TheTextTableCopiesWhatIsSelected) {
    TextTable table(Bench());
    table.Move(0, 0, 4500, 1500);
    Settle();
    const std::string text = "JOINT  1    2    \r\nF.E.M  -10  +20  \r\n\r\nFinal  +3   100.5%  ";
    table.SetText(text);
    EXPECT_EQ(table.Text(), text);
    auto& view = *static_cast<QTableView*>(table.Widget());
    EXPECT_EQ(view.model()->headerData(2, Qt::Vertical), "Final");
    EXPECT_EQ(view.model()->headerData(1, Qt::Horizontal), "2");
    const auto copied = [&] {
        outside.clipboardText.clear();
        Key(table, Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(outside.clipboardText, table.SelectedText());
        return outside.clipboardText;
    };
    EXPECT_EQ(copied(), "");
    Key(table, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(copied(), "JOINT  1    2    \nF.E.M  -10  +20  \n\nFinal  +3   100.5%  ");
    const auto middleOf = [&](int row, int column) {
        return view.visualRect(view.model()->index(row, column)).center();
    };
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, middleOf(0, 0));
    Key(table, Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(copied(), "-10\n");  // the line without cells
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, middleOf(0, 1));
    Key(table, Qt::Key_Home, Qt::ShiftModifier);
    EXPECT_EQ(copied(), "F.E.M  -10  +20  ");
    QTest::mouseClick(view.horizontalHeader()->viewport(), Qt::LeftButton, {}, {3, 3});
    EXPECT_EQ(copied(), "1\n-10\n\n+3");
}

}  // namespace
}  // namespace trabeon
