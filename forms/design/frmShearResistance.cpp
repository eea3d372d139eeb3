#include "forms/design/frmShearResistance.h"

#include "core/design/reinforcement_tables.h"
#include "core/store/working_files.h"

namespace trabeon {

frmShearResistance::frmShearResistance(Context& context)
    : TableForm(context, "Shear Resistance for Links",
                {{"Spacing", 1350},
                 {"6", 1275},
                 {"8", 1275},
                 {"10", 1275},
                 {"12", 1275},
                 {"14", 1275},
                 {"16", 1275}},
                margin) {}

void frmShearResistance::Form_Load() {
    Move(0, 0, 9645, 6090);
    AsvOSvCal();
}

void frmShearResistance::AsvOSvCal() {
    BuildTable(writeLinkResistances, working_file::linkResistances);
}

}  // namespace trabeon
