// Continuous beams by the force method: another way to the moments than stiffness and distribution.
#pragma once

#include <algorithm>
#include <cmath>

#include "core/analysis/analysis.h"

namespace trabeon {

/// A force F at s.
struct Force {
    double s, F;
};

/// The part of a distributed load between two places as forces at the three places of Gauss: exact
/// for every influence that is a polynomial of degree 4 or less there.
inline void addPart(std::vector<Force>& forces, const UdlLoad& load, double from, double to) {
    const double middle = (from + to) / 2, half = (to - from) / 2;
    for (int k = -1; k <= 1; ++k) {
        const double s = middle + half * k * std::sqrt(0.6);
        const double w = load.w1 + (load.w2 - load.w1) * (s - load.a) / load.b;
        forces.push_back({s, w * half * (k == 0 ? 8 : 5) / 9});
    }
}

/// The loads of a member as forces, distributed ones cut at x.
inline std::vector<Force> forcesOn(const RelaxedBeam& beam, std::size_t member, double x = 0) {
    std::vector<Force> forces;
    for (const auto& load : beam.points.on(member))
        forces.push_back({load.a, load.P});
    for (const auto& load : beam.udls.on(member)) {
        const double end = load.a + load.b, cut = std::clamp(x, load.a, end);
        addPart(forces, load, load.a, cut);
        addPart(forces, load, cut, end);
    }
    return forces;
}

/// The moments over the joints, sagging positive: at a clamped or continuous joint the rotations
/// of the simple spans beside it must close; over the root of a cantilever the moment is known.
inline std::vector<double> jointMoments(const RelaxedBeam& beam) {
    const auto& [Supports, EndCount, SupportType, MemberE, MemberI, Length, Stiffness] = beam.beam;
    const auto n = Supports - 1;
    const bool free[] = {SupportType[1] == Joint::cantilever,
                         SupportType[Supports] == Joint::cantilever};
    std::vector<double> before(n + 1), own(n + 1), after(n + 1), right(n + 1), tip(n + 1);
    for (std::size_t i = 1; i <= n; ++i) {
        const double L = Length[i], EI = MemberE[i] * MemberI[i];
        own[i - 1] += L / (3 * EI);
        own[i] += L / (3 * EI);
        after[i - 1] = before[i] = L / (6 * EI);
        for (const auto& [s, F] : forcesOn(beam, i)) {
            right[i - 1] -= F * s * (L - s) * (2 * L - s) / (6 * L * EI);
            right[i] -= F * s * (L - s) * (L + s) / (6 * L * EI);
            if (i == n && free[1])
                tip[n - 1] -= F * s;
            if (i == 1 && free[0])
                tip[1] -= F * (L - s);
        }
    }
    const auto give = [&](std::size_t joint, double moment) {
        before[joint] = after[joint] = 0;
        own[joint] = 1;
        right[joint] = moment;
    };
    for (const std::size_t joint : {std::size_t{0}, n})
        if (SupportType[joint + 1] != Joint::fixed)
            give(joint, 0);
    if (free[0])
        give(1, tip[1]);
    if (free[1])
        give(n - 1, tip[n - 1]);
    for (std::size_t j = 1; j <= n; ++j) {
        const double part = before[j] / own[j - 1];
        own[j] -= part * after[j - 1];
        right[j] -= part * right[j - 1];
    }
    right[n] /= own[n];
    for (std::size_t j = n; j-- > 0;)
        right[j] = (right[j] - after[j] * right[j + 1]) / own[j];
    return right;
}

}  // namespace trabeon
