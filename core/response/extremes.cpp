#include "core/response/extremes.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "core/response/roots.h"

namespace trabeon {
namespace {

/// Every local extreme of a curve is among these. The sign of the slope does not matter, only where
/// it changes. Moment and shear have corners and jumps: there every breakpoint counts.
class Candidates {
  public:
    Candidates(const MemberResponse& member, Quantity quantity)
        : member_(member), quantity_(quantity) {
        switch (quantity) {
            case Quantity::moment:
                collect<&ResponsePiece::moment, &ResponsePiece::shear>(true);
                break;
            case Quantity::shear:
                collect<&ResponsePiece::shear, &ResponsePiece::load>(true);
                break;
            case Quantity::rotation:
                collect<&ResponsePiece::rotation, &ResponsePiece::moment>(false);
                break;
            case Quantity::deflection:
                collect<&ResponsePiece::deflection, &ResponsePiece::rotation>(false);
                break;
        }
    }

    /// The leftmost of those whose size is the largest; sizes that differ by rounding are equal.
    template <class Size>
    [[nodiscard]] Extreme leftmost(const Size& size) const {
        double largest = size(found_.front().value), magnitude = 0;
        for (const auto& [value, x] : found_) {
            largest = std::max(largest, size(value));
            magnitude = std::max(magnitude, std::fabs(value));
        }
        const double enough = largest - equalExtremes * magnitude;
        return *std::find_if(found_.begin(), found_.end(), [&](const Extreme& candidate) {
            return size(candidate.value) >= enough;
        });
    }

  private:
    template <auto Curve, auto Slope>
    void collect(bool everyBreakpoint) {
        const auto& pieces = member_.pieces();
        found_.reserve(4 * pieces.size());
        add(0, Side::after);
        for (std::size_t k = 0; k < pieces.size(); ++k) {
            const auto& piece = pieces[k];
            if (k > 0 &&
                (everyBreakpoint || (pieces[k - 1].*Slope).last() * (piece.*Slope).first() <= 0)) {
                add(k, Side::before);
                add(k, Side::after);
            }
            for (const auto& place : rootsInside(piece.*Slope))
                found_.push_back({clean((piece.*Curve).at(place)), xAt(piece, place)});
        }
        add(pieces.size(), Side::before);
    }

    void add(std::size_t breakpoint, Side side) {
        const auto& pieces = member_.pieces();
        const double x = breakpoint < pieces.size() ? pieces[breakpoint].x : member_.length();
        found_.push_back({valueOf(member_.atBreakpoint(breakpoint, side), quantity_), x});
    }

    [[nodiscard]] double clean(double value) const {
        return std::fabs(value) < member_.dust(quantity_) ? 0 : value;
    }

    /// From the nearer end of the piece.
    static double xAt(const ResponsePiece& piece, const PlaceInPiece& place) {
        return place.fromLeft <= place.fromRight ? piece.x + place.fromLeft * piece.width
                                                 : piece.end - place.fromRight * piece.width;
    }

    const MemberResponse& member_;
    Quantity quantity_;
    std::vector<Extreme> found_;
};

}  // namespace

Extremes extremesOf(const MemberResponse& member, Quantity quantity) {
    const Candidates candidates(member, quantity);
    return {candidates.leftmost([](double value) { return value; }),
            candidates.leftmost([](double value) { return -value; })};
}

Extreme greatestDeflection(const MemberResponse& member) {
    return Candidates(member, Quantity::deflection).leftmost([](double value) {
        return std::fabs(value);
    });
}

}  // namespace trabeon
