#include "toolkit/controls/combo_box.h"

#include <QComboBox>
#include <QEvent>

#include "toolkit/look/shown_text.h"

namespace trabeon {

namespace {

QComboBox& Inner(const Control& control) {
    return *static_cast<QComboBox*>(control.Widget());
}

}  // namespace

ComboBox::ComboBox(Container& parent) : Control(new QComboBox(parent.Canvas())) {
    Control::Resize(ToPixels(1815), ToPixels(375));
    Inner(*this).setMaxVisibleItems(20);
    // `activated` fires for each choice of the user, also of the same entry, and never for code.
    QObject::connect(&Inner(*this), &QComboBox::activated, [this] {
        if (Click)
            Click();
    });
}

// The wheel scrolls the form and does not choose. An open list has a window of its own.
bool ComboBox::OnEvent(QEvent& event) {
    if (event.type() != QEvent::Wheel)
        return Control::OnEvent(event);
    event.ignore();
    return true;
}

void ComboBox::AddItem(const std::string& text) {
    const int chosen = ListIndex();
    Inner(*this).addItem(ShownText(text));
    Inner(*this).setCurrentIndex(chosen);  // the widget has chosen its first entry
}

int ComboBox::ListCount() const {
    return Inner(*this).count();
}

std::string ComboBox::List(int index) const {
    return Inner(*this).itemText(index).toStdString();
}

int ComboBox::ListIndex() const {
    return Inner(*this).currentIndex();
}

void ComboBox::SetListIndex(int index) {
    const bool isEntry = index >= 0 && index < ListCount();
    Inner(*this).setCurrentIndex(isEntry ? index : -1);
    if (isEntry && Click)
        Click();
}

std::string ComboBox::Text() const {
    return Inner(*this).currentText().toStdString();
}

void ComboBox::SetText(const std::string& text) {
    const int index = Inner(*this).findText(ShownText(text), Qt::MatchExactly);
    if (index >= 0)
        Inner(*this).setCurrentIndex(index);
}

}  // namespace trabeon
