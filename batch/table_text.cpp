#include "batch/table_text.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "core/text/readable.h"

namespace trabeon {
namespace {

constexpr std::string_view csvLineEnd = "\r\n";

template <class Number>
void appendNumber(std::string& text, Number number) {
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    text.append(digits.data(), end);
}

void appendCsv(std::string& text, std::string_view field) {
    if (field.find_first_of(",\"\r\n") == field.npos) {
        text += field;
        return;
    }
    text += '"';
    for (const char c : field)
        text.append(c == '"' ? 2 : 1, c);
    text += '"';
}

/// The text is the same in every character set and format.
bool isPlain(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) {
        return c >= ' ' && c < '\x7F' && c != ',' && c != '"' && c != '\\';
    });
}

/// The text has no control characters: readable() replaced them.
void appendJson(std::string& text, std::string_view value) {
    text += '"';
    for (const char c : value) {
        if (c == '"' || c == '\\')
            text += '\\';
        text += c;
    }
    text += '"';
}

std::string jsonText(std::string_view value) {
    std::string text;
    appendJson(text, readable(value));
    return text;
}

}  // namespace

void TableCell::appendTo(std::string& text, Format format) const {
    switch (kind_) {
        case Kind::number:
            return appendNumber(text, number_ == 0 ? 0.0 : number_);
        case Kind::whole:
            return appendNumber(text, whole_);
        case Kind::text:
            break;
    }
    if (isPlain(text_)) {  // as nearly all are
        const std::string_view quote = format == Format::json ? "\"" : "";
        text.append(quote).append(text_).append(quote);
        return;
    }
    const auto shown = readable(text_);
    if (format == Format::csv)
        appendCsv(text, shown);
    else
        appendJson(text, shown);
}

TableRows::TableRows(Format format, std::string_view project, Take take)
    : format_(format), take_(std::move(take)) {
    if (!project.empty())
        TableCell(project).appendTo(firstCell_, format);
}

void TableRows::add(std::initializer_list<TableCell> cells) {
    begin();
    for (const auto& cell : cells)
        addCell(cell);
    end();
}

void TableRows::begin() {
    if (format_ == Format::json)
        text_ += firstRow_ ? "[" : ",\n[";
    text_ += firstCell_;
    firstInRow_ = firstCell_.empty();
    firstRow_ = false;
}

void TableRows::addCell(const TableCell& cell) {
    if (!firstInRow_)
        text_ += ',';
    firstInRow_ = false;
    cell.appendTo(text_, format_);
}

void TableRows::end() {
    text_ += format_ == Format::json ? "]" : csvLineEnd;
    if (text_.size() < partSize)
        return;
    take_(text_);
    text_.clear();
}

TableFrame frameOf(Format format, std::string_view table,
                   const std::vector<std::string_view>& columns, const ProjectTitle* title) {
    TableFrame frame;
    const bool json = format == Format::json;
    std::string names;
    for (const auto column : columns)
        names += (names.empty() ? "" : ",") + (json ? jsonText(column) : std::string(column));
    if (!json) {
        frame.before = names + std::string(csvLineEnd);
        return frame;
    }
    const auto text = [&](std::string ProjectTitle::*part) {
        return title == nullptr ? "null" : jsonText(title->*part);
    };
    frame.before = "{\"project\":" + text(&ProjectTitle::project) +
                   ",\"designer\":" + text(&ProjectTitle::designer) +
                   ",\"beam\":" + text(&ProjectTitle::beamName) + ",\"table\":" + jsonText(table) +
                   ",\n\"columns\":[" + names + "],\n\"rows\":[\n";
    frame.between = ",\n";
    frame.after = "\n]}\n";
    return frame;
}

}  // namespace trabeon
