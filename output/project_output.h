// The document of a project, in the order in which both word processors are told it.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "core/store/project_file.h"
#include "output/chart_forms.h"
#include "output/output_kinds.h"
#include "output/word_processor.h"

namespace trabeon {

/// The scratch copy of the balance table, as fields.
inline constexpr std::string_view balanceTableScratch = "TB.tmp";

/// A line above results that do not belong to the beam as it is now; empty if they do.
struct OutputRemarks {
    std::string table, stations, design;
};

/// What a document is made from.
struct OutputSource {
    std::filesystem::path folder;  // of the working files
    ProjectTitle title;
    int Divisions = 10;
    ChartForms& charts;
    OutputRemarks remarks{};
};

/// The files that go into a document as they stand, one row a line.
struct FileTable {
    const char* title;
    const char* columnTitles;
    int Column;
    const char* FN;
};

/// What the two word processors are told alike, each in its own words.
class OutputWriter {
  public:
    OutputWriter() = default;
    virtual ~OutputWriter() = default;
    OutputWriter(const OutputWriter&) = delete;
    OutputWriter& operator=(const OutputWriter&) = delete;

    virtual void begin() = 0;
    virtual void title(const std::string& text) = 0;
    virtual void table(const FileTable& file) = 0;
    /// The scratch copy of the balance table, which has its own column titles.
    virtual void balanceTable(int Column) = 0;
    /// The moments and shears at the stations. False: the output ends here.
    [[nodiscard]] virtual bool values() = 0;
    virtual void beginDiagrams() {}
    virtual void memberTitle(const std::string& text) = 0;
    /// The picture on the clipboard, of the moments of a member; then that of its shears.
    virtual void pasteMoment() = 0;
    virtual void pasteShear() = 0;
    virtual void pasteContinuous() = 0;
};

/// How much of a document was written: all of it, or what came before the writer ended it.
enum class Extent { whole, part };

/// Gives the document to the writer, kind by kind. Refuses if a file cannot be written.
[[nodiscard]] Outcome<Extent> writeProject(const OutputSource& source, const OutputKinds& kinds,
                                           OutputWriter& writer);

/// The columns of the balance table of so many joints: the labels, and two ends a member.
[[nodiscard]] int balanceTableColumns(std::size_t joints);

/// The balance table as fields: the label of each line, and its cells.
[[nodiscard]] std::string balanceTableFields(std::string_view table, int columns);

}  // namespace trabeon
