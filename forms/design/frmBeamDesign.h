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
                       {{"Member", 765},
                        {"x", 525},
                        {"As req", 495},
                        {"As'req", 495},
                        {"As prov", 525},
                        {"As'prov", 570},
                        {"Max Rein", 555},
                        {"Reinf", 1245},
                        {"As/sv req", 615},
                        {"As/sv prov", 615},
                        {"Reinf", 840},
                        {"Def Actual", 600},
                        {"Def Allow", 540},
                        {"Def Note", 1800}}};

  protected:
    void Form_Load() override;
    void Form_Resize() override;

  private:
    Context& context_;
};

}  // namespace trabeon
