// The text of an analysis: the balance table, the stations and the maxima.
#pragma once

#include "core/analysis/analysis.h"
#include "core/store/replacing_file.h"

namespace trabeon {

/// Writes the balance table row by row: the label, five blanks, then each cell and five blanks. A
/// row but the first begins with a line end, so the last row ends the file without one.
class BalanceTableWriter {
  public:
    explicit BalanceTableWriter(ReplacingFile& file) : file_(file) {}
    void write(const TableRow& row);

  private:
    ReplacingFile& file_;
    bool begun_ = false;
};

/// For each span the heading "Span" and its number in print form, then x, moment and shear of each
/// station in the mask "0.00E+00"; the row of the maximum stands before the first station that is
/// not nearer to the left joint.
void writeStations(ReplacingFile& file, const Analysis& analysis);

/// For each span the heading "Span #" and its number, then x in print form, moment and shear.
void writeMaxima(ReplacingFile& file, const Analysis& analysis);

/// Analyses the beam whose rows stand in a working folder. Rewrites "Point.txt" and "Udl.txt" in
/// normal form, "TB.txt", "BM.txt" and "BMMax.txt", all of them or, if anything fails before the
/// first is replaced, none; whatever failed has been told to `message`.
[[nodiscard]] std::optional<Analysis> analyseFolder(const std::filesystem::path& folder,
                                                    const AnalysisSettings& settings,
                                                    const AnalysisOutputs& outputs);

}  // namespace trabeon
