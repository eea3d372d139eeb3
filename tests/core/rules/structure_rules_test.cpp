#include "core/rules/structure_rules.h"

#include <gtest/gtest.h>

#include <map>

namespace trabeon {
namespace {

using Texts = std::vector<std::string>;

constexpr auto collapse =
    "You can't have a Cantilever with a Pin Jointed structure. As the structure would collapse "
    "instantly.";
constexpr auto inner =
    "You can't have a Fix Joint, Cantilever Joint or Pin Joint in a continuous position of the "
    "beam.";
constexpr auto start = "You shouldn't start with a Continuous Joint.";
constexpr auto end = "You can't end with a Continuous Joint";

/// The messages for joints told by letters: c(antilever), p(in), n (continuous), f(ixed), x (none
/// of these).
Texts messagesFor(std::string_view letters) {
    const std::map<char, std::string> types{{'c', "Cantilever"},
                                            {'p', "Pin Jointed"},
                                            {'n', "Continuous"},
                                            {'f', "Fixed"},
                                            {'x', "FIXED"}};
    std::vector<JointRow> joints;
    for (char letter : letters)
        joints.push_back({"1", types.at(letter), "None"});
    Texts shown;
    bool error = false;
    CheckJoint(joints, error, [&](const Message& message) {
        EXPECT_EQ(message.style, 48);
        EXPECT_EQ(message.title, "Joint Error");
        shown.push_back(message.text);
    });
    EXPECT_EQ(error, !shown.empty());
    return shown;
}

TEST(CheckJoint, PassesFitSequences) {
    for (const auto* fit :
         {"ff", "cf", "fc", "pp", "pf", "pnp", "fnc", "cnnc", "cnf", "fnnnnp", "xx", "pxp"})
        EXPECT_EQ(messagesFor(fit), Texts{}) << fit;
}

TEST(CheckJoint, TellsEachBrokenRuleInOrder) {
    const std::pair<const char*, Texts> rows[] = {
        {"", {"You can't have 0 number of joint!"}},
        {"f", {"You can't have 1 number of joint!"}},
        {"n", {"You can't have 1 number of joint!", start, end}},
        {"cc", {"You can't have a Cantilever structure with no supports!"}},
        {"cp", {collapse}},
        {"pc", {collapse}},
        {"nn", {"For a structure with only 2 Joints, there shouldn't be any Continuous Joint."}},
        {"nf", {"For a structure with only 2 Joints, there shouldn't be any Continuous Joint."}},
        {"cnc", {"You can't have a Cantilever-Continuous-Cantilever Structure."}},
        {"cpn", {collapse, inner}},
        {"ffnn", {inner}},
        {"nnn", {start, end}},
        {"pncp", {inner}},
        {"nnpn", {start, inner}},
    };
    for (const auto& [joints, messages] : rows)
        EXPECT_EQ(messagesFor(joints), messages) << joints;
}

TEST(CheckMember, WantsOneMemberLessThanJoints) {
    const auto messageFor = [](std::size_t joints, std::size_t members) {
        bool error = false;
        std::string text;
        CheckMember(joints, members, error, [&](const Message& message) {
            EXPECT_EQ(message.title, "Joint Error");
            text = message.text;
        });
        EXPECT_EQ(error, !text.empty());
        return text;
    };
    EXPECT_EQ(messageFor(3, 2), "");
    EXPECT_EQ(messageFor(3, 1),
              "Please provide more Members as Total Joints are more than Total Members.");
    constexpr auto moreJoints =
        " Please provide more Joints as Total Joints are less than Total Members.";
    EXPECT_EQ(messageFor(3, 3), moreJoints);
    EXPECT_EQ(messageFor(0, 0), moreJoints);
}

}  // namespace
}  // namespace trabeon
