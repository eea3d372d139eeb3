#include "core/response/polyline.h"

#include <algorithm>
#include <cmath>

namespace trabeon {
namespace {

/// The second differences of the coefficients are 0, within rounding errors.
template <std::size_t degree>
bool isStraight(const Bernstein<degree>& curve, double dust) {
    for (std::size_t k = 2; k <= degree; ++k)
        if (std::fabs(curve.c[k] - 2 * curve.c[k - 1] + curve.c[k - 2]) > dust)
            return false;
    return true;
}

bool isStraight(const ResponsePiece& piece, Quantity quantity, double dust) {
    switch (quantity) {
        case Quantity::moment:
            return isStraight(piece.moment, dust);
        case Quantity::shear:
            return isStraight(piece.shear, dust);
        case Quantity::rotation:
            return isStraight(piece.rotation, dust);
        case Quantity::deflection:
            break;
    }
    return isStraight(piece.deflection, dust);
}

}  // namespace

std::vector<PolylinePoint> polylineOf(const MemberResponse& member, Quantity quantity,
                                      double spacing) {
    const auto& pieces = member.pieces();
    std::vector<PolylinePoint> points;
    const auto addBreakpoint = [&](std::size_t k) {
        const double x = k < pieces.size() ? pieces[k].x : member.length();
        points.push_back({x, valueOf(member.atBreakpoint(k, Side::before), quantity)});
        const double after = valueOf(member.atBreakpoint(k, Side::after), quantity);
        if (after != points.back().value)
            points.push_back({x, after});
    };
    addBreakpoint(0);
    for (std::size_t k = 0; k < pieces.size(); ++k) {
        const auto& piece = pieces[k];
        const bool straight = isStraight(piece, quantity, member.dust(quantity));
        const auto parts =
            straight ? 1 : static_cast<int>(std::min(std::ceil(piece.width / spacing), 1e6));
        for (int part = 1; part < parts; ++part) {
            const double x = piece.x + piece.width * part / parts;
            points.push_back({x, valueOf(member.at(x), quantity)});
        }
        addBreakpoint(k + 1);
    }
    return points;
}

}  // namespace trabeon
