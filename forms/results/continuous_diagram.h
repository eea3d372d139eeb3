// The base class of the two continuous diagrams: the selected members, drawn end to end.
#pragma once

#include "forms/results/diagram.h"
#include "toolkit/controls/list_box.h"
#include "toolkit/controls/progress_bar.h"

namespace trabeon {

class ContinuousDiagram : public Diagram {
  public:
    ListBox List1{*this};

  protected:
    ContinuousDiagram(Context& context, const char* caption, const DiagramKind& kind,
                      const char* reportCaption);

    void Form_Load() override;
    void Form_Resize() override;
    void cmdPlot_Click() override;

    ProgressBar progress{*this};

  private:
    [[nodiscard]] std::vector<std::size_t> selectedMembers() const;
};

}  // namespace trabeon
