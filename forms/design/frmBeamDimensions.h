// The editor for the size and materials of each section. Its Design button starts the design.
#pragma once

#include <set>
#include <utility>

#include "core/store/dimension_editing.h"
#include "forms/shared/row_editor.h"
#include "toolkit/controls/combo_box.h"
#include "toolkit/controls/frame.h"
#include "toolkit/controls/option_button.h"
#include "toolkit/windows/form.h"

namespace trabeon {

class frmBeamDimensions : public Form {
  public:
    static constexpr const char* Name = "frmBeamDimensions";

    explicit frmBeamDimensions(Context& context);

    Label lblMember{*this, "&Member"};
    ComboBox cboMember{*this};
    Frame Frame1{*this};
    OptionButton optUniform{Frame1, "Uniform Beam Size", true};
    OptionButton optVary{Frame1, "Varying Beam Size"};
    Label lblSection{Frame1, "&Section"};
    ComboBox cboSection{Frame1};
    Label lblbreadth{*this, "Breadth"};
    TextBox txtBreadth{*this};
    Label lbldepth{*this, "Depth"};
    TextBox txtDepth{*this};
    Label lbleffectivedepth{*this, "d'"};
    TextBox txtEffDepth{*this};
    Label lblfcu{*this, "fcu"};
    TextBox txtfcu{*this};
    Label lblfy{*this, "fy"};
    TextBox txtfy{*this};
    Label lblYM{*this, "E"};
    TextBox txtYM{*this};
    Label lblfyv{*this, "fyv"};
    TextBox txtfyv{*this};
    Button cmdAdd{*this, "&Add"};
    Button cmdRemove{*this, "&Remove"};
    Button Command1{*this, "Remove &All"};
    Button cmdDesign{*this, "&Design"};
    Label Label1{*this, "Assume All members & sects are inputed"};
    ListView ListView1{*this,
                       {{"Member", 1140},
                        {"Section", 780},
                        {"b", 615},
                        {"d", 615},
                        {"d'", 615},
                        {"fcu", 615},
                        {"fy", 615},
                        {"E", 900},
                        {"fyv", 615},
                        {"L", 600}}};

  protected:
    void Form_Load() override;
    void Form_Resize() override;

  private:
    void cmdAdd_Click();
    void cmdRemove_Click();
    void Command1_Click();
    void cmdDesign_Click();
    void optUniform_Click();
    void optVary_Click();
    void txtfyv_Change();

    void Adding(const SectionRange& SelectedSection, double MemLen);
    void rowShown(ListItem item, const BeamDimensionRow& row);
    void scrollTo(const BeamDimensionRow& row);
    void sortList();
    void placeControls();
    void wireBoxes();
    [[nodiscard]] double divisions() const;

    Context& context_;
    RowEditor<BeamDimensionRow> rows_;
    std::set<std::pair<double, double>> sectionsShown_;  // (member, section) of the rows so far
};

}  // namespace trabeon
