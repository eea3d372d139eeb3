// The text of an analysis: the balance table, the stations and the maxima.
#pragma once

#include "core/analysis/analysis.h"
#include "core/store/replacing_file.h"

namespace trabeon {

/// Writes the balance table row by row: the label, five blanks, then each cell and five blanks.
/// Line ends separate the lines. The last row has no line end.
class BalanceTableWriter {
  public:
    explicit BalanceTableWriter(ReplacingFile& file) : file_(file) {}
    void write(const TableRow& row);

  private:
    ReplacingFile& file_;
    bool begun_ = false;
};

/// For each span the heading "Span" and its number in print form, then x, moment and shear of each
/// station in the mask "0.00E+00". The row of the maximum comes before the first station whose x is
/// not below its x.
void writeStations(ReplacingFile& file, const Analysis& analysis);

/// The same as a text.
[[nodiscard]] std::string stationsText(const Analysis& analysis);

/// For each span the heading "Span #" and its number, then x in print form, moment and shear.
void writeMaxima(ReplacingFile& file, const Analysis& analysis);

/// Analyses the beam in a working folder. Writes "TB.txt", "BM.txt" and "BMMax.txt", and rewrites
/// "Point.txt" and "Udl.txt" in normal form. If anything fails before the first file is replaced,
/// no file changes. Returns nothing if it failed; then a message was shown.
[[nodiscard]] std::optional<Analysis> analyseFolder(const std::filesystem::path& folder,
                                                    const AnalysisSettings& settings,
                                                    const AnalysisOutputs& outputs);

}  // namespace trabeon
