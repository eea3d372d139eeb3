// The beam that an analysis works on: a straight line of joints 1 to Supports from the left, member
// i from joint i to joint i + 1.
#pragma once

#include <cstddef>
#include <vector>

#include "core/outcome.h"
#include "core/rules/joint_types.h"
#include "core/store/rows.h"

namespace trabeon {

/// All arrays count from 1; element 0 is not used and is 0.
struct Beam {
    std::size_t Supports = 0;
    std::size_t EndCount = 0;  // member ends: 2 × (Supports - 1)
    std::vector<Joint> SupportType;
    std::vector<double> MemberE, MemberI, Length;
    /// E × I / L, without a factor 4 and without a reduction for a pinned far end.
    std::vector<double> Stiffness;

    [[nodiscard]] std::size_t members() const { return Supports - 1; }
    [[nodiscard]] bool leftCantilever() const { return SupportType[1] == Joint::cantilever; }
    [[nodiscard]] bool rightCantilever() const {
        return SupportType[Supports] == Joint::cantilever;
    }
};

/// The beam of rows that passed CheckJoint and CheckMember. Refuses a joint of an unknown type.
/// Refuses a member whose E, I, L or stiffness is not above 0 or not finite. The refusal names the
/// row.
[[nodiscard]] Outcome<Beam> beamOf(const std::vector<JointRow>& joints,
                                   const std::vector<MemberRow>& members);

}  // namespace trabeon
