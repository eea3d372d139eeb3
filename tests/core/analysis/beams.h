// Beams from a line of text, beams at random, and what their analysis gives.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <sstream>

#include "core/analysis/analysis.h"

namespace trabeon {

/// "pin 6 continuous 4.5 fixed", and its loads: "u1 0 6 12 12; p2 2.5 20" is a distributed load on
/// member 1 by a, b, w1, w2 and a point load on member 2 by a, P.
inline BeamRows beamOf(const std::string& line, const std::string& loads) {
    const auto typeOf = [](std::string joint) {
        joint[0] = static_cast<char>(std::toupper(joint[0]));
        return joint == "Pin" ? "Pin Jointed" : joint;
    };
    BeamRows rows;
    std::istringstream words(line), parts(loads);
    for (std::string joint, L; words >> joint;) {
        rows.joints.push_back({"", typeOf(joint), "None"});
        if (words >> L)
            rows.members.push_back({"", "1", "1", L, "None"});
    }
    for (std::string part, kind, a, b, w1, w2; std::getline(parts, part, ';');) {
        std::istringstream(part) >> kind >> a >> b >> w1 >> w2;
        if (kind[0] == 'u')
            rows.udls.push_back({kind.substr(1), a, b, w1, w2, "None"});
        else
            rows.points.push_back({kind.substr(1), a, b, "None"});
    }
    return rows;
}

/// An analysis and all its outputs.
struct Analysed {
    std::vector<std::string> messages;
    std::vector<double> progress;
    std::vector<std::vector<double>> table;  // the rows' cells
    std::optional<Analysis> analysis;

    const Analysis* operator->() const { return &analysis.value(); }
};

inline Analysed analysed(const BeamRows& rows, const AnalysisSettings& settings = {}) {
    Analysed found;
    found.analysis = analyse(
        rows, settings,
        [&](const TableRow& row) { found.table.emplace_back(row.cells.begin(), row.cells.end()); },
        {[&](const Message& message) { found.messages.push_back(message.text); },
         [&](double value) { found.progress.push_back(value); }});
    return found;
}

/// Numbers that are the same with every standard library.
class Dice {
  public:
    double between(double low, double high) {
        return low + (high - low) * static_cast<double>(engine_()) / 0x1p32;
    }
    std::size_t upTo(std::size_t most) { return engine_() % (most + 1); }

  private:
    std::mt19937 engine_{20};
};

/// Any beam that the rules accept.
inline BeamRows randomBeam(Dice& dice) {
    const auto text = [](double value) { return std::to_string(value); };
    const char* ends[] = {"Fixed", "Pin Jointed", "Cantilever"};
    const auto n = 1 + dice.upTo(11), left = dice.upTo(2);
    const auto right = dice.upTo(std::min<std::size_t>(2, n + 1 - left));  // what is still stable
    BeamRows rows;
    rows.joints.push_back({"", ends[left], ""});
    for (std::size_t i = 1; i <= n; ++i) {
        const double L = dice.between(2, 12);
        rows.joints.push_back({"", i < n ? "Continuous" : ends[right], ""});
        rows.members.push_back(
            {"", text(dice.between(100, 300)), text(dice.between(0.5, 2)), text(L), ""});
        for (auto k = dice.upTo(2); k > 0; --k)
            rows.points.push_back(
                {std::to_string(i), text(dice.between(0, L)), text(dice.between(-1000, 3000)), ""});
        for (auto k = dice.upTo(2); k > 0; --k) {
            const double a = dice.between(0, 0.8 * L), b = dice.between(0.05 * L, L - a);
            rows.udls.push_back({std::to_string(i), text(a), text(b),
                                 text(dice.between(-500, 2000)), text(dice.between(-500, 2000)),
                                 ""});
        }
    }
    return rows;
}

}  // namespace trabeon
