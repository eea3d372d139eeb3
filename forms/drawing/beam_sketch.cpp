#include "forms/drawing/beam_sketch.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace trabeon {
namespace {

constexpr double pointsPerBeam = 800, leastPerMember = 12;
constexpr double sameValue = 1e-9;  // part of the larger one

bool areSame(double a, double b) {
    return std::fabs(a - b) <= sameValue * std::max(std::fabs(a), std::fabs(b));
}

/// A point load inside a distributed load cuts it into pieces, which are one band all the same.
bool goesOn(const SketchBand& band, const SketchBand& next) {
    const auto slope = [](const SketchBand& of) { return (of.w2 - of.w1) / (of.x2 - of.x1); };
    return band.member == next.member && areSame(band.w2, next.w1) &&
           (areSame(slope(band), slope(next)) ||
            (areSame(band.w1, band.w2) && areSame(next.w1, next.w2)));
}

void addBands(BeamSketch& sketch, const MemberResponse& curves, std::size_t member, double left) {
    for (const auto& piece : curves.pieces()) {
        if (piece.load.first() == 0 && piece.load.last() == 0)
            continue;
        const SketchBand band{member, left + piece.x, left + piece.end, piece.load.first(),
                              piece.load.last()};
        if (!sketch.bands.empty() && areSame(sketch.bands.back().x2, band.x1) &&
            goesOn(sketch.bands.back(), band)) {
            sketch.bands.back().x2 = band.x2;
            sketch.bands.back().w2 = band.w2;
        } else {
            sketch.bands.push_back(band);
        }
    }
}

void addForces(BeamSketch& sketch, const MemberResponse& curves, std::size_t member, double left) {
    const auto& forces = curves.forces();
    const auto& pieces = curves.pieces();
    for (std::size_t k = 0; k < forces.size(); ++k) {
        if (forces[k] == 0)
            continue;
        const double x = left + (k < pieces.size() ? pieces[k].x : curves.length());
        if (!sketch.forces.empty() && sketch.forces.back().x == x)
            sketch.forces.back().P += forces[k];
        else
            sketch.forces.push_back({member, x, forces[k]});
    }
}

SketchDeflection deflectionOf(const MemberResponse& curves, double left, double spacing) {
    auto points = polylineOf(curves, Quantity::deflection,
                             std::min(spacing, curves.length() / leastPerMember));
    for (auto& point : points)
        point.x += left;
    return {std::move(points), greatestDeflection(curves)};
}

}  // namespace

BeamSketch sketchOf(const Beam& beam, const BeamResponse& response) {
    BeamSketch sketch;
    for (std::size_t j = 0; j < response.joints.size(); ++j) {
        const auto& joint = response.joints[j];
        sketch.joints.push_back({beam.SupportType[j + 1], joint.x});
        sketch.reactions.push_back({joint.reaction, joint.moment});
    }
    const double spacing = response.joints.back().x / pointsPerBeam;
    for (std::size_t i = 0; i < response.members.size(); ++i) {
        const double left = response.joints[i].x;
        addBands(sketch, response.members[i], i + 1, left);
        addForces(sketch, response.members[i], i + 1, left);
        sketch.deflections.push_back(deflectionOf(response.members[i], left, spacing));
    }
    return sketch;
}

double shortestMember(const BeamSketch& sketch) {
    double shortest = std::numeric_limits<double>::infinity();
    for (std::size_t k = 1; k < sketch.joints.size(); ++k)
        shortest = std::min(shortest, sketch.joints[k].x - sketch.joints[k - 1].x);
    return shortest;
}

}  // namespace trabeon
