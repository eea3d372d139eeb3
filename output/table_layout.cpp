#include "output/table_layout.h"

#include <algorithm>
#include <numeric>

namespace trabeon {
namespace {

constexpr double typeStep = 0.5;

/// The widths that a column needs in type of 1 point.
struct ColumnNeed {
    double word = 0;  // of the longest word
    double line = 0;  // of the longest text
};

void widen(ColumnNeed& need, const Cell& cell, const TextMeasure& measure) {
    double line = 0;
    for (const auto& [text, style] : cell) {
        line += measure(text, style);
        for (std::size_t from = 0; from < text.size();) {
            const auto blank = std::min(text.find(' ', from), text.size());
            need.word = std::max(need.word, measure(text.substr(from, blank - from), style));
            from = blank + 1;
        }
    }
    need.line = std::max(need.line, line);
}

std::vector<ColumnNeed> needsOf(const DocumentTable& table, const TextMeasure& measure) {
    std::vector<ColumnNeed> needs(table.columns);
    for (const auto& row : table.rows)
        for (std::size_t c = 0; c < table.columns; ++c)
            widen(needs[c], row[c], measure);
    return needs;
}

double typeOf(const DocumentTable& table) {
    for (const auto& row : table.rows)
        for (const auto& cell : row)
            if (!cell.empty())
                return cell.front().style.points;
    return TextStyle().points;
}

/// The columns in one type size. Widths are in points.
class Columns {
  public:
    Columns(const std::vector<ColumnNeed>& needs, double points, double pageWidth)
        : pageWidth_(pageWidth) {
        for (const auto& need : needs) {
            const double margins = 2 * cellMargin + cellSlack;
            least_.push_back(std::min(need.word * points, pageWidth / 2 - margins) + margins);
            wanted_.push_back(std::max(need.line * points + margins, least_.back()));
        }
    }

    [[nodiscard]] bool fit() const {
        return std::accumulate(least_.begin(), least_.end(), 0.0) <= pageWidth_;
    }

    /// Shares the remaining width among the columns whose wanted width is above their least width.
    [[nodiscard]] TableStrip strip(std::vector<std::size_t> columns) const {
        double leastSum = 0, wantedSum = 0;
        for (const auto c : columns) {
            leastSum += least_[c];
            wantedSum += wanted_[c];
        }
        const double more = wantedSum - leastSum;
        const double share = more > 0 ? std::min(1.0, (pageWidth_ - leastSum) / more) : 0;
        TableStrip strip{std::move(columns), {}};
        for (const auto c : strip.columns)
            strip.widths.push_back(least_[c] + share * (wanted_[c] - least_[c]));
        return strip;
    }

    [[nodiscard]] std::vector<TableStrip> strips() const {
        std::vector<TableStrip> strips;
        std::vector<std::size_t> columns{0};
        double width = least_[0];
        for (std::size_t c = 1; c < least_.size(); ++c) {
            if (width + least_[c] > pageWidth_ && columns.size() > 1) {
                strips.push_back(strip(columns));
                columns = {0};
                width = least_[0];
            }
            columns.push_back(c);
            width += least_[c];
        }
        strips.push_back(strip(columns));
        return strips;
    }

  private:
    double pageWidth_;
    std::vector<double> least_, wanted_;
};

}  // namespace

TableLayout layOut(const DocumentTable& table, double pageWidth, const TextMeasure& measure) {
    const auto needs = needsOf(table, measure);
    double points = typeOf(table);
    while (points > smallestType && !Columns(needs, points, pageWidth).fit())
        points = std::max(smallestType, points - typeStep);
    return {points, Columns(needs, points, pageWidth).strips()};
}

}  // namespace trabeon
