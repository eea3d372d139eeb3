#include "batch/working_folder.h"

#include <chrono>

#include "core/analysis/result_files.h"
#include "core/analysis/stray_loads.h"
#include "core/store/file_set.h"
#include "core/store/folder_record.h"
#include "core/store/own_files.h"

namespace trabeon {
namespace {

namespace fs = std::filesystem;

/// How long a command waits for another program that is at work in its folder.
constexpr std::chrono::seconds patience{3};

}  // namespace

Status enter(const fs::path& folder, FolderLock& lock) {
    std::error_code error;
    if (!fs::is_directory(folder, error))
        return Refusal{"\"" + folder.string() + "\" is not a folder."};
    if (auto status = lock.take(folder, patience); status.failed())
        return status;
    finishSet(folder);
    return {};
}

Outcome<Project> unpackInto(const std::string& file, const fs::path& folder, FolderLock& lock) {
    if (const auto objection = checkProjectName(file, folder))
        return *objection;
    auto project = readProject(file);
    if (!project)
        return project;
    std::error_code error;
    fs::create_directories(folder, error);
    if (!fs::is_directory(folder, error))
        return Refusal{"The folder \"" + folder.string() +
                       "\" cannot be created. Choose another one."};
    if (const auto status = enter(folder, lock); status.failed())
        return status.refusal();
    if (const auto objection = checkRowsAreSaved(folder))
        return *objection;
    if (const auto status = writeWorkingFiles(*project, folder); status.failed())
        return status.refusal();
    return project;
}

std::optional<Analysis> analysed(const fs::path& folder, const AnalysisSettings& settings,
                                 const Complaints& complaints,
                                 std::function<void(double)> progress) {
    AnalysisOutputs outputs;
    outputs.message = [&](const Message& message) { complaints(message.text); };
    outputs.progress = std::move(progress);
    std::vector<StrayLoad> stray;
    outputs.rowsRead = [&](const BeamRows& rows) { stray = strayLoads(rows); };
    auto analysis = analyseFolder(folder, settings, outputs);
    if (analysis)
        for (const auto& load : stray)
            complaints(sentenceOf(load));
    return analysis;
}

}  // namespace trabeon
