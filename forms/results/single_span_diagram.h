// The diagram of one member, with its value table beside it.
#pragma once

#include <optional>
#include <utility>

#include "forms/results/diagram.h"
#include "toolkit/controls/combo_box.h"

namespace trabeon {

class SingleSpanDiagram : public Diagram {
  public:
    ComboBox cboMember{*this};

    /// Left and top of the value table that the present plot took away.
    [[nodiscard]] std::optional<std::pair<int, int>> tablePlace() const { return tablePlace_; }

    /// Shows no member's curve, as before the first choice; the value table is loaded anew.
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
