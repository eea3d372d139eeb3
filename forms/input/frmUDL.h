// The editor for distributed loads. Each is a trapezoid; a uniform load has equal ends.
#pragma once

#include "forms/input/load_form.h"

namespace trabeon {

class frmUDL : public LoadForm<UdlRow> {
  public:
    static constexpr const char* Name = "frmUDL";

    explicit frmUDL(Context& context);

    Label lbla{*this, "Start Load Distance From Left Support, a"};
    TextBox txtUdlA{*this};
    Button cmdPlus{*this, "Command1"};
    Label lblb{*this, "Width of Load, b"};
    TextBox txtUDLB{*this};
    Button cmdL{*this, "Command1"};
    Label lblw1{*this, "Start Load, w1"};
    TextBox txtUDLw1{*this};
    Label lblw2{*this, "End Load, w2"};
    TextBox txtUDLw2{*this};
    Label lblUDLD{*this, "Load Description"};
    TextBox txtUDLD{*this, noDescription};
    PictureBox picUDL{*this};

  protected:
    void Form_Load() override;

  private:
    void cboMember_KeyPress(int& keyAscii);
    void txtUdlA_KeyPress(int& keyAscii);
    void txtUDLB_KeyPress(int& keyAscii);
    void txtUDLD_KeyPress(int keyAscii);
    void txtUDLD_GotFocus();
    void cmdPlus_Click();
    void cmdL_Click();
    void cmdAdd_Click();
    void DrawUDL();
    void placeControls();
    void wireBoxes();
    [[nodiscard]] bool breaksSignRule() const;

    std::array<TextBox*, 4> numberBoxes_{&txtUdlA, &txtUDLB, &txtUDLw1, &txtUDLw2};
};

}  // namespace trabeon
