#include "toolkit/controls/text_cells.h"

#include "toolkit/look/shown_text.h"

namespace trabeon {

void TextCells::SetText(const std::string& text) {
    beginResetModel();
    text_ = text;
    lines_.clear();
    starts_.clear();
    columns_ = longestCell_ = longestTitle_ = 0;
    for (std::size_t at = 0; at < text_.size();) {
        const std::size_t lineFeed = std::min(text_.size(), text_.find('\n', at));
        const bool hasReturn = lineFeed > at && text_[lineFeed - 1] == '\r';
        CutLine(at, lineFeed - (hasReturn ? 1 : 0));
        at = lineFeed + 1;
    }
    endResetModel();
}

void TextCells::CutLine(std::size_t begin, std::size_t end) {
    Line line{begin, end, starts_.size(), 0};
    for (std::size_t at = text_.find_first_not_of(' ', begin); at < end;) {
        starts_.push_back(at);
        int& longest = line.cells == 0 ? longestTitle_ : longestCell_;
        const std::size_t cellEnd = EndOf(line, line.cells++);
        longest = std::max(longest, static_cast<int>(cellEnd - at));
        at = text_.find_first_not_of(' ', cellEnd);
    }
    columns_ = std::max({columns_, 1, line.cells - 1});
    lines_.push_back(line);
}

std::size_t TextCells::StartOf(const Line& line, int cell) const {
    return starts_[line.firstCell + static_cast<std::size_t>(cell)];
}

std::size_t TextCells::EndOf(const Line& line, int cell) const {
    return std::min(line.end, text_.find(' ', StartOf(line, cell)));
}

QString TextCells::Cell(int line, int cell) const {
    const Line& from = lines_[static_cast<std::size_t>(line)];
    if (cell >= from.cells)
        return {};
    const std::size_t start = StartOf(from, cell);
    return ShownText(std::string_view(text_).substr(start, EndOf(from, cell) - start));
}

QString TextCells::Corner() const {
    return lines_.empty() ? QString() : Cell(0, 0);
}

QVariant TextCells::data(const QModelIndex& index, int role) const {
    return role == Qt::DisplayRole ? Cell(index.row() + 1, index.column() + 1) : QVariant();
}

QVariant TextCells::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role != Qt::DisplayRole)
        return {};
    return orientation == Qt::Horizontal ? Cell(0, section + 1) : Cell(section + 1, 0);
}

/// With the blanks after the last cell of the line.
std::string_view TextCells::PartOf(const Line& line, int firstCell, int lastCell) const {
    if (firstCell >= line.cells)
        return {};
    const std::size_t start = firstCell == 0 ? line.begin : StartOf(line, firstCell);
    const std::size_t end = lastCell + 1 < line.cells ? EndOf(line, lastCell) : line.end;
    return std::string_view(text_).substr(start, end - start);
}

std::string TextCells::TextOf(const QItemSelectionRange& range) const {
    const bool wholeRows = range.left() == 0 && range.right() == columns_ - 1;
    const bool wholeColumns = range.top() == 0 && range.bottom() == rowCount() - 1;
    const int firstCell = wholeRows ? 0 : range.left() + 1;
    const int firstLine = wholeColumns ? 0 : range.top() + 1;
    std::string all;
    for (int line = firstLine; line <= range.bottom() + 1; ++line) {
        if (line > firstLine)
            all += '\n';
        all += PartOf(lines_[static_cast<std::size_t>(line)], firstCell, range.right() + 1);
    }
    return all;
}

}  // namespace trabeon
