// The results of the design run, a row for each section; what failed stands out.
#pragma once

#include "forms/main/context.h"
#include "toolkit/form.h"
#include "toolkit/list_view.h"

namespace trabeon {

class frmBeamDesign : public Form {
  public:
    static constexpr const char* Name = "frmBeamDesign";

    explicit frmBeamDesign(Context& context);

    /// Fills the list from "DResult.txt".
    void AddtoListbox();

    ListView ListView1{*this,
                       {{"Member", 690},
                        {"x", 465},
                        {"As req", 435},
                        {"As'req", 570},
                        {"As prov", 450},
                        {"As'prov", 600},
                        {"Max Rein", 450},
                        {"Reinf", 1215},
                        {"As/sv req", 495},
                        {"As/sv prov", 495},
                        {"Reinf", 900},
                        {"Def Actual", 510},
                        {"Def Allow", 480},
                        {"Def Note", 1500}}};

  protected:
    void Form_Load() override;
    void Form_Resize() override;

  private:
    Context& context_;
};

}  // namespace trabeon
