// The diagram of the structure. Each resize reads the files and draws it again.
#pragma once

#include "forms/shared/context.h"
#include "toolkit/controls/button.h"
#include "toolkit/controls/picture_box.h"
#include "toolkit/windows/form.h"

namespace trabeon {

class frmDiagram : public Form {
  public:
    static constexpr const char* Name = "frmDiagram";

    explicit frmDiagram(Context& context);

    PictureBox picContBeam{*this};
    Button cmdReport{*this, "Add To Repor&t"};

  protected:
    void Form_Load() override;
    void Form_Resize() override;

  private:
    void cmdReport_Click();

    Context& context_;
};

}  // namespace trabeon
