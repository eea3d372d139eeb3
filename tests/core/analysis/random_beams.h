// Beams of every kind that can stand, the same on every machine.
#pragma once

#include <algorithm>
#include <random>

#include "tests/core/analysis/beam_builder.h"

namespace trabeon {

/// Numbers that are the same with every standard library.
class Dice {
  public:
    double between(double low, double high) {
        return low + (high - low) * static_cast<double>(engine_()) / 0x1p32;
    }
    std::size_t upTo(std::size_t most) { return engine_() % (most + 1); }

  private:
    std::mt19937 engine_{20};
};

inline BeamBuilder randomBeam(Dice& dice) {
    const char* ends[] = {fixed, pin, cantilever};
    const auto n = 1 + dice.upTo(11), left = dice.upTo(2);
    const auto right = dice.upTo(std::min<std::size_t>(2, n + 1 - left));  // what still stands
    BeamBuilder beam(ends[left]);
    for (std::size_t i = 1; i <= n; ++i) {
        const double L = dice.between(2, 12);
        beam.member(L, i < n ? continuous : ends[right], dice.between(100, 300),
                    dice.between(0.5, 2));
        for (auto k = dice.upTo(2); k > 0; --k)
            beam.point(i, dice.between(0, L), dice.between(-1000, 3000));
        for (auto k = dice.upTo(2); k > 0; --k) {
            const double a = dice.between(0, 0.8 * L), b = dice.between(0.05 * L, L - a);
            beam.udl(i, a, b, dice.between(-500, 2000), dice.between(-500, 2000));
        }
    }
    return beam;
}

template <class Check>
void forRandomBeams(int count, const Check& check) {
    Dice dice;
    for (int k = 0; k < count && !testing::Test::HasFailure(); ++k) {
        SCOPED_TRACE("random beam " + std::to_string(k));
        check(randomBeam(dice));
    }
}

}  // namespace trabeon
