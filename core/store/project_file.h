// The project file, *.TB: the title and six working files packed into one text file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "core/outcome.h"

namespace trabeon {

struct ProjectTitle {
    std::string project = "Untitled";
    std::string designer = "Annonymous";
    std::string beamName = "Beam Name";

    bool operator==(const ProjectTitle&) const = default;
};

/// The most characters that a box of the title form holds.
inline constexpr std::size_t longestTitle = 32'767;

/// The content of a project: its title, and the text of each working file.
struct Project {
    ProjectTitle title;
    std::string joints, members, points, udls, balanceTable, beamDimensions;
};

/// The text of the project file. Descriptions are in double quotes; numbers have no leading blank.
[[nodiscard]] std::string packedText(const Project& project);

/// The same for rows that may be damaged. A line that is not a complete row is written unchanged,
/// so that nothing is lost. Opening the project then names this line.
[[nodiscard]] std::string damagedRowsText(const Project& project);

/// Splits the text of a project file into its parts. Refuses a text that lacks a heading, ends
/// inside a row or has a title that is too long. The refusal names the line, which counts from 1,
/// and what was expected there. Headings are recognised by their first letters, and numbers are not
/// changed. LF line ends are accepted, and a byte order mark of UTF-8 is dropped. Texts keep their
/// bytes in every character set.
[[nodiscard]] Outcome<Project> unpackedProject(std::string_view text);

/// Reads and checks a project file. Refuses one that cannot be read or that is UTF-16.
[[nodiscard]] Outcome<Project> readProject(const std::filesystem::path& file);

/// Writes the texts of a project to the six working files of a folder, all of them or none.
/// "BM.txt" does not change.
[[nodiscard]] Status writeWorkingFiles(const Project& project, const std::filesystem::path& folder);

/// The project in a folder. A missing file is empty; a missing title is that of a new project.
/// Refuses files that cannot be read.
[[nodiscard]] Outcome<Project> projectIn(const std::filesystem::path& folder);

/// Writes the title to "Title.txt" in the working folder, so that a run that ends without Exit does
/// not lose it. Ignores failures: the title is still in the window.
void keepTitle(const std::filesystem::path& folder, const ProjectTitle& title);

/// The title that was kept, or the title of a new project.
[[nodiscard]] ProjectTitle titleIn(const std::filesystem::path& folder);

/// Packs the working files of a folder into a project file, and waits until it is on the disk.
/// Returns the fingerprint of the new file. Refuses a title text that is too long or has a double
/// quote or a line end, working files that cannot be read, rows that would make a project that
/// cannot be opened again, and a file that is a working file or cannot be written. The old file
/// then does not change.
[[nodiscard]] Outcome<std::uint64_t> packProject(const std::filesystem::path& folder,
                                                 const ProjectTitle& title,
                                                 const std::filesystem::path& file);

struct OpenedProject {
    ProjectTitle title;
    std::uint64_t fingerprint = 0;  // of the file as it was read
};

/// Unpacks a project file into a folder. Refuses what readProject refuses, and a project file that
/// is a working file of the folder; then no working file changes.
[[nodiscard]] Outcome<OpenedProject> unpackProject(const std::filesystem::path& file,
                                                   const std::filesystem::path& folder);

/// Whether a project file still has the fingerprint of what was read from it or written to it.
enum class OnDisk { same, changed, gone };
[[nodiscard]] OnDisk comparedWithDisk(const std::filesystem::path& file, std::uint64_t fingerprint);

/// The name in the caption of the main window: the part of a full path after its first separator.
[[nodiscard]] std::string captionName(std::string_view fullPath);

}  // namespace trabeon
