// The working folder: one small text file for each kind of row and each result.
#pragma once

#include <array>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "core/outcome.h"

namespace trabeon {

/// The names of the working files.
namespace working_file {
inline constexpr std::string_view joint = "Joint.txt";
inline constexpr std::string_view member = "Member.txt";
inline constexpr std::string_view point = "Point.txt";
inline constexpr std::string_view udl = "Udl.txt";
inline constexpr std::string_view balanceTable = "TB.txt";
inline constexpr std::string_view stations = "BM.txt";
inline constexpr std::string_view beamDimensions = "BeamDim.txt";
inline constexpr std::string_view maxima = "BMMax.txt";
inline constexpr std::string_view pointStations = "PointBM.txt";
inline constexpr std::string_view pointMaxima = "PointBMMAX.txt";
inline constexpr std::string_view udlStations = "UDLBM.txt";
inline constexpr std::string_view udlMaxima = "UDLBMMAX.txt";
inline constexpr std::string_view designResults = "DResult.txt";
inline constexpr std::string_view steelAreas = "AreaofS.txt";
inline constexpr std::string_view linkResistances = "Asvosv.txt";

inline constexpr std::string_view jointScratch = "Joint.tmp";
inline constexpr std::string_view memberScratch = "Member.tmp";
inline constexpr std::string_view pointScratch = "Point.tmp";
inline constexpr std::string_view udlScratch = "Udl.tmp";
inline constexpr std::string_view beamDimensionsScratch = "BeamDim.tmp";
inline constexpr std::string_view balanceTableScratch = "TB.tmp";

// Files that the program keeps for itself.
inline constexpr std::string_view title = "Title.txt";    // of the open project: its three texts
inline constexpr std::string_view record = "Record.txt";  // see folder_record.h
inline constexpr std::string_view unfinishedSet = "Unfinished.set";  // see file_set.h
}  // namespace working_file

inline constexpr std::array workingFiles{working_file::joint,
                                         working_file::member,
                                         working_file::point,
                                         working_file::udl,
                                         working_file::balanceTable,
                                         working_file::stations,
                                         working_file::beamDimensions,
                                         working_file::maxima,
                                         working_file::pointStations,
                                         working_file::pointMaxima,
                                         working_file::udlStations,
                                         working_file::udlMaxima,
                                         working_file::designResults,
                                         working_file::steelAreas,
                                         working_file::linkResistances,
                                         working_file::jointScratch,
                                         working_file::memberScratch,
                                         working_file::pointScratch,
                                         working_file::udlScratch,
                                         working_file::beamDimensionsScratch,
                                         working_file::balanceTableScratch,
                                         working_file::title,
                                         working_file::record,
                                         working_file::unfinishedSet};

/// The files with the rows of the beam and of its loads.
inline constexpr std::array inputFiles{working_file::joint, working_file::member,
                                       working_file::point, working_file::udl};

/// The seven files that CreateNFile empties, in its order.
inline constexpr std::array projectFiles{working_file::joint,         working_file::member,
                                         working_file::point,         working_file::udl,
                                         working_file::stations,      working_file::balanceTable,
                                         working_file::beamDimensions};

/// The fifteen files that Exit deletes, in its order.
inline constexpr std::array filesDeletedAtExit{
    working_file::joint,         working_file::member,       working_file::point,
    working_file::udl,           working_file::stations,     working_file::balanceTable,
    working_file::pointStations, working_file::udlStations,  working_file::jointScratch,
    working_file::memberScratch, working_file::pointScratch, working_file::udlScratch,
    working_file::maxima,        working_file::pointMaxima,  working_file::udlMaxima};

[[nodiscard]] bool isWorkingFile(std::string_view name);

/// The whole content of a file; a missing file is empty. Refuses a file that is not a regular one
/// (a read from a pipe could wait for ever), that the user may not read, or that is larger than
/// 2 GiB.
[[nodiscard]] Outcome<std::string> readFile(const std::filesystem::path& file);

/// The same for a caller that can go on without the file: a refused file is empty too.
[[nodiscard]] std::string readWhole(const std::filesystem::path& file);

/// The contents of several files of a folder, in the order of `names`. Refuses what readFile
/// refuses.
template <std::size_t Count>
[[nodiscard]] Outcome<std::array<std::string, Count>> readFiles(
    const std::filesystem::path& folder, const std::array<std::string_view, Count>& names) {
    std::array<std::string, Count> texts;
    for (std::size_t i = 0; i < Count; ++i) {
        auto text = readFile(folder / names[i]);
        if (!text)
            return text.refusal();
        texts[i] = std::move(*text);
    }
    return texts;
}

/// Refuses if one of these files is missing, and names the first. A run creates them all, so
/// another program has removed it. The project then does not simply have no such rows.
[[nodiscard]] Objection missing(const std::filesystem::path& folder,
                                std::span<const std::string_view> names);

/// Copies Source over Target, completely or not at all. Shows no message.
[[nodiscard]] Status DuplicateFile(const std::filesystem::path& Source,
                                   const std::filesystem::path& Target);

/// Deletes a file. Shows no message, also if the file does not exist.
void MurderFile(const std::filesystem::path& file);

}  // namespace trabeon
