#include "forms/main/frmTrabeon.h"

#include "core/store/new_project.h"
#include "core/store/project_file.h"
#include "core/store/recovery.h"
#include "core/store/replacing_file.h"
#include "core/store/working_files.h"
#include "forms/main/frmTitle.h"
#include "forms/main/registration.h"
#include "forms/results/frmAnalysis.h"
#include "forms/shared/messages.h"
#include "forms/shared/status_line.h"
#include "toolkit/outside/outside.h"

namespace trabeon {
namespace {

constexpr auto untitled = "Untitled";
constexpr auto untitledCaption = "Trabeon - Untitled";
constexpr auto projectFilter = "Trabeon File (*.TB) |*.TB";
constexpr int openFlags = 2052;
constexpr int saveFlags = 10246;
constexpr int yesNoCancel = 51;

}  // namespace

frmTrabeon::frmTrabeon(const std::filesystem::path& folder)
    : window_(untitledCaption), forms_(window_), context_{folder, {}, {}, {}, {}, forms_} {
    context_.dataChanged.onChange = [this] { showSummary(context_); };
    context_.CommonDialog1.InitDir = (folder / "examples").string();
    registerForms(context_);
    addMenus();
    window_.AddKey("Ctrl+Z", [this] { restoreClosedWindow(context_); });
    window_.QueryUnload = [this](bool& cancel) { QueryUnload(cancel); };
    window_.Unload = [this](bool& cancel) { Unload(cancel); };
}

bool frmTrabeon::Start() {
    window_.Show();
    openPage("Contents and Index.htm");
    if (!lockFolder())
        return false;
    CenterForm(window_);
    if (!folderIsWritable()) {
        warn(
            "Trabeon keeps its working files in its own folder, \"" + context_.folder.string() +
            "\", and cannot write there. Move the program to a folder of yours, or make room on its "
            "disk, then start it again.");
        return false;
    }
    const auto recovered = recoverRows(context_.folder);
    if (!recovered) {
        warn("The last run ended without Exit. Its rows cannot be saved: " +
             recovered.refusal().sentence);
        return false;
    }
    if (const auto status = CreateNFile(context_.folder); status.failed()) {
        warn("The working files of the last run cannot be emptied: " + status.refusal().sentence);
        return false;
    }
    startUntitled();
    if (*recovered)
        say(context_, "The last run ended without Exit. Its rows are in \"" +
                          (context_.folder / recoveredProject).string() + "\": File, Open");
    return true;
}

bool frmTrabeon::lockFolder() {
    auto taken = lock_.take(context_.folder, std::chrono::seconds(0));
    if (taken.failed() && lock_.holder().runsThisProgram) {
        warn("Trabeon is already running.");
        return false;
    }
    if (taken.failed())  // a command of trabeon-batch ends soon
        taken = lock_.take(context_.folder, std::chrono::seconds(3));
    if (taken.failed())
        warn(taken.refusal().sentence);
    return taken.done();
}

bool frmTrabeon::folderIsWritable() const {
    const auto probe = context_.folder / "Writable.tmp";
    if (replaceFile(probe, "x").failed())  // not empty: a full disk accepts an empty file
        return false;
    MurderFile(probe);
    return true;
}

void frmTrabeon::SaveChanges() {
    if (context_.dataChanged == 0)
        return;
    switch (
        Outside::Current().MsgBox("Save changes to Trabeon Analysis?", yesNoCancel, "Trabeon")) {
        case Answer::Yes:
            mnuSave_Click();
            break;
        case Answer::No:
            context_.dataChanged = 0;
            break;
        default:
            break;
    }
}

bool frmTrabeon::FileSave() {
    switch (askIfChangedOnDisk()) {
        case Answer::Yes:
            return writeProject();
        case Answer::Other:
            FileSaveAs();
            return context_.dataChanged == 0;
        default:
            return false;
    }
}

/// Answers Yes without a question if the file has not changed since this run read or wrote it.
Answer frmTrabeon::askIfChangedOnDisk() const {
    const auto& file = context_.CommonDialog1.FileName;
    const auto state = file == projectFile_ ? comparedWithDisk(file, projectOnDisk_) : OnDisk::same;
    if (state == OnDisk::same)
        return Answer::Yes;
    return Outside::Current().AskToReplace(
        '"' + file +
        (state == OnDisk::changed
             ? "\" was changed by another program since it was opened or saved here. Replace it?"
             : "\" is no longer there: it was moved or deleted. Save the project there again?"));
}

bool frmTrabeon::writeProject() {
    if (const auto objection = missing(context_.folder, projectFiles)) {
        warn(objection->sentence);
        return false;
    }
    const auto title = forms_.Get<frmTitle>().Title();
    const auto packed = packProject(context_.folder, title, context_.CommonDialog1.FileName);
    if (!packed) {
        warn(packed.refusal().sentence);
        return false;
    }
    rememberFile(*packed);
    context_.dataChanged = 0;
    say(context_, "Saved as \"" + projectFile_ + '"');
    return true;
}

CommonDialog& frmTrabeon::projectDialog(const char* title, int flags) {
    auto& dialog = context_.CommonDialog1;
    dialog.Filter = projectFilter;
    dialog.DialogTitle = title;
    dialog.Flags = flags;
    return dialog;
}

void frmTrabeon::FileSaveAs() {
    auto& dialog = projectDialog("Save Trabeon File", saveFlags);
    const auto former = dialog.FileName;
    if (!dialog.ShowSave())
        return;
    if (writeProject())
        setProjectName(captionName(dialog.FileName));
    else
        dialog.FileName = former;
}

bool frmTrabeon::FileOpen() {
    auto& dialog = projectDialog("Open Trabeon File", openFlags);
    const auto former = dialog.FileName;
    if (!dialog.ShowOpen())
        return false;
    const auto opened = unpackProject(dialog.FileName, context_.folder);
    if (!opened) {
        dialog.FileName = former;
        warn(opened.refusal().sentence);
        return false;
    }
    rememberFile(opened->fingerprint);
    context_.closedWindows.clear();
    setProjectName(captionName(dialog.FileName));
    fillTitle(opened->title);
    forms_.Get<frmAnalysis>().ShowTable();
    showSummary(context_);
    say(context_, "Opened \"" + projectFile_ + "\". Analyse it to draw its diagrams");
    return true;
}

void frmTrabeon::fillTitle(const ProjectTitle& title) {
    auto& form = forms_.Get<frmTitle>();
    form.SetTitle(title);
    form.Hide();
}

void frmTrabeon::rememberFile(std::uint64_t fingerprint) {
    projectFile_ = context_.CommonDialog1.FileName;
    projectOnDisk_ = fingerprint;
}

void frmTrabeon::startUntitled() {
    context_.closedWindows.clear();
    projectFile_.clear();
    setProjectName(untitled);
    showSummary(context_);
}

void frmTrabeon::mnuNew_Click() {
    const int changed = context_.dataChanged;
    SaveChanges();
    if (context_.dataChanged == 1)
        return;
    const auto title = loadedTitle();
    forms_.UnloadAll();
    const auto emptied = CreateNFile(context_.folder);
    if (emptied.done()) {
        startUntitled();
        return;
    }
    warn(emptied.refusal().sentence);
    keepOpen(title);
    context_.dataChanged = changed;
}

void frmTrabeon::mnuOpen_Click() {
    SaveChanges();
    if (context_.dataChanged == 1)
        return;
    const auto title = loadedTitle();
    forms_.UnloadAll();
    if (!FileOpen())
        keepOpen(title);
}

std::optional<ProjectTitle> frmTrabeon::loadedTitle() const {
    const auto* form = forms_.Loaded<frmTitle>();
    return form == nullptr ? std::nullopt : std::optional(form->Title());
}

/// Puts the title back for the project that stays open. This does not count as a change.
void frmTrabeon::keepOpen(const std::optional<ProjectTitle>& title) {
    if (!title)
        return;
    fillTitle(*title);
    context_.dataChanged = 0;
}

void frmTrabeon::mnuSave_Click() {
    if (window_.Caption() == untitledCaption)
        mnuSaveAs_Click();
    else
        FileSave();
}

void frmTrabeon::mnuSaveAs_Click() {
    FileSaveAs();
}

void frmTrabeon::mnuExit_Click() {
    SaveChanges();
    if (context_.dataChanged == 1)
        return;
    for (const auto name : filesDeletedAtExit)
        MurderFile(context_.folder / name);
    MurderFile(context_.folder / working_file::title);
    Outside::Current().End();
}

void frmTrabeon::QueryUnload(bool&) {
    SaveChanges();
}

void frmTrabeon::Unload(bool& cancel) {
    cancel = context_.dataChanged != 0;
    mnuExit_Click();
}

void frmTrabeon::openPage(const char* name) {
    Outside::Current().OpenDocument((context_.folder / name).string());
}

void frmTrabeon::setProjectName(std::string_view name) {
    window_.SetCaption("Trabeon - " + std::string(name));
}

void CenterForm(Placement& frm, const Placement* vParent) {
    const int left = vParent == nullptr ? 0 : vParent->Left();
    const int top = vParent == nullptr ? 0 : vParent->Top();
    const int width = vParent == nullptr ? MdiWindow::ScreenWidth() : vParent->Width();
    const int height = vParent == nullptr ? MdiWindow::ScreenHeight() : vParent->Height();
    frm.Move(left + (width - frm.Width()) / 2, top + (height - frm.Height()) / 2, frm.Width(),
             frm.Height());
}

}  // namespace trabeon
