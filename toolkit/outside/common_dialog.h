// The file dialogs of the program.
#pragma once

#include <string>

namespace trabeon {

class CommonDialog {
  public:
    /// For example "Trabeon File (*.TB) |*.TB".
    std::string Filter;
    std::string DialogTitle;
    /// The folder in which ShowOpen starts until a file has been chosen.
    std::string InitDir;
    /// 2: ask before an existing file is replaced. 2048: the folder must exist. 8192: ask before a
    /// new file is created. Other bits have no effect.
    int Flags = 0;
    /// The full path of the file chosen last. A cancelled dialog does not change it.
    std::string FileName;

    /// Both wait for the user and return whether a file was chosen.
    [[nodiscard]] bool ShowOpen();
    [[nodiscard]] bool ShowSave();

  private:
    bool Show(bool saves);
};

}  // namespace trabeon
