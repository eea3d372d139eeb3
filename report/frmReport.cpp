#include "report/frmReport.h"

#include <algorithm>

#include "core/store/replacing_file.h"
#include "forms/shared/messages.h"
#include "forms/shared/status_line.h"
#include "report/margins.h"
#include "report/sent_pictures.h"
#include "toolkit/outside/outside.h"

namespace trabeon {
namespace {

constexpr int saveFlags = 10246;
constexpr int boxTop = 600;

}  // namespace

frmReport::frmReport(Context& context)
    : Form("Report", FormBorder::SizableToolWindow), context_(context) {
    auto mnufile = AddMenu("File");
    mnufilepreview = mnufile.Add("Pre&view", "", [this] { mnufilepreview_Click(); });
    mnuSave = mnufile.Add("&Save", "", [this] { mnuSave_Click(); });
    mnufileexit = mnufile.Add("&Close", "", [this] { mnufileexit_Click(); });
    RTB.SetFont("Times New Roman", 8.25, true);
    RTB.SetAccessibleName("The report's pictures");
    cmdCut.SetToolTipText("Removes the selection");
    cmdWP.SetToolTipText("Opens the latest picture in a word processor");
    cmdCut.Click = [this] { cmdCut_Click(); };
    cmdWP.Click = [this] { cmdWP_Click(); };
    SetTabOrder({&RTB, &cmdCut, &cmdWP});
}

void frmReport::Form_Load() {
    SetSmallestScaleSize(3000, 1500 + cmdWP.Height() + 150);
    SetScaleSize(10350, 4800);
    RTB.SetLocked(true);
}

void frmReport::Form_Resize() {
    const int w = std::max(0, ScaleWidth() - 650);
    const int h = std::max(0, ScaleHeight() - boxTop);
    RTB.Move(100, boxTop, w, h);
    cmdCut.Move(w + 250, boxTop, cmdCut.Width(), cmdCut.Height());
    cmdWP.Move(w + 150, 1500, cmdWP.Width(), cmdWP.Height());
}

void frmReport::ClosedByUser() {
    if (RTB.PictureCount() == 0)
        return;
    offerRestore(context_, "The report", [&context = context_, pictures = RTB.AllPictures()] {
        context.forms.Get<frmReport>().RTB.Append(*pictures);
        say(context, "The report is back");
    });
}

void frmReport::Add() {
    RTB.SetLocked(false);
    RTB.Paste();
    RTB.SetLocked(true);
}

void frmReport::cmdCut_Click() {
    RTB.SetSelText("");
}

void frmReport::mnufilepreview_Click() {
    context_.forms.Show("frmDocPreview");
}

void frmReport::mnuSave_Click() {
    SaveReport();
}

void frmReport::mnufileexit_Click() {
    Hide();
}

/// The project uses the same dialog. Its file name is put back afterwards.
void frmReport::SaveReport() {
    auto& dialog = context_.CommonDialog1;
    const auto projectPath = dialog.FileName;
    dialog.FileName = path_;
    if (path_.empty() && !projectPath.empty())
        dialog.FileName = std::filesystem::path(projectPath).replace_extension("rtf").string();
    dialog.Filter = "Rich Text Format (*.RTF) |*.RTF";
    dialog.DialogTitle = "Save Trabeon Report File";
    dialog.Flags = saveFlags;
    const bool chosen = dialog.ShowSave();
    const auto path = std::exchange(dialog.FileName, projectPath);
    if (!chosen)
        return;
    const auto text = RTB.TextRTF(Outside::Current().DefaultPaper(), marginTwips);
    if (const auto status = replaceFile(path, text); status.failed())
        warn(status.refusal().sentence);
    else
        path_ = path;
}

void frmReport::cmdWP_Click() {
    const auto text = RTB.LastPictureRTF(Outside::Current().DefaultPaper(), marginTwips);
    if (text.empty()) {
        warn("The report has no picture. Add one with Add To Report, then try again.");
        return;
    }
    const auto path = freePicturePath(context_.folder);
    if (const auto status = replaceFile(path, text); status.failed())
        warn(status.refusal().sentence);
    else if (Outside::Current().OpenDocument(path.string()))
        lendPicture(path);
    else
        warn("The desktop has no program for rich text. The picture is in \"" + path.string() +
             "\": open it in a word processor.");
}

}  // namespace trabeon
