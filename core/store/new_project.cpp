#include "core/store/new_project.h"

#include "core/store/file_set.h"
#include "core/store/working_files.h"

namespace trabeon {

Status CreateNFile(const std::filesystem::path& folder) {
    auto files = FileSet::begin(folder);
    for (const auto name : projectFiles)
        files.add(name);
    if (auto status = files.commit(); status.failed())
        return status;
    MurderFile(folder / working_file::title);
    MurderFile(folder / working_file::record);
    for (const auto name : projectFiles)
        if (const auto text = readFile(folder / name); !text || !text->empty())
            return Refusal{'"' + (folder / name).string() +
                           "\" cannot be emptied. It contains rows of another project; move it "
                           "away, then try again."};
    return {};
}

}  // namespace trabeon
