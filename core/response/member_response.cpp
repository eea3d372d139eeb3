#include "core/response/member_response.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "core/response/load_profile.h"
#include "core/response/two_doubles.h"

namespace trabeon {
namespace {

constexpr double roundingOfLength = 1e-12;  // of the member's length

enum class Toward { right, left };

/// How a curve follows from its slope: factor × slope, from a value at the end where it begins.
/// `jumps`, only toward the right, are what the curve gains at the left end of each piece.
struct Integration {
    double factor = 1, value = 0;
    const std::vector<double>* jumps = nullptr;
};

/// Integrates a curve piece by piece. Neighbouring pieces share the value at their breakpoint.
template <auto Slope, auto Curve>
void integrate(std::vector<ResponsePiece>& pieces, Toward toward, const Integration& by) {
    TwoDoubles value{by.value, 0};
    const bool rightward = toward == Toward::right;
    for (std::size_t count = 0; count < pieces.size(); ++count) {
        const auto k = rightward ? count : pieces.size() - 1 - count;
        auto& piece = pieces[k];
        const auto& slope = piece.*Slope;
        if (by.jumps != nullptr)
            value += (*by.jumps)[k];
        auto& curve = piece.*Curve;
        curve = rightward ? slope.integralFrom(value.value(), by.factor, piece.width)
                          : slope.integralTo(value.value(), by.factor, piece.width);
        const double mean = slope.sum() / static_cast<double>(slope.c.size());
        const double gain = by.factor * piece.width * mean;
        value += rightward ? gain : -gain;
        (rightward ? curve.c.back() : curve.c.front()) = value.value();
    }
}

double clean(double value, double dust) {
    return std::fabs(value) < dust ? 0 : value;
}

/// What the forces on a member make of the four quantities at the most, but for a small factor and
/// the number of loads.
SectionResponse sizesOf(const MemberEnds& ends, double L, double EI) {
    const auto largest = [](double a, double b) { return std::max(std::fabs(a), std::fabs(b)); };
    const double moment =
        std::max(largest(ends.left.moment, ends.right.moment), ends.largestForce * L);
    const double rotation =
        std::max(largest(ends.left.rotation, ends.right.rotation), moment * L / EI);
    return {moment, std::max(ends.largestForce, moment / L), rotation, rotation * L};
}

template <std::size_t degree>
bool isFiniteCurve(const Bernstein<degree>& curve) {
    return std::all_of(curve.c.begin(), curve.c.end(),
                       [](double coefficient) { return std::isfinite(coefficient); });
}

}  // namespace

MemberResponse::MemberResponse(const LoadedBeam& loaded, std::size_t member)
    : L_(loaded.beam.Length[member]), ends_(memberEnds(loaded, member)) {
    const double EI = loaded.beam.MemberE[member] * loaded.beam.MemberI[member];
    const auto size = sizesOf(ends_, L_, EI);
    dust_ = {1e-12 * size.moment, 1e-12 * size.shear, 1e-14 * size.rotation,
             1e-14 * size.deflection};
    makePieces(loaded, member);
    integrateForces();
    integrateShape(EI);
}

void MemberResponse::makePieces(const LoadedBeam& loaded, std::size_t member) {
    auto profile = loadProfile(loaded.points.on(member), loaded.udls.on(member), L_);
    forces_ = std::move(profile.forces);
    pieces_.reserve(profile.stretches.size());
    for (const auto& stretch : profile.stretches) {
        if (!pieces_.empty())
            pieces_.back().end = stretch.x;
        auto& piece = pieces_.emplace_back();
        piece.x = stretch.x;
        piece.width = stretch.width;
        piece.load.c = {stretch.w1, stretch.w2};
    }
    pieces_.back().end = L_;
}

/// From the left end. The values at the two ends are known, and replace the calculated ones.
void MemberResponse::integrateForces() {
    integrate<&ResponsePiece::load, &ResponsePiece::shear>(pieces_, Toward::right,
                                                           {1, -ends_.left.reaction, &forces_});
    integrate<&ResponsePiece::shear, &ResponsePiece::moment>(pieces_, Toward::right,
                                                             {-1, ends_.left.moment});
    pieces_.front().shear.c.front() = clean(forces_.front() - ends_.left.reaction, dust_.shear);
    pieces_.front().moment.c.front() = ends_.left.moment;
    pieces_.back().shear.c.back() = clean(ends_.right.reaction - forces_.back(), dust_.shear);
    pieces_.back().moment.c.back() = ends_.right.moment;
}

/// From a support, where the deflection is 0 and the rotation is known. The far end of a member
/// that is held at both ends has its own known values.
void MemberResponse::integrateShape(double EI) {
    const bool leftward = ends_.held == Held::atRightEnd;
    const auto toward = leftward ? Toward::left : Toward::right;
    const double rotation = leftward ? ends_.right.rotation : ends_.left.rotation;
    integrate<&ResponsePiece::moment, &ResponsePiece::rotation>(pieces_, toward,
                                                                {-1 / EI, rotation});
    if (ends_.held == Held::atBothEnds)
        pieces_.back().rotation.c.back() = ends_.right.rotation;
    integrate<&ResponsePiece::rotation, &ResponsePiece::deflection>(pieces_, toward, {1, 0});
    if (ends_.held == Held::atBothEnds)
        pieces_.back().deflection.c.back() = 0;
}

SectionResponse MemberResponse::settled(const SectionResponse& values) const {
    return {clean(values.moment, dust_.moment), clean(values.shear, dust_.shear),
            clean(values.rotation, dust_.rotation), clean(values.deflection, dust_.deflection)};
}

SectionResponse MemberResponse::atBreakpoint(std::size_t breakpoint, Side side) const {
    const bool first = breakpoint == 0, last = breakpoint == pieces_.size();
    const auto& left = pieces_[first ? 0 : breakpoint - 1];
    const auto& right = pieces_[last ? breakpoint - 1 : breakpoint];
    const double before = first ? -ends_.left.reaction : left.shear.last();
    const double after = last ? ends_.right.reaction : right.shear.first();
    const double shear = side == Side::before ? before : after;
    return settled({last ? left.moment.last() : right.moment.first(), shear,
                    last ? left.rotation.last() : right.rotation.first(),
                    last ? left.deflection.last() : right.deflection.first()});
}

SectionResponse MemberResponse::at(double x, Side side) const {
    const double margin = roundingOfLength * L_;
    auto piece = std::upper_bound(pieces_.begin() + 1, pieces_.end(), x,
                                  [](double at, const auto& found) { return at < found.x; }) -
                 1;
    const auto k = static_cast<std::size_t>(piece - pieces_.begin());
    const double fromLeft = x - piece->x, fromRight = piece->end - x;
    if (std::min(fromLeft, fromRight) <= margin)
        return atBreakpoint(fromLeft <= fromRight ? k : k + 1, side);
    const PlaceInPiece place{fromLeft / (piece->end - piece->x),
                             fromRight / (piece->end - piece->x)};
    return settled({piece->moment.at(place), piece->shear.at(place), piece->rotation.at(place),
                    piece->deflection.at(place)});
}

double MemberResponse::dust(Quantity quantity) const {
    return valueOf(dust_, quantity);
}

bool MemberResponse::isFinite() const {
    return std::all_of(pieces_.begin(), pieces_.end(), [](const ResponsePiece& piece) {
        return isFiniteCurve(piece.load) && isFiniteCurve(piece.shear) &&
               isFiniteCurve(piece.moment) && isFiniteCurve(piece.rotation) &&
               isFiniteCurve(piece.deflection);
    });
}

bool isFarFromOverflow(const LoadedBeam& loaded, std::size_t member) {
    const double L = loaded.beam.Length[member];
    const double EI = loaded.beam.MemberE[member] * loaded.beam.MemberI[member];
    double force = 0, steepest = 0;
    for (const auto& load : loaded.points.on(member))
        force += std::fabs(load.P);
    for (const auto& load : loaded.udls.on(member)) {
        const double intensity = std::fabs(load.w1) + std::fabs(load.w2);
        force += intensity * load.b;
        steepest = std::max(steepest, intensity / load.b);
    }
    const double moment =
        std::fabs(loaded.Final[2 * member - 1]) + std::fabs(loaded.Final[2 * member]) + force * L;
    const auto isFar = [](double value) {
        return value < 1e-9 * std::numeric_limits<double>::max();
    };
    return isFar(steepest) && isFar(moment) && isFar(moment / L) && isFar(moment / EI * L) &&
           isFar(moment / EI * L * L);
}

double valueOf(const SectionResponse& section, Quantity quantity) {
    switch (quantity) {
        case Quantity::moment:
            return section.moment;
        case Quantity::shear:
            return section.shear;
        case Quantity::rotation:
            return section.rotation;
        case Quantity::deflection:
            break;
    }
    return section.deflection;
}

}  // namespace trabeon
