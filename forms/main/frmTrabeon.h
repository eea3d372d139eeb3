// The main window: the menu that leads to every form, the commands of the File menu, start-up and
// exit.
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
    /// The folder holds the working files, the pictures and the pages.
    explicit frmTrabeon(const std::filesystem::path& folder);

    /// The start-up sequence; false if the program must end at once, which the user was told.
    [[nodiscard]] bool Start();

    /// Asks whether to save if the flag is 1. On return a flag of 0 means go on, 1 that the user
    /// drew back.
    void SaveChanges();

    /// Writes the project to its path and clears the flag. If another program has changed or taken
    /// away the file since it was opened or saved, the user is asked first. False if it was not
    /// written: the user knows why, the old file is unchanged and the flag stays at 1.
    bool FileSave();
    /// Asks for a path and saves there; if that fails the project keeps its former path and name.
    void FileSaveAs();
    /// Asks for a path and unpacks the project. False if the user drew back or the file was
    /// refused: the open project then stays as it was.
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
    [[nodiscard]] bool takeFolder();
    [[nodiscard]] bool writeProject();
    [[nodiscard]] Answer answerAboutDisk() const;
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
    std::string projectFile_;          // the open project's, empty while it has none
    std::uint64_t projectOnDisk_ = 0;  // its fingerprint as this run has read or written it
};

/// Moves a window to the middle of the screen, or of the form that is given; its size stays.
void CenterForm(Placement& frm, const Placement* vParent = nullptr);

}  // namespace trabeon
