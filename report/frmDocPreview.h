// The print preview of the report, with five zoom steps. Each page is drawn once at full size. A
// copy for each zoom step makes zooming fast.
#pragma once

#include <array>
#include <vector>

#include "forms/shared/context.h"
#include "toolkit/controls/button.h"
#include "toolkit/controls/combo_box.h"
#include "toolkit/controls/label.h"
#include "toolkit/controls/picture_box.h"
#include "toolkit/controls/scroll_bar.h"
#include "toolkit/controls/text_box.h"
#include "toolkit/pages/rich_text_box.h"
#include "toolkit/windows/form.h"

namespace trabeon {

class frmDocPreview : public Form {
  public:
    static constexpr const char* Name = "frmDocPreview";

    explicit frmDocPreview(Context& context);

    Button cmdPrint{*this, "Print"};
    Button cmdClose{*this, "Close"};
    Button cmdZoomIn{*this, "+"};
    Button cmdZoomOut{*this, "-"};
    ComboBox cboScale{*this};
    Button cmdPrevPage{*this, "<"};
    ComboBox cboPageno{*this};
    Button cmdNextPage{*this, ">"};
    TextBox txtTotalPages{*this};
    PictureBox picZ{*this};
    PictureBox picX{viewport()};
    PictureBox pic1{viewport()}, pic2{viewport()}, pic3{viewport()}, pic4{viewport()},
        pic5{viewport()};
    ScrollBar HScroll1{*this, Direction::Horizontal};
    ScrollBar VScroll1{*this, Direction::Vertical};

    /// Breaks the lines of the control as on the sheet. Returns the line width in twips.
    int DocWYSIWYG(RichTextBox& inControl);
    /// Returns the number of pages. Keeps the start of each page, so that showing one page does not
    /// lay out the others.
    [[nodiscard]] int PageCtnProc(const PictureBox& picture);
    /// Draws page `InPage`, from 1. A larger number draws the last page.
    void FormPreviewPage(PictureBox& picture, int InPage);

  protected:
    void Form_Load() override;

  private:
    // As a PictureBox, it would select the copy constructor of the boxes inside it.
    [[nodiscard]] Container& viewport() { return picZ; }

    void cboPageno_Click();
    void cmdPrevPage_Click();
    void cmdNextPage_Click();
    void cboScale_Click();
    void cmdZoomIn_Click();
    void cmdZoomOut_Click();
    void HScroll1_Change();
    void VScroll1_Change();
    void cmdPrint_Click();
    void cmdClose_Click();

    void placeControls();
    void nameControls();
    void sizePictures();
    void fillLists();
    void turnPage(int entries);
    void showPage();
    void setPageButtons();
    void zoomTo(int step);
    void setZoomButtons();
    void showStep();
    [[nodiscard]] bool copyPage();
    [[nodiscard]] PageFormat formatFor(const PictureBox& picture) const;
    [[nodiscard]] RichTextBox& report();
    [[nodiscard]] PictureBox& picture() { return *steps_.at(static_cast<std::size_t>(step_) - 1); }

    Context& context_;
    std::array<PictureBox*, 5> steps_{&pic1, &pic2, &pic3, &pic4, &pic5};
    int step_ = 5;
    int totalPages_ = 1;
    std::vector<int> pageStarts_;
    TwipsRect sheetText_;  // the text area of the sheet, in twips
};

}  // namespace trabeon
