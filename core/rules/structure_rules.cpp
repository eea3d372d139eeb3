#include "core/rules/structure_rules.h"

#include <algorithm>
#include <utility>

#include "core/rules/joint_types.h"
#include "core/text/number_text.h"

namespace trabeon {
namespace {

constexpr auto collapse =
    "You can't have a Cantilever with a Pin Jointed structure. As the structure would collapse "
    "instantly.";

using Messages = std::vector<std::string>;

Messages checkTwoJoints(const std::vector<JointRow>& joints) {
    Messages broken;
    const auto count = [&](Joint type) {
        return std::count_if(joints.begin(), joints.end(),
                             [&](const JointRow& joint) { return jointNamed(joint.type) == type; });
    };
    if (count(Joint::cantilever) == 2)
        broken.emplace_back("You can't have a Cantilever structure with no supports!");
    if (count(Joint::cantilever) == 1 && count(Joint::pin) == 1)
        broken.emplace_back(collapse);
    if (count(Joint::continuous) >= 1)
        broken.emplace_back(
            "For a structure with only 2 Joints, there shouldn't be any Continuous Joint.");
    return broken;
}

Messages checkLine(const std::vector<JointRow>& joints) {
    Messages broken;
    const auto total = joints.size();
    const auto typeOf = [&](std::size_t i) { return jointNamed(joints[i - 1].type); };
    for (std::size_t i = 1; i <= total; ++i) {
        const auto type = typeOf(i);
        const auto first = typeOf(1);
        if (i == 1 && type == Joint::continuous)
            broken.emplace_back("You shouldn't start with a Continuous Joint.");
        if (i == 2 && type == Joint::pin && first == Joint::cantilever)
            broken.emplace_back(collapse);
        const bool inner = i >= 2 && i < total;
        if (inner && type != Joint::continuous && type != Joint::unknown) {
            broken.emplace_back(
                "You can't have a Fix Joint, Cantilever Joint or Pin Joint in a continuous position of the beam.");
            return broken;
        }
        if (i == total && type == Joint::continuous)
            broken.emplace_back("You can't end with a Continuous Joint");
        if (i == total && total == 3 && first == Joint::cantilever &&
            typeOf(2) == Joint::continuous && type == Joint::cantilever)
            broken.emplace_back("You can't have a Cantilever-Continuous-Cantilever Structure.");
    }
    return broken;
}

}  // namespace

void Mbox(std::string Msg, const MessageSink& show) {
    show({std::move(Msg), MessageKind::structure});
}

std::vector<std::string> CheckJoint(const std::vector<JointRow>& joints) {
    if (joints.size() == 2)
        return checkTwoJoints(joints);
    auto broken = checkLine(joints);
    if (joints.size() < 2)
        broken.insert(broken.begin(),
                      "You can't have" + generatedText(joints.size()) + " number of joint!");
    return broken;
}

std::vector<std::string> CheckMember(std::size_t joints, std::size_t members) {
    if (joints > members + 1)
        return {"Please provide more Members as Total Joints are more than Total Members."};
    if (joints < members + 1)
        return {" Please provide more Joints as Total Joints are less than Total Members."};
    return {};
}

}  // namespace trabeon
