#include "core/store/file_set.h"

#include <utility>

#include "core/store/working_files.h"
#include "core/text/field_reader.h"

namespace trabeon {
namespace {

constexpr std::string_view unfinishedSet = "Unfinished.set";

}  // namespace

FileSet::FileSet(std::filesystem::path folder) : folder_(std::move(folder)) {
    finishSet(folder_);
}

ReplacingFile& FileSet::add(std::string_view name) {
    (names_ += name) += '\n';
    return files_.emplace_back(folder_ / name);
}

Failure FileSet::commit() {
    for (auto& file : files_)
        if (auto failure = file.finish())
            return failure;
    if (auto failure = replaceFile(folder_ / unfinishedSet, names_))
        return failure;
    Failure failure;
    for (auto file = files_.begin(); file != files_.end() && !failure; ++file)
        failure = file->commit();
    MurderFile(folder_ / unfinishedSet);
    return failure;
}

void finishSet(const std::filesystem::path& folder) {
    const auto names = readWhole(folder / unfinishedSet);
    if (names.empty())
        return;
    FieldReader reader(names);
    while (!reader.atEnd())
        replaceByLeftBehind(folder / reader.nextLine());
    MurderFile(folder / unfinishedSet);
}

}  // namespace trabeon
