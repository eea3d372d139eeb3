// Menus and their entries. Both are handles: a copy is the same menu or entry.
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

    [[nodiscard]] std::string Caption() const;
    [[nodiscard]] bool Enabled() const;
    void SetEnabled(bool enabled);
    /// Runs the command if the entry is enabled, as when the user chooses the entry.
    void Choose();

  private:
    QAction* action_ = nullptr;
};

class Menu {
  public:
    Menu() = default;
    /// Adds a menu to the bar. "&" marks the access key.
    Menu(QMenuBar& bar, const std::string& caption);

    /// Adds an entry. `key` is a shortcut such as "Ctrl+N" or "F1", or empty.
    MenuEntry Add(const std::string& caption, const std::string& key,
                  std::function<void()> command);
    void AddSeparator();
    [[nodiscard]] Menu AddMenu(const std::string& caption);
    /// The entry that opens this menu.
    [[nodiscard]] MenuEntry Entry() const;
    /// Calls `fill` with the empty menu each time before it opens.
    void SetFiller(std::function<void(Menu&)> fill);

  private:
    explicit Menu(QMenu* menu) : menu_(menu) {}

    QMenu* menu_ = nullptr;
};

}  // namespace trabeon
