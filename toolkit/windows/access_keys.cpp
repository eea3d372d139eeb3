#include "toolkit/windows/access_keys.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <algorithm>

namespace trabeon {

namespace {

bool Has(const QWidget& widget, const QString& text, const QKeySequence& key) {
    return widget.isVisible() && widget.isEnabled() && QKeySequence::mnemonic(text) == key;
}

// What an access key does: it presses a button, or moves the focus to a control.
struct Target {
    QWidget* control = nullptr;
    bool isPressed = false;
};

// The button with this key, or the buddy of the label with this key. If there are several, the key
// only moves the focus: to the first of them, and if it is pressed again at once, to the next.
Target TargetIn(const QWidget& child, const QKeySequence& key, bool again) {
    QList<Target> targets;
    for (auto* button : child.findChildren<QAbstractButton*>())
        if (Has(*button, button->text(), key))
            targets << Target{button, true};
    for (auto* label : child.findChildren<QLabel*>())
        if (label->buddy() && Has(*label, label->text(), key))
            targets << Target{label->buddy()};
    if (targets.size() < 2)
        return targets.value(0);
    const auto focus = std::find_if(targets.begin(), targets.end(),
                                    [](const auto& one) { return one.control->hasFocus(); });
    const auto at = again && focus != targets.end() ? focus - targets.begin() + 1 : 0;
    return {targets[at % targets.size()].control};
}

void Activate(const Target& target) {
    if (target.isPressed)
        static_cast<QAbstractButton*>(target.control)->click();
    else
        target.control->setFocus(Qt::ShortcutFocusReason);
}

// If several menus share the key: the one after `open`, or the first.
QAction* MenuInTurn(const QMenuBar& bar, const QKeySequence& key, const QAction* open) {
    QList<QAction*> sharing;
    for (QAction* menu : bar.actions())
        if (menu->isVisible() && menu->isEnabled() && QKeySequence::mnemonic(menu->text()) == key)
            sharing << menu;
    if (sharing.size() < 2)
        return nullptr;
    return sharing[(sharing.indexOf(open) + 1) % sharing.size()];
}

void Open(QMenuBar& bar, QAction* menu) {
    bar.setActiveAction(menu);
    QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
    QApplication::sendEvent(&bar, &down);
}

}  // namespace

AccessKeys::AccessKeys(QMainWindow& window, QMdiArea& area)
    : QObject(&area), window_(window), area_(area) {
    qApp->installEventFilter(this);
}

bool AccessKeys::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress)
        former_ = {};
    if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress)
        return false;
    const auto& press = static_cast<const QKeyEvent&>(*event);
    const bool popup = QApplication::activePopupWidget() != nullptr;
    QMenuBar& bar = *window_.menuBar();
    if (press.key() == Qt::Key_Alt && event->type() == QEvent::ShortcutOverride)
        openBeforeAlt_ = popup ? bar.activeAction() : nullptr;
    const QKeySequence key(Qt::ALT | Qt::Key(press.key()));
    const bool typed = event->type() == QEvent::KeyPress && press.key() != Qt::Key_Alt;
    const bool again = former_ == key && press.modifiers() == Qt::AltModifier;
    if (typed && !again)
        former_ = {};
    if (press.modifiers() != Qt::AltModifier || popup || QApplication::activeWindow() != &window_ ||
        QApplication::activeModalWidget())
        return false;
    const QMdiSubWindow* child = area_.activeSubWindow();
    const Target target = child ? TargetIn(*child, key, again) : Target();
    QAction* menu = target.control ? nullptr : MenuInTurn(bar, key, openBeforeAlt_);
    if (!target.control && !menu)
        return false;
    event->accept();  // so Qt does not take turns, and the key press comes here
    if (!typed || press.isAutoRepeat())
        return true;
    former_ = key;
    target.control ? Activate(target) : Open(bar, menu);
    return true;
}

}  // namespace trabeon
