// What the user and code can do to a text box, and which events come of it.
#include "toolkit/text_box.h"

#include <QClipboard>
#include <QInputMethodEvent>

#include "tests/toolkit/controls_fixture.h"

namespace trabeon {
namespace {

TEST_F(ControlsTest, TextBoxFiresChangeForEachKeyAndForANewTextByCode) {
    TextBox box(Bench(), "10");
    int changes = 0;
    box.Change = Count(changes);
    box.SetText("10");
    EXPECT_EQ(changes, 0);
    box.SetText("12");
    EXPECT_EQ(changes, 1);
    Type(box, "34");
    EXPECT_EQ(changes, 3);
    EXPECT_EQ(box.Text(), "1234");
}

TEST_F(ControlsTest, AKeyPressHandlerDropsOrReplacesTheKey) {
    TextBox box(Bench());
    std::vector<int> keys;
    box.KeyPress = [&](int& key) {
        keys.push_back(key);
        if (key == ',')
            key = '.';
        else if (key == 'x' || key == 13)
            key = 0;
    };
    Type(box, "1x,5");
    QTest::keyClick(box.Widget(), Qt::Key_Return);
    EXPECT_EQ(box.Text(), "1.5");
    QTest::keyClick(box.Widget(), Qt::Key_Backspace);
    EXPECT_EQ(box.Text(), "1.");
    EXPECT_EQ(keys, (std::vector<int>{'1', 'x', ',', '5', 13, 8}));
}

TEST_F(ControlsTest, DeleteTabAndShortcutsAreNoKeyPress) {
    TextBox box(Bench(), "5");
    int presses = 0;
    box.KeyPress = [&](int& key) {
        ++presses;
        key = 0;
    };
    QTest::keyClick(box.Widget(), Qt::Key_Home);
    QTest::keyClick(box.Widget(), Qt::Key_Delete);
    EXPECT_EQ(box.Text(), "");
    QGuiApplication::clipboard()->setText("7a");
    QTest::keyClick(box.Widget(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), "7a");
    EXPECT_EQ(presses, 0);
}

TEST_F(ControlsTest, AComposedCharacterPassesTheKeyPressHandlerToo) {
    TextBox box(Bench());
    box.KeyPress = [](int& key) {
        if (key < '0' || key > '9')
            key = 0;
    };
    for (const char* typed : {"é", "7"}) {
        QInputMethodEvent event;
        event.setCommitString(typed);
        QApplication::sendEvent(box.Widget(), &event);
    }
    EXPECT_EQ(box.Text(), "7");
}

TEST_F(ControlsTest, ABoxThatKeepsToAFieldTakesNoQuoteAndNoLineEnd) {
    TextBox box(Bench(), "None");
    box.SetKeepsToField(true);
    box.SetText("");
    Type(box, "a\"b");
    QGuiApplication::clipboard()->setText("c\"\r\nd");
    QTest::keyClick(box.Widget(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), "abcd");
    EXPECT_EQ(box.SelStart(), 4);
}

TEST_F(ControlsTest, GotFocusComesByKeyMouseAndCodeButNotWithTheWindow) {
    TextBox first(Bench()), second(Bench());
    first.Move(0, 0, 1500, 345);
    second.Move(0, 600, 1500, 345);
    Settle();
    int focused = 0;
    second.GotFocus = Count(focused);
    first.SetFocus();
    second.SetFocus();
    second.SetFocus();
    EXPECT_EQ(focused, 1);
    first.SetFocus();
    QTest::keyClick(first.Widget(), Qt::Key_Tab);
    EXPECT_EQ(focused, 2);
    first.SetFocus();
    Click(second);
    EXPECT_EQ(focused, 3);
    QFocusEvent back(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
    QApplication::sendEvent(second.Widget(), &back);
    QFocusEvent popup(QEvent::FocusIn, Qt::PopupFocusReason);
    QApplication::sendEvent(second.Widget(), &popup);
    EXPECT_EQ(focused, 3);
}

TEST_F(ControlsTest, WhatGotFocusSelectsOutlastsTheClick) {
    TextBox first(Bench()), second(Bench(), "None");
    first.Move(0, 0, 1500, 345);
    second.Move(0, 600, 1500, 345);
    Settle();
    second.GotFocus = [&] {
        second.SetSelStart(0);
        second.SetSelLength(4);
    };
    first.SetFocus();
    Click(second, {20, 10});
    EXPECT_EQ(second.SelStart(), 0);
    EXPECT_EQ(second.SelLength(), 4);
    Type(second, "x");
    EXPECT_EQ(second.Text(), "x");
    second.SetText("None");
    Click(second, {2, 10});  // the second click places the caret
    EXPECT_EQ(second.SelLength(), 0);
}

TEST_F(ControlsTest, EnterMovesTheFocusFromAHandler) {
    TextBox first(Bench()), second(Bench());
    first.KeyPress = [&](int& key) {
        if (key == 13)
            second.SetFocus();
    };
    first.SetFocus();
    QTest::keyClick(first.Widget(), Qt::Key_Enter);
    EXPECT_TRUE(second.HasFocus());
}

}  // namespace
}  // namespace trabeon
