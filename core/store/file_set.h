// Files of a folder that are replaced together.
#pragma once

#include <deque>
#include <filesystem>
#include <string>
#include <string_view>
#include <utility>

#include "core/store/replacing_file.h"

namespace trabeon {

/// New content for several working files of a folder. No file is replaced before all of the new
/// content is written. While the files are replaced, "Unfinished.set" names their temporary files.
/// If the process is killed then, finishSet() replaces the remaining files.
class FileSet {
  public:
    /// Begins a set, after it has finished the one that a killed process left in the folder.
    [[nodiscard]] static FileSet begin(const std::filesystem::path& folder);

    /// `name` is one of workingFiles.
    ReplacingFile& add(std::string_view name);

    /// Replaces the files, in the order in which they were added.
    [[nodiscard]] Status commit();

  private:
    explicit FileSet(std::filesystem::path folder) : folder_(std::move(folder)) {}

    std::filesystem::path folder_;
    std::deque<ReplacingFile> files_;
};

/// Call it with the folder's lock held, before reading files that a killed process may have left.
/// It finishes a set that was begun, and removes the temporary files of working files. It believes
/// only names of working files in "Unfinished.set". Silent.
void finishSet(const std::filesystem::path& folder);

}  // namespace trabeon
