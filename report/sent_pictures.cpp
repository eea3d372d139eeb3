#include "report/sent_pictures.h"

#include <algorithm>
#include <chrono>
#include <string>
#include <system_error>
#include <vector>

namespace trabeon {
namespace {

namespace fs = std::filesystem;
using std::chrono::hours;

constexpr std::string_view nameStart = "Picture ";
constexpr auto ownersWriting = fs::perms::owner_write;

bool isPictureName(const std::string& name) {
    const bool framed = name.starts_with(nameStart) && name.ends_with(".rtf");
    const auto number =
        framed ? name.substr(nameStart.size(), name.size() - nameStart.size() - 4) : std::string();
    return !number.empty() && number.find_first_not_of("0123456789") == number.npos;
}

bool isLentAndRead(const fs::directory_entry& entry) {
    std::error_code error;
    if (!isPictureName(entry.path().filename().string()) || !entry.is_regular_file(error))
        return false;
    const auto status = entry.status(error);
    const auto written = entry.last_write_time(error);
    return !error && (status.permissions() & ownersWriting) == fs::perms::none &&
           fs::file_time_type::clock::now() - written > hours(1);
}

}  // namespace

fs::path freePicturePath(const fs::path& folder) {
    for (int number = 1;; ++number) {
        auto path = folder / (std::string(nameStart) + std::to_string(number) + ".rtf");
        if (!fs::exists(path))
            return path;
    }
}

void lendPicture(const fs::path& path) {
    std::error_code ignored;  // a file that stays writable is never removed
    fs::permissions(path, fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write,
                    fs::perm_options::remove, ignored);
}

void removeLentPictures(const fs::path& folder) {
    std::error_code error;
    std::vector<fs::path> read;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error))
        if (isLentAndRead(*entry))
            read.push_back(entry->path());
    for (const auto& path : read)
        fs::remove(path, error);
}

}  // namespace trabeon
