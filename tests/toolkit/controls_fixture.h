// A form for controls to be tried on.
#pragma once

#include "tests/support/gui_fixture.h"
#include "toolkit/form.h"

namespace trabeon {

struct Nothing {};

class frmBench : public Form {
  public:
    static constexpr const char* Name = "frmBench";
    explicit frmBench(Nothing&) : Form("Bench") {}
};

class ControlsTest : public GuiTest {
  protected:
    ControlsTest() { forms.Register<frmBench>(nothing); }

    Form& Bench() { return forms.Get<frmBench>(); }
    static void Click(const Control& control, QPoint at = {}) {
        QTest::mouseClick(control.Widget(), Qt::LeftButton, {}, at);
    }
    static void Type(const Control& control, const char* text) {
        QTest::keyClicks(control.Widget(), text);
    }
    // A callback that counts.
    static auto Count(int& counter) {
        return [&counter] { ++counter; };
    }

    Nothing nothing;
};

}  // namespace trabeon
