#include "core/store/own_files.h"

#include <algorithm>
#include <array>
#include <cctype>

#include "core/store/temporary_file.h"
#include "core/store/working_files.h"

namespace trabeon {
namespace {

namespace fs = std::filesystem;

/// Names that only the window uses.
constexpr std::array moreFiles{std::string_view("BM.tmp"), std::string_view("Writable.tmp")};

std::string lowered(std::string_view name) {
    std::string lower(name);
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return lower;
}

/// A file that is being written has an ending after its name.
bool isOwnName(const fs::path& path) {
    const auto name = path.filename().string();
    const auto finished = lowered(targetOfTemporary(name).value_or(name));
    const auto same = [&](std::string_view own) { return lowered(own) == finished; };
    return std::any_of(workingFiles.begin(), workingFiles.end(), same) ||
           std::any_of(moreFiles.begin(), moreFiles.end(), same);
}

}  // namespace

bool isOwnFile(const fs::path& file, const fs::path& folder) {
    std::error_code missing;
    const auto place = fs::weakly_canonical(fs::absolute(file, missing), missing);
    if (isOwnName(place) && fs::equivalent(place.parent_path(), folder, missing))
        return true;
    return std::any_of(workingFiles.begin(), workingFiles.end(), [&](std::string_view own) {
        return fs::equivalent(file, folder / own, missing);
    });
}

Objection checkProjectName(const fs::path& file, const fs::path& folder) {
    if (!isOwnFile(file, folder))
        return std::nullopt;
    return Refusal{"\"" + file.string() + "\" is a working file of \"" + folder.string() +
                   "\". Give the project another name; nothing was changed."};
}

}  // namespace trabeon
