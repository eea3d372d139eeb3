// What the forms of one run share: the working folder, the record of unsaved changes, the file
// dialogs, the menu entries that an analysis opens, and the registry of forms.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "toolkit/outside/common_dialog.h"
#include "toolkit/windows/forms.h"
#include "toolkit/windows/menu.h"

namespace trabeon {

struct Analysis;

/// 1 while the project has changes that are not saved.
class ChangedFlag {
  public:
    std::function<void()> onChange;

    ChangedFlag& operator=(int value) {
        if (std::exchange(value_, value) != value && onChange)
            onChange();
        return *this;
    }
    operator int() const { return value_; }  // NOLINT: it is a number to all forms

  private:
    int value_ = 0;
};

/// An answer that holds as long as no file of it changes.
struct KeptAnswer {
    std::uint64_t files = 0;
    std::string text;
};

struct Context {
    std::filesystem::path folder;  // of the working files
    ChangedFlag dataChanged{};
    CommonDialog CommonDialog1;  // serves all file dialogs
    MenuEntry mnuContinuous, mnuSingle;
    Forms& forms;
    // What bring back the content of windows that were closed, the last one last. New, Open and
    // Exit forget them.
    std::vector<std::pair<std::string, std::function<void()>>> closedWindows{};
    KeptAnswer stationsRemark{};
    // Shows the load rows that an analysis has put into normal form.
    std::function<void(const Analysis&)> refillLoads{};
    // Shows what follows from the rows anew, in the windows that calculate it themselves. An editor
    // calls it when it has written its rows.
    std::function<void()> rowsChanged{};
    // Pastes the clipboard's picture into the report; the report takes this place up at start.
    std::function<void()> pasteIntoReport{};
};

}  // namespace trabeon
