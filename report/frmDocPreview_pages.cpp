// The pages of the preview: layout, count, drawing and sizes.
#include <algorithm>
#include <cmath>

#include "report/frmDocPreview.h"
#include "report/margins.h"
#include "report/pages.h"
#include "toolkit/look/look.h"
#include "toolkit/outside/outside.h"

namespace trabeon {
namespace {

// Length scales of the zoom steps. Step 1, "150", has 1.5 times the area of the page.
const std::array<double, 5> factors{std::sqrt(1.5), 1, 0.75, 0.5, 0.25};
constexpr Colour paperWhite = 0xffffff;

int wholePixels(double pixels) {
    return static_cast<int>(std::lround(pixels)) * TwipsPerPixel;
}

}  // namespace

int frmDocPreview::DocWYSIWYG(RichTextBox& inControl) {
    const Paper paper = Outside::Current().DefaultPaper();
    const int width = paper.Width - (gRightMargin + gLeftMargin) * twipsPerInch;
    const int height = paper.Height - (gTopMargin + gBottomMargin) * twipsPerInch;
    inControl.SetLineWidth(width);
    sheetText_ = {0, 0, width, height};
    return width;
}

/// The target is the text area of the sheet, so that pages break as on paper.
PageFormat frmDocPreview::formatFor(const PictureBox& picture) const {
    PageFormat format;
    format.page = {0, 0, picture.Width(), picture.Height()};
    format.drawing = {gLeftMargin * twipsPerInch, gTopMargin * twipsPerInch,
                      format.page.right - gRightMargin * twipsPerInch,
                      format.page.bottom - gBottomMargin * twipsPerInch};
    format.target = sheetText_;
    return format;
}

int frmDocPreview::PageCtnProc(const PictureBox& picture) {
    PageFormat format = formatFor(picture);
    RichTextBox& RTB = report();
    pageStarts_ = splitIntoPages(RTB.TextLength(), [&](int first) {
                      format.first = first;
                      return RTB.FormatRange(nullptr, format);
                  }).starts;
    return static_cast<int>(pageStarts_.size());
}

void frmDocPreview::FormPreviewPage(PictureBox& picture, int InPage) {
    PageFormat format = formatFor(picture);
    const auto last = static_cast<int>(pageStarts_.size());
    format.first = pageStarts_[static_cast<std::size_t>(std::clamp(InPage, 1, last)) - 1];
    PictureCanvas canvas(picture.Width(), picture.Height());
    report().FormatRange(&canvas, format);
    picture.SetPicture(canvas.Picture());
}

void frmDocPreview::sizePictures() {
    const Paper paper = Outside::Current().DefaultPaper();
    const double wide = double(paper.ScaleWidth) / TwipsPerPixel;
    const double high = double(paper.ScaleHeight) / TwipsPerPixel;
    picX.Move(0, 0, wholePixels(wide), wholePixels(high));
    for (std::size_t i = 0; i < steps_.size(); ++i)
        steps_[i]->Move(0, 0, wholePixels(wide * factors[i]), wholePixels(high * factors[i]));
}

void frmDocPreview::placeControls() {
    SetScaleSize(9570, 6390);
    constexpr int top = 180;
    constexpr int high = 375;
    cmdPrint.Move(90, top, 1005, high);
    cmdClose.Move(1140, top, 1005, high);
    cmdZoomIn.Move(2370, top, high, high);
    cmdZoomOut.Move(2790, top, high, high);
    cboScale.Move(3210, top, 1005, high);
    cmdPrevPage.Move(4440, top, high, high);
    cboPageno.Move(4860, top, 1005, high);
    cmdNextPage.Move(5910, top, high, high);
    txtTotalPages.Move(6510, top, 1500, high);
    picZ.Move(0, 720, 9390, 5415);
    VScroll1.Move(9390, 720, 180, 5415);
    HScroll1.Move(0, 6135, 9390, 255);
    for (auto* bar : {&HScroll1, &VScroll1}) {
        bar->SetRange(0, 1000);
        bar->SetSteps(50, 100);
    }
    picZ.SetBackColor(HighlightColour);
    picX.SetVisible(false);
    for (auto* each : steps_)
        each->SetBackColor(paperWhite);
    txtTotalPages.SetLocked(true);
}

void frmDocPreview::nameControls() {
    cmdZoomIn.SetAccessibleName("Zoom in");
    cmdZoomOut.SetAccessibleName("Zoom out");
    cboScale.SetAccessibleName("Size in per cent");
    cmdPrevPage.SetAccessibleName("Page before");
    cboPageno.SetAccessibleName("Page");
    cmdNextPage.SetAccessibleName("Next page");
    txtTotalPages.SetAccessibleName("Number of pages");
    HScroll1.SetAccessibleName("Across the page");
    VScroll1.SetAccessibleName("Down the page");
    for (auto* each : steps_)
        each->SetAccessibleName("The page");
    SetTabOrder({&cmdPrint, &cmdClose, &cmdZoomIn, &cmdZoomOut, &cboScale, &cmdPrevPage, &cboPageno,
                 &cmdNextPage, &txtTotalPages, &HScroll1, &VScroll1});
}

}  // namespace trabeon
