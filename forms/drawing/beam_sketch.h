// What a picture of a beam shows, as numbers in the units of the beam. A part that is left empty is
// left out of the picture.
#pragma once

#include <cstddef>
#include <vector>

#include "core/response/beam_response.h"
#include "core/response/extremes.h"
#include "core/response/polyline.h"
#include "core/rules/joint_types.h"

namespace trabeon {

/// All x of a sketch are distances from the left end of the beam.
struct SketchJoint {
    Joint type = Joint::unknown;
    double x = 0;
};

/// A distributed load that goes straight from w1 at x1 to w2 at x2, positive downward. Members
/// count from 1.
struct SketchBand {
    std::size_t member = 0;
    double x1 = 0, x2 = 0, w1 = 0, w2 = 0;
};

/// A point load, positive downward.
struct SketchForce {
    std::size_t member = 0;
    double x = 0, P = 0;
};

/// Of a joint. force: upward positive; moment: sagging positive.
struct SketchReaction {
    double force = 0, moment = 0;
};

/// The deflected shape of a member, downward positive. `greatest` has its x from the member's left
/// joint.
struct SketchDeflection {
    std::vector<PolylinePoint> points;
    Extreme greatest;
};

struct BeamSketch {
    std::vector<SketchJoint> joints;            // from left to right
    std::vector<SketchBand> bands;              // from left to right; none on another
    std::vector<SketchForce> forces;            // from left to right; each at its own place
    std::vector<SketchReaction> reactions;      // one for each joint, or none at all
    std::vector<SketchDeflection> deflections;  // one for each member, or none at all
};

/// The whole beam. Distributed loads that overlap are added up, and so are point loads at the same
/// place.
[[nodiscard]] BeamSketch sketchOf(const Beam& beam, const BeamResponse& response);

/// The least distance between two joints.
[[nodiscard]] double shortestMember(const BeamSketch& sketch);

}  // namespace trabeon
