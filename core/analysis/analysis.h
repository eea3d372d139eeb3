// The analysis of a beam as one function of values.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "core/analysis/beam.h"
#include "core/analysis/member_loads.h"
#include "core/analysis/relaxation.h"
#include "core/analysis/span_results.h"
#include "core/rules/structure_rules.h"

namespace trabeon {

/// The rows of the input files.
struct BeamRows {
    std::vector<JointRow> joints;
    std::vector<MemberRow> members;
    std::vector<PointRow> points;
    std::vector<UdlRow> udls;
};

/// Divisions: equal parts of each span, a whole number from 1 to 10,000. places: 0 to 12; the
/// search for a maximum stops at a bracket of 1 / 10^(places + 1) of the length unit.
struct AnalysisSettings {
    double Divisions = 10;
    double places = 3;
};

/// Refuses Divisions that are not a whole number from 1 to 10,000.
[[nodiscard]] Objection checkDivisions(double Divisions);

/// Refuses settings outside their limits.
[[nodiscard]] Objection checkSettings(const AnalysisSettings& settings);

/// The functions that an analysis calls while it runs. `progress` gets 0, then 50 when the
/// relaxation has ended, then 50 + 50 i / n when span i of n has been searched. `rowsRead` gets the
/// rows of the folder before the analysis sorts the loads.
struct AnalysisOutputs {
    MessageSink message;
    std::function<void(double)> progress = [](double) {};
    std::function<void(const BeamRows&)> rowsRead = [](const BeamRows&) {};

    void refuse(const Refusal& why) const { message({why.sentence, MessageKind::refusal}); }
};

/// A beam with its loads in normal form and its final end moments. All other results follow from
/// these.
struct RelaxedBeam {
    Beam beam;
    MemberLoads<PointLoad> points;
    MemberLoads<UdlLoad> udls;
    std::vector<double> Final;  // by member end, clockwise positive, from 1

    [[nodiscard]] LoadedBeam loaded() const { return {beam, Final, udls, points}; }
};

/// The results. The rows of the balance table are not among them: they go out one by one, so that a
/// long table needs no memory.
struct Analysis : RelaxedBeam {
    std::vector<Station> stations;  // Divisions + 1 for each span, first span first
    std::vector<Station> maxima;    // one for each span

    [[nodiscard]] std::span<const Station> stationsOf(std::size_t span) const {
        const auto perSpan = stations.size() / maxima.size();
        return std::span(stations).subspan((span - 1) * perSpan, perSpan);
    }
};

/// The first part of an analysis: everything up to the final end moments. It needs no settings.
/// `progress` gets 0 and 50. Refuses as analyse() does.
[[nodiscard]] std::optional<RelaxedBeam> relaxBeam(BeamRows rows, const TableSink& tableRow,
                                                   const AnalysisOutputs& outputs);

/// Each row of the balance table goes to `tableRow` once it is calculated. Returns nothing if the
/// structure breaks a rule or a value cannot be calculated; then a message was shown.
[[nodiscard]] std::optional<Analysis> analyse(BeamRows rows, const AnalysisSettings& settings,
                                              const TableSink& tableRow,
                                              const AnalysisOutputs& outputs);

}  // namespace trabeon
