#include "toolkit/windows/menu.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include "toolkit/look/shown_text.h"

namespace trabeon {

std::string MenuEntry::Caption() const {
    return action_->text().toStdString();
}

bool MenuEntry::Enabled() const {
    return action_->isEnabled();
}

void MenuEntry::SetEnabled(bool enabled) {
    action_->setEnabled(enabled);
}

void MenuEntry::Choose() {
    action_->trigger();
}

Menu::Menu(QMenuBar& bar, const std::string& caption) : menu_(bar.addMenu(ShownText(caption))) {}

MenuEntry Menu::Add(const std::string& caption, const std::string& key,
                    std::function<void()> command) {
    QAction* action = menu_->addAction(ShownText(caption));
    if (!key.empty())
        action->setShortcut(QKeySequence(QString::fromStdString(key)));
    QObject::connect(action, &QAction::triggered, menu_, [run = std::move(command)] { run(); });
    return MenuEntry(action);
}

void Menu::AddSeparator() {
    menu_->addSeparator();
}

Menu Menu::AddMenu(const std::string& caption) {
    return Menu(menu_->addMenu(ShownText(caption)));
}

MenuEntry Menu::Entry() const {
    return MenuEntry(menu_->menuAction());
}

void Menu::SetFiller(std::function<void(Menu&)> fill) {
    QMenu* menu = menu_;
    QObject::connect(menu, &QMenu::aboutToShow, menu, [menu, run = std::move(fill)] {
        menu->clear();
        Menu handle(menu);
        run(handle);
    });
}

}  // namespace trabeon
