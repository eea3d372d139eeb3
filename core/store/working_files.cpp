#include "core/store/working_files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <system_error>
#include <utility>

#include "core/store/replacing_file.h"

namespace trabeon {
namespace {

constexpr std::int64_t maxBytes = std::int64_t{2} << 30;

/// A file that is open for reading, until it goes out of scope.
class OpenFile {
  public:
    /// Without O_NONBLOCK a pipe would wait here for somebody who writes.
    explicit OpenFile(const std::filesystem::path& file)
        : descriptor_(::open(file.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC)) {}
    ~OpenFile() {
        if (descriptor_ >= 0)
            ::close(descriptor_);
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    [[nodiscard]] int descriptor() const { return descriptor_; }

    /// Reads up to `size` bytes: how many, 0 at the end, or -1 with errno.
    [[nodiscard]] ssize_t read(char* to, std::size_t size) const {
        ssize_t got = 0;
        do
            got = ::read(descriptor_, to, size);
        while (got < 0 && errno == EINTR);
        return got;
    }

  private:
    int descriptor_;
};

Refusal unreadable(const std::filesystem::path& file, const std::string& why) {
    return {'"' + file.string() + "\" cannot be read (" + why +
            "). Make it a file that you may read; nothing was changed."};
}

Refusal unreadable(const std::filesystem::path& file, int error) {
    return unreadable(file, std::generic_category().message(error));
}

/// Reads to the end, which may lie elsewhere than the file's size says.
Outcome<std::string> contentOf(const OpenFile& opened, const std::filesystem::path& file,
                               std::int64_t size) {
    std::string text;
    for (auto room = size == 0 ? 4096 : static_cast<std::size_t>(size) + 1;;) {
        const auto filled = text.size();
        if (filled > maxBytes)
            return unreadable(file, "it is larger than 2 GiB");
        text.resize(filled + room);
        const auto got = opened.read(text.data() + filled, room);
        if (got < 0)
            return unreadable(file, errno);
        text.resize(filled + static_cast<std::size_t>(got));
        if (got == 0)
            return text;
        const bool mayBeMuchMore = static_cast<std::size_t>(got) == room;
        room = mayBeMuchMore ? std::max<std::size_t>(text.size(), 4096) : 1;
    }
}

}  // namespace

bool isWorkingFile(std::string_view name) {
    return std::find(workingFiles.begin(), workingFiles.end(), name) != workingFiles.end();
}

Outcome<std::string> readFile(const std::filesystem::path& file) {
    const OpenFile opened(file);
    struct stat status {};
    if (const int error = opened.descriptor() < 0 ? errno : 0) {
        std::error_code unknown;
        const bool isMissing = error == ENOENT && !std::filesystem::is_symlink(file, unknown);
        return isMissing ? Outcome<std::string>(std::string()) : unreadable(file, error);
    }
    if (::fstat(opened.descriptor(), &status) != 0)
        return unreadable(file, errno);
    if (S_ISDIR(status.st_mode))
        return unreadable(file, "it is a folder");
    if (!S_ISREG(status.st_mode))
        return unreadable(file, "it is a device or a pipe");
    if (status.st_size > maxBytes)
        return unreadable(file, "it is larger than 2 GiB");
    return contentOf(opened, file, status.st_size);
}

std::string readWhole(const std::filesystem::path& file) {
    auto text = readFile(file);
    return text ? std::move(*text) : std::string();
}

Objection missing(const std::filesystem::path& folder, std::span<const std::string_view> names) {
    std::error_code error;
    for (const auto name : names)
        if (!std::filesystem::exists(folder / name, error))
            return Refusal{'"' + (folder / name).string() +
                           "\" is missing: another program removed rows of the open project. Put "
                           "the file back, or choose New; nothing was changed."};
    return std::nullopt;
}

Status DuplicateFile(const std::filesystem::path& Source, const std::filesystem::path& Target) {
    std::error_code error;
    if (!std::filesystem::exists(Source, error))
        return unreadable(Source, ENOENT);
    const auto text = readFile(Source);
    if (!text)
        return text.refusal();
    return replaceFile(Target, *text);
}

void MurderFile(const std::filesystem::path& file) {
    std::error_code ignored;
    if (!std::filesystem::is_directory(file, ignored))
        std::filesystem::remove(file, ignored);
}

}  // namespace trabeon
