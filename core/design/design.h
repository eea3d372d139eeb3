// The design run: every section of every member, in order.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "core/analysis/result_state.h"
#include "core/design/design_data.h"
#include "core/design/design_results.h"
#include "core/design/misc_properties.h"
#include "core/outcome.h"

namespace trabeon {

/// The one set of values of a run, handed on from section to section. Nothing is reset in between
/// but DefNote: a value that a step does not set stays from the section before. So a section
/// without dimensions is designed as the one before it; once ShearFailed is set, every later
/// section shows the links of the last one that was given any. All is 0 and empty when a run
/// begins.
struct CarriedValues {
    double b = 0, d = 0, effd = 0, fcu = 0, fy = 0, YM = 0, fyv = 0, L = 0, dist = 0;
    double Moment = 0, Shear = 0, OriginMoment = 0, OriginShear = 0;
    double Asreq = 0, Aspreq = 0, MinTenRein = 0, MinCompRein = 0, MaxRein = 0;
    double Asprov = 0, Aspprov = 0;
    std::string MomentRein;
    double AsvOsvreq = 0, AsvOsvprov = 0;
    std::string ShearRein;
    double DefActual = 0, DefAllow = 0;
    std::string DefNote;
    bool ShearFailed = false;
};

/// Designs a section with the values of the one before it, and leaves its own. A section whose b,
/// effective depth, fcu, fy or fyv is not above 0, that has no station, or whose values are no
/// finite numbers, is not calculated: its results are 0, its bars and links empty, its note "No
/// Data".
[[nodiscard]] DesignRow designSection(std::size_t Member, std::size_t Section,
                                      CarriedValues& carried, const DesignData& data,
                                      const MiscProperties& misc);

/// The lines of all sections, and whether the shear stress of any was above its limit.
struct BeamDesign {
    std::vector<DesignRow> rows;
    bool ShearFailed = false;
};

[[nodiscard]] BeamDesign designBeam(const DesignData& data, const MiscProperties& misc);

/// Refuses Divisions that an analysis refuses, and properties that are no finite numbers.
[[nodiscard]] Failure unfitForDesign(double Divisions, const MiscProperties& misc);

/// Writes "DResult.txt" into a working folder anew, and records what the design was made from.
[[nodiscard]] Failure writeDesign(const std::filesystem::path& folder, const BeamDesign& design,
                                  double Divisions, const MiscProperties& misc);

/// What to show beside "DResult.txt": nothing if it was designed from the stations, dimensions and
/// properties that are there now, or is absent; otherwise that the beam is to be analysed again, or
/// designed again.
[[nodiscard]] std::string_view remarkOnDesign(const std::filesystem::path& folder, double Divisions,
                                              const MiscProperties& misc, Unrecorded unrecorded);

/// Designs the beam whose working files stand in a folder, analysed with the same Divisions, and
/// writes "DResult.txt".
[[nodiscard]] Outcome<BeamDesign> designFolder(const std::filesystem::path& folder,
                                               double Divisions, const MiscProperties& misc);

}  // namespace trabeon
