#include "toolkit/controls/check_box.h"

#include <QCheckBox>

#include "toolkit/look/shown_text.h"

namespace trabeon {

namespace {

QCheckBox& Inner(const Control& control) {
    return *static_cast<QCheckBox*>(control.Widget());
}

}  // namespace

CheckBox::CheckBox(Container& parent, const std::string& caption, bool ticked)
    : Control(new QCheckBox(ShownText(caption), parent.Canvas())) {
    Inner(*this).adjustSize();
    SetValue(ticked);
}

bool CheckBox::Value() const {
    return Inner(*this).isChecked();
}

void CheckBox::SetValue(bool ticked) {
    Inner(*this).setChecked(ticked);
}

}  // namespace trabeon
