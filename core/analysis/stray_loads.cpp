#include "core/analysis/stray_loads.h"

#include <cmath>

#include "core/text/number_text.h"

namespace trabeon {
namespace {

constexpr double roundingOfLength = 1e-12;  // of the member's length

std::string plain(double value) {
    return std::isfinite(value) ? bareNumber(value) : "too large a number";
}

/// What is wrong with a stretch from a to `end` on a member of the length L, if anything is.
std::string rangeProblem(double a, double end, const std::string& endName, double L) {
    if (a < 0)
        return "a is " + plain(a) + ", before the member's start";
    if (end > L * (1 + roundingOfLength))
        return endName + " is " + plain(end) + ", beyond the member's end at " + plain(L);
    return {};
}

std::string problemOf(const PointLoad& load, double L) {
    return rangeProblem(load.a, load.a, "a", L);
}

std::string problemOf(const UdlLoad& load, double L) {
    if (load.b < 0)
        return "its width b is negative, " + plain(load.b);
    return rangeProblem(load.a, load.a + load.b, "a + b", L);
}

template <class Load>
void appendStray(std::vector<StrayLoad>& stray, const std::vector<typename Load::Row>& rows,
                 const std::vector<double>& lengths) {
    for (std::size_t k = 0; k < rows.size(); ++k) {
        const Load load(rows[k]);
        const auto member = load.isZero() ? 0 : wholeNumberUpTo(lengths.size(), rows[k].member);
        if (member == 0 || load.objection())
            continue;
        auto what = problemOf(load, lengths[member - 1]);
        if (!what.empty())
            stray.push_back({Load::name, k + 1, member, std::move(what)});
    }
}

template <class Load>
void appendStray(std::vector<StrayLoad>& stray, const Beam& beam, const MemberLoads<Load>& loads) {
    for (std::size_t member = 1; member <= beam.members(); ++member)
        for (auto k = loads.first[member]; k < loads.first[member + 1]; ++k) {
            const auto& load = loads.loads[k];
            auto what = load.isZero() ? std::string() : problemOf(load, beam.Length[member]);
            if (!what.empty())
                stray.push_back({Load::name, k + 1, member, std::move(what)});
        }
}

/// "Row 2 of the point loads, on member 1: a is 7, beyond the member's end at 6".
std::string placeAndFault(const StrayLoad& load) {
    return "Row " + std::to_string(load.row) + " of the " + std::string(load.kind) +
           "s, on member " + std::to_string(load.member) + ": " + load.what;
}

}  // namespace

std::vector<StrayLoad> strayLoads(const BeamRows& rows) {
    std::vector<double> lengths;
    lengths.reserve(rows.members.size());
    for (const auto& row : rows.members)
        lengths.push_back(leadingNumber(row.L));
    std::vector<StrayLoad> stray;
    appendStray<PointLoad>(stray, rows.points, lengths);
    appendStray<UdlLoad>(stray, rows.udls, lengths);
    return stray;
}

std::vector<StrayLoad> strayLoads(const LoadedBeam& loaded) {
    std::vector<StrayLoad> stray;
    appendStray(stray, loaded.beam, loaded.points);
    appendStray(stray, loaded.beam, loaded.udls);
    return stray;
}

std::string sentenceOf(const StrayLoad& load) {
    return placeAndFault(load) +
           ". It was analysed as entered; correct the row if that is not intended.";
}

Objection objectionTo(const std::vector<StrayLoad>& stray) {
    if (stray.empty())
        return std::nullopt;
    return Refusal{placeAndFault(stray.front()) +
                   ". A beam with such a load has no reactions and no deflections; correct the "
                   "row."};
}

}  // namespace trabeon
