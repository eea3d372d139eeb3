#include "batch/beam_report.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

#include "batch/text_table.h"
#include "core/response/beam_response.h"
#include "core/response/extremes.h"
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

std::string extremesTable(const LoadedBeam& loaded) {
    std::string text =
        tableLine("Member", {"M max", "at x", "M min", "at x", "deflection", "at x"});
    for (std::size_t i = 1; i <= loaded.beam.members(); ++i) {
        const MemberResponse member(loaded, i);
        const auto [greatest, least] = extremesOf(member, Quantity::moment);
        const auto deflection = greatestDeflection(member);
        text += tableLine(std::to_string(i),
                          {figure(greatest.value), figure(greatest.x), figure(least.value),
                           figure(least.x), figure(deflection.value), figure(deflection.x)});
    }
    return text;
}

/// One line that compares the sum of the reactions with the sum of the loads.
std::string reactionCheck(const Analysis& analysis, const std::vector<JointResponse>& joints) {
    const double loads = totalLoad(analysis.loaded());
    double sum = 0, largest = std::fabs(loads);
    for (const auto& joint : joints) {
        sum += joint.reaction;
        largest = std::max(largest, std::fabs(joint.reaction));
    }
    const auto figures = "Reactions add up to " + figure(sum) + ", loads to " + figure(loads);
    if (std::fabs(sum - loads) <= 1e-9 * largest)
        return figures + ": they agree.\n";
    return figures + ": they differ. Check the loads.\n";
}

std::string responseTables(const Analysis& analysis) {
    const auto loaded = analysis.loaded();
    if (const auto objection = checkResponse(loaded))
        return "No reactions and deflections: " + objection->sentence + '\n';
    std::string text = "Extremes (exact), deflections (downward positive)\n" +
                       extremesTable(loaded) + "\nReactions (upward positive)\n" +
                       tableLine("Joint", {"reaction"});
    const auto joints = jointResponses(loaded);
    for (std::size_t j = 0; j < joints.size(); ++j)
        text += tableLine(std::to_string(j + 1), {figure(joints[j].reaction)});
    return text + reactionCheck(analysis, joints);
}

}  // namespace

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

std::string resultTables(const Analysis& analysis) {
    return "Moments (sagging positive)\n" + spanTable(analysis) + '\n' + responseTables(analysis);
}

}  // namespace trabeon
