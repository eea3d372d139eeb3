// Where a polynomial is 0 inside its piece.
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <vector>

#include "core/response/bernstein.h"

namespace trabeon {

/// The roots inside a piece in rising order; its two ends do not count. Coefficients are those of
/// the Bernstein form, for a degree of at most 5. Degrees 1 and 2 are solved in closed form. For a
/// higher degree the roots of the derivative cut the piece into parts in which the polynomial
/// rises or falls, and each change of sign is followed to the last bit. A root at which the
/// polynomial only touches 0 is found if it is 0 there within rounding errors. A polynomial that is
/// 0 everywhere has no roots here.
[[nodiscard]] std::vector<PlaceInPiece> rootsInside(std::span<const double> coefficients);

template <std::size_t degree>
[[nodiscard]] std::vector<PlaceInPiece> rootsInside(const Bernstein<degree>& polynomial) {
    return rootsInside(std::span<const double>(polynomial.c));
}

}  // namespace trabeon
