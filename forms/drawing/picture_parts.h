// The parts of a beam's picture. Each draws itself in its rows of the stage, the more important
// labels first; a label without room is left out.
#pragma once

#include "forms/drawing/beam_sketch.h"
#include "forms/drawing/stage.h"

namespace trabeon {

/// The beam's line, the support symbols and the joint numbers: of many joints only every nth
/// number. Returns how many supports had no room.
std::size_t drawBeamLine(const Stage& stage, const BeamSketch& sketch);

/// An arrow and a value below each support, and the arrow of a fixed end's moment. Values are
/// magnitudes: the arrow is the sign.
void drawReactions(const Stage& stage, const BeamSketch& sketch);

/// The deflected shape, with the greatest deflection of each member and its x.
void drawDeflections(const Stage& stage, const BeamSketch& sketch);

/// Bands and arrows above the beam, to scale. Values are magnitudes: the arrow is the sign. Returns
/// how many arrows had no room.
std::size_t drawLoads(const Stage& stage, const BeamSketch& sketch);

}  // namespace trabeon
