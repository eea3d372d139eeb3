// The editor for point loads. Each acts on a member at a distance from its left end.
#pragma once

#include "forms/input/load_form.h"

namespace trabeon {

class frmPoint : public LoadForm<PointRow> {
  public:
    static constexpr const char* Name = "frmPoint";

    explicit frmPoint(Context& context);

    Label lblPtA{*this, "Distance From Left Support, a"};
    TextBox txtPtA{*this};
    Label lblPtLoad{*this, "Point Load, P"};
    TextBox txtPtLoad{*this};
    Label lblDescribe{*this, "Load Description"};
    TextBox txtPtD{*this, noDescription};
    PictureBox picPt{*this};

  protected:
    void Form_Load() override;

  private:
    void cmdAdd_Click();
    void DrawPt();
    void txtPtD_KeyPress(int keyAscii);
    void placeControls();
    void wireBoxes();
};

}  // namespace trabeon
