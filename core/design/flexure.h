// The longitudinal steel of a rectangular section: BS 8110: Part 1, clause 3.4.4.4. Lengths in mm,
// moments in kNm, stresses in N/mm2, areas in mm2. d is the effective depth throughout; inputs are
// above 0 and finite.
#pragma once

#include "core/design/misc_properties.h"

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

/// The stress fsc of compression steel at the depth d' when K is K': 0.87 fy, or with d' / d above
/// 0.215 what the strain 0.0035 (x - d') / x gives with the steel's modulus YM.
[[nodiscard]] double compressionSteelStress(double d, double dPrime, double fy, double YM);

/// Steel of the tension face and of the compression face.
struct SteelAreas {
    double As = 0, Asp = 0;
};

/// The steel for a moment of 0 or more. Departs from the clause: the tension steel carries the
/// compression steel at its full area, also where fsc is below 0.87 fy. Not finite where d' is d or
/// x, or YM is 0, in a section that needs compression steel.
[[nodiscard]] SteelAreas steelFor(double b, double d, double fcu, double fy, double YM,
                                  double Moment, double dPrime);

/// Sets d to effd, and Asreq and Aspreq to the steel of the lower and the upper face: OriginMoment,
/// 0 or more when sagging, says which one is in tension. fyv, L, x, Shear and OriginShear play no
/// part.
void DesignMoment(double b, double& d, double effd, double fcu, double fy, double YM, double fyv,
                  double L, double x, double Moment, double Shear, double& Asreq, double& Aspreq,
                  double OriginMoment, double OriginShear, const MiscProperties& misc);

/// The least steel of the tension and the compression face, clause 3.12.5: for fy up to 250 0.24 %
/// and 0.2 %, above it 0.2 % and 0.2 %. Departs from it: of the effective section b d, not of the
/// gross one; 0.2 % for strong tension steel, not 0.13 %; and for the compression face always.
void MinReinforcement(double fy, double b, double d, double& MinTenRein, double& MinCompRein);

/// The most steel, 4 % (clause 3.12.6), but of the effective section. Nothing is held against it.
void MaxReinforcement(double b, double d, double& MaxRein);

/// Raises the steel of each face to its minimum; OriginMoment says which face is in tension.
void raiseToMinimum(double OriginMoment, double MinTenRein, double MinCompRein, double& Asreq,
                    double& Aspreq);

}  // namespace trabeon
