// Starts the analysis and shows its balance table.
#pragma once

#include "core/analysis/analysis.h"
#include "forms/shared/context.h"
#include "toolkit/controls/button.h"
#include "toolkit/controls/progress_bar.h"
#include "toolkit/controls/text_table.h"
#include "toolkit/windows/form.h"

namespace trabeon {

class frmAnalysis : public Form {
  public:
    static constexpr const char* Name = "frmAnalysis";

    explicit frmAnalysis(Context& context);

    /// Shows "TB.txt" of the working folder.
    void ShowTable();

    Button cmdAnalyse{*this, "&Analyse"};
    ProgressBar PBAnalysis{*this};
    TextTable txtTBResults{*this};

  protected:
    void Form_Load() override;
    void Form_Resize() override;

  private:
    void cmdAnalyse_Click();

    Context& context_;
};

}  // namespace trabeon
