// The design run: every section of every member, in order.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "core/analysis/result_state.h"
#include "core/design/design_data.h"
#include "core/design/design_results.h"
#include "core/design/links.h"
#include "core/design/misc_properties.h"
#include "core/outcome.h"

namespace trabeon {

/// The values of a design run that pass from section to section. They change only where a section
/// sets them: a section without dimensions is designed with those of the section before it, and
/// once ShearFailed is set, every later section shows the links of the last one that got any. All
/// is 0 and empty when a run begins.
struct CarriedValues {
    SectionData section;
    double AsvOsvreq = 0;
    ShearLinks links;
    bool ShearFailed = false;
};

/// Designs a section with the values of the section before it, and sets those for the next one. A
/// section is not calculated if its b, effective depth, fcu, fy or fyv is not above 0, if it has no
/// station, or if a value is not a finite number. Its results are then 0, its bars and links empty,
/// and its note is "No Data".
[[nodiscard]] DesignRow designSection(std::size_t Member, std::size_t Section,
                                      CarriedValues& carried, const DesignData& data,
                                      const MiscProperties& misc);

/// The lines of all sections, and whether the shear stress of any section was above its limit.
struct BeamDesign {
    std::vector<DesignRow> rows;
    bool ShearFailed = false;
};

[[nodiscard]] BeamDesign designBeam(const DesignData& data, const MiscProperties& misc);

/// Refuses Divisions that an analysis refuses, and properties that are not finite numbers.
[[nodiscard]] Objection checkDesignSettings(double Divisions, const MiscProperties& misc);

/// Replaces "DResult.txt" in a working folder, and records what the design was made from.
[[nodiscard]] Status writeDesign(const std::filesystem::path& folder, const BeamDesign& design,
                                 double Divisions, const MiscProperties& misc);

/// What to show next to "DResult.txt". Nothing if the file is absent, or was designed from the
/// stations, dimensions and properties that are there now. Otherwise that the user must analyse or
/// design the beam again.
[[nodiscard]] std::string_view remarkOnDesign(const std::filesystem::path& folder, double Divisions,
                                              const MiscProperties& misc);

/// Designs the beam whose working files are in a folder and were made with the same Divisions, and
/// writes "DResult.txt".
[[nodiscard]] Outcome<BeamDesign> designFolder(const std::filesystem::path& folder,
                                               double Divisions, const MiscProperties& misc);

}  // namespace trabeon
