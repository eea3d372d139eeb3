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

/// Shows the messages of a check, and notes that there was one.
struct Report {
    bool& error;
    const MessageSink& show;

    void operator()(std::string text) const { Mbox(std::move(text), error, show); }
};

void checkTwoJoints(const std::vector<JointRow>& joints, const Report& report) {
    const auto count = [&](Joint type) {
        return std::count_if(joints.begin(), joints.end(),
                             [&](const JointRow& joint) { return jointNamed(joint.type) == type; });
    };
    if (count(Joint::cantilever) == 2)
        report("You can't have a Cantilever structure with no supports!");
    if (count(Joint::cantilever) == 1 && count(Joint::pin) == 1)
        report(collapse);
    if (count(Joint::continuous) >= 1)
        report("For a structure with only 2 Joints, there shouldn't be any Continuous Joint.");
}

void checkLine(const std::vector<JointRow>& joints, const Report& report) {
    const auto total = joints.size();
    const auto typeOf = [&](std::size_t i) { return jointNamed(joints[i - 1].type); };
    for (std::size_t i = 1; i <= total; ++i) {
        const auto type = typeOf(i);
        const auto first = typeOf(1);
        if (i == 1 && type == Joint::continuous)
            report("You shouldn't start with a Continuous Joint.");
        if (i == 2 && type == Joint::pin && first == Joint::cantilever)
            report(collapse);
        const bool inner = i >= 2 && i < total;
        if (inner && type != Joint::continuous && type != Joint::unknown) {
            report(
                "You can't have a Fix Joint, Cantilever Joint or Pin Joint in a continuous position of the beam.");
            return;
        }
        if (i == total && type == Joint::continuous)
            report("You can't end with a Continuous Joint");
        if (i == total && total == 3 && first == Joint::cantilever &&
            typeOf(2) == Joint::continuous && type == Joint::cantilever)
            report("You can't have a Cantilever-Continuous-Cantilever Structure.");
    }
}

}  // namespace

void Mbox(std::string Msg, bool& Shown, const MessageSink& show) {
    show({std::move(Msg), MessageKind::structure});
    Shown = true;
}

void CheckJoint(const std::vector<JointRow>& joints, bool& JointError, const MessageSink& show) {
    const Report report{JointError, show};
    const auto total = joints.size();
    if (total < 2)
        report("You can't have" + generatedText(total) + " number of joint!");
    if (total == 2)
        checkTwoJoints(joints, report);
    else
        checkLine(joints, report);
}

void CheckMember(std::size_t joints, std::size_t members, bool& MemberError,
                 const MessageSink& show) {
    const Report report{MemberError, show};
    if (members + 1 == joints)
        return;
    if (joints > members + 1)
        report("Please provide more Members as Total Joints are more than Total Members.");
    else
        report(" Please provide more Joints as Total Joints are less than Total Members.");
}

}  // namespace trabeon
