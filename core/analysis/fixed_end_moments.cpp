#include "core/analysis/fixed_end_moments.h"

#include "core/analysis/settled_sum.h"

namespace trabeon {
namespace {

/// A load's moment about the support of a cantilever member.
double aboutRightEnd(const UdlLoad& load, double L) {
    return load.momentAbout(L - load.a, load.b);
}
double aboutRightEnd(const PointLoad& load, double L) {
    return load.P * (L - load.a);
}
double aboutLeftEnd(const UdlLoad& load) {
    return -load.momentAbout(-load.a, load.b);
}
double aboutLeftEnd(const PointLoad& load) {
    return load.P * load.a;
}

/// The two end moments of one member while its loads are added.
struct EndSums {
    SettledSum left, right;
};

template <class Load>
void addLoads(EndSums& ends, const Beam& beam, const MemberLoads<Load>& loads, std::size_t i) {
    const double L = beam.Length[i];
    const bool leftCantilever = i == 1 && beam.leftCantilever();
    const bool rightCantilever = i == beam.members() && beam.rightCantilever();
    for (const auto& load : loads.on(i)) {
        if (leftCantilever) {
            ends.right.add(aboutRightEnd(load, L));
        } else if (rightCantilever) {
            ends.left.add(-aboutLeftEnd(load));
        } else {
            const auto fixed = fixedEndMoments(load, L);
            ends.left.add(-fixed.left);
            ends.right.add(fixed.right);
        }
    }
}

}  // namespace

EndMoments fixedEndMoments(const UdlLoad& load, double L) {
    // With t from the load's start: x = a + t, L - x = c - t, and m(k) the integral of w t^k.
    // Written so, a narrow load far from the joint keeps its digits, and round numbers stay exact.
    const auto& [a, b, w1, w2] = load;
    const double c = L - a;
    const double m0 = b * (w1 + w2) / 2;
    const double m1 = b * b * (w1 + 2 * w2) / 6;
    const double m2 = b * b * b * (w1 + 3 * w2) / 12;
    const double m3 = b * b * b * b * (w1 + 4 * w2) / 20;
    const double left = a * c * c * m0 + c * (c - 2 * a) * m1 + (a - 2 * c) * m2 + m3;
    const double right = a * a * c * m0 + a * (2 * c - a) * m1 + (c - 2 * a) * m2 - m3;
    return {left / (L * L), right / (L * L)};
}

EndMoments fixedEndMoments(const PointLoad& load, double L) {
    const auto& [a, P] = load;
    const double c = L - a;
    return {P * a * c * c / (L * L), P * a * a * c / (L * L)};
}

std::vector<double> fixedEndMoments(const Beam& beam, const MemberLoads<UdlLoad>& udls,
                                    const MemberLoads<PointLoad>& points) {
    std::vector<double> FEM(beam.EndCount + 2, 0);
    for (std::size_t i = 1; i <= beam.members(); ++i) {
        EndSums ends;
        addLoads(ends, beam, udls, i);
        addLoads(ends, beam, points, i);
        FEM[2 * i - 1] = ends.left.value();
        FEM[2 * i] = ends.right.value();
    }
    return FEM;
}

}  // namespace trabeon
