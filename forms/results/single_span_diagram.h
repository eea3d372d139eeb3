// The base class of the two diagrams of one member. Each opens a value table.
#pragma once

#include <optional>
#include <utility>

#include "forms/results/diagram.h"
#include "toolkit/controls/combo_box.h"

namespace trabeon {

class SingleSpanDiagram : public Diagram {
  public:
    ComboBox cboMember{*this};

    /// Left and top, in twips, of the value table that the latest plot closed. Empty if none was
    /// open.
    [[nodiscard]] std::optional<std::pair<int, int>> tablePlace() const { return tablePlace_; }

    /// Clears the chart and the selection, and loads the value table again.
    void Empty();

  protected:
    SingleSpanDiagram(Context& context, const char* caption, const DiagramKind& kind,
                      const char* valueTable);

    void Form_Load() override;
    void Form_Resize() override;
    void cmdPlot_Click() override;
    [[nodiscard]] std::string subject() const override;

  private:
    void openValueTable();

    const char* valueTable_;
    std::optional<std::pair<int, int>> tablePlace_;
};

}  // namespace trabeon
