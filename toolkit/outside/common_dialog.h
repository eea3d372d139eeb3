// The file dialogs of the program.
#pragma once

#include <string>

namespace trabeon {

class CommonDialog {
  public:
    std::string Filter;  // "Trabeon File (*.TB) |*.TB"
    std::string DialogTitle;
    std::string InitDir;  // where ShowOpen starts while no file was chosen yet
    // 2: ask before an existing file is chosen for saving. 2048: the folder must exist.
    // 8192: ask before a file that does not exist is chosen. Other bits change nothing.
    int Flags = 0;
    std::string FileName;  // the full path last chosen; a dialog that is cancelled leaves it

    // Both block, and answer whether the user chose a file.
    [[nodiscard]] bool ShowOpen();
    [[nodiscard]] bool ShowSave();

  private:
    bool Show(bool saves);
};

}  // namespace trabeon
