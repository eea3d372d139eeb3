// The title of the project. Its three boxes are the only place that keeps it.
#pragma once

#include "core/store/project_file.h"
#include "forms/shared/context.h"
#include "toolkit/controls/button.h"
#include "toolkit/controls/label.h"
#include "toolkit/controls/text_box.h"
#include "toolkit/windows/form.h"

namespace trabeon {

class frmTitle : public Form {
  public:
    static constexpr const char* Name = "frmTitle";

    explicit frmTitle(Context& context);

    [[nodiscard]] ProjectTitle Title() const;
    void SetTitle(const ProjectTitle& title);

    Label lblProject{*this, "Project Title"};
    TextBox txtProject{*this, ProjectTitle().project};
    Label lblDesigner{*this, "Designer"};
    TextBox txtDesigner{*this, ProjectTitle().designer};
    Label lblBeamName{*this, "Beam Name"};
    TextBox txtBeamName{*this, ProjectTitle().beamName};
    Button cmdOK{*this, "&Ok"};

  protected:
    void Form_Load() override;
    void ClosedByUser() override;

  private:
    void cmdOK_Click();
    void txt_Change();

    Context& context_;
};

}  // namespace trabeon
