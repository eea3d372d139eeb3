// The objects that all forms of one run share: the working folder, the flag for unsaved changes,
// the file dialogs, the menu entries that an analysis enables, and the registry of forms.
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

/// 1 while the project has unsaved changes, otherwise 0.
class ChangedFlag {
  public:
    std::function<void()> onChange;

    ChangedFlag& operator=(int value) {
        if (std::exchange(value_, value) != value && onChange)
            onChange();
        return *this;
    }
    operator int() const { return value_; }  // NOLINT: all forms use it as a number

  private:
    int value_ = 0;
};

/// A cached text. `files` is the fingerprint of the files that it depends on.
struct CachedText {
    std::uint64_t files = 0;
    std::string text;
};

struct Context {
    std::filesystem::path folder;  // of the working files
    ChangedFlag dataChanged{};
    CommonDialog CommonDialog1;  // serves all file dialogs
    MenuEntry mnuContinuous, mnuSingle;
    Forms& forms;
    // The windows that closing has emptied, the latest last: what it held, and how to bring it
    // back. New, Open and Exit clear this list.
    std::vector<std::pair<std::string, std::function<void()>>> closedWindows{};
    CachedText stationsRemark{};
    // Shows the load rows in normal form after an analysis.
    std::function<void(const Analysis&)> refillLoads{};
    // Calculates again what windows show of the rows. An editor calls it after it has written rows.
    std::function<void()> rowsChanged{};
    // Pastes the clipboard's picture into the report. `report` sets it at the start of the program.
    std::function<void()> pasteIntoReport{};
};

}  // namespace trabeon
