// Starts the analysis and shows its balance table.
#pragma once

#include "core/analysis/analysis.h"
#include "forms/main/context.h"
#include "toolkit/button.h"
#include "toolkit/form.h"
#include "toolkit/progress_bar.h"
#include "toolkit/text_view.h"

namespace trabeon {

class frmAnalysis : public Form {
  public:
    static constexpr const char* Name = "frmAnalysis";

    explicit frmAnalysis(Context& context);

    /// Shows "TB.txt" as it stands in the working folder.
    void ShowTable();

    Button cmdAnalyse{*this, "&Analyse"};
    ProgressBar PBAnalysis{*this};
    TextView txtTBResults{*this};

  protected:
    void Form_Load() override;
    void Form_Resize() override;

  private:
    void cmdAnalyse_Click();
    void refillLoads(const Analysis& analysis);

    Context& context_;
};

}  // namespace trabeon
