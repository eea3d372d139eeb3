#include "toolkit/outside/common_dialog.h"

#include "toolkit/outside/outside.h"

namespace trabeon {

namespace {

constexpr int OverwritePrompt = 2;
constexpr int PathMustExist = 0x800;
constexpr int CreatePrompt = 0x2000;

}  // namespace

bool CommonDialog::ShowOpen() {
    return Show(false);
}

bool CommonDialog::ShowSave() {
    return Show(true);
}

bool CommonDialog::Show(bool saves) {
    const std::string chosen =
        Outside::Current().AskFile({.saves = saves,
                                    .asksBeforeOverwriting = (Flags & OverwritePrompt) != 0,
                                    .asksBeforeCreating = (Flags & CreatePrompt) != 0,
                                    .folderMustExist = (Flags & PathMustExist) != 0,
                                    .title = DialogTitle,
                                    .filter = Filter,
                                    .fileName = FileName,
                                    .folder = saves ? "" : InitDir});
    if (chosen.empty())
        return false;
    FileName = chosen;
    return true;
}

}  // namespace trabeon
