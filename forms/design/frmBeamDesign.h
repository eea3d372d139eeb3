// The results of the design, one row for each section. Failed sections are marked.
#pragma once

#include "forms/settings/remark.h"
#include "forms/shared/context.h"
#include "toolkit/controls/list_view.h"
#include "toolkit/windows/form.h"

namespace trabeon {

class frmBeamDesign : public Form {
  public:
    static constexpr const char* Name = "frmBeamDesign";

    explicit frmBeamDesign(Context& context);

    /// Fills the list from "DResult.txt". A remark below the list says if the beam has changed
    /// since that design.
    void AddtoListbox();

    ListView ListView1{*this,
                       {{"Member", 690},
                        {"x", 465, "Distance from the left joint of the member, m"},
                        {"As req", 435, "Tension steel required, mm2"},
                        {"As'req", 555, "Compression steel required, mm2"},
                        {"As prov", 450, "Tension steel provided, mm2"},
                        {"As'prov", 585, "Compression steel provided, mm2"},
                        {"Max Rein", 525, "Greatest area of steel allowed, mm2"},
                        {"Reinf", 1215, "Bars: number, kind and diameter in mm"},
                        {"As/sv req", 495, "Links required: area to spacing, mm2/mm"},
                        {"As/sv prov", 495, "Links provided: area to spacing, mm2/mm"},
                        {"Reinf", 900, "Links: kind, diameter and spacing in mm"},
                        {"Def Actual", 510, "Span to effective depth ratio of the member"},
                        {"Def Allow", 480, "Greatest span to effective depth ratio allowed"},
                        {"Def Note", 1455}}};
    RemarkStrip remark{*this};

  protected:
    void Form_Load() override;
    void Form_Resize() override;

  private:
    Context& context_;
};

}  // namespace trabeon
