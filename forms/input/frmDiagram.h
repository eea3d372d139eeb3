// The picture of the beam as entered, drawn afresh from the files at each change of size.
#pragma once

#include "forms/main/context.h"
#include "toolkit/button.h"
#include "toolkit/form.h"
#include "toolkit/picture_box.h"

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
