// Bending moment and shear force in the spans, by superposition on the simple span.
#pragma once

#include <cstddef>
#include <vector>

#include "core/analysis/beam.h"
#include "core/analysis/member_loads.h"

namespace trabeon {

/// Sagging positive; the shear is the downward load to the left minus the upward left reaction.
struct SectionForces {
    double moment = 0, shear = 0;
};

/// A section of a span at the distance x from its left joint.
struct Station {
    double x = 0;
    SectionForces forces;
};

/// What the forces in the spans follow from: the beam, its final end moments and its loads.
struct LoadedBeam {
    const Beam& beam;
    const std::vector<double>& Final;  // by member end, clockwise positive, from 1
    const MemberLoads<UdlLoad>& udls;
    const MemberLoads<PointLoad>& points;
};

/// x(k) = k × Length / Divisions for k from 0 to Divisions; the last one is at the length exactly.
[[nodiscard]] double stationAt(std::size_t k, std::size_t Divisions, double Length);

/// FindMax "Y": the forces in span MemNo, from 1, at the distance X_Dist from its left joint. They
/// are not finite where the sums are beyond a double.
[[nodiscard]] SectionForces FindMxSx(const LoadedBeam& loaded, std::size_t MemNo, double X_Dist);

/// FindMax "N": the stations of every span, first span first. A span has Divisions + 1 of them, at
/// stationAt() 0 to Divisions.
[[nodiscard]] std::vector<Station> FindMxSx(const LoadedBeam& loaded, std::size_t Divisions);

}  // namespace trabeon
