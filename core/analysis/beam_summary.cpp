#include "core/analysis/beam_summary.h"

#include <array>
#include <cstdio>

#include "core/store/rows.h"
#include "core/text/number_text.h"

namespace trabeon {

BeamSummary beamSummary(const std::filesystem::path& folder) {
    const auto members = readRows<MemberRow>(folder);
    double length = 0;
    for (const auto& member : members)
        length += leadingNumber(member.L);
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.6g", length);
    return {readRows<JointRow>(folder).size(), members.size(), text.data()};
}

}  // namespace trabeon
