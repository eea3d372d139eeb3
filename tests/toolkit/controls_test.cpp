// Which events each control fires, by the user and by code, and what its setters leave alone.
#include <QAbstractItemView>
#include <QComboBox>
#include <QHeaderView>
#include <QListWidget>
#include <QProgressBar>
#include <QTableView>
#include <QWheelEvent>

#include "tests/toolkit/controls_fixture.h"
#include "toolkit/controls/button.h"
#include "toolkit/controls/combo_box.h"
#include "toolkit/controls/label.h"
#include "toolkit/controls/list_box.h"
#include "toolkit/controls/option_button.h"
#include "toolkit/controls/picture_view.h"
#include "toolkit/controls/progress_bar.h"
#include "toolkit/controls/text_box.h"
#include "toolkit/controls/text_table.h"
#include "toolkit/controls/vertical_button.h"
#include "toolkit/outside/common_dialog.h"

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

TEST_F(ControlsTest, ACaptionShowsWholeOrNotAtAll) {
    Button one(Bench(), "&Ok"), other(Bench(), "&No"), wide(Bench(), "&Word For Windows To Print");
    EXPECT_GE(wide.Widget()->width(), wide.Widget()->sizeHint().width());
    for (const int width : {75, 1215}) {
        one.Move(0, 0, width, 255);
        other.Move(0, 0, width, 255);
        EXPECT_EQ(Face(one) == Face(other), width == 75);
    }
    VerticalButton high(Bench(), "Send To WordPad"), another(Bench(), "Read To WordPad");
    int clicks = 0;
    high.Click = Count(clicks);
    Click(high);
    EXPECT_EQ(clicks, 1);
    const QWidget& widget = *high.Widget();
    EXPECT_GT(widget.height(), widget.fontMetrics().horizontalAdvance("Send To WordPad"));
    EXPECT_NE(Face(high), Face(another));
}

