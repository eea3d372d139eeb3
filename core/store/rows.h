// The rows of the four input files and of the beam dimensions: text as the user typed it.
#pragma once

#include <algorithm>
#include <array>
#include <concepts>
#include <string>
#include <string_view>
#include <vector>

#include "core/store/working_files.h"
#include "core/text/field_reader.h"

namespace trabeon {

/// A row of a working file, which is a struct of texts. `fields` are its members in file order,
/// `file` is the name of the file, and `described` says whether the last field is a description,
/// which most writers put in double quotes.
template <class Row>
concept FileRow = requires(Row row) {
    { row.*Row::fields.front() } -> std::same_as<std::string&>;
    { Row::file } -> std::convertible_to<std::string_view>;
    { Row::described } -> std::convertible_to<bool>;
};

/// A row of a file that an editor rewrites through a scratch file.
template <class Row>
concept EditedRow = FileRow<Row> && requires {
    { Row::scratch } -> std::convertible_to<std::string_view>;
};

/// Row k of "Joint.txt" is joint k from the left. Its number field does not matter.
struct JointRow {
    std::string number, type, description;

    static constexpr std::array fields{&JointRow::number, &JointRow::type, &JointRow::description};
    static constexpr auto file = working_file::joint;
    static constexpr auto scratch = working_file::jointScratch;
    static constexpr bool described = true;
};

/// Row k of "Member.txt" joins joint k and joint k + 1: E, I and L in the user's own units.
struct MemberRow {
    std::string number, E, I, L, description;

    static constexpr std::array fields{&MemberRow::number, &MemberRow::E, &MemberRow::I,
                                       &MemberRow::L, &MemberRow::description};
    static constexpr auto file = working_file::member;
    static constexpr auto scratch = working_file::memberScratch;
    static constexpr bool described = true;
};

/// A point load P, positive downward, at the distance a from the left joint of member 1, 2, ...
struct PointRow {
    std::string member, a, P, description;

    static constexpr std::array fields{&PointRow::member, &PointRow::a, &PointRow::P,
                                       &PointRow::description};
    static constexpr auto file = working_file::point;
    static constexpr auto scratch = working_file::pointScratch;
    static constexpr bool described = true;
};

/// A distributed load that begins at a and is b wide. Its intensity goes straight from w1 to w2.
struct UdlRow {
    std::string member, a, b, w1, w2, description;

    static constexpr std::array fields{&UdlRow::member, &UdlRow::a,  &UdlRow::b,
                                       &UdlRow::w1,     &UdlRow::w2, &UdlRow::description};
    static constexpr auto file = working_file::udl;
    static constexpr auto scratch = working_file::udlScratch;
    static constexpr bool described = true;
};

/// A section of a member for the design: mm, N/mm2, and the member length L in m.
struct BeamDimensionRow {
    std::string Member, Section, b, d, effd, fcu, fy, YM, fyv, L;

    static constexpr std::array fields{&BeamDimensionRow::Member, &BeamDimensionRow::Section,
                                       &BeamDimensionRow::b,      &BeamDimensionRow::d,
                                       &BeamDimensionRow::effd,   &BeamDimensionRow::fcu,
                                       &BeamDimensionRow::fy,     &BeamDimensionRow::YM,
                                       &BeamDimensionRow::fyv,    &BeamDimensionRow::L};
    static constexpr auto file = working_file::beamDimensions;
    static constexpr auto scratch = working_file::beamDimensionsScratch;
    static constexpr bool described = false;
};

/// Appends a field unchanged, with the leading blank of a generated number. Puts it into double
/// quotes if it contains a comma or a line end.
void appendField(std::string& text, std::string_view field);

/// The same for a description. Double quotes also keep the blanks at its ends.
void appendBare(std::string& text, std::string_view description);

/// Appends a field in double quotes. A field that has a double quote inside comes from a file that
/// was edited by hand. It stays bare, because quotes would cut it.
void appendQuoted(std::string& text, std::string_view field);

/// Appends a line unchanged, with the line end of all files.
void appendLine(std::string& text, std::string_view line);

/// How a writer puts the description. The editors and the project file quote it, others do not.
enum class Description { quoted, bare };

/// Appends one line with its line end.
template <FileRow Row>
void appendRow(std::string& text, const Row& row, Description description) {
    constexpr auto last = Row::fields.size() - 1;
    for (std::size_t i = 0; i < last; ++i) {
        appendField(text, row.*Row::fields[i]);
        text += ',';
    }
    if (Row::described && description == Description::quoted)
        appendQuoted(text, row.*Row::fields[last]);
    else if (Row::described)
        appendBare(text, row.*Row::fields[last]);
    else
        appendField(text, row.*Row::fields[last]);
    text += "\r\n";
}

/// All rows of a file's text. A last row that is short has empty texts for what is missing.
template <FileRow Row>
[[nodiscard]] std::vector<Row> rowsOf(std::string_view text) {
    std::vector<Row> rows;
    const auto lines = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
    rows.reserve(std::min(lines, text.size() / Row::fields.size()) + 1);
    FieldReader reader(text);
    while (!reader.atEnd())
        for (Row& row = rows.emplace_back(); const auto field : Row::fields)
            row.*field = reader.next();
    return rows;
}

/// All rows of the row's own file in a working folder.
template <FileRow Row>
[[nodiscard]] std::vector<Row> readRows(const std::filesystem::path& folder) {
    return rowsOf<Row>(readWhole(folder / Row::file));
}

template <FileRow Row>
[[nodiscard]] std::string textOf(const std::vector<Row>& rows, Description description) {
    std::string text;
    for (const auto& row : rows)
        appendRow(text, row, description);
    return text;
}

}  // namespace trabeon
