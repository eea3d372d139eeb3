// What the user and code can do to a text box, and which events come of it.
#include "toolkit/controls/text_box.h"

#include <QClipboard>
#include <QInputMethodEvent>
#include <QLineEdit>

#include "tests/toolkit/controls_fixture.h"

namespace trabeon {
namespace {

class TextBoxTest : public ControlsTest {
  protected:
    TextBoxTest() {
        second.Move(0, 600, 1500, 345);
        Settle();
        first.SetFocus();
    }
    void Paste(const char* text) {
        QGuiApplication::clipboard()->setText(text);
        Key(first, Qt::Key_V, Qt::ControlModifier);
    }

    TextBox first{Bench()}, second{Bench(), "None"};
};

TEST_F(TextBoxTest, AKeyPressHandlerDropsReplacesOrMovesOn) {
    std::vector<int> keys;
    first.KeyPress = [&](int& key) {
        keys.push_back(key);
        if (key == ',')
            key = '.';
        else if (key == 'x')
            key = 0;
        else if (key == 13)
            second.SetFocus();
    };
    Type(first, "1x,5");
    EXPECT_EQ(first.Text(), "1.5");
    Key(first, Qt::Key_Backspace);
    EXPECT_EQ(first.Text(), "1.");
    for (const char* typed : {"x", "7"}) {
        QInputMethodEvent composed;
        composed.setCommitString(typed);
        QApplication::sendEvent(first.Widget(), &composed);
    }
    EXPECT_EQ(first.Text(), "1.7");
    // Alt or Ctrl makes a command of a character. AltGr and Super type one, as all that is no plain
    // Ctrl: each goes through the filter.
    const Qt::KeyboardModifiers altGr = Qt::AltModifier | Qt::ControlModifier;
    for (const auto& [held, typed, then] :
         {std::tuple{Qt::KeyboardModifiers(Qt::AltModifier), "9", "1.7"},
          {Qt::KeyboardModifiers(Qt::ControlModifier), "9", "1.7"},
          {altGr, "x", "1.7"},
          {altGr, "9", "1.79"},
          {Qt::ControlModifier | Qt::KeypadModifier, "x", "1.79"},
          {Qt::KeyboardModifiers(Qt::MetaModifier), "x", "1.79"},
          {Qt::KeyboardModifiers(), "8x", "1.79"}}) {
        QTest::sendKeyEvent(QTest::Click, first.Widget(), Qt::Key_9, typed, held);
        EXPECT_EQ(first.Text(), then);
    }
    first.SetText("1.7");
    Key(first, Qt::Key_Home);
    Key(first, Qt::Key_Delete);  // neither these nor shortcuts are characters
    Paste("8x");
    EXPECT_EQ(first.Text(), "8x.7");
    Key(first, Qt::Key_Return);
    EXPECT_TRUE(second.HasFocus());
    EXPECT_EQ(keys, (std::vector<int>{'1', 'x', ',', '5', 8, 'x', '7', 'x', '9', 'x', 'x', '8', 'x',
                                      13}));
}

TEST_F(TextBoxTest, GotFocusComesByKeyMouseAndCodeButNotWithTheWindow) {
    int focused = 0;
    second.GotFocus = Count(focused);
    second.SetFocus();
    second.SetFocus();
    EXPECT_EQ(focused, 1);
    first.SetFocus();
    Key(first, Qt::Key_Tab);
    EXPECT_EQ(focused, 2);
    first.SetFocus();
    Click(second);
    EXPECT_EQ(focused, 3);
    for (const auto reason : {Qt::ActiveWindowFocusReason, Qt::PopupFocusReason}) {
        QFocusEvent back(QEvent::FocusIn, reason);
        QApplication::sendEvent(second.Widget(), &back);
    }
    EXPECT_EQ(focused, 3);
    first.SetFocus();
    for (int time = 0; time < 2; ++time) {
        QWidget other;
        other.show();
        other.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&other));
        second.SetFocus();  // it hears of that when its window becomes the active one
        window.Widget()->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.Widget()));
        EXPECT_EQ(focused, 4);
    }
}

TEST_F(TextBoxTest, WhatGotFocusSelectsOutlastsTheClick) {
    second.GotFocus = [&] {
        second.SetSelStart(0);
        second.SetSelLength(4);
    };
    Click(second, {20, 10});
    EXPECT_EQ(second.SelStart(), 0);
    EXPECT_EQ(second.SelLength(), 4);
    Click(second, {2, 10});  // the second click places the caret
    EXPECT_EQ(second.SelLength(), 0);
}

}  // namespace
}  // namespace trabeon
