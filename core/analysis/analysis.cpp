#include "core/analysis/analysis.h"

#include <algorithm>
#include <cmath>
#include <span>

#include "core/analysis/fixed_end_moments.h"
#include "core/analysis/maximum_search.h"
#include "core/text/number_text.h"

namespace trabeon {
namespace {

bool passesRules(const BeamRows& rows, const MessageSink& show) {
    const auto JointErrors = CheckJoint(rows.joints);
    const auto MemberErrors = CheckMember(rows.joints.size(), rows.members.size());
    for (const auto* errors : {&JointErrors, &MemberErrors})
        for (const auto& message : *errors)
            Mbox(message, show);
    return JointErrors.empty() && MemberErrors.empty();
}

Objection tooLarge(std::size_t member) {
    return Refusal{"Member " + std::to_string(member) +
                   ": its moments or shears are too large to be calculated. Use other units."};
}

Objection checkMoments(const std::vector<double>& FEM) {
    for (std::size_t k = 1; k < FEM.size(); ++k)
        if (!std::isfinite(FEM[k]))
            return tooLarge((k + 1) / 2);
    return std::nullopt;
}

Objection checkForces(const std::vector<Station>& stations, std::size_t perSpan) {
    for (std::size_t k = 0; k < stations.size(); ++k)
        if (!std::isfinite(stations[k].forces.moment) || !std::isfinite(stations[k].forces.shear))
            return tooLarge(k / perSpan + 1);
    return std::nullopt;
}

std::vector<Station> searchMaxima(const LoadedBeam& loaded, std::span<const Station> stations,
                                  const AnalysisSettings& settings,
                                  const AnalysisOutputs& outputs) {
    const auto n = loaded.beam.members();
    const auto perSpan = stations.size() / n;
    const double CorrectTo = 1 / std::pow(10, settings.places + 1);
    std::vector<Station> maxima;
    maxima.reserve(n);
    for (std::size_t span = 1; span <= n; ++span) {
        const auto own = stations.subspan((span - 1) * perSpan, perSpan);
        maxima.push_back(searchMaximum(loaded, span, own, CorrectTo));
        outputs.progress(50 + 50 * static_cast<double>(span) / static_cast<double>(n));
    }
    return maxima;
}

/// The end moments of a beam whose structure passed the rules.
Outcome<RelaxedBeam> relaxed(BeamRows rows, const TableSink& tableRow,
                             const AnalysisOutputs& outputs) {
    auto beam = beamOf(rows.joints, rows.members);
    if (!beam)
        return beam.refusal();
    const auto n = beam->members();
    rows.joints = {};  // their memory serves the loads
    rows.members = {};
    auto points = normalForm<PointLoad>(std::move(rows.points), n);
    if (!points)
        return points.refusal();
    auto udls = normalForm<UdlLoad>(std::move(rows.udls), n);
    if (!udls)
        return udls.refusal();

    const auto FEM = fixedEndMoments(*beam, *udls, *points);
    if (const auto objection = checkMoments(FEM))
        return *objection;
    auto Final = relax(*beam, FEM, tableRow, [&] { outputs.progress(50); });
    if (!Final)
        return Final.refusal();
    return RelaxedBeam{std::move(*beam), std::move(*points), std::move(*udls), std::move(*Final)};
}

/// The whole calculation of a beam whose structure passed the rules.
Outcome<Analysis> calculate(BeamRows rows, const AnalysisSettings& settings,
                            const TableSink& tableRow, const AnalysisOutputs& outputs) {
    if (const auto objection = checkSettings(settings))
        return *objection;
    auto beam = relaxed(std::move(rows), tableRow, outputs);
    if (!beam)
        return beam.refusal();
    const auto loaded = beam->loaded();
    const auto Divisions = static_cast<std::size_t>(settings.Divisions);
    auto stations = FindMxSx(loaded, Divisions);
    if (const auto objection = checkForces(stations, Divisions + 1))
        return *objection;
    auto maxima = searchMaxima(loaded, stations, settings, outputs);
    if (const auto objection = checkForces(maxima, 1))
        return *objection;
    return Analysis{std::move(*beam), std::move(stations), std::move(maxima)};
}

template <class Result>
std::optional<Result> orRefuse(Outcome<Result> result, const AnalysisOutputs& outputs) {
    if (result)
        return std::move(*result);
    outputs.refuse(result.refusal());
    return std::nullopt;
}

}  // namespace

Objection checkSettings(const AnalysisSettings& settings) {
    if (auto objection = checkDivisions(settings.Divisions))
        return objection;
    if (!(settings.places >= 0 && settings.places <= 12))
        return Refusal{"The decimal places of the maximum must be a number from 0 to 12."};
    return std::nullopt;
}

Objection checkDivisions(double Divisions) {
    if (!(Divisions >= 1 && Divisions <= 10'000 && Divisions == std::floor(Divisions)))
        return Refusal{"The number of sections of a span must be a whole number from 1 to 10,000."};
    return std::nullopt;
}

std::optional<RelaxedBeam> relaxBeam(BeamRows rows, const TableSink& tableRow,
                                     const AnalysisOutputs& outputs) {
    outputs.progress(0);
    if (!passesRules(rows, outputs.message))
        return std::nullopt;
    return orRefuse(relaxed(std::move(rows), tableRow, outputs), outputs);
}

std::optional<Analysis> analyse(BeamRows rows, const AnalysisSettings& settings,
                                const TableSink& tableRow, const AnalysisOutputs& outputs) {
    outputs.progress(0);
    if (!passesRules(rows, outputs.message))
        return std::nullopt;
    return orRefuse(calculate(std::move(rows), settings, tableRow, outputs), outputs);
}

}  // namespace trabeon
