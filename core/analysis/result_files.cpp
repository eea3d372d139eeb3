#include "core/analysis/result_files.h"

#include <array>
#include <cstring>

#include "core/analysis/result_state.h"
#include "core/store/file_set.h"
#include "core/store/folder_record.h"
#include "core/text/number_masks.h"
#include "core/text/number_text.h"
#include "core/text/three_figures.h"

namespace trabeon {
namespace {

constexpr std::string_view blanks = "     ";

using PutMask = char* (*)(char*, double);

PutMask maskOf(TableRow::Cells kind) {
    switch (kind) {
        case TableRow::Cells::joints:
            return putNineDigits;
        case TableRow::Cells::factors:
            return putPercent;
        case TableRow::Cells::moments:
            break;
    }
    return putSignedThreeFigures;
}

char* put(char* at, std::string_view text) {
    std::memcpy(at, text.data(), text.size());
    return at + text.size();
}

/// A text that is written as a file is.
class WrittenText {
  public:
    void write(std::string_view text) { text_ += text; }
    char* room(std::size_t) { return row_.data(); }
    void advance(const char* end) {
        text_.append(row_.data(), static_cast<std::size_t>(end - row_.data()));
    }
    std::string text() { return std::move(text_); }

  private:
    std::array<char, 4 * longestMask> row_;
    std::string text_;
};

template <class File>
void writeRow(File& file, const Station& station) {
    char* at = file.room(4 * longestMask);
    at = put(putThreeFigures(at, station.x), ",");
    at = put(putThreeFigures(at, station.forces.moment), ",");
    at = putThreeFigures(at, station.forces.shear);
    file.advance(put(at, "\r\n"));
}

template <class File>
void writeAllStations(File& file, const Analysis& analysis) {
    for (std::size_t span = 1; span <= analysis.beam.members(); ++span) {
        file.write("Span" + printForm(span) + "\r\n");
        const auto& maximum = analysis.maxima[span - 1];
        bool written = false;
        for (const auto& station : analysis.stationsOf(span)) {
            if (!written && maximum.x <= station.x) {
                writeRow(file, maximum);
                written = true;
            }
            writeRow(file, station);
        }
    }
}

/// Writes a load file in normal form, and its scratch file with the same content. Files that are in
/// normal form already are not written again.
template <class Load>
void writeLoads(FileSet& files, const std::filesystem::path& folder, const MemberLoads<Load>& loads,
                std::string& text) {
    auto normal = textOf(loads.rows, Description::bare);
    if (readWhole(folder / Load::Row::scratch) != normal)
        files.add(Load::Row::scratch).write(normal);
    if (text != normal)
        files.add(Load::Row::file).write(normal);
    text = std::move(normal);
}

template <class Load>
void addLoads(InputFingerprint& input, const MemberLoads<Load>& loads, std::size_t members) {
    for (std::size_t member = 1; member <= members; ++member)
        for (const auto& load : loads.on(member))
            if (!load.isZero())
                input.addLoad(member, load.numbers());
}

/// The same as inputFingerprint() makes from the rows, from the numbers that are read already.
std::uint64_t inputOf(std::string_view joints, const Analysis& analysis) {
    InputFingerprint input;
    for (const auto& joint : rowsOf<JointRow>(joints))
        input.addJoint(joint.type);
    const auto& beam = analysis.beam;
    for (std::size_t member = 1; member <= beam.members(); ++member)
        input.addMember(beam.MemberE[member], beam.MemberI[member], beam.Length[member]);
    addLoads(input, analysis.points, beam.members());
    addLoads(input, analysis.udls, beam.members());
    return input.value();
}

/// The fingerprints of the four input files' texts, before and after they are in normal form.
struct InputTexts {
    std::uint64_t before, after;
};

/// Records what the results were made from. Rows that came from a project file still count as
/// coming from it.
void writeRecord(FileSet& files, const std::filesystem::path& folder, const InputTexts& texts,
                 std::uint64_t input, double Divisions) {
    auto record = readRecord(folder);
    const auto old = textOf(record);
    if (record.unpackedInput == texts.before)
        record.unpackedInput = texts.after;
    record.table = input;
    record.stations = stationsFingerprint(input, Divisions);
    if (const auto text = textOf(record); text != old)
        files.add(working_file::record).write(text);
}

}  // namespace

void BalanceTableWriter::write(const TableRow& row) {
    if (begun_)
        file_.write("\r\n");
    begun_ = true;
    file_.write(row.label);
    file_.write(blanks);
    const auto mask = maskOf(row.kind);
    for (const double cell : row.cells) {
        char* at = file_.room(longestMask + blanks.size());
        file_.advance(put(mask(at, cell), blanks));
    }
}

void writeStations(ReplacingFile& file, const Analysis& analysis) {
    writeAllStations(file, analysis);
}

std::string stationsText(const Analysis& analysis) {
    WrittenText text;
    writeAllStations(text, analysis);
    return text.text();
}

void writeMaxima(ReplacingFile& file, const Analysis& analysis) {
    for (std::size_t span = 1; span <= analysis.beam.members(); ++span) {
        const auto& [x, forces] = analysis.maxima[span - 1];
        file.write("Span #" + printForm(span) + "\r\n");
        file.write(printForm(x) + ',' + threeFigures(forces.moment) + ',' +
                   threeFigures(forces.shear) + "\r\n");
    }
}

std::optional<Analysis> analyseFolder(const std::filesystem::path& folder,
                                      const AnalysisSettings& settings,
                                      const AnalysisOutputs& outputs) {
    auto files = FileSet::begin(folder);
    std::optional<BalanceTableWriter> table;
    const auto writeRow = [&](const TableRow& row) {
        if (!table)
            table.emplace(files.add(working_file::balanceTable));
        table->write(row);
    };
    auto input = readFiles(folder, inputFiles);
    if (!input) {
        outputs.refuse(input.refusal());
        return std::nullopt;
    }
    auto& [joints, members, points, udls] = *input;
    const auto before = fingerprint({joints, members, points, udls});
    BeamRows rows{rowsOf<JointRow>(joints), rowsOf<MemberRow>(members), rowsOf<PointRow>(points),
                  rowsOf<UdlRow>(udls)};
    outputs.rowsRead(rows);
    auto analysis = analyse(std::move(rows), settings, writeRow, outputs);
    if (!analysis)
        return std::nullopt;
    writeStations(files.add(working_file::stations), *analysis);
    writeMaxima(files.add(working_file::maxima), *analysis);
    writeLoads(files, folder, analysis->points, points);
    writeLoads(files, folder, analysis->udls, udls);
    writeRecord(files, folder, {before, fingerprint({joints, members, points, udls})},
                inputOf(joints, *analysis), settings.Divisions);
    if (const auto status = files.commit(); status.failed()) {
        outputs.refuse(status.refusal());
        return std::nullopt;
    }
    return analysis;
}

}  // namespace trabeon
