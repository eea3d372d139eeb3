// The main window: the menu, the commands of the File menu, start and exit.
#pragma once

#include <optional>

#include "core/store/folder_lock.h"
#include "core/store/project_file.h"
#include "forms/shared/context.h"
#include "toolkit/outside/outside.h"
#include "toolkit/windows/mdi_window.h"

namespace trabeon {

class Placement;

class frmTrabeon {
  public:
    /// `folder` contains the working files, the pictures and the manual.
    explicit frmTrabeon(const std::filesystem::path& folder);

    /// Starts the program. Returns false if it must end at once; a message has then given the
    /// reason.
    [[nodiscard]] bool Start();

    /// Asks whether to save if `dataChanged` is 1. It is still 1 afterwards if the user cancelled.
    void SaveChanges();

    /// Writes the project to its path and sets `dataChanged` to 0. Asks first if another program
    /// has changed, moved or deleted the file since it was opened or saved. Returns false if it did
    /// not write: a message has given the reason, the old file is unchanged and `dataChanged`
    /// stays 1.
    bool FileSave();
    /// Asks for a path and saves there. If this fails, the project keeps its old path and name.
    void FileSaveAs();
    /// Asks for a path and unpacks the project. Returns false if the user cancelled or the file was
    /// refused. The open project then stays unchanged.
    bool FileOpen();

    void mnuNew_Click();
    void mnuOpen_Click();
    void mnuSave_Click();
    void mnuSaveAs_Click();
    void mnuExit_Click();

    [[nodiscard]] Context& context() { return context_; }
    [[nodiscard]] MdiWindow& window() { return window_; }

  private:
    void addMenus();
    void addFileMenu();
    void addStructureMenu();
    void addDiagramMenu();
    void addOtherMenus();
    MenuEntry addShow(Menu menu, const char* caption, const char* form, const char* key = "");

    void QueryUnload(bool& cancel);
    void Unload(bool& cancel);
    void openPage(const char* name);
    CommonDialog& projectDialog(const char* title, int flags);
    [[nodiscard]] bool lockFolder();
    [[nodiscard]] bool writeProject();
    [[nodiscard]] Answer askIfChangedOnDisk() const;
    [[nodiscard]] std::optional<ProjectTitle> loadedTitle() const;
    void keepOpen(const std::optional<ProjectTitle>& title);
    void startUntitled();
    void rememberFile(std::uint64_t fingerprint);
    void fillTitle(const ProjectTitle& title);
    void setProjectName(std::string_view name);
    [[nodiscard]] bool folderIsWritable() const;

    FolderLock lock_;
    MdiWindow window_;
    Forms forms_;
    Context context_;
    std::string projectFile_;          // of the open project; empty if it has no file
    std::uint64_t projectOnDisk_ = 0;  // its fingerprint when last read or written
};

/// Moves a window to the middle of `vParent`, or of the screen if that is null. Keeps its size.
void CenterForm(Placement& frm, const Placement* vParent = nullptr);

}  // namespace trabeon
