// A table of results as text for other programs: CSV (RFC 4180) or JSON.
#pragma once

#include <cstddef>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "core/store/project_file.h"

namespace trabeon {

enum class Format { csv, json };

/// A number, a whole number or a text. It must not outlive the text.
class TableCell {
  public:
    TableCell(double value) : kind_(Kind::number), number_(value) {}        // NOLINT: a value
    TableCell(std::size_t value) : kind_(Kind::whole), whole_(value) {}     // NOLINT: is a cell
    TableCell(std::string_view value) : kind_(Kind::text), text_(value) {}  // NOLINT

    /// Appends the shortest text that reads back as the same number, without ".0" and "-0"; or the
    /// text, in quotes where the format wants them. Numbers must be finite.
    void appendTo(std::string& text, Format format) const;

  private:
    enum class Kind { number, whole, text };

    Kind kind_;
    double number_ = 0;
    std::size_t whole_ = 0;
    std::string_view text_;
};

/// Makes the text of one project's rows.
class TableRows {
  public:
    /// Takes the text of some whole rows.
    using Take = std::function<void(std::string_view)>;

    /// `project` is the first cell of every row; empty if there is no such column. The text goes to
    /// `take` part by part, so that a long table needs no memory, and at the latest at finish().
    TableRows(Format format, std::string_view project, Take take);

    void add(std::initializer_list<TableCell> cells);
    void begin();
    void addCell(const TableCell& cell);
    void end();
    void finish() { take_(text_); }

  private:
    static constexpr std::size_t partSize = 256 * 1024;

    Format format_;
    Take take_;
    std::string firstCell_, text_;
    bool firstRow_ = true, firstInRow_ = true;
};

/// What comes before the first row, between the rows of two projects, and after the last row. The
/// title is that of the project if there is only one; otherwise JSON has null there.
struct TableFrame {
    std::string before, between, after;
};

[[nodiscard]] TableFrame frameOf(Format format, std::string_view table,
                                 const std::vector<std::string_view>& columns,
                                 const ProjectTitle* title);

}  // namespace trabeon
