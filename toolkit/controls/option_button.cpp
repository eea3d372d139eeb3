#include "toolkit/controls/option_button.h"

#include <QRadioButton>

#include "toolkit/look/shown_text.h"

namespace trabeon {

namespace {

QRadioButton& Inner(const Control& control) {
    return *static_cast<QRadioButton*>(control.Widget());
}

}  // namespace

OptionButton::OptionButton(Container& parent, const std::string& caption, bool chosen)
    : Control(new QRadioButton(ShownText(caption), parent.Canvas())) {
    Inner(*this).adjustSize();
    Inner(*this).setChecked(chosen);
    QObject::connect(&Inner(*this), &QRadioButton::toggled, [this](bool on) {
        if (on && Click)
            Click();
    });
}

bool OptionButton::Value() const {
    return Inner(*this).isChecked();
}

void OptionButton::Choose() {
    Inner(*this).setChecked(true);
}

}  // namespace trabeon
