#include "core/store/member_length.h"

#include "core/store/rows.h"
#include "core/text/number_text.h"

namespace trabeon {

double memberLength(const std::filesystem::path& folder, std::size_t member) {
    const auto members = readRows<MemberRow>(folder);
    return member >= 1 && member <= members.size() ? leadingNumber(members[member - 1].L) : 0;
}

}  // namespace trabeon
