#include "core/analysis/beam.h"

#include <cmath>
#include <string>

#include "core/rules/structure_rules.h"
#include "core/text/number_text.h"
#include "core/text/readable.h"

namespace trabeon {
namespace {

bool isMeasure(double value) {
    return value > 0 && std::isfinite(value);
}

/// The rules pass over a type that is not spelled exactly ("fixed", "PIN"). Such a beam must also
/// pass them with the types that the analysis takes.
Objection checkSpelling(const std::vector<JointRow>& joints, const std::vector<Joint>& types) {
    std::size_t misspelled = 1;
    while (misspelled <= joints.size() && joints[misspelled - 1].type == nameOf(types[misspelled]))
        ++misspelled;
    if (misspelled > joints.size())
        return std::nullopt;
    auto spelled = joints;
    for (std::size_t j = 1; j <= joints.size(); ++j)
        spelled[j - 1].type = nameOf(types[j]);
    const auto broken = CheckJoint(spelled);
    if (broken.empty())
        return std::nullopt;
    return Refusal{"Joint " + std::to_string(misspelled) + ", whose type \"" +
                   excerpt(joints[misspelled - 1].type) + "\" is read as " +
                   std::string(nameOf(types[misspelled])) + ": " + broken.front()};
}

Objection checkMemberRow(const MemberRow& row, std::size_t number, const Beam& beam) {
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
    if (const auto objection = checkSpelling(joints, beam.SupportType))
        return *objection;

    for (auto array : {&Beam::MemberE, &Beam::MemberI, &Beam::Length, &Beam::Stiffness})
        (beam.*array).resize(members.size() + 1, 0);
    for (std::size_t i = 1; i <= members.size(); ++i) {
        const auto& row = members[i - 1];
        beam.MemberE[i] = leadingNumber(row.E);
        beam.MemberI[i] = leadingNumber(row.I);
        beam.Length[i] = leadingNumber(row.L);
        beam.Stiffness[i] = beam.MemberE[i] * beam.MemberI[i] / beam.Length[i];
        if (const auto objection = checkMemberRow(row, i, beam))
            return *objection;
    }
    return beam;
}

}  // namespace trabeon
