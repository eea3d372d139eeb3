// Files of a folder that are replaced together.
#pragma once

#include <deque>
#include <filesystem>
#include <string>
#include <string_view>

#include "core/store/replacing_file.h"

namespace trabeon {

/// New content for several files of a folder, none of which is replaced before all of it is
/// written. While they are replaced their names stand in "Unfinished.set": a process that is killed
/// then has left them all whole beside the old ones, and finishSet() goes on where it stopped.
class FileSet {
  public:
    /// Finishes a set that was begun in the folder.
    explicit FileSet(std::filesystem::path folder);

    ReplacingFile& add(std::string_view name);

    /// Every file takes its place, in the order in which they were added.
    [[nodiscard]] Failure commit();

  private:
    std::filesystem::path folder_;
    std::deque<ReplacingFile> files_;
    std::string names_;  // each on a line
};

/// To be called before the files of a folder are read that a killed process may have left. Silent,
/// also where nothing was begun.
void finishSet(const std::filesystem::path& folder);

}  // namespace trabeon
