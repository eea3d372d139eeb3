#include "core/store/recovery.h"

#include <algorithm>
#include <array>
#include <string>

#include "core/store/file_set.h"
#include "core/store/project_file.h"
#include "core/store/working_files.h"
#include "core/text/field_reader.h"

namespace trabeon {
namespace {

namespace fs = std::filesystem;

/// Whether files are there that Exit deletes. The beam dimensions are not among them.
bool endedWithoutExit(const fs::path& folder) {
    constexpr std::array filesOfARun{working_file::joint, working_file::member, working_file::point,
                                     working_file::udl, working_file::balanceTable};
    return std::any_of(filesOfARun.begin(), filesOfARun.end(), [&](std::string_view name) {
        std::error_code missing;
        return fs::exists(folder / name, missing);
    });
}

/// Whether every line of a text is in the other, in the same order.
bool isWithin(std::string_view text, std::string_view other) {
    FieldReader wanted(text), found(other);
    while (!wanted.atEnd()) {
        const auto line = wanted.nextLine();
        do
            if (found.atEnd())
                return false;
        while (found.nextLine() != line);
    }
    return true;
}

/// "Recovered.TB", "Recovered 2.TB" ...: what earlier starts have recovered.
bool isRecovered(const std::string& name) {
    return name == recoveredProject || (name.starts_with("Recovered ") && name.ends_with(".TB"));
}

bool wasRecoveredBefore(std::string_view text, const fs::path& folder) {
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error))
        if (isRecovered(entry->path().filename().string()) &&
            isWithin(text, readWhole(entry->path())))
            return true;
    return false;
}

/// Renames what an earlier start has recovered to the first free name.
Status renameOlder(const fs::path& recovered) {
    std::error_code error;
    if (!fs::exists(fs::symlink_status(recovered, error)))
        return {};
    auto kept = recovered;
    for (int number = 2; fs::exists(fs::symlink_status(kept, error)); ++number)
        kept.replace_filename("Recovered " + std::to_string(number) + ".TB");
    fs::rename(recovered, kept, error);
    if (!error)
        return {};
    return Refusal{"\"" + recovered.string() + "\" of an earlier run could not be renamed (" +
                   error.message() + "). Move it away, then start again."};
}

}  // namespace

Outcome<bool> recoverRows(const fs::path& folder) {
    finishSet(folder);
    if (!endedWithoutExit(folder))
        return false;
    const auto project = projectIn(folder);
    if (!project)
        return project.refusal();
    const auto text = damagedRowsText(*project);
    const auto target = folder / recoveredProject;
    if (isWithin(text, packedText({})) || wasRecoveredBefore(text, folder))
        return false;
    if (const auto status = renameOlder(target); status.failed())
        return status.refusal();
    if (const auto status = replaceFile(target, text, Survives::powerCut); status.failed())
        return status.refusal();
    return true;
}

}  // namespace trabeon
