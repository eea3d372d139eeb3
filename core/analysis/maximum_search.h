// The greatest moment of a span, where the shear first changes its sign.
#pragma once

#include <cstddef>
#include <span>

#include "core/analysis/span_results.h"

namespace trabeon {

/// Searches a span, from 1, between the two stations where the shear changes its sign, by bisection
/// down to a bracket of CorrectTo (a length, above 0). The station returned has the x of the left
/// end of the bracket and the forces of the last point calculated. If the shear keeps its sign, the
/// result is the end with the larger moment in three figures, the right end if they are equal.
/// `stations` are those of this span.
[[nodiscard]] Station searchMaximum(const LoadedBeam& loaded, std::size_t span,
                                    std::span<const Station> stations, double CorrectTo);

}  // namespace trabeon
