// Which events each control fires, by the user and by code, and what its setters leave alone.
#include <QAbstractItemView>
#include <QComboBox>
#include <QListWidget>
#include <QProgressBar>

#include "tests/toolkit/controls_fixture.h"
#include "toolkit/button.h"
#include "toolkit/combo_box.h"
#include "toolkit/common_dialog.h"
#include "toolkit/label.h"
#include "toolkit/list_box.h"
#include "toolkit/option_button.h"
#include "toolkit/progress_bar.h"
#include "toolkit/scroll_bar.h"
#include "toolkit/text_box.h"
#include "toolkit/text_view.h"
#include "toolkit/vertical_button.h"
#include "toolkit/web_browser.h"

namespace trabeon {
namespace {

TEST_F(ControlsTest, ButtonClicksByMouseSpaceEnterAndCodeWhileEnabled) {
    Button button(Bench(), "&Add >");
    int clicks = 0;
    button.Click = Count(clicks);
    for (const int expected : {4, 4}) {  // the second time it is off
        Click(button);
        QTest::keyClick(button.Widget(), Qt::Key_Space);
        QTest::keyClick(button.Widget(), Qt::Key_Return);
        button.Press();
        EXPECT_EQ(clicks, expected);
        button.SetEnabled(false);
    }
}

TEST_F(ControlsTest, AButtonIsWideEnoughForItsCaptionOrShowsNone) {
    Button one(Bench(), "&Ok"), other(Bench(), "&No"),
        longOne(Bench(), "Use &Word For Windows To Print");
    EXPECT_EQ(one.Width(), 1215);
    EXPECT_GE(longOne.Widget()->width(), longOne.Widget()->sizeHint().width());
    const auto sameFaces = [&](int width) {
        one.Move(0, 0, width, 255);
        other.Move(0, 0, width, 255);
        return one.Widget()->grab().toImage() == other.Widget()->grab().toImage();
    };
    EXPECT_TRUE(sameFaces(75));
    EXPECT_FALSE(sameFaces(1215));
}

TEST_F(ControlsTest, AVerticalButtonIsNarrowAndShowsItsWholeCaption) {
    VerticalButton button(Bench(), "Send To WordPad");
    int clicks = 0;
    button.Click = Count(clicks);
    Click(button);
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(button.Width(), 345);
    const QWidget& widget = *button.Widget();
    EXPECT_GT(widget.height(), widget.fontMetrics().horizontalAdvance("Send To WordPad"));
    const QImage face = button.Widget()->grab().toImage();
    std::vector<int> inked;  // rows that the caption's dark characters reach
    for (int y = 4; y < face.height() - 4; ++y)
        for (int x = 4; x < face.width() - 4; ++x)
            if (face.pixelColor(x, y).lightness() < 100 && (inked.empty() || inked.back() != y))
                inked.push_back(y);
    ASSERT_FALSE(inked.empty());
    EXPECT_NEAR(inked.back() - inked.front(),
                widget.fontMetrics().horizontalAdvance("Send To WordPad"), 6);
}

TEST_F(ControlsTest, OptionButtonClicksWhenItBecomesTheChosenOne) {
    OptionButton uniform(Bench(), "Uniform", true), vary(Bench(), "Varying");
    int clicks = 0;
    vary.Click = Count(clicks);
    vary.Choose();
    vary.Choose();
    EXPECT_EQ(clicks, 1);
    EXPECT_FALSE(uniform.Value());
    uniform.Choose();
    Click(vary, {8, vary.Widget()->height() / 2});
    EXPECT_EQ(clicks, 2);
    EXPECT_TRUE(vary.Value());
}

TEST_F(ControlsTest, ComboBoxClicksForEveryChoiceAlsoTheSameOne) {
    ComboBox combo(Bench());
    int clicks = 0, seen = -2;
    combo.Click = [&] {
        ++clicks;
        seen = combo.ListIndex();
    };
    combo.AddItem("Member 1");
    combo.AddItem("Member 2");
    EXPECT_EQ(combo.ListIndex(), -1);
    EXPECT_EQ(combo.Text(), "");
    EXPECT_EQ(clicks, 0);
    combo.SetListIndex(1);
    EXPECT_EQ(seen, 1);
    combo.SetListIndex(1);
    EXPECT_EQ(clicks, 2);
    combo.SetListIndex(-1);
    combo.SetListIndex(7);
    EXPECT_EQ(combo.ListIndex(), -1);
    combo.SetText("Member 2");
    combo.SetText("Member 3");
    EXPECT_EQ(combo.ListIndex(), 1);
    EXPECT_EQ(clicks, 2);
    QTest::keyClick(combo.Widget(), Qt::Key_Up);  // the user's choice
    EXPECT_EQ(combo.List(combo.ListIndex()), "Member 1");
    auto* inner = static_cast<QComboBox*>(combo.Widget());
    inner->showPopup();
    QTest::keyClick(inner->view(), Qt::Key_Return);  // the same entry again
    Settle();
    EXPECT_EQ(clicks, 4);
    combo.Clear();
    EXPECT_EQ(combo.ListCount(), 0);
    EXPECT_EQ(combo.ListIndex(), -1);
    EXPECT_EQ(clicks, 4);
}

TEST_F(ControlsTest, ListBoxClicksForEachSelectionByCodeAndForEachUsersClick) {
    ListBox list(Bench());
    list.Move(0, 0, 2000, 2000);
    Settle();
    int clicks = 0;
    list.Click = Count(clicks);
    list.AddItem("Member  1");
    list.AddItem("Member  2");
    list.SetSelected(0, true);
    list.SetSelected(1, true);
    list.SetSelected(1, true);
    EXPECT_EQ(clicks, 3);
    EXPECT_TRUE(list.Selected(0) && list.Selected(1));
    auto* inner = static_cast<QListWidget*>(list.Widget());
    const QPoint second = inner->visualItemRect(inner->item(1)).center();
    QTest::mouseClick(inner->viewport(), Qt::LeftButton, {}, second);
    EXPECT_EQ(clicks, 4);
    EXPECT_FALSE(list.Selected(0));
    QTest::mouseClick(inner->viewport(), Qt::LeftButton, {}, second);
    EXPECT_EQ(clicks, 5);
    QTest::mouseClick(inner->viewport(), Qt::LeftButton, Qt::ControlModifier, second);
    EXPECT_EQ(clicks, 6);
    EXPECT_FALSE(list.Selected(1));
    list.AddItem("Member  3");
    list.SetSelection({true, false, true});
    EXPECT_EQ(clicks, 7);
    EXPECT_TRUE(list.Selected(0) && !list.Selected(1) && list.Selected(2));
    list.Clear();
    EXPECT_EQ(clicks, 7);
    EXPECT_FALSE(list.Selected(0));
}

TEST_F(ControlsTest, ScrollBarFiresChangeForANewValue) {
    ScrollBar bar(Bench(), Direction::Vertical);
    int changes = 0;
    bar.Change = Count(changes);
    bar.SetRange(0, 1000);
    bar.SetSteps(50, 100);
    bar.SetValue(200);
    bar.SetValue(200);
    EXPECT_EQ(changes, 1);
    QTest::keyClick(bar.Widget(), Qt::Key_PageDown);
    QTest::keyClick(bar.Widget(), Qt::Key_Down);
    EXPECT_EQ(bar.Value(), 350);
    EXPECT_EQ(changes, 3);
}

TEST_F(ControlsTest, ProgressBarShowsItsValueAtTheScreensPace) {
    ProgressBar bar(Bench());
    const auto shown = [&] { return static_cast<QProgressBar*>(bar.Widget())->value(); };
    Settle();
    const PaintCounter counter(bar);
    bar.SetValue(50);
    EXPECT_EQ(counter.paints, 1);
    for (int i = 0; i < 1000; ++i)
        bar.SetValue(50 + i * 0.0001);  // less than a pixel
    EXPECT_EQ(counter.paints, 1);
    bar.SetValue(100.00001);
    EXPECT_EQ(bar.Value(), 100);
    EXPECT_EQ(counter.paints, 2);
    for (int i = 0; i < 800; ++i)
        bar.SetValue(10 + i * 0.1);
    EXPECT_LE(counter.paints, 5);
    Settle();
    EXPECT_EQ(shown(), 899);  // of a thousand
    bar.SetValue(0);
    EXPECT_EQ(shown(), 0);
}

TEST_F(ControlsTest, AListBoxTooNarrowShowsTheEndsOfItsEntries) {
    ListBox list(Bench());
    list.Move(0, 0, 900, 1500);
    list.AddItem("Member  998");
    list.AddItem("Another  998");
    list.AddItem("Member  999");
    Settle();
    auto* widget = static_cast<QListWidget*>(list.Widget());
    const auto picture = [&](int row) {
        const QRect all = widget->visualItemRect(widget->item(row));
        return widget->viewport()->grab(QRect(all.center(), all.bottomRight())).toImage();
    };
    EXPECT_EQ(widget->visualItemRect(widget->item(0)).width(), widget->viewport()->width());
    EXPECT_EQ(picture(0), picture(1));
    EXPECT_NE(picture(0), picture(2));
}

TEST_F(ControlsTest, ALabelsAccessKeyLeadsToItsBuddyAndNamesIt) {
    Label label(Bench(), "&Member");
    ComboBox combo(Bench());
    TextBox other(Bench());
    EXPECT_EQ(label.Widget()->property("text").toString(), "Member");
    label.SetBuddy(combo);
    other.SetFocus();
    QTest::keyClick(window.Widget(), Qt::Key_M, Qt::AltModifier);
    EXPECT_TRUE(combo.HasFocus());
    EXPECT_EQ(combo.Widget()->accessibleName(), "Member");
    EXPECT_EQ(label.Caption(), "&Member");
    Label plain(Bench(), "members & &sects");
    EXPECT_EQ(plain.Widget()->property("text").toString(), "members & sects");
}

TEST_F(ControlsTest, AClickIntoThePictureViewTakesTheFocus) {
    WebBrowser view(Bench());
    int focused = 0;
    view.GotFocus = Count(focused);
    Click(view);
    EXPECT_EQ(focused, 1);
    view.Navigate("no such picture.gif");
    EXPECT_FALSE(view.HasPicture());
    view.Move(100, 600, -200, -600);  // a negative size is held at nothing
    EXPECT_EQ((std::vector{view.Width(), view.Height(), view.Left()}), (std::vector{0, 0, 105}));
}

TEST_F(ControlsTest, TheTextViewCopiesWhatIsSelected) {
    TextView view(Bench());
    view.Move(0, 0, 4500, 1500);
    Settle();
    view.SetText("one two\r\nthree");
    EXPECT_EQ(view.Text(), "one two\r\nthree");
    QTest::keyClick(view.Widget(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(outside.clipboardText, "");
    QTest::keyClick(view.Widget(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(view.Widget(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(outside.clipboardText, "one two\nthree");
    auto* inside = static_cast<QAbstractScrollArea*>(view.Widget())->viewport();
    const int cell = view.Widget()->fontMetrics().horizontalAdvance('0');
    QTest::mousePress(inside, Qt::LeftButton, {}, {4 + 4 * cell, 8});
    QTest::mouseMove(inside, {4 + 7 * cell, 8});
    QTest::mouseRelease(inside, Qt::LeftButton, {}, {4 + 7 * cell, 8});
    EXPECT_EQ(view.SelectedText(), "two");
}

TEST_F(ControlsTest, TheDialogTellsItsQuestionAndKeepsItsNameWhenCancelled) {
    CommonDialog dialog;
    dialog.Filter = "Trabeon File (*.TB) |*.TB";
    dialog.DialogTitle = "Save Trabeon File";
    dialog.Flags = 10246;
    outside.ExpectSave("Save Trabeon File", "/beams/One.TB");
    EXPECT_TRUE(dialog.ShowSave());
    EXPECT_EQ(dialog.FileName, "/beams/One.TB");
    EXPECT_TRUE(outside.lastQuestion.asksBeforeOverwriting);
    dialog.DialogTitle = "Open Trabeon File";
    dialog.Flags = 2052;
    outside.ExpectOpen("Open Trabeon File", "");
    EXPECT_FALSE(dialog.ShowOpen());
    EXPECT_EQ(dialog.FileName, "/beams/One.TB");
    EXPECT_FALSE(outside.lastQuestion.asksBeforeOverwriting);
}

}  // namespace
}  // namespace trabeon
