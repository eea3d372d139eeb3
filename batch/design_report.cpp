#include "batch/design_report.h"

#include <algorithm>
#include <span>

#include "batch/text_table.h"
#include "core/design/notes.h"
#include "core/design/shear.h"
#include "core/text/number_text.h"

namespace trabeon {
namespace {

using Rows = std::span<const DesignRow>;

constexpr std::size_t width = 10;

/// Of several that are equal the first.
const DesignRow& governing(Rows rows, std::string DesignRow::*field) {
    return *std::max_element(rows.begin(), rows.end(),
                             [&](const DesignRow& left, const DesignRow& right) {
                                 return leadingNumber(left.*field) < leadingNumber(right.*field);
                             });
}

std::string withoutBlanks(std::string_view text) {
    std::string compact(text);
    std::erase(compact, ' ');
    return compact.empty() ? "none" : compact;
}

std::string lowerBars(const DesignRow& row) {
    return withoutBlanks(row.MomentRein.substr(0, row.MomentRein.find('&')));
}

std::string upperBars(const DesignRow& row) {
    return withoutBlanks(row.MomentRein.substr(row.MomentRein.find('&') + 1));
}

bool anyContains(Rows rows, std::string_view words) {
    return std::any_of(rows.begin(), rows.end(),
                       [&](const DesignRow& row) { return note::contains(row.DefNote, words); });
}

/// The failed checks, each once. "OK" if all checks passed.
std::string verdict(Rows rows) {
    std::string text;
    for (auto words :
         {note::noData, note::shearFailed, note::deflectionFailed, note::manualCalculation}) {
        if (!anyContains(rows, words))
            continue;
        words.remove_prefix(words.find_first_not_of(' '));
        text += (text.empty() ? "" : ", ") + std::string(words);
    }
    return text.empty() ? "OK" : text;
}

std::string memberLine(Rows rows) {
    const auto& lower = governing(rows, &DesignRow::Asreq);
    const auto& upper = governing(rows, &DesignRow::Aspreq);
    const auto& sheared = governing(rows, &DesignRow::AsvOsvreq);
    auto line = tableLine(withoutBlanks(rows.front().Member),
                          {withoutBlanks(lower.Asreq), withoutBlanks(lower.x), lowerBars(lower),
                           withoutBlanks(upper.Aspreq), withoutBlanks(upper.x), upperBars(upper),
                           withoutBlanks(sheared.ShearRein)},
                          width);
    return line.insert(line.size() - 1, "  " + verdict(rows));
}

}  // namespace

std::string designTable(const BeamDesign& design, std::size_t members) {
    auto text = "Design (greatest steel of each face in mm2, at x in m)\n" +
                tableLine("Member", {"As", "at x", "bars", "As'", "at x", "bars", "links"}, width);
    text.insert(text.size() - 1, "  verdict");
    const auto perMember = design.rows.size() / std::max<std::size_t>(1, members);
    for (std::size_t member = 0; member < members; ++member)
        text += memberLine(Rows(design.rows).subspan(member * perMember, perMember));
    return design.ShearFailed ? text + std::string(shearFailureSentence) + '\n' : text;
}

std::string designSummary(const BeamDesign& design) {
    const auto failed =
        std::count_if(design.rows.begin(), design.rows.end(),
                      [](const DesignRow& row) { return verdict(Rows(&row, 1)) != "OK"; });
    return std::to_string(design.rows.size()) + " sections designed; " + std::to_string(failed) +
           " of them are not OK.\n";
}

std::string missingDimensionsWarning(const DesignData& data) {
    const auto missing = data.missingDimensions();
    if (missing.count == 0)
        return {};
    return "Sections without dimensions: " + std::to_string(missing.count) +
           ", the first is section " + std::to_string(missing.Section) + " of member " +
           std::to_string(missing.Member) +
           ". Each is designed as the section before it; enter its dimensions.";
}

}  // namespace trabeon
