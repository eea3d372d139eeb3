// The editor for the members of the beam, from left to right. E, I and L are in the user's units.
#pragma once

#include "forms/shared/row_editor.h"
#include "toolkit/windows/form.h"

namespace trabeon {

class frmMembers : public Form {
  public:
    static constexpr const char* Name = "frmMembers";

    explicit frmMembers(Context& context);

    Label lblYM{*this, "Young's Modulus,E "};
    TextBox txtYM{*this};
    Label lblMI{*this, "Moment of Inerrtia, I"};
    TextBox txtMI{*this};
    Label lblLength{*this, "Length, L"};
    TextBox txtLength{*this};
    Label lblMemberD{*this, "Member Description"};
    TextBox txtMemberD{*this, noDescription};
    Button cmdAddJoint{*this, "&Add >"};
    Button cmdRemove{*this, "< &Remove"};
    Button cmdDiagram{*this, "&Diagram"};
    ListView ListView1{*this,
                       {{"Member", 1050},
                        {"E", 820},
                        {"I", 820},
                        {"Length", 820},
                        {"Description of Member", 1900}}};

  protected:
    void Form_Load() override;
    void Form_Resize() override;

  private:
    void cmdAddJoint_Click();
    void cmdRemove_Click();
    void cmdDiagram_Click();
    void txtMemberD_GotFocus();
    void txtMemberD_KeyPress(int keyAscii);
    void placeControls();
    void wireNumberBoxes();
    [[nodiscard]] bool lacksValue() const;

    Context& context_;
    RowEditor<MemberRow> rows_;
};

}  // namespace trabeon
