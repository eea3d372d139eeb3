#include "core/response/beam_response.h"

#include <string>

#include "core/analysis/settled_sum.h"
#include "core/analysis/stray_loads.h"
#include "core/response/two_doubles.h"

namespace trabeon {
namespace {

/// The rotations of a member at its two ends. That of a free end follows from the curve.
std::pair<double, double> endRotations(const LoadedBeam& loaded, const MemberEnds& ends,
                                       std::size_t member) {
    if (ends.held == Held::atBothEnds)
        return {ends.left.rotation, ends.right.rotation};
    const MemberResponse curve(loaded, member);
    return {curve.pieces().front().rotation.first(), curve.pieces().back().rotation.last()};
}

}  // namespace

std::vector<JointResponse> jointResponses(const LoadedBeam& loaded) {
    const auto& beam = loaded.beam;
    std::vector<JointResponse> joints(beam.Supports);
    TwoDoubles x;
    double fromLeft = 0;  // what the joint gives to the member on its left
    for (std::size_t member = 1; member <= beam.members(); ++member) {
        const auto ends = memberEnds(loaded, member);
        const auto rotations = endRotations(loaded, ends, member);
        auto &left = joints[member - 1], &right = joints[member];
        SettledSum reaction;
        reaction.add(fromLeft);
        reaction.add(ends.left.reaction);
        left.reaction = reaction.value();
        right.reaction = fromLeft = ends.right.reaction;
        if (member == 1)
            left.rotation = rotations.first;
        right.rotation = rotations.second;
        x += beam.Length[member];
        right.x = x.value();
        if (beam.SupportType[member] == Joint::fixed)
            left.moment = ends.left.moment;
        if (beam.SupportType[member + 1] == Joint::fixed)
            right.moment = ends.right.moment;
    }
    for (std::size_t j = 0; j < joints.size(); ++j)
        if (beam.SupportType[j + 1] == Joint::fixed)
            joints[j].rotation = 0;
    return joints;
}

Objection checkCurves(const MemberResponse& curves, std::size_t member) {
    if (curves.isFinite())
        return std::nullopt;
    return Refusal{"Member " + std::to_string(member) +
                   ": its rotations or deflections are too large to be calculated. Use other "
                   "units."};
}

Objection checkResponse(const LoadedBeam& loaded) {
    if (auto objection = objectionTo(strayLoads(loaded)))
        return objection;
    const auto n = loaded.beam.members();
    for (std::size_t member = 1; member <= n; ++member)
        if (member == 1 || member == n || !isFarFromOverflow(loaded, member))
            if (auto objection = checkCurves(MemberResponse(loaded, member), member))
                return objection;
    return std::nullopt;
}

double totalLoad(const LoadedBeam& loaded) {
    SettledSum total;
    for (const auto& load : loaded.points.loads)
        total.add(load.P);
    for (const auto& load : loaded.udls.loads)
        total.add(load.resultant(load.b));
    return total.value();
}

Outcome<BeamResponse> responseOf(const LoadedBeam& loaded) {
    if (const auto objection = objectionTo(strayLoads(loaded)))
        return *objection;
    BeamResponse response;
    response.members.reserve(loaded.beam.members());
    for (std::size_t member = 1; member <= loaded.beam.members(); ++member) {
        response.members.emplace_back(loaded, member);
        if (const auto objection = checkCurves(response.members.back(), member))
            return *objection;
    }
    response.joints = jointResponses(loaded);
    return response;
}

}  // namespace trabeon
