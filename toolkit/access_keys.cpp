#include "toolkit/access_keys.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>

namespace trabeon {

namespace {

bool Answers(const QWidget& widget, const QString& text, const QKeySequence& key) {
    return widget.isVisible() && widget.isEnabled() && QKeySequence::mnemonic(text) == key;
}

// The one control of the child that answers the key: a button, or what a label names. None also if
// there are several, which then take turns.
QWidget* AnsweringControl(const QWidget& child, const QKeySequence& key) {
    QList<QWidget*> answering;
    for (auto* button : child.findChildren<QAbstractButton*>())
        if (Answers(*button, button->text(), key))
            answering << button;
    for (auto* label : child.findChildren<QLabel*>())
        if (label->buddy() && Answers(*label, label->text(), key))
            answering << label->buddy();
    return answering.size() == 1 ? answering.first() : nullptr;
}

void Answer(QWidget& control) {
    if (auto* button = qobject_cast<QAbstractButton*>(&control))
        button->click();
    else
        control.setFocus(Qt::ShortcutFocusReason);
}

}  // namespace

AccessKeys::AccessKeys(QMdiArea& area) : QObject(&area), area_(area) {
    qApp->installEventFilter(this);
}

bool AccessKeys::eventFilter(QObject*, QEvent* event) {
    if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress)
        return false;
    const auto& press = static_cast<const QKeyEvent&>(*event);
    const QMdiSubWindow* child = area_.activeSubWindow();
    if (press.modifiers() != Qt::AltModifier || !child || QApplication::activePopupWidget() ||
        QApplication::activeModalWidget())
        return false;
    QWidget* control = AnsweringControl(*child, QKeySequence(Qt::ALT | Qt::Key(press.key())));
    if (!control)
        return false;
    event->accept();  // the override keeps the key from the menu bar, and the press then comes here
    if (event->type() == QEvent::KeyPress && !press.isAutoRepeat())
        Answer(*control);
    return true;
}

}  // namespace trabeon
