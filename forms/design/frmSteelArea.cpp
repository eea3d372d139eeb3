#include "forms/design/frmSteelArea.h"

#include "core/design/reinforcement_tables.h"
#include "core/store/working_files.h"

namespace trabeon {
namespace {

constexpr int sizeWidth = 1050;
constexpr int areaWidth = 765;

std::vector<ListColumn> columns() {
    std::vector<ListColumn> all{{"Size (mm)", sizeWidth}};
    for (int count = 1; count <= 10; ++count)
        all.push_back({std::to_string(count), areaWidth});
    return all;
}

}  // namespace

frmSteelArea::frmSteelArea(Context& context)
    : TableForm(context, "Area of Given Number of Bars", columns(), 405) {
    Label1.Move(margin + sizeWidth + 60, 105, 3000, 255);
}

void frmSteelArea::Form_Load() {
    Move(0, 0, 9330, 4545);
    BuildTable(writeSteelAreas, working_file::steelAreas);
}

}  // namespace trabeon
