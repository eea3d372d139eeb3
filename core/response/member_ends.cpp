#include "core/response/member_ends.h"

#include <algorithm>
#include <cmath>

#include "core/analysis/fixed_end_moments.h"
#include "core/analysis/settled_sum.h"

namespace trabeon {
namespace {

/// The force of a load, and its moments about the two ends of a member of the length L.
struct LoadMoments {
    double force = 0, aboutLeft = 0, aboutRight = 0;
};

LoadMoments momentsOf(const PointLoad& load, double L) {
    return {load.P, load.P * load.a, load.P * (L - load.a)};
}

LoadMoments momentsOf(const UdlLoad& load, double L) {
    return {load.resultant(load.b), -load.momentAbout(-load.a, load.b),
            load.momentAbout(L - load.a, load.b)};
}

template <class Act>
void forEachLoad(const LoadedBeam& loaded, std::size_t member, const Act& act) {
    for (const auto& load : loaded.udls.on(member))
        act(load);
    for (const auto& load : loaded.points.on(member))
        act(load);
}

Held heldOf(const Beam& beam, std::size_t member) {
    if (member == 1 && beam.leftCantilever())
        return Held::atRightEnd;
    return member == beam.members() && beam.rightCantilever() ? Held::atLeftEnd : Held::atBothEnds;
}

void setReactions(MemberEnds& ends, const LoadedBeam& loaded, std::size_t member) {
    const double L = loaded.beam.Length[member];
    SettledSum left, right, total;
    left.add((ends.right.moment - ends.left.moment) / L);
    right.add((ends.left.moment - ends.right.moment) / L);
    forEachLoad(loaded, member, [&](const auto& load) {
        const auto moments = momentsOf(load, L);
        left.add(moments.aboutRight / L);
        right.add(moments.aboutLeft / L);
        total.add(moments.force);
        ends.largestForce = std::max(ends.largestForce, std::fabs(moments.force));
    });
    const bool freeLeft = ends.held == Held::atRightEnd, freeRight = ends.held == Held::atLeftEnd;
    ends.left.reaction = freeLeft ? 0 : freeRight ? total.value() : left.value();
    ends.right.reaction = freeRight ? 0 : freeLeft ? total.value() : right.value();
    for (const auto* end : {&ends.left, &ends.right})
        ends.largestForce = std::max(ends.largestForce, std::fabs(end->reaction));
}

/// Of a member that is held at both ends.
void setRotations(MemberEnds& ends, const LoadedBeam& loaded, std::size_t member) {
    const auto& beam = loaded.beam;
    const double L = beam.Length[member];
    SettledSum left, right;
    const auto add = [&](double atLeft, double atRight) {
        left.add(2 * atLeft);
        left.add(atRight);
        right.add(-atLeft);
        right.add(-2 * atRight);
    };
    add(ends.left.moment, ends.right.moment);
    forEachLoad(loaded, member, [&](const auto& load) {
        const auto fixed = fixedEndMoments(load, L);
        add(fixed.left, fixed.right);
    });
    const double turn = L / (6 * beam.MemberE[member] * beam.MemberI[member]);
    ends.left.rotation = left.value() * turn;
    ends.right.rotation = right.value() * turn;
}

}  // namespace

MemberEnds memberEnds(const LoadedBeam& loaded, std::size_t member) {
    MemberEnds ends;
    ends.held = heldOf(loaded.beam, member);
    ends.left.moment = loaded.Final[2 * member - 1];
    ends.right.moment = 0 - loaded.Final[2 * member];  // 0, not -0
    setReactions(ends, loaded, member);
    const bool single = loaded.beam.members() == 1;  // a cantilever from a fixed end
    if (ends.held == Held::atBothEnds)
        setRotations(ends, loaded, member);
    else if (ends.held == Held::atRightEnd && !single)
        ends.right.rotation = memberEnds(loaded, member + 1).left.rotation;
    else if (ends.held == Held::atLeftEnd && !single)
        ends.left.rotation = memberEnds(loaded, member - 1).right.rotation;
    return ends;
}

}  // namespace trabeon
