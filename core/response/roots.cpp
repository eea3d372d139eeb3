#include "core/response/roots.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace trabeon {
namespace {

using Coefficients = std::span<const double>;

constexpr double epsilon = std::numeric_limits<double>::epsilon();

int signOf(double value) {
    return (value > 0) - (value < 0);
}

PlaceInPiece placeAt(double s) {
    return {s, 1 - s};
}

struct ValueAndSlope {
    double value = 0, slope = 0;
};

/// By de Casteljau's algorithm, whose last but one level gives the slope.
template <std::size_t degree>
ValueAndSlope at(const double* c, double s) {
    std::array<double, degree + 1> level{};
    std::copy(c, c + degree + 1, level.begin());
    for (std::size_t left = degree; left > 1; --left)
        for (std::size_t k = 0; k < left; ++k)
            level[k] = (1 - s) * level[k] + s * level[k + 1];
    return {(1 - s) * level[0] + s * level[1], degree * (level[1] - level[0])};
}

/// For the degrees that have no closed form here.
ValueAndSlope at(Coefficients c, double s) {
    const auto degree = c.size() - 1;
    return degree == 3 ? at<3>(c.data(), s) : degree == 4 ? at<4>(c.data(), s) : at<5>(c.data(), s);
}

/// By Descartes' rule there are at most as many roots inside.
int changesOfSign(Coefficients c) {
    int changes = 0, sign = 0;
    for (const double coefficient : c) {
        const int own = signOf(coefficient);
        changes += sign * own < 0;
        sign = own != 0 ? own : sign;
    }
    return changes;
}

double largestOf(Coefficients c) {
    double largest = 0;
    for (const double coefficient : c)
        largest = std::max(largest, std::fabs(coefficient));
    return largest;
}

/// c0 (1 - s)² + 2 c1 s (1 - s) + c2 s² = 0 is c2 u² + 2 c1 u + c0 = 0 with u = s / (1 - s): solved
/// without a difference of nearly equal numbers. There is a change of sign, so c1 is not 0 unless
/// c0 and c2 have different signs.
std::vector<PlaceInPiece> quadraticRoots(Coefficients coefficients) {
    const double scale = largestOf(coefficients);  // squares must not leave the range of a double
    const std::array c{coefficients[0] / scale, coefficients[1] / scale, coefficients[2] / scale};
    const double square = std::fma(c[1], c[1], -c[0] * c[2]);
    const double noise = 4 * epsilon * c[1] * c[1];
    if (square < -noise)
        return {};
    const double q = -(c[1] + std::copysign(std::sqrt(std::max(square, 0.0)), c[1]));
    std::vector<PlaceInPiece> roots;
    for (const auto& [above, below] : {std::pair(q, c[2]), std::pair(c[0], q)})
        if (above * signOf(below) > 0)
            roots.push_back({above / (above + below), below / (above + below)});
    if (roots.size() == 2 && square <= noise)
        roots.pop_back();
    if (roots.size() == 2 && roots[0].fromLeft > roots[1].fromLeft)
        std::swap(roots[0], roots[1]);
    return roots;
}

/// The root between `low`, where the polynomial has the sign `signAtLow`, and `high`, where it has
/// the other one: Newton's steps, and halves of the bracket where these do not gain enough.
double followedRoot(Coefficients c, double low, double high, int signAtLow) {
    double s = low + (high - low) / 2, step = high - low;
    bool wasNewton = false;
    for (int count = 0; count < 200; ++count) {
        const auto [value, slope] = at(c, s);
        if (value == 0)
            break;
        (signOf(value) == signAtLow ? low : high) = s;
        const double newton = -value / slope, before = step;
        const bool isNewton =
            s + newton > low && s + newton < high && std::fabs(2 * newton) <= std::fabs(before);
        step = isNewton ? newton : low + (high - low) / 2 - s;
        s += step;
        // Of Newton's steps each is about a constant times the square of the one before it.
        const double next = isNewton && wasNewton ? step * (step / before) * (step / before) : step;
        if (std::fabs(next) <= epsilon / 4 || s <= low || s >= high)
            break;
        wasNewton = isNewton;
    }
    return s;
}

/// The polynomial rises or falls between its stationary places.
std::vector<PlaceInPiece> rootsBetween(Coefficients c,
                                       const std::vector<PlaceInPiece>& stationary) {
    std::vector<PlaceInPiece> roots;
    const double nothing = 16 * epsilon * largestOf(c);  // rounding errors of a value
    double low = 0;
    int signAtLow = signOf(c.front());
    const auto advance = [&](double s, int sign) {
        if (signAtLow * sign < 0)
            roots.push_back(placeAt(followedRoot(c, low, s, signAtLow)));
        low = s;
        signAtLow = sign;
    };
    for (const auto& place : stationary) {
        const double value = at(c, place.fromLeft).value;
        const bool touches = std::fabs(value) <= nothing;
        advance(place.fromLeft, touches ? 0 : signOf(value));
        if (touches)
            roots.push_back(place);
    }
    advance(1, signOf(c.back()));
    return roots;
}

}  // namespace

std::vector<PlaceInPiece> rootsInside(Coefficients c) {
    const int changes = changesOfSign(c);
    if (changes == 0)
        return {};
    const double first = c.front(), last = c.back();
    const bool isStraight = c.size() == 2 || (c.size() == 3 && first - c[1] == c[1] - last);
    if (isStraight)  // the shear under a uniform load is: round numbers stay round
        return {{first / (first - last), last / (last - first)}};
    if (c.size() == 3)
        return quadraticRoots(c);
    if (changes > 1) {
        std::array<double, 5> slopes{};
        for (std::size_t k = 0; k + 1 < c.size(); ++k)
            slopes[k] = c[k + 1] - c[k];
        return rootsBetween(c, rootsInside({slopes.data(), c.size() - 1}));
    }
    const auto signAtLow =
        std::find_if(c.begin(), c.end(), [](double coefficient) { return coefficient != 0; });
    return {placeAt(followedRoot(c, 0, 1, signOf(*signAtLow)))};
}

}  // namespace trabeon
