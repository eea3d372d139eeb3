// A polynomial on one piece of a curve, in Bernstein form: the form with the least rounding errors
// on an interval. The first and the last coefficient are the values at the two ends, exactly.
#pragma once

#include <array>
#include <cstddef>

namespace trabeon {

/// A place inside a piece: its distances from the two ends as parts of the width. Both are given,
/// because 1 - s would lose the digits of a place near the right end.
struct PlaceInPiece {
    double fromLeft = 0, fromRight = 1;
};

/// p(s) = sum of c[k] × (degree over k) × s^k × (1 - s)^(degree - k), for s from 0 to 1.
template <std::size_t degree>
struct Bernstein {
    std::array<double, degree + 1> c{};

    [[nodiscard]] double first() const { return c.front(); }
    [[nodiscard]] double last() const { return c.back(); }

    /// By de Casteljau's algorithm.
    [[nodiscard]] double at(const PlaceInPiece& place) const {
        auto level = c;
        for (std::size_t left = degree; left > 0; --left)
            for (std::size_t k = 0; k < left; ++k)
                level[k] = place.fromRight * level[k] + place.fromLeft * level[k + 1];
        return level[0];
    }

    /// The sum of the coefficients: the mean value is this divided by degree + 1.
    [[nodiscard]] double sum() const {
        double total = 0;
        for (const double coefficient : c)
            total += coefficient;
        return total;
    }

    /// factor × the integral over the distance, on a piece of this width, that has the value
    /// `start` at the left end.
    [[nodiscard]] Bernstein<degree + 1> integralFrom(double start, double factor,
                                                     double width) const {
        Bernstein<degree + 1> integral;
        integral.c[0] = start;
        for (std::size_t k = 0; k <= degree; ++k)
            integral.c[k + 1] = integral.c[k] + factor * width * c[k] / (degree + 1);
        return integral;
    }

    /// The same with the value `end` at the right end.
    [[nodiscard]] Bernstein<degree + 1> integralTo(double end, double factor, double width) const {
        Bernstein<degree + 1> integral;
        integral.c[degree + 1] = end;
        for (std::size_t k = degree + 1; k > 0; --k)
            integral.c[k - 1] = integral.c[k] - factor * width * c[k - 1] / (degree + 1);
        return integral;
    }
};

}  // namespace trabeon
