// The moments at the ends of a member whose two ends are held fixed.
#pragma once

#include <vector>

#include "core/analysis/beam.h"
#include "core/analysis/member_loads.h"

namespace trabeon {

/// The two moments as magnitudes, positive for a downward load.
struct EndMoments {
    double left = 0, right = 0;
};

/// The integrals of w(x) x (L - x)²/L² and w(x) x² (L - x)/L² over the load's width, in closed
/// form.
[[nodiscard]] EndMoments fixedEndMoments(const UdlLoad& load, double L);

/// P a c²/L² and P a² c/L², with c = L - a.
[[nodiscard]] EndMoments fixedEndMoments(const PointLoad& load, double L);

/// FEM by member end, clockwise positive: element 2i - 1 is the left end of member i and 2i its
/// right end; element 0 is not used. A cantilever member has its statical moment at the support and
/// 0 at the free end.
[[nodiscard]] std::vector<double> fixedEndMoments(const Beam& beam,
                                                  const MemberLoads<UdlLoad>& udls,
                                                  const MemberLoads<PointLoad>& points);

}  // namespace trabeon
