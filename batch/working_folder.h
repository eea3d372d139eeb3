// How a command takes up a folder of working files.
#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "core/analysis/analysis.h"
#include "core/store/folder_lock.h"
#include "core/store/project_file.h"

namespace trabeon {

/// Locks a folder for this command, and finishes the files that a killed command left there.
Status enter(const std::filesystem::path& folder, FolderLock& lock);

/// Unpacks a project. Reads and checks it before it makes and takes the folder.
Outcome<Project> unpackInto(const std::string& file, const std::filesystem::path& folder,
                            FolderLock& lock);

/// Takes sentences for the user.
using Complaints = std::function<void(const std::string&)>;

/// Analyses the beam in a folder. Complains of a refusal, and of each load that leaves its member.
std::optional<Analysis> analysed(const std::filesystem::path& folder,
                                 const AnalysisSettings& settings, const Complaints& complaints,
                                 std::function<void(double)> progress);

}  // namespace trabeon
