// What a test of windows stands on: the frame in sight, a registry, a scripted way out.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>

#include "tests/support/scripted_outside.h"
#include "toolkit/control.h"
#include "toolkit/forms.h"
#include "toolkit/mdi_window.h"

namespace trabeon {

// Counts how often a control is painted.
class PaintCounter : public QObject {
  public:
    explicit PaintCounter(const Control& control) { control.Widget()->installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override {
        paints += event->type() == QEvent::Paint;
        return false;
    }
    int paints = 0;
};

class GuiTest : public testing::Test {
  protected:
    GuiTest() {
        window.Show();
        window.Widget()->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.Widget()));
    }

    // Whatever was put off until the handlers have ended, forms that go included.
    static void Settle() {
        QApplication::processEvents();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    ScriptedOutside outside;
    MdiWindow window{"Trabeon - Untitled"};
    Forms forms{window};
};

}  // namespace trabeon
