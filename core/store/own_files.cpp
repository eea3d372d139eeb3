#include "core/store/own_files.h"

#include <algorithm>
#include <array>
#include <cctype>

#include "core/store/working_files.h"

namespace trabeon {
namespace {

namespace fs = std::filesystem;

constexpr std::array ownFiles{working_file::joint,
                              working_file::member,
                              working_file::point,
                              working_file::udl,
                              working_file::balanceTable,
                              working_file::stations,
                              working_file::beamDimensions,
                              working_file::maxima,
                              working_file::pointStations,
                              working_file::pointMaxima,
                              working_file::udlStations,
                              working_file::udlMaxima,
                              working_file::designResults,
                              working_file::steelAreas,
                              working_file::linkResistances,
                              working_file::jointScratch,
                              working_file::memberScratch,
                              working_file::pointScratch,
                              working_file::udlScratch,
                              working_file::beamDimensionsScratch,
                              std::string_view("BM.tmp"),
                              std::string_view("TB.tmp"),
                              std::string_view("Title.txt"),
                              std::string_view("Unfinished.set"),
                              std::string_view("Writable.tmp"),
                              std::string_view("trabeon.lock")};

std::string lowered(std::string_view name) {
    std::string lower(name);
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return lower;
}

/// A file that is being written has ".new" after its name.
bool isOwnName(const fs::path& name) {
    const auto finished = lowered((name.extension() == ".new" ? name.stem() : name).string());
    return std::any_of(ownFiles.begin(), ownFiles.end(),
                       [&](std::string_view own) { return lowered(own) == finished; });
}

}  // namespace

bool isOwnFile(const fs::path& file, const fs::path& folder) {
    std::error_code missing;
    const auto place = fs::weakly_canonical(fs::absolute(file, missing), missing);
    if (isOwnName(place.filename()) && fs::equivalent(place.parent_path(), folder, missing))
        return true;
    return std::any_of(ownFiles.begin(), ownFiles.end(), [&](std::string_view own) {
        return fs::equivalent(file, folder / own, missing);
    });
}

Failure unfitForProject(const fs::path& file, const fs::path& folder) {
    if (!isOwnFile(file, folder))
        return std::nullopt;
    return Refusal{"\"" + file.string() + "\" is a working file of \"" + folder.string() +
                   "\". Give the project another name; nothing was changed."};
}

}  // namespace trabeon
