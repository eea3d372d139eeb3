// Span to effective depth ratios: BS 8110: Part 1, clause 3.4.6. Lengths are in mm, only the member
// length L is in m; moments in kNm, strengths in N/mm2, areas in mm2. d is the effective depth.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/design/reinforcement.h"
#include "core/design/section_data.h"
#include "core/store/rows.h"

namespace trabeon {

/// How a member is supported. Its basic ratio depends on it.
enum class SpanKind { cantilever = 1, simplySupported = 2, continuous = 3 };

/// Joint types are read as the analysis reads them. A fixed end counts as continuous.
[[nodiscard]] SpanKind spanKind(std::string_view leftType, std::string_view rightType);

/// The same for a member, which counts from 1. A joint that has no row counts as continuous.
[[nodiscard]] SpanKind spanKind(const std::vector<JointRow>& joints, std::size_t Member);

/// Table 3.9 for a flanged section with bw / b of 0.3 or less: 5.6, 16, 20.8. Departs from it: the
/// web is 1 mm wide, so that these hold for every b from 1 / 0.3 mm up.
[[nodiscard]] double basicRatio(SpanKind kind, double b);

/// The basic ratio. With restrictDeflection, a span over 10 m has 10 / L of it (clause 3.4.6.4),
/// and a cantilever over 10 m has none: it needs a calculation by hand.
[[nodiscard]] std::optional<double> ratioForLength(SpanKind kind, double b, double L,
                                                   bool restrictDeflection);

/// fs = 5 / 8 fy Asreq / Asprov, formula 8 below table 3.10, without redistribution.
[[nodiscard]] double serviceStress(double fy, double Asreq, double Asprov);

/// Table 3.10 by its formula 7: 0.55 + (477 - fs) / (120 (0.9 + M / b d²)), at most 2; no lower
/// limit. 1 where no steel is provided.
[[nodiscard]] double tensionFactor(const SectionData& section, double Asreq, double Asprov);

/// Table 3.11 by its formula 9: 1 + p / (3 + p), at most 1.5, with p = 100 Aspprov / (b d). So 1
/// where no steel is provided.
[[nodiscard]] double compressionFactor(double Aspprov, double b, double d);

/// The actual and the allowed ratio of span to effective depth, and the section's note.
struct Deflection {
    double DefActual = 0, DefAllow = 0;
    std::string DefNote;
};

/// Checks a section and appends the verdict to DefNote. Asreq and Asprov of the lower face enter as
/// tension steel and Aspprov of the upper face as compression steel, also where the moment is
/// hogging. A cantilever over 10 m with restrictDeflection has no ratios, and its note becomes
/// "Please Provide Manual Calculation".
[[nodiscard]] Deflection DesignDeflection(const SectionData& section, SpanKind kind,
                                          const Reinforcement& steel, bool restrictDeflection,
                                          std::string DefNote);

}  // namespace trabeon
