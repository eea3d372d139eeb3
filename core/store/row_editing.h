// How the five editors change their row files. The new content goes to a scratch file, which is
// then copied over the working file. A failed write leaves the working file as it was.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>

#include "core/outcome.h"
#include "core/store/replacing_file.h"
#include "core/store/rows.h"
#include "core/text/number_text.h"

namespace trabeon {

/// The rows of a file that will be rewritten. Refuses a file that cannot be read. Refuses a missing
/// file too: another program took it away, and its rows would be lost.
template <EditedRow Row>
[[nodiscard]] Outcome<std::vector<Row>> rowsToChange(const std::filesystem::path& folder) {
    if (const auto objection = missing(folder, std::array{Row::file}))
        return *objection;
    const auto text = readFile(folder / Row::file);
    if (!text)
        return text.refusal();
    return rowsOf<Row>(*text);
}

/// Writes the rows to the scratch file and copies it over the working file.
template <EditedRow Row>
[[nodiscard]] Status rewriteRows(const std::filesystem::path& folder,
                                 const std::vector<Row>& rows) {
    const auto scratch = folder / Row::scratch;
    if (auto status = replaceFile(scratch, textOf(rows, Description::quoted)); status.failed())
        return status;
    return DuplicateFile(scratch, folder / Row::file);
}

/// Puts a row after the first `position` rows of its file; the others stay as they were read.
/// A position beyond the end counts as the end.
template <EditedRow Row>
[[nodiscard]] Status addRow(const std::filesystem::path& folder, std::size_t position,
                            const Row& row) {
    auto rows = rowsToChange<Row>(folder);
    if (!rows)
        return rows.refusal();
    const auto place = std::min(position, rows->size());
    rows->insert(rows->begin() + static_cast<std::ptrdiff_t>(place), row);
    return rewriteRows(folder, *rows);
}

/// What Remove does to the number field of the rows that stay.
enum class Numbering { asRead, fromOne };

/// Removes row `position`, counting from 1, from its file. A position without a row changes
/// nothing.
template <EditedRow Row>
[[nodiscard]] Status removeRow(const std::filesystem::path& folder, std::size_t position,
                               Numbering numbering) {
    auto rows = rowsToChange<Row>(folder);
    if (!rows)
        return rows.refusal();
    if (position == 0 || position > rows->size())
        return {};
    rows->erase(rows->begin() + static_cast<std::ptrdiff_t>(position - 1));
    if (numbering == Numbering::fromOne)
        for (std::size_t i = 0; i < rows->size(); ++i)
            (*rows)[i].*Row::fields.front() = generatedText(i + 1);
    return rewriteRows(folder, *rows);
}

}  // namespace trabeon
