// How the five editors change their row files: never in place. The new content goes to the scratch
// twin, which is then copied over the working file; a failed write leaves the working file as it
// was.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>

#include "core/outcome.h"
#include "core/store/replacing_file.h"
#include "core/store/rows.h"
#include "core/text/number_text.h"

namespace trabeon {

/// The rows of a file that is about to be rewritten. Refuses a file that cannot be read, and one
/// that another program has taken away: its rows would be lost.
template <class Row>
[[nodiscard]] Outcome<std::vector<Row>> rowsToChange(const std::filesystem::path& folder) {
    if (auto failure = missing(folder, std::array{Row::file}))
        return *failure;
    const auto text = readFile(folder / Row::file);
    if (!text)
        return text.refusal();
    return rowsOf<Row>(*text);
}

/// Writes the rows to the scratch twin and takes it over into the working file.
template <class Row>
[[nodiscard]] Failure rewriteRows(const std::filesystem::path& folder,
                                  const std::vector<Row>& rows) {
    const auto scratch = folder / Row::scratch;
    const auto text = textOf(rows, Description::quoted);
    if (auto failure = replaceFile(scratch, text))
        return failure;
    DuplicateFile(scratch, folder / Row::file);
    if (readWhole(folder / Row::file) == text)
        return std::nullopt;
    return replaceFile(folder / Row::file, text);  // the copy was silent; this says why
}

/// Puts a row after the first `position` rows of its file; the others stay as they were read.
/// A position beyond the end counts as the end.
template <class Row>
[[nodiscard]] Failure addRow(const std::filesystem::path& folder, std::size_t position,
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

/// Takes row `position`, counting from 1, out of its file. A position that no row has changes
/// nothing.
template <class Row>
[[nodiscard]] Failure removeRow(const std::filesystem::path& folder, std::size_t position,
                                Numbering numbering) {
    auto rows = rowsToChange<Row>(folder);
    if (!rows)
        return rows.refusal();
    if (position == 0 || position > rows->size())
        return std::nullopt;
    rows->erase(rows->begin() + static_cast<std::ptrdiff_t>(position - 1));
    if (numbering == Numbering::fromOne)
        for (std::size_t i = 0; i < rows->size(); ++i)
            (*rows)[i].*Row::fields.front() = generatedText(i + 1);
    return rewriteRows(folder, *rows);
}

}  // namespace trabeon
