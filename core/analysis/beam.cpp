#include "core/analysis/beam.h"

#include <array>
#include <cctype>
#include <cmath>
#include <string>

#include "core/text/number_text.h"
#include "core/text/readable.h"

namespace trabeon {
namespace {

constexpr std::array<std::string_view, 5> jointNames{"", "Cantilever", "Pin Jointed", "Continuous",
                                                     "Fixed"};

bool isMeasure(double value) {
    return value > 0 && std::isfinite(value);
}

/// A type that was spelled by hand ("fixed", "PIN") passed the rules as no type at all; as the type
/// that it is taken for it must pass them too.
Failure unfitSpelling(const std::vector<JointRow>& joints, const std::vector<Joint>& types) {
    const auto nameOf = [&](std::size_t j) {
        return jointNames[static_cast<std::size_t>(types[j])];
    };
    std::size_t misspelled = 1;
    while (misspelled <= joints.size() && joints[misspelled - 1].type == nameOf(misspelled))
        ++misspelled;
    if (misspelled > joints.size())
        return std::nullopt;
    auto spelled = joints;
    for (std::size_t j = 1; j <= joints.size(); ++j)
        spelled[j - 1].type = nameOf(j);
    bool error = false;
    std::string first;
    CheckJoint(spelled, error, [&](const Message& message) {
        if (first.empty())
            first = message.text;
    });
    if (!error)
        return std::nullopt;
    return Refusal{"Joint " + std::to_string(misspelled) + ", whose type \"" +
                   excerpt(joints[misspelled - 1].type) + "\" was taken for " +
                   std::string(nameOf(misspelled)) + ": " + first};
}

Failure unfitMember(const MemberRow& row, std::size_t number, const Beam& beam) {
    const auto bad = [&](std::string_view what, const std::string& text) {
        return Refusal{"Member " + std::to_string(number) + ": " + std::string(what) + " is \"" +
                       excerpt(text) +
                       "\". It must be a number above 0; correct the member's row."};
    };
    if (!isMeasure(beam.MemberE[number]))
        return bad("E", row.E);
    if (!isMeasure(beam.MemberI[number]))
        return bad("I", row.I);
    if (!isMeasure(beam.Length[number]))
        return bad("L", row.L);
    if (!isMeasure(2 * beam.Stiffness[number]))  // two of them are added at a joint
        return Refusal{
            "Member " + std::to_string(number) +
            ": its stiffness E × I / L is too large or too small a number. Use other units."};
    return std::nullopt;
}

}  // namespace

Joint jointOf(std::string_view type) {
    std::string letters(type.substr(0, 3));
    for (char& c : letters)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    if (letters == "can")
        return Joint::cantilever;
    if (letters == "pin")
        return Joint::pin;
    if (letters == "con")
        return Joint::continuous;
    if (letters == "fix")
        return Joint::fixed;
    return Joint::unknown;
}

Outcome<Beam> beamOf(const std::vector<JointRow>& joints, const std::vector<MemberRow>& members) {
    Beam beam;
    beam.Supports = joints.size();
    beam.EndCount = 2 * members.size();
    beam.SupportType.resize(joints.size() + 1, Joint::unknown);
    for (std::size_t j = 1; j <= joints.size(); ++j) {
        beam.SupportType[j] = jointOf(joints[j - 1].type);
        if (beam.SupportType[j] == Joint::unknown)
            return Refusal{"Joint " + std::to_string(j) + ": its type is \"" +
                           excerpt(joints[j - 1].type) +
                           "\". It must be Cantilever, Pin Jointed, Continuous or Fixed."};
    }
    if (auto failure = unfitSpelling(joints, beam.SupportType))
        return *failure;

    for (auto array : {&Beam::MemberE, &Beam::MemberI, &Beam::Length, &Beam::Stiffness})
        (beam.*array).resize(members.size() + 1, 0);
    for (std::size_t i = 1; i <= members.size(); ++i) {
        const auto& row = members[i - 1];
        beam.MemberE[i] = leadingNumber(row.E);
        beam.MemberI[i] = leadingNumber(row.I);
        beam.Length[i] = leadingNumber(row.L);
        beam.Stiffness[i] = beam.MemberE[i] * beam.MemberI[i] / beam.Length[i];
        if (auto failure = unfitMember(row, i, beam))
            return *failure;
    }
    return beam;
}

}  // namespace trabeon
