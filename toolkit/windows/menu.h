// Menus. Both are handles: a copy is the same menu or entry.
#pragma once

#include <functional>
#include <string>

class QAction;
class QMenu;
class QMenuBar;

namespace trabeon {

class MenuEntry {
  public:
    MenuEntry() = default;
    explicit MenuEntry(QAction* action) : action_(action) {}

    std::string Caption() const;
    bool Enabled() const;
    void SetEnabled(bool enabled);
    // As the user's choice does: runs the command, if the entry is enabled.
    void Choose();

  private:
    QAction* action_ = nullptr;
};

class Menu {
  public:
    Menu() = default;
    // A menu of the bar; "&" marks the access key.
    Menu(QMenuBar& bar, const std::string& caption);

    // `key` is a shortcut such as "Ctrl+N" or "F1", or empty.
    MenuEntry Add(const std::string& caption, const std::string& key,
                  std::function<void()> command);
    void AddSeparator();
    Menu AddMenu(const std::string& caption);
    // The entry that opens this menu: its caption, and whether it is enabled.
    MenuEntry Entry() const;
    // Fills the menu anew each time it opens.
    void SetFiller(std::function<void(Menu&)> fill);

  private:
    explicit Menu(QMenu* menu) : menu_(menu) {}

    QMenu* menu_ = nullptr;
};

}  // namespace trabeon
