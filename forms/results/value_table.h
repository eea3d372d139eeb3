// The base class of the value tables: the stations of the member that a diagram form shows.
#pragma once

#include "core/store/station_reader.h"
#include "forms/results/single_span_diagram.h"
#include "forms/settings/remark.h"
#include "toolkit/controls/list_view.h"

namespace trabeon {

class ValueTable : public Form {
  public:
    ListView ListView1;
    RemarkStrip remark{*this};

  protected:
    ValueTable(Context& context, const char* caption, const char* heading, StationField field);

    void Form_Load() override;
    void Form_Resize() override;

    /// The diagram form that selects the member.
    [[nodiscard]] virtual SingleSpanDiagram& diagram() const = 0;
    [[nodiscard]] Context& context() const { return context_; }

  private:
    /// Lists the rows of the member and marks the row of its maximum.
    void fill(std::size_t rowsPerMember);

    Context& context_;
    StationField field_;
};

}  // namespace trabeon
