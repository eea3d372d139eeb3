// Reads any bytes as a project file. They are refused with a sentence, or packing and reading them
// again gives the same project.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "core/store/project_file.h"
#include "fuzz/require.h"
#include "fuzz/same_rows.h"

namespace {

using trabeon::Project;
using trabeon::fuzz::require;
using trabeon::fuzz::sameRows;

/// False for a title that a save refuses. All other titles can be read back.
bool canBeSaved(const trabeon::ProjectTitle& title) {
    return (title.project + title.designer + title.beamName).find_first_of("\"\r\n") ==
           std::string::npos;
}

void requireSame(const Project& a, const Project& b) {
    require(a.title.project == b.title.project && a.title.designer == b.title.designer &&
                a.title.beamName == b.title.beamName,
            "the title comes back");
    require(sameRows<trabeon::JointRow>(a.joints, b.joints), "the joints come back");
    require(sameRows<trabeon::MemberRow>(a.members, b.members), "the members come back");
    require(sameRows<trabeon::PointRow>(a.points, b.points), "the point loads come back");
    require(sameRows<trabeon::UdlRow>(a.udls, b.udls), "the distributed loads come back");
    require(a.balanceTable == b.balanceTable, "the table comes back");
    require(a.beamDimensions == b.beamDimensions, "the beam dimensions come back");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const auto project = trabeon::unpackedProject(text);
    if (!project) {
        require(!project.refusal().sentence.empty(), "a refusal has a sentence");
        return 0;
    }
    if (!canBeSaved(project->title))
        return 0;
    const auto again = trabeon::unpackedProject(trabeon::packedText(*project));
    require(static_cast<bool>(again), "what was accepted is accepted again");
    requireSame(*project, *again);
    return 0;
}
