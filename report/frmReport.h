// The report: a text box with the pictures that other forms add. The user cannot type into it.
#pragma once

#include "forms/shared/context.h"
#include "toolkit/controls/vertical_button.h"
#include "toolkit/pages/rich_text_box.h"
#include "toolkit/windows/form.h"

namespace trabeon {

class frmReport : public Form {
  public:
    static constexpr const char* Name = "frmReport";

    explicit frmReport(Context& context);

    RichTextBox RTB{*this};
    VerticalButton cmdCut{*this, "&Cut"};
    VerticalButton cmdWP{*this, "Send To WordPad"};
    MenuEntry mnufilepreview, mnuSave, mnufileexit;

    /// Pastes the clipboard's picture at the caret.
    void Add();

  protected:
    void Form_Load() override;
    void Form_Resize() override;
    void ClosedByUser() override;

  private:
    void cmdCut_Click();
    void cmdWP_Click();
    void mnufilepreview_Click();
    void mnuSave_Click();
    void mnufileexit_Click();
    void SaveReport();

    Context& context_;
    std::string path_;  // of the last saved report
};

}  // namespace trabeon
