// Shear in a section: BS 8110: Part 1, clause 3.4.5. Lengths in mm, shears in kN, stresses in
// N/mm2, link areas per length (Asv / sv) in mm2/mm. d is the effective depth; inputs are above 0
// and finite.
#pragma once

#include <optional>
#include <string_view>

#include "core/design/section_data.h"

namespace trabeon {

/// The message for a section whose shear stress is above the limit.
inline constexpr std::string_view shearFailureSentence = "Please Increase bv or d of beam.";

/// v = V / (b d), clause 3.4.5.2.
[[nodiscard]] double shearStress(double b, double d, double Shear);

/// The most that v may be, equal allowed: the smaller of 0.87 sqrt(fcu) and 5. Departs from clause
/// 3.4.5.2, which has 0.8.
[[nodiscard]] double greatestShearStress(double fcu);

/// vc, the formula below table 3.8: 0.79 (100 Asprov / (b d))^(1/3) (400 / d)^(1/4) / 1.25 ×
/// (fcu / 25)^(1/3), the percentage at most 3, fcu at most 40. Departs from it: 400 / d is at most
/// 1, not at least 1; the last factor holds below fcu 25 too.
[[nodiscard]] double concreteShearStress(double b, double d, double fcu, double Asprov);

/// Asv / sv by table 3.7 for a stress v. Departs from it: a stress below 0.5 vc needs minimum links
/// too, as one up to vc + 0.4 does.
[[nodiscard]] double linksRequired(double b, double fyv, double v, double vc);

/// AsvOsvreq; nothing if the stress is above the limit. Asprov is that of the lower face, also
/// where the moment is hogging.
[[nodiscard]] std::optional<double> DesignShear(const SectionData& section, double Asprov);

}  // namespace trabeon
