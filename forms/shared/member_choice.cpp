#include "forms/shared/member_choice.h"

#include "core/store/rows.h"
#include "core/store/working_files.h"
#include "core/text/number_text.h"
#include "toolkit/controls/combo_box.h"

namespace trabeon {

void fillMembers(const Context& context, ComboBox& choice) {
    const auto members = readRows<MemberRow>(context.folder).size();
    for (std::size_t k = 1; k <= members; ++k)
        choice.AddItem("Member" + generatedText(k));
}

}  // namespace trabeon
