// How the five editors change their row files: never in place. The new content goes to the scratch
// twin, which is then copied over the working file; a failed write leaves the working file as it
// was.
#pragma once

#include <algorithm>
#include <cstddef>

#include "core/outcome.h"
#include "core/store/replacing_file.h"
#include "core/store/rows.h"
#include "core/text/number_text.h"

namespace trabeon {

/// Writes the rows to the scratch twin and takes it over into the working file.
template <class Row>
[[nodiscard]] Failure rewriteRows(const std::filesystem::path& folder,
                                  const std::vector<Row>& rows) {
    if (auto failure = unreadable(folder / Row::file))
        return failure;
    const auto scratch = folder / Row::scratch;
    const auto text = textOf(rows, Description::quoted);
    if (auto failure = replaceFile(scratch, text))
        return failure;
    DuplicateFile(scratch, folder / Row::file);
    if (readWhole(folder / Row::file) != text)  // the copy is silent
        return Refusal{"\"" + (folder / Row::file).string() +
                       "\" could not be written. It holds the rows that it held before; make room "
                       "on its disk, then try again."};
    return std::nullopt;
}

/// Puts a row behind the first `position` rows of its file; the others stay as they were read.
/// A position beyond the end counts as the end.
template <class Row>
[[nodiscard]] Failure addRow(const std::filesystem::path& folder, std::size_t position,
                             const Row& row) {
    auto rows = readRows<Row>(folder);
    const auto place = std::min(position, rows.size());
    rows.insert(rows.begin() + static_cast<std::ptrdiff_t>(place), row);
    return rewriteRows(folder, rows);
}

/// What Remove does to the number field of the rows that stay.
enum class Numbering { asRead, fromOne };

/// Takes row `position`, counting from 1, out of its file. A position that no row has changes
/// nothing.
template <class Row>
[[nodiscard]] Failure removeRow(const std::filesystem::path& folder, std::size_t position,
                                Numbering numbering) {
    auto rows = readRows<Row>(folder);
    if (position == 0 || position > rows.size())
        return std::nullopt;
    rows.erase(rows.begin() + static_cast<std::ptrdiff_t>(position - 1));
    if (numbering == Numbering::fromOne)
        for (std::size_t i = 0; i < rows.size(); ++i)
            rows[i].*Row::fields.front() = generatedText(static_cast<double>(i + 1));
    return rewriteRows(folder, rows);
}

}  // namespace trabeon
