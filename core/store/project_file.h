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

/// A project taken apart: the title, and each working file's text as opening leaves it.
struct Project {
    ProjectTitle title;
    std::string joints, members, points, udls, balanceTable, beamDimensions;
};

/// The project file's text. Descriptions stand in double quotes, numbers without a blank in front.
[[nodiscard]] std::string packedText(const Project& project);

/// The same of rows that may have been scrambled: a line that is no row stands as it is, so that
/// nothing is lost and opening names it.
[[nodiscard]] std::string rescuedText(const Project& project);

/// Takes a project file's text apart. Refuses a text that lacks a heading, ends inside a row or has
/// a title that is too long, with the line (counting from 1) and what was expected there. Headings
/// are known by their first letters alone, and numbers are taken as they stand. LF line ends are
/// read as well, and a byte order mark of UTF-8 is dropped. Texts keep their bytes, whatever their
/// character set.
[[nodiscard]] Outcome<Project> unpackedProject(std::string_view text);

/// Reads and checks a project file whole. Refuses one that cannot be read or that is UTF-16.
[[nodiscard]] Outcome<Project> readProject(const std::filesystem::path& file);

/// Puts a project's texts into the six working files of a folder, all of them or none; "BM.txt"
/// stays as it was.
[[nodiscard]] Failure writeWorkingFiles(const Project& project,
                                        const std::filesystem::path& folder);

/// The texts of a folder's working files and its title; missing ones are empty, a missing title is
/// that of a new project. Refuses files that cannot be read.
[[nodiscard]] Outcome<Project> projectIn(const std::filesystem::path& folder);

/// Keeps the title with the working files ("Title.txt"), so that a run that ends without Exit does
/// not lose it. Silent: the title is still in the window.
void keepTitle(const std::filesystem::path& folder, const ProjectTitle& title);

/// The title that was kept, or the title of a new project.
[[nodiscard]] ProjectTitle titleIn(const std::filesystem::path& folder);

/// Packs the working files of a folder, flushed to the disk. Refuses a title text that holds a
/// double quote or a line end or is too long, working files that cannot be read or would make a
/// project that cannot be opened again, and a file that is a working file itself or cannot be
/// written; the old file then stays as it was. Returns the fingerprint of the new file.
[[nodiscard]] Outcome<std::uint64_t> packProject(const std::filesystem::path& folder,
                                                 const ProjectTitle& title,
                                                 const std::filesystem::path& file);

struct OpenedProject {
    ProjectTitle title;
    std::uint64_t fingerprint = 0;  // of the file as it was read
};

/// Unpacks a project file into a folder: reads it, then writes the working files. If it is refused
/// no working file changes. Refuses a project file that is one of the folder's working files.
[[nodiscard]] Outcome<OpenedProject> unpackProject(const std::filesystem::path& file,
                                                   const std::filesystem::path& folder);

/// How a project file compares with the fingerprint of what was read from it or written to it.
enum class OnDisk { same, changed, gone };
[[nodiscard]] OnDisk comparedWithDisk(const std::filesystem::path& file, std::uint64_t fingerprint);

/// The name that the main window's caption shows: what follows the leftmost separator of a full
/// path.
[[nodiscard]] std::string captionName(std::string_view fullPath);

}  // namespace trabeon
