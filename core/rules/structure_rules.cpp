#include "core/rules/structure_rules.h"

#include <algorithm>
#include <utility>

#include "core/text/number_text.h"

namespace trabeon {
namespace {

constexpr auto collapse =
    "You can't have a Cantilever with a Pin Jointed structure. As the structure would collapse "
    "instantly.";

/// One press of the test: it shows each message and notes that there was one.
struct Report {
    bool& error;
    const MessageSink& show;

    void operator()(const char* text) const { Mbox(text, 48, "Joint Error", error, show); }
};

void checkTwoJoints(const std::vector<JointRow>& joints, const Report& report) {
    const auto count = [&](const char* type) {
        return std::count_if(joints.begin(), joints.end(),
                             [&](const JointRow& joint) { return joint.type == type; });
    };
    if (count("Cantilever") == 2)
        report("You can't have a Cantilever structure with no supports!");
    if (count("Cantilever") == 1 && count("Pin Jointed") == 1)
        report(collapse);
    if (count("Continuous") >= 1)
        report("For a structure with only 2 Joints, there shouldn't be any Continuous Joint.");
}

void checkLine(const std::vector<JointRow>& joints, const Report& report) {
    const auto total = joints.size();
    for (std::size_t i = 1; i <= total; ++i) {
        const auto& type = joints[i - 1].type;
        const auto& first = joints.front().type;
        if (i == 1 && type == "Continuous")
            report("You shouldn't start with a Continuous Joint.");
        if (i == 2 && type == "Pin Jointed" && first == "Cantilever")
            report(collapse);
        const bool inner = i >= 2 && i < total;
        if (inner && (type == "Fixed" || type == "Cantilever" || type == "Pin Jointed")) {
            report(
                "You can't have a Fix Joint, Cantilever Joint or Pin Joint in a continuous position of the beam.");
            return;
        }
        if (i == total && type == "Continuous")
            report("You can't end with a Continuous Joint");
        if (i == total && total == 3 && first == "Cantilever" && joints[1].type == "Continuous" &&
            type == "Cantilever")
            report("You can't have a Cantilever-Continuous-Cantilever Structure.");
    }
}

}  // namespace

void Mbox(std::string Msg, int Style, std::string Title, bool& Shown, const MessageSink& show) {
    show({std::move(Msg), Style, std::move(Title)});
    Shown = true;
}

void CheckJoint(const std::vector<JointRow>& joints, bool& JointError, const MessageSink& show) {
    const Report report{JointError, show};
    const auto total = joints.size();
    if (total < 2) {
        const auto count = generatedText(static_cast<double>(total));
        report(("You can't have" + count + " number of joint!").c_str());
    }
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
