// The report page by page, as it will be on paper, at five zoom steps. A page is drawn once, at
// full size, and copied to a picture for each step: a change of the zoom draws nothing.
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

    /// Ties the control's line breaks to the sheet; gives the line width in twips.
    int DocWYSIWYG(RichTextBox& inControl);
    /// Counts the pages and keeps where each begins, so that going to one costs no other.
    [[nodiscard]] int PageCtnProc(const PictureBox& picture);
    /// Draws page InPage, from 1, or the last one if there are fewer.
    void FormPreviewPage(PictureBox& picture, int InPage);

  protected:
    void Form_Load() override;

  private:
    // Else the boxes inside would be taken for copies of it.
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
    TwipsRect sheetText_;  // the area that the sheet gives to the text
};

}  // namespace trabeon
