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

bool Answers(const QWidget& widget, const QString& text, const QKeySequence& key) {
    return widget.isVisible() && widget.isEnabled() && QKeySequence::mnemonic(text) == key;
}

// A control that answers the key.
struct Answering {
    QWidget* control = nullptr;
    bool isPressed = false;  // the key is the button's own
};

// A button, or what a label names. Where several answer, the key only moves the focus: to the first
// of them, and when it is pressed again at once to the next.
Answering AnsweringControl(const QWidget& child, const QKeySequence& key, bool again) {
    QList<Answering> answering;
    for (auto* button : child.findChildren<QAbstractButton*>())
        if (Answers(*button, button->text(), key))
            answering << Answering{button, true};
    for (auto* label : child.findChildren<QLabel*>())
        if (label->buddy() && Answers(*label, label->text(), key))
            answering << Answering{label->buddy()};
    if (answering.size() < 2)
        return answering.value(0);
    const auto focus = std::find_if(answering.begin(), answering.end(),
                                    [](const auto& one) { return one.control->hasFocus(); });
    const auto at = again && focus != answering.end() ? focus - answering.begin() + 1 : 0;
    return {answering[at % answering.size()].control};
}

void Answer(const Answering& answering) {
    if (answering.isPressed)
        static_cast<QAbstractButton*>(answering.control)->click();
    else
        answering.control->setFocus(Qt::ShortcutFocusReason);
}

// Where several menus share the key: the one behind `open`, or the first.
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
    const Answering answering = child ? AnsweringControl(*child, key, again) : Answering();
    QAction* menu = answering.control ? nullptr : MenuInTurn(bar, key, openBeforeAlt_);
    if (!answering.control && !menu)
        return false;
    event->accept();  // the override keeps the key from Qt's own turns, and the press comes here
    if (!typed || press.isAutoRepeat())
        return true;
    former_ = key;
    answering.control ? Answer(answering) : Open(bar, menu);
    return true;
}

}  // namespace trabeon
