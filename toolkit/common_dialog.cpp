#include "toolkit/common_dialog.h"

#include "toolkit/outside.h"

namespace trabeon {

namespace {

constexpr int OverwritePrompt = 2;

}  // namespace

bool CommonDialog::ShowOpen() {
    return Show(false);
}

bool CommonDialog::ShowSave() {
    return Show(true);
}

bool CommonDialog::Show(bool saves) {
    const std::string chosen =
        Outside::Current().AskFile({saves, (Flags & OverwritePrompt) != 0, DialogTitle, Filter,
                                    FileName, saves ? "" : InitDir});
    if (chosen.empty())
        return false;
    FileName = chosen;
    return true;
}

}  // namespace trabeon
