// Beams whose end moments are exact: those of the force method in place of the relaxation's.
#pragma once

#include <stdexcept>

#include "core/response/beam_response.h"
#include "tests/core/analysis/beams.h"
#include "tests/core/analysis/force_method.h"

namespace trabeon {

inline RelaxedBeam exactBeam(const BeamRows& rows) {
    auto beam = relaxBeam(rows, [](const TableRow&) {},
                          {[](const Message& message) { throw std::runtime_error(message.text); }});
    const auto moments = jointMoments(*beam);
    for (std::size_t i = 1; i <= beam->beam.members(); ++i) {
        beam->Final[2 * i - 1] = moments[i - 1];
        beam->Final[2 * i] = -moments[i];
    }
    return std::move(*beam);
}

}  // namespace trabeon