TEST_F(ControlsTest, OptionButtonClicksWhenItBecomesTheChosenOne) {
    OptionButton uniform(Bench(), "Uniform", true), vary(Bench(), "Varying");
    int clicks = 0;
    vary.Click = Count(clicks);
    vary.Choose();
    uniform.Choose();
    EXPECT_FALSE(vary.Value());
    Click(vary, {8, vary.Widget()->height() / 2});
    EXPECT_EQ(clicks, 2);
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

TEST_F(ControlsTest, ListBoxClicksForEachSelectionByCodeAndForEachUsersClick) {
    ListBox list(Bench());
    list.Move(0, 0, 2000, 2000);
    int clicks = 0;
    list.Click = Count(clicks);
    const auto expect = [&](const std::string& selected, int clicked) {
        std::string shown;
        for (int i = 0; i < list.ListCount(); ++i)
            shown += list.Selected(i) ? 'x' : '-';
        EXPECT_EQ(shown, selected);
        EXPECT_EQ(clicks, clicked);
    };
    list.AddItem("Member  1");
    list.AddItem("Member  2");
    for (const int chosen : {0, 1, 1})
        list.SetSelected(chosen, true);
    expect("xx", 3);
    Settle();
    auto* inner = static_cast<QListWidget*>(list.Widget());
    const QPoint second = inner->visualItemRect(inner->item(1)).center();
    QTest::mouseClick(inner->viewport(), Qt::LeftButton, {}, second);
    expect("-x", 4);
    QTest::mouseClick(inner->viewport(), Qt::LeftButton, {}, second);
    expect("-x", 5);
    QTest::mouseClick(inner->viewport(), Qt::LeftButton, {}, inner->viewport()->rect().center());
    expect("-x", 5);  // that was blank space
    QTest::mouseClick(inner->viewport(), Qt::LeftButton, Qt::ControlModifier, second);
    expect("--", 6);
    list.AddItem("Member  3");
    list.SetSelection({true, false, true});
    expect("x-x", 7);
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

TEST_F(ControlsTest, AListBoxTooNarrowShowsBothEndsOfItsEntries) {
    ListBox list(Bench());
    list.Move(0, 0, 900, 1500);
    for (const char* entry : {"Member  998", "Another  998", "Member  999"})
        list.AddItem(entry);
    Settle();
    auto* inner = static_cast<QListWidget*>(list.Widget());
    const auto part = [&](int row, bool front) {
        QRect area = inner->visualItemRect(inner->item(row));
        area.setWidth(area.width() / (front ? 4 : 1));
        return inner->viewport()->grab(area).toImage();
    };
    EXPECT_EQ(part(0, true), part(2, true));
    EXPECT_NE(part(0, true), part(1, true)) << "the name begins the entry";
    EXPECT_NE(part(0, false), part(2, false)) << "the number ends it";
}

TEST_F(ControlsTest, ProgressBarShowsItsValueAtTheScreensPace) {
    ProgressBar bar(Bench());
    const auto shown = [&] { return static_cast<QProgressBar*>(bar.Widget())->value(); };
    Settle();
    const PaintCounter counter(bar);
    bar.SetValue(50);
    EXPECT_EQ(counter.paints, 1) << "at once";
    int steps = 0;
    for (; counter.paints < 4 && steps < 10'000'000; ++steps)
        bar.SetValue(10 + steps % 800 * 0.1);
    EXPECT_EQ(counter.paints, 4);
    EXPECT_GT(steps, 4 * 50) << "few steps are not worth a repaint";
    bar.SetValue(89.9);
    Settle();
    EXPECT_EQ(shown(), 899);  // of a thousand
    bar.SetValue(100.00001);
    EXPECT_EQ(bar.Value(), 100);
    bar.SetValue(0);
    EXPECT_EQ(shown(), 0);
}

TEST_F(ControlsTest, ALabelsAccessKeyLeadsToItsBuddyAndNamesIt) {
    Label label(Bench(), "&Member"), plain(Bench(), "members & &sects");
    ComboBox combo(Bench());
    TextBox other(Bench());
    label.SetBuddy(combo);
    other.SetFocus();
    QTest::keyClick(window.Widget(), Qt::Key_M, Qt::AltModifier);
    EXPECT_TRUE(combo.HasFocus());
    EXPECT_EQ(combo.Widget()->accessibleName(), "Member");
    EXPECT_EQ(label.Caption(), "&Member");
    EXPECT_EQ(plain.Widget()->property("text").toString(), "members & sects");
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
    EXPECT_EQ(copied(), "-10");
    Key(table, Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(copied(), "-10\n");  // the line without cells
    Key(table, Qt::Key_End);
    EXPECT_EQ(copied(), "");
    Key(table, Qt::Key_Up);
    Key(table, Qt::Key_Home, Qt::ShiftModifier);
    EXPECT_EQ(copied(), "F.E.M  -10  +20  ");
    QTest::mouseClick(view.horizontalHeader()->viewport(), Qt::LeftButton, {}, {3, 3});
    EXPECT_EQ(copied(), "1\n-10\n\n+3");
}

TEST_F(ControlsTest, TheDialogReadsItsFlagsAndKeepsItsNameWhenCancelled) {
    CommonDialog dialog;
    dialog.DialogTitle = "Save Trabeon File";
    dialog.Flags = 10246;
    outside.ExpectSave("Save Trabeon File", "/beams/One.TB");
    EXPECT_TRUE(dialog.ShowSave());
    const auto asks = [this] {
        const FileQuestion& asked = outside.lastQuestion;
        return std::array{asked.asksBeforeOverwriting, asked.asksBeforeCreating,
                          asked.folderMustExist};
    };
    EXPECT_EQ(asks(), (std::array{true, true, true}));
    dialog.Flags = 2052;
    outside.ExpectOpen("Save Trabeon File", "");
    EXPECT_FALSE(dialog.ShowOpen());
    EXPECT_EQ(dialog.FileName, "/beams/One.TB");
    EXPECT_EQ(asks(), (std::array{false, false, true}));
}

}  // namespace
}  // namespace trabeon
