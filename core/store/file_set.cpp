#include "core/store/file_set.h"

#include <algorithm>
#include <cstdio>
#include <utility>
#include <vector>

#include "core/store/working_files.h"
#include "core/text/field_reader.h"

namespace trabeon {
namespace {

namespace fs = std::filesystem;

/// The working file that a temporary file was written for; nothing for any other name.
std::optional<std::string_view> workingFileOf(std::string_view temporary) {
    const auto target = targetOfTemporary(temporary);
    return target && isWorkingFile(*target) ? target : std::nullopt;
}

/// Renames a temporary file over its target. If the target is a link, the temporary file is in the
/// folder of the file that the link points to.
void takePlace(const fs::path& target, std::string_view temporary) {
    std::error_code missing;
    const auto file = fs::weakly_canonical(target, missing);
    const auto fresh = file.parent_path() / temporary;
    const bool isOwn = fs::is_regular_file(fs::symlink_status(fresh, missing)) &&
                       fs::hard_link_count(fresh, missing) == 1;  // links were planted there
    if (isOwn && !missing)
        std::rename(fresh.c_str(), file.c_str());
}

void removeLeftovers(const fs::path& folder) {
    std::vector<fs::path> left;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error))
        if (workingFileOf(entry->path().filename().string()))
            left.push_back(entry->path());
    for (const auto& file : left)
        MurderFile(file);
}

}  // namespace

FileSet FileSet::begin(const fs::path& folder) {
    finishSet(folder);
    return FileSet(folder);
}

ReplacingFile& FileSet::add(std::string_view name) {
    return files_.emplace_back(folder_ / name);
}

Status FileSet::commit() {
    std::string names;
    for (auto& file : files_) {
        if (auto status = file.finish(); status.failed())
            return status;
        (names += file.temporary().path().filename().string()) += '\n';
    }
    const SignalsWait wait;
    const auto list = folder_ / working_file::unfinishedSet;
    if (auto status = replaceFile(list, names); status.failed())
        return status;
    for (auto& file : files_)
        file.temporary().keepOnSignal();
    Status status;
    for (auto file = files_.begin(); file != files_.end() && status.done(); ++file)
        status = file->commit();
    MurderFile(list);
    return status;
}

void finishSet(const fs::path& folder) {
    const auto list = folder / working_file::unfinishedSet;
    const auto names = readWhole(list);
    FieldReader reader(names);
    while (!reader.atEnd()) {
        const auto name = reader.nextLine();
        if (const auto target = workingFileOf(name))
            takePlace(folder / *target, name);
    }
    if (!names.empty())
        MurderFile(list);
    removeLeftovers(folder);
}

}  // namespace trabeon
