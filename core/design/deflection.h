// Span to effective depth ratios: BS 8110: Part 1, clause 3.4.6. Lengths in mm but for the member
// length L in m, moments in kNm, strengths in N/mm2, areas in mm2. d is the effective depth.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/store/rows.h"

namespace trabeon {

/// How a member is held, for its basic ratio.
enum class SpanKind { cantilever = 1, simplySupported = 2, continuous = 3 };

/// A joint is what an analysis takes it for. A fixed end counts as continuous.
[[nodiscard]] SpanKind spanKind(std::string_view leftType, std::string_view rightType);

/// Table 3.9 for a flanged section with bw / b of 0.3 or less: 5.6, 16, 20.8. Departs from it: the
/// web is 1 mm wide, so that these hold for every b from 1 / 0.3 mm up.
[[nodiscard]] double basicRatio(SpanKind kind, double b);

/// The basic ratio, with restrictDeflection for a span over 10 m times 10 / L (clause 3.4.6.4);
/// nothing for a cantilever over 10 m, which needs a calculation of its own.
[[nodiscard]] std::optional<double> ratioForLength(SpanKind kind, double b, double L,
                                                   bool restrictDeflection);

/// fs = 5 / 8 fy Asreq / Asprov, formula 8 below table 3.10, without redistribution.
[[nodiscard]] double serviceStress(double fy, double Asreq, double Asprov);

/// Table 3.10 by its formula 7: 0.55 + (477 - fs) / (120 (0.9 + M / b d²)), at most 2; no lower
/// limit. 1 where no steel is provided.
[[nodiscard]] double tensionFactor(double Asreq, double Asprov, double b, double d, double fy,
                                   double Moment);

/// Table 3.11 by its formula 9: 1 + p / (3 + p), at most 1.5, with p = 100 Aspprov / (b d). So 1
/// where no steel is provided.
[[nodiscard]] double compressionFactor(double Aspprov, double b, double d);

/// Sets the actual and the allowed ratio and appends the verdict to DefNote. A cantilever over 10 m
/// with restrictDeflection has no ratios, 0 and 0, and DefNote becomes "Please Provide Manual
/// Calculation". Asreq and Asprov are the lower face's and Aspprov the upper one's, whichever is in
/// tension. Member counts from 1.
void DesignDeflection(std::size_t Member, double L, double Asreq, double Asprov, double b, double d,
                      double fy, double Moment, double& DefActual, double& DefAllow,
                      std::string& DefNote, double Aspprov, const std::vector<JointRow>& joints,
                      bool restrictDeflection);

}  // namespace trabeon
