// The working folder: one small text file for each kind of row and each result.
#pragma once

#include <array>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>

#include "core/outcome.h"

namespace trabeon {

/// Every working file by its one name.
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
}  // namespace working_file

/// The files that the user's rows stand in.
inline constexpr std::array inputFiles{working_file::joint, working_file::member,
                                       working_file::point, working_file::udl};

/// The seven files that CreateNFile empties, in its order.
inline constexpr std::array projectFiles{working_file::joint,         working_file::member,
                                         working_file::point,         working_file::udl,
                                         working_file::stations,      working_file::balanceTable,
                                         working_file::beamDimensions};

/// The fifteen files that go when the program is left, in their order.
inline constexpr std::array filesDeletedAtExit{
    working_file::joint,         working_file::member,       working_file::point,
    working_file::udl,           working_file::stations,     working_file::balanceTable,
    working_file::pointStations, working_file::udlStations,  working_file::jointScratch,
    working_file::memberScratch, working_file::pointScratch, working_file::udlScratch,
    working_file::maxima,        working_file::pointMaxima,  working_file::udlMaxima};

/// The whole content of a file; a missing one reads as empty, and so does one that unreadable()
/// tells.
[[nodiscard]] std::string readWhole(const std::filesystem::path& file);

/// Why a file that is there cannot be read: it is a folder or a device, or the user may not. To be
/// asked before content that was read replaces a file; a missing file is no failure.
[[nodiscard]] Failure unreadable(const std::filesystem::path& file);
[[nodiscard]] Failure unreadable(const std::filesystem::path& folder,
                                 std::span<const std::string_view> names);

/// Copies Source over Target, whole or not at all. Silent: a copy that fails leaves Target as it
/// was.
void DuplicateFile(const std::filesystem::path& Source, const std::filesystem::path& Target);

/// Deletes a file. Silent, also when there is none.
void MurderFile(const std::filesystem::path& file);

/// Makes the seven project files of the folder exist and be empty.
void CreateNFile(const std::filesystem::path& folder);

}  // namespace trabeon
