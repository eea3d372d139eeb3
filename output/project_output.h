// Writes the document of a project, in the same order for both word processors.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "core/store/project_file.h"
#include "output/chart_forms.h"
#include "output/output_kinds.h"
#include "output/word_processor.h"

namespace trabeon {

/// Name of the scratch copy of the balance table. It contains comma-separated fields.
inline constexpr std::string_view balanceTableScratch = "TB.tmp";

/// The lines above results that do not match the current beam. Empty for results that do.
struct OutputRemarks {
    std::string table, stations, design;
};

/// The input of a document.
struct OutputSource {
    std::filesystem::path folder;  // of the working files
    ProjectTitle title;
    int Divisions = 10;
    ChartForms& charts;
    OutputRemarks remarks{};
};

/// A file that becomes a table of the document, one row per line. `FN` is its name.
struct FileTable {
    const char* title;
    const char* columnTitles;
    int Column;
    const char* FN;
};

/// The parts of a document that both word processors write, each with its own commands.
class OutputWriter {
  public:
    OutputWriter() = default;
    virtual ~OutputWriter() = default;
    OutputWriter(const OutputWriter&) = delete;
    OutputWriter& operator=(const OutputWriter&) = delete;

    virtual void begin() = 0;
    virtual void title(const std::string& text) = 0;
    virtual void table(const FileTable& file) = 0;
    /// Writes the scratch copy of the balance table, which includes its column titles.
    virtual void balanceTable(int Column) = 0;
    /// Writes the moments and shears at the stations. Returns false if the output ends here.
    [[nodiscard]] virtual bool values() = 0;
    virtual void beginDiagrams() {}
    virtual void memberTitle(const std::string& text) = 0;
    /// Pastes the picture on the clipboard: the moments of a member, then its shears.
    virtual void pasteMoment() = 0;
    virtual void pasteShear() = 0;
    virtual void pasteContinuous() = 0;
};

/// How much of a document was written: all of it, or what came before the writer ended it.
enum class Extent { whole, part };

/// Writes the selected parts of the document in order. Refuses if a file cannot be written.
[[nodiscard]] Outcome<Extent> writeProject(const OutputSource& source, const OutputKinds& kinds,
                                           OutputWriter& writer);

/// The number of columns of the balance table: the labels, and two ends per member.
[[nodiscard]] int balanceTableColumns(std::size_t joints);

/// The balance table as comma-separated fields: the label of each line, then its cells.
[[nodiscard]] std::string balanceTableFields(std::string_view table, int columns);

}  // namespace trabeon
