#include "toolkit/controls/control.h"

#include <QEvent>
#include <QFocusEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QWidget>
#include <algorithm>
#include <utility>

#include "toolkit/look/look.h"
#include "toolkit/look/shown_text.h"

namespace trabeon {

namespace {

// Gives the event to the widget without the filters.
void Deliver(QWidget& widget, QEvent& event) {
    static_cast<QObject&>(widget).event(&event);
}

bool IsReturning(Qt::FocusReason reason) {
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
           reason == Qt::MenuBarFocusReason;
}

constexpr int DeleteCode = 127;

// Alt and a character is a command, even if nothing responds to it. Alt with Ctrl is AltGr, which
// types.
bool IsAltCharacter(const QEvent& event) {
    if (event.type() != QEvent::KeyPress)
        return false;
    const auto& press = static_cast<const QKeyEvent&>(event);
    const bool alt = (press.modifiers() & Qt::AltModifier) &&
                     !(press.modifiers() & (Qt::ControlModifier | Qt::GroupSwitchModifier));
    return alt && !press.text().isEmpty() && press.text().at(0).isPrint();
}

// A character with Ctrl, or with Ctrl and Shift, is a command. With other keys, for example AltGr
// (Ctrl and Alt), a text box types it.
bool IsCommand(const QKeyEvent& event) {
    return (event.modifiers() & ~Qt::KeyboardModifiers(Qt::ShiftModifier)) == Qt::ControlModifier;
}

// The text that a key types, including Enter and Backspace. Empty for all other keys, such as
// shortcuts and Tab.
QString TypedText(const QKeyEvent& event) {
    const QString text = event.text();
    if (text.isEmpty() || text.at(0).category() != QChar::Other_Control)
        return IsCommand(event) ? QString() : text;
    const Qt::KeyboardModifiers commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    const int code = text.at(0).unicode();
    const bool isNone = (event.modifiers() & commands) || code == '\t' || code == DeleteCode ||
                        event.key() == Qt::Key_Escape;
    return isNone ? QString() : text;
}

}  // namespace

class Control::EventFilter : public QObject {
  public:
    explicit EventFilter(Control& control) : control_(control) {}

    bool eventFilter(QObject* target, QEvent* event) override {
        if (target != control_.Widget())
            return control_.OnInnerEvent(*event);
        return control_.OnEvent(*event);
    }

  private:
    Control& control_;
};

Control::Control(QWidget* widget)
    : Placement(widget), filter_(std::make_unique<EventFilter>(*this)) {
    widget->installEventFilter(filter_.get());
    widget->show();  // else a control that is made while its form shows would stay hidden
}

Control::~Control() {
    filter_.reset();
    delete Widget();
}

void Control::Watch(QWidget* inner) {
    inner->installEventFilter(filter_.get());
}

bool Control::OnInnerEvent(QEvent&) {
    return false;
}

bool Control::OnEvent(QEvent& event) {
    if (event.type() == QEvent::FocusIn) {
        // The widget comes first, so that the selection of the handler stays.
        Deliver(*Widget(), event);
        // If the control got the focus while its window was not active, GotFocus has not fired yet.
        const bool isNew = !std::exchange(focused_, true);
        if (GotFocus && (isNew || !IsReturning(static_cast<QFocusEvent&>(event).reason())))
            GotFocus();
        return true;
    }
    if (event.type() == QEvent::FocusOut && !IsReturning(static_cast<QFocusEvent&>(event).reason()))
        focused_ = false;
    if (IsAltCharacter(event)) {
        event.ignore();
        return true;
    }
    if (event.type() == QEvent::KeyPress && KeyPress)
        return OnKey(static_cast<QKeyEvent&>(event));
    // Composed characters do not come as key events.
    return event.type() == QEvent::InputMethod && KeyPress &&
           Drops(static_cast<QInputMethodEvent&>(event).commitString());
}

// Whether the handler drops one of the characters. Then all of them are dropped.
bool Control::Drops(const QString& characters) {
    return std::any_of(characters.begin(), characters.end(), [this](QChar character) {
        int key = character.unicode();
        KeyPress(key);
        return key == 0;
    });
}

bool Control::OnKey(QKeyEvent& event) {
    const QString text = TypedText(event);
    if (text.size() != 1)
        return Drops(text);
    const int typed = text.at(0).unicode();
    int key = typed;
    KeyPress(key);
    if (key == typed)
        return false;
    event.accept();
    if (key != 0) {
        QKeyEvent other(QEvent::KeyPress, 0, Qt::NoModifier, QString(QChar(key)));
        Deliver(*Widget(), other);
    }
    return true;
}

bool Control::Enabled() const {
    return Widget()->isEnabled();
}

void Control::SetEnabled(bool enabled) {
    Widget()->setEnabled(enabled);
}

bool Control::Visible() const {
    return !Widget()->isHidden();
}

void Control::SetVisible(bool visible) {
    Widget()->setVisible(visible);
}

void Control::SetFocus() {
    Widget()->setFocus(Qt::OtherFocusReason);
}

bool Control::HasFocus() const {
    return Widget()->hasFocus();
}

void Control::SetFont(const std::string& name, double points, bool bold) {
    Widget()->setFont(FontNamed(name, points, bold));
}

void Control::SetAccessibleName(const std::string& name) {
    Widget()->setAccessibleName(ShownText(name));
}

void Control::SetToolTipText(const std::string& text) {
    Widget()->setToolTip(ShownText(text));
}

}  // namespace trabeon
