#include "batch/beam_report.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <numeric>

#include "batch/text_table.h"
#include "core/analysis/settled_sum.h"
#include "core/text/number_masks.h"

namespace trabeon {
namespace {

/// A value for people: five significant figures.
std::string figure(double value) {
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.5g", value == 0 ? 0.0 : value);
    return text.data();
}

std::vector<std::string_view> wordsOf(std::string_view line) {
    std::vector<std::string_view> words;
    for (std::size_t at = line.find_first_not_of(' '); at != line.npos;) {
        const auto end = std::min(line.find(' ', at), line.size());
        words.push_back(line.substr(at, end - at));
        at = line.find_first_not_of(' ', end);
    }
    return words;
}

/// 000000012 of the joint row reads 12; other cells stay.
std::string_view withoutZeros(std::string_view cell) {
    if (cell.find_first_not_of("0123456789") != cell.npos)
        return cell;
    return cell.substr(std::min(cell.find_first_not_of('0'), cell.size() - 1));
}

std::string spanTable(const Analysis& analysis) {
    std::string text = tableLine("Member", {"M left", "M right", "at x", "M max", "shear there"});
    for (std::size_t i = 1; i <= analysis.beam.members(); ++i) {
        const auto stations = analysis.stationsOf(i);
        const auto& [x, forces] = analysis.maxima[i - 1];
        text +=
            tableLine(std::to_string(i), {figure(stations.front().forces.moment),
                                          figure(stations.back().forces.moment), figure(x),
                                          threeFigures(forces.moment), threeFigures(forces.shear)});
    }
    return text;
}

/// From the moments about the left joint, so that it does not depend on the shears.
double rightReaction(const Analysis& analysis, std::size_t member) {
    const auto stations = analysis.stationsOf(member);
    const double left = stations.front().forces.moment;
    const double right = stations.back().forces.moment;
    double loads = 0;
    for (const auto& load : analysis.points.on(member))
        loads += load.P * load.a;
    for (const auto& load : analysis.udls.on(member))
        loads -= load.momentAbout(-load.a, load.b);
    SettledSum moment;
    for (const double part : {left, -right, loads})
        moment.add(part);
    return moment.value() / analysis.beam.Length[member];
}

}  // namespace

std::vector<double> reactionsOf(const Analysis& analysis) {
    std::vector<double> reactions(analysis.beam.Supports, 0);
    for (std::size_t i = 1; i <= analysis.beam.members(); ++i) {
        const auto stations = analysis.stationsOf(i);
        reactions[i - 1] -= stations.front().forces.shear;
        reactions[i] += rightReaction(analysis, i);
    }
    return reactions;
}

double totalLoad(const Analysis& analysis) {
    double total = 0;
    for (const auto& load : analysis.points.loads)
        total += load.P;
    for (const auto& load : analysis.udls.loads)
        total += load.resultant(load.b);
    return total;
}

std::string balanceTableStrips(std::string_view table, std::size_t width) {
    std::vector<std::vector<std::string_view>> rows;
    FieldReader lines(table);
    while (!lines.atEnd())
        rows.push_back(wordsOf(lines.nextLine()));
    const std::size_t room = width > labelWidth ? (width - labelWidth) / columnWidth : 0;
    const std::size_t perStrip = std::max<std::size_t>(2, room / 2 * 2);
    std::string text;
    for (std::size_t from = 1; !rows.empty() && from < rows.front().size(); from += perStrip) {
        if (from > 1)
            text += '\n';
        for (const auto& cells : rows) {
            text += labelled(cells.front());
            for (auto k = from; k < std::min(from + perStrip, cells.size()); ++k)
                text += padded(withoutZeros(cells[k]), columnWidth);
            text += '\n';
        }
    }
    return text;
}

std::string reactionCheck(const Analysis& analysis) {
    const auto reactions = reactionsOf(analysis);
    const double sum = std::accumulate(reactions.begin(), reactions.end(), 0.0);
    const double loads = totalLoad(analysis);
    double largest = std::fabs(loads);
    for (const double reaction : reactions)
        largest = std::max(largest, std::fabs(reaction));
    const auto figures = "Reactions add up to " + figure(sum) + ", loads to " + figure(loads);
    if (std::fabs(sum - loads) <= 1e-9 * largest)
        return figures + ": they agree.\n";
    return figures + ": they differ. Check the loads.\n";
}

std::string resultTables(const Analysis& analysis) {
    const auto reactions = reactionsOf(analysis);
    std::string text = "Moments (sagging positive)\n" + spanTable(analysis);
    text += "\nReactions (upward positive)\n" + tableLine("Joint", {"reaction"});
    for (std::size_t j = 0; j < reactions.size(); ++j)
        text += tableLine(std::to_string(j + 1), {figure(reactions[j])});
    return text + reactionCheck(analysis);
}

}  // namespace trabeon
