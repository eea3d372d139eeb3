#include "forms/results/value_table.h"

#include <algorithm>
#include <cmath>

#include "core/store/maximum_rows.h"
#include "core/store/working_files.h"
#include "core/text/number_text.h"

namespace trabeon {
namespace {

/// Generated number text. A text that is not a finite number stays as it is.
std::string distanceText(std::string_view text) {
    const double x = leadingNumber(text);
    return std::isfinite(x) ? generatedText(x) : std::string(text);
}

}  // namespace

ValueTable::ValueTable(Context& context, const char* caption, const char* heading,
                       StationField field)
    : Form(caption),
      ListView1(*this, {{"X", 1235}, {heading, 2540}}),
      context_(context),
      field_(field) {
    ListView1.SetFont("Times New Roman", 8.25, true);
    ListView1.SetMultiSelect(true);
    ListView1.SetAccessibleName(caption);
}

void ValueTable::Form_Load() {
    SetHeight(4000);
    SetWidth(3600);
    if (const auto place = diagram().tablePlace()) {
        SetLeft(place->first);
        SetTop(place->second);
    }
    const auto rows =
        stationRowsOf(context_.forms.InTheBackground<frmOptions>().Settings().Divisions);
    ListView1.ListItems.Clear();
    fill(rows);
    remark.Say(stationsRemark(context_));
    ListView1.SetGridLines(true);
}

void ValueTable::fill(std::size_t rowsPerMember) {
    const auto stations = readWhole(context_.folder / working_file::stations);
    const auto records = readWhole(context_.folder / working_file::maxima);
    const auto maxima = MaximumRows::read(records);
    const auto member = static_cast<std::size_t>(std::max(1, diagram().cboMember.ListIndex() + 1));
    bool marked = false;
    for (const auto& row : stationRows(stations, rowsPerMember, member)) {
        auto item = ListView1.ListItems.Add(distanceText(row.x));
        item.SetSubItems(1, std::string(row.*field_));
        if (marked || !maxima.contain(member, row))
            continue;
        item.SetMark("max");
        item.SetToolTip("The row of the member's maximum bending moment");
        marked = true;
    }
}

void ValueTable::Form_Resize() {
    ListView1.Move(0, 0, ScaleWidth(), ScaleHeight() - 500);
    remark.Place(ScaleWidth(), ScaleHeight());
}

}  // namespace trabeon
