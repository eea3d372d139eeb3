// The longitudinal steel of a rectangular section: BS 8110: Part 1, clause 3.4.4.4. Lengths in mm,
// moments in kNm, stresses in N/mm2, areas in mm2. d is the effective depth throughout; inputs are
// above 0 and finite.
#pragma once

#include "core/design/misc_properties.h"
#include "core/design/reinforcement.h"
#include "core/design/section_data.h"

namespace trabeon {

/// K' of clause 3.4.4.4: from this K on the section has compression steel.
inline constexpr double greatestSinglyReinforcedK = 0.156;

/// K = M / (b d² fcu).
[[nodiscard]] double bendingRatio(double b, double d, double fcu, double Moment);

/// z = d (0.5 + sqrt(0.25 - K / 0.9)). Departs from the clause: at most 0.9 d, not 0.95 d. K is at
/// most 0.225.
[[nodiscard]] double leverArm(double d, double K);

/// The depth d' of the compression steel, cover + 25 / 2: its bar counts as one of 25 mm. Links are
/// left out.
[[nodiscard]] double compressionSteelDepth(double cover);

/// The stress fsc of compression steel at the depth d' when K is K': 0.87 fy; where d' / d is above
/// 0.215, the strain 0.0035 (x - d') / x times the steel's modulus YM.
[[nodiscard]] double compressionSteelStress(double d, double dPrime, double fy, double YM);

/// Steel of the tension face and of the compression face.
struct SteelAreas {
    double As = 0, Asp = 0;
};

/// The steel for the moment without its sign. Departs from the clause: the tension steel carries
/// the compression steel at its full area, also where fsc is below 0.87 fy. Not finite where d' is
/// d or x, or YM is 0, in a section that needs compression steel.
[[nodiscard]] SteelAreas steelFor(const SectionData& section, double dPrime);

/// Sets d to effd, and returns the steel required, Asreq and Aspreq. OriginMoment says which face
/// is in tension: the lower one if it is 0 or more.
[[nodiscard]] Reinforcement DesignMoment(SectionData& section, const MiscProperties& misc);

/// The least steel of the tension face and of the compression face.
struct MinimumSteel {
    double MinTenRein = 0, MinCompRein = 0;
};

/// Clause 3.12.5: for fy up to 250 0.24 % and 0.2 %, above it 0.2 % and 0.2 %. Departs from it: of
/// the effective section b d, not of the gross one; 0.2 % for strong tension steel, not 0.13 %; and
/// for the compression face always.
[[nodiscard]] MinimumSteel MinReinforcement(double fy, double b, double d);

/// MaxRein, 4 % (clause 3.12.6), but of the effective section. No area is compared with it.
[[nodiscard]] double MaxReinforcement(double b, double d);

/// Raises the steel required in each face to its minimum. OriginMoment says which face is in
/// tension.
void raiseToMinimum(double OriginMoment, const MinimumSteel& minimum, Reinforcement& steel);

}  // namespace trabeon
