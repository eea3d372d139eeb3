#include "forms/check/beam_answer.h"

#include "core/analysis/stray_loads.h"
#include "core/text/readable.h"

namespace trabeon {
namespace {

std::vector<std::string> typesOf(const std::vector<JointRow>& joints) {
    std::vector<std::string> types;
    types.reserve(joints.size());
    for (const auto& joint : joints)
        types.push_back(readable(joint.type));
    return types;
}

}  // namespace

Outcome<BeamAnswer> answerOf(const std::filesystem::path& folder) {
    if (const auto objection = missing(folder, inputFiles))
        return *objection;
    const auto texts = readFiles(folder, inputFiles);
    if (!texts)
        return texts.refusal();
    const auto& [joints, members, points, udls] = *texts;
    BeamRows rows{rowsOf<JointRow>(joints), rowsOf<MemberRow>(members), rowsOf<PointRow>(points),
                  rowsOf<UdlRow>(udls)};
    if (rows.joints.empty())
        return Refusal{"The beam has no joints yet. Enter its joints, members and loads."};
    const auto stray = objectionTo(strayLoads(rows));
    auto types = typesOf(rows.joints);
    std::string why;
    AnalysisOutputs outputs;
    outputs.message = [&](const Message& message) {
        if (why.empty())
            why = message.text;
    };
    auto relaxed = relaxBeam(
        std::move(rows), [](const TableRow&) {}, outputs);
    if (!relaxed)
        return Refusal{why};
    if (stray)
        return *stray;
    auto response = responseOf(relaxed->loaded());
    if (!response)
        return response.refusal();
    return BeamAnswer{std::move(*relaxed), std::move(*response), std::move(types)};
}

}  // namespace trabeon
