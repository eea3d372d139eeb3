// The frame in sight, a form for controls to be tried on, a scripted way out.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>

#include "tests/support/scripted_outside.h"
#include "toolkit/controls/control.h"
#include "toolkit/windows/form.h"
#include "toolkit/windows/forms.h"
#include "toolkit/windows/mdi_window.h"

namespace trabeon {

struct Nothing {};

class frmBench : public Form {
  public:
    static constexpr const char* Name = "frmBench";
    explicit frmBench(Nothing&) : Form("Bench") {}
};

class ControlsTest : public testing::Test {
  protected:
    ControlsTest() {
        window.Show();
        window.Widget()->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.Widget()));
        forms.Register<frmBench>(nothing);
    }

    // Whatever was put off until the handlers have ended, forms that go included.
    static void Settle() {
        QApplication::processEvents();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    Form& Bench() { return forms.Get<frmBench>(); }
    static void Click(const Control& control, QPoint at = {}) {
        QTest::mouseClick(control.Widget(), Qt::LeftButton, {}, at);
    }
    static void Key(const Control& control, Qt::Key key, Qt::KeyboardModifiers held = {}) {
        QTest::keyClick(control.Widget(), key, held);
    }
    static void Type(const Control& control, const char* text) {
        QTest::keyClicks(control.Widget(), text);
    }
    static QImage Face(const Control& control) { return control.Widget()->grab().toImage(); }
    // A callback that counts.
    static auto Count(int& counter) {
        return [&counter] { ++counter; };
    }

    Nothing nothing;
    ScriptedOutside outside;
    MdiWindow window{"Trabeon - Untitled"};
    Forms forms{window};
};

}  // namespace trabeon
