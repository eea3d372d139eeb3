#include "report/frmDocPreview.h"

#include "forms/shared/messages.h"
#include "report/PrintReport.h"
#include "report/frmReport.h"
#include "report/margins.h"
#include "toolkit/outside/outside.h"
#include "toolkit/windows/application.h"
#include "toolkit/windows/wait_cursor.h"

namespace trabeon {
namespace {

constexpr std::array<const char*, 5> scales{"150", "100", "75", "50", "25"};
constexpr int lastStep = 5;

/// Enables or disables a button. A disabled button with the focus passes it to the list beside it.
void enable(Button& button, bool enabled, ComboBox& list) {
    if (!enabled && button.HasFocus())
        list.SetFocus();
    button.SetEnabled(enabled);
}

}  // namespace

frmDocPreview::frmDocPreview(Context& context)
    : Form("Print Preview", FormBorder::FixedDialog), context_(context) {
    placeControls();
    nameControls();
    cmdPrint.Click = [this] { cmdPrint_Click(); };
    cmdClose.Click = [this] { cmdClose_Click(); };
    cmdZoomIn.Click = [this] { cmdZoomIn_Click(); };
    cmdZoomOut.Click = [this] { cmdZoomOut_Click(); };
    cboScale.Click = [this] { cboScale_Click(); };
    cmdPrevPage.Click = [this] { cmdPrevPage_Click(); };
    cboPageno.Click = [this] { cboPageno_Click(); };
    cmdNextPage.Click = [this] { cmdNextPage_Click(); };
    HScroll1.Change = [this] { HScroll1_Change(); };
    VScroll1.Change = [this] { VScroll1_Change(); };
}

void frmDocPreview::Form_Load() {
    const WaitCursor wait;
    DocWYSIWYG(report());
    sizePictures();
    totalPages_ = PageCtnProc(picX);
    txtTotalPages.SetText("Total " + std::to_string(totalPages_) + " pages");
    fillLists();
    setPageButtons();
    FormPreviewPage(picX, 1);
    if (copyPage())
        showStep();
}

void frmDocPreview::fillLists() {
    for (int page = 1; page <= totalPages_; ++page)
        cboPageno.AddItem(std::to_string(page));
    cboPageno.SetText("1");
    for (const auto* scale : scales)
        cboScale.AddItem(scale);
    cboScale.SetText(scales.back());
}

void frmDocPreview::cboPageno_Click() {
    showPage();
}

void frmDocPreview::cmdPrevPage_Click() {
    turnPage(-1);
}

void frmDocPreview::cmdNextPage_Click() {
    turnPage(1);
}

void frmDocPreview::turnPage(int entries) {
    const int index = cboPageno.ListIndex() + entries;
    if (index < 0 || index >= totalPages_)
        return;
    cboPageno.SetText(cboPageno.List(index));
    showPage();
}

void frmDocPreview::showPage() {
    setPageButtons();
    const WaitCursor wait;
    FormPreviewPage(picX, cboPageno.ListIndex() + 1);
    if (copyPage())
        showStep();
}

void frmDocPreview::setPageButtons() {
    const int page = cboPageno.ListIndex() + 1;
    enable(cmdPrevPage, page > 1, cboPageno);
    enable(cmdNextPage, page < totalPages_, cboPageno);
}

void frmDocPreview::cboScale_Click() {
    for (int step = 1; step <= lastStep; ++step)
        if (cboScale.Text() == scales.at(static_cast<std::size_t>(step) - 1))
            step_ = step;
    setZoomButtons();
    showStep();
}

void frmDocPreview::cmdZoomIn_Click() {
    if (step_ != 1)
        zoomTo(step_ - 1);
}

void frmDocPreview::cmdZoomOut_Click() {
    if (step_ != lastStep)
        zoomTo(step_ + 1);
}

void frmDocPreview::zoomTo(int step) {
    step_ = step;
    cboScale.SetText(scales.at(static_cast<std::size_t>(step) - 1));
    setZoomButtons();
    showStep();
}

void frmDocPreview::setZoomButtons() {
    enable(cmdZoomIn, step_ != 1, cboScale);
    enable(cmdZoomOut, step_ != lastStep, cboScale);
}

/// Shows the picture of this zoom step. The scroll bars take the position that it had before.
void frmDocPreview::showStep() {
    for (auto* each : steps_)
        each->SetVisible(each == &picture());
    const int left = picture().Left();
    const int top = picture().Top();
    HScroll1.SetValue(-left / TwipsPerPixel);
    VScroll1.SetValue(-top / TwipsPerPixel);
}

void frmDocPreview::HScroll1_Change() {
    picture().SetLeft(-HScroll1.Value() * TwipsPerPixel);
}

void frmDocPreview::VScroll1_Change() {
    picture().SetTop(-VScroll1.Value() * TwipsPerPixel);
}

/// Returns false if a copy failed, after a message, or if the form was closed meanwhile.
bool frmDocPreview::copyPage() {
    for (auto* each : steps_) {
        Application::YieldToPainting();
        if (context_.forms.Loaded<frmDocPreview>() != this)
            return false;
        if (each->StretchFrom(picX))
            continue;
        Outside::Current().MsgBox("Error occurred in sizing images. Cannot continue", 0, "");
        return false;
    }
    return true;
}

void frmDocPreview::cmdPrint_Click() {
    const auto end = PrintReport(report(), marginTwips, marginTwips, marginTwips, marginTwips);
    if (!end)
        warn(end.refusal().sentence);
    else if (*end == PrintEnd::printed)
        Unload();
}

void frmDocPreview::cmdClose_Click() {
    Unload();
}

RichTextBox& frmDocPreview::report() {
    return context_.forms.Get<frmReport>().RTB;
}

}  // namespace trabeon
