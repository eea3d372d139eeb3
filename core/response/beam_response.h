// The response of a whole beam: its joints, and one member after the other.
#pragma once

#include <cstddef>
#include <vector>

#include "core/outcome.h"
#include "core/response/member_response.h"

namespace trabeon {

/// x: from the left end of the beam. reaction: upward positive, the sum of what the joint gives to
/// its members; exactly 0 at a free end. moment: at a fixed end the moment there, sagging positive;
/// otherwise exactly 0. rotation: positive if the beam goes down to the right; of an inner joint
/// that of the left member's end, of a fixed end exactly 0.
struct JointResponse {
    double x = 0, reaction = 0, moment = 0, rotation = 0;
};

/// The joints from left to right, the first one at index 0; members count from 1 elsewhere.
/// The loads must be on their members. The cost is in proportion to members and loads.
[[nodiscard]] std::vector<JointResponse> jointResponses(const LoadedBeam& loaded);

/// Refuses curves of a member, from 1, with values beyond the range of a double.
[[nodiscard]] Objection checkCurves(const MemberResponse& curves, std::size_t member);

/// Refuses a beam that has no response: a load that leaves its member or has a negative width, or
/// a curve with values beyond the range of a double. The refusal names the row (its place in the
/// normal form) or the member.
[[nodiscard]] Objection checkResponse(const LoadedBeam& loaded);

/// The sum of all loads, positive downward: the reactions add up to it.
[[nodiscard]] double totalLoad(const LoadedBeam& loaded);

/// All curves and joints of a beam.
struct BeamResponse {
    std::vector<MemberResponse> members;  // the first one at index 0
    std::vector<JointResponse> joints;    // the first one at index 0
};

/// Refuses what checkResponse() refuses.
[[nodiscard]] Outcome<BeamResponse> responseOf(const LoadedBeam& loaded);

}  // namespace trabeon
