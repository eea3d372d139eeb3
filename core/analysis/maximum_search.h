// The greatest moment of each span, where the shear first changes its sign.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/analysis/span_results.h"

namespace trabeon {

/// A span's maximum: x from the left joint; moment and shear as texts in the mask "0.00E+00".
struct SpanMaximum {
    double x = 0;
    std::string moment, shear;
};

/// Searches every span by bisection on the shear, down to a bracket of CorrectTo (a length, above
/// 0). A span whose shear keeps its sign has its larger end moment, the right one if they are
/// equal. x is the last point before the change of sign, moment and shear those of the last point
/// calculated. Fills the stations of `results` first. `searched` is told the number of each span
/// when it is done. Returns one maximum a span, the first span's at index 0.
[[nodiscard]] std::vector<SpanMaximum> searchMaxima(
    SpanResults& results, const Beam& beam, const std::vector<double>& Final, double CorrectTo,
    const std::function<void(std::size_t)>& searched);

}  // namespace trabeon
