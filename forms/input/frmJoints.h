// The editor for the joints of the beam, from left to right.
#pragma once

#include "forms/shared/row_editor.h"
#include "toolkit/controls/frame.h"
#include "toolkit/controls/picture_view.h"
#include "toolkit/windows/form.h"

namespace trabeon {

class frmJoints : public Form {
  public:
    static constexpr const char* Name = "frmJoints";

    explicit frmJoints(Context& context);

    Frame Frame1{*this};
    Label lblJoint{Frame1, "Cantilever"};
    PictureView WebJoint{Frame1};
    Button cmdBackJoint{Frame1, "< &Back"};
    Button cmdNextJoint{Frame1, "&Next >"};
    Label lblDescription{*this, "Joint Description"};
    TextBox txtDescription{*this, noDescription};
    Button cmdAddJoint{*this, "&Add >"};
    Button cmdRemove{*this, "< &Remove"};
    ListView ListView1{*this, {{"Joint", 1000}, {"Type", 1200}, {"Description of Joint", 1700}}};

  protected:
    void Form_Load() override;
    void Form_Resize() override;

  private:
    void cmdNextJoint_Click();
    void cmdBackJoint_Click();
    void cmdAddJoint_Click();
    void cmdRemove_Click();
    void txtDescription_GotFocus();
    void placeControls();
    void step(std::size_t forward);
    void showType();

    Context& context_;
    RowEditor<JointRow> rows_;
};

}  // namespace trabeon
