// The model of a TextTable: a text whose lines are rows, and whose cells are separated by blanks.
// It keeps the text and where each cell begins, and cuts a cell out when a view asks for it.
#pragma once

#include <QAbstractTableModel>
#include <QItemSelectionRange>
#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace trabeon {

/// Line 0 holds the column titles, and cell 0 of each line its row title: row and column n of the
/// model are line and cell n + 1.
class TextCells : public QAbstractTableModel {
  public:
    [[nodiscard]] const std::string& Text() const { return text_; }
    void SetText(const std::string& text);

    /// The title of the titles.
    [[nodiscard]] QString Corner() const;
    /// The number of bytes in the longest cell, and in the longest row title.
    [[nodiscard]] int LongestCell() const { return longestCell_; }
    [[nodiscard]] int LongestTitle() const { return longestTitle_; }
    /// The part of the text that holds these cells, with lines that end in LF. If the range holds
    /// all columns the row titles belong to it, and if it holds all rows the column titles do.
    [[nodiscard]] std::string TextOf(const QItemSelectionRange& range) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : std::max(0, static_cast<int>(lines_.size()) - 1);
    }
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : columns_;
    }
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

  private:
    struct Line {
        std::size_t begin;      // in the text
        std::size_t end;        // in the text, without the line end
        std::size_t firstCell;  // in starts_
        int cells;
    };

    void CutLine(std::size_t begin, std::size_t end);
    [[nodiscard]] std::size_t StartOf(const Line& line, int cell) const;
    [[nodiscard]] std::size_t EndOf(const Line& line, int cell) const;
    [[nodiscard]] QString Cell(int line, int cell) const;
    [[nodiscard]] std::string_view PartOf(const Line& line, int firstCell, int lastCell) const;

    std::string text_;
    std::vector<Line> lines_;
    std::vector<std::size_t> starts_;  // of all cells, in the text
    int columns_ = 0;
    int longestCell_ = 0;
    int longestTitle_ = 0;
};

}  // namespace trabeon
