#include "core/store/replacing_file.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace trabeon {
namespace {

namespace fs = std::filesystem;

std::string quoted(const fs::path& file) {
    return '"' + file.string() + '"';
}

Refusal unwritten(const fs::path& file, int error) {
    return {quoted(file) + " could not be written (" + std::generic_category().message(error) +
            "). The old file is unchanged. Make room or choose another folder, then try again."};
}

/// The file that a link points to, or the path itself; refuses a link that points to nothing.
Outcome<fs::path> resolved(const fs::path& target) {
    std::error_code error;
    if (!fs::is_symlink(target, error))
        return target;
    auto file = fs::canonical(target, error);
    if (!error)
        return file;
    return Refusal{quoted(target) + " is a link to a file that does not exist (" + error.message() +
                   "). Remove the link or choose another name; nothing was changed."};
}

bool isWriteProtected(const fs::path& file, const struct stat& status) {
    constexpr mode_t anyWrite = S_IWUSR | S_IWGRP | S_IWOTH;
    return (status.st_mode & anyWrite) == 0 || ::euidaccess(file.c_str(), W_OK) != 0;
}

/// Why a file must not be replaced; a file that is not there may be written.
Objection checkTarget(const fs::path& file) {
    struct stat status {};
    if (::stat(file.c_str(), &status) != 0)
        return std::nullopt;
    if (!S_ISREG(status.st_mode))
        return Refusal{quoted(file) + " is " + (S_ISDIR(status.st_mode) ? "a folder" : "a device") +
                       ", not a file. Choose another name; nothing was changed."};
    if (isWriteProtected(file, status))
        return Refusal{quoted(file) +
                       " is write-protected. Allow writing to it or choose another name; nothing "
                       "was changed."};
    return std::nullopt;
}

}  // namespace

ReplacingFile::ReplacingFile(const fs::path& target, Survives survives)
    : target_(target),
      survives_(survives),
      buffer_(std::make_unique_for_overwrite<char[]>(capacity)) {
    const auto file = resolved(target);
    if (!file) {
        status_ = file.refusal();
        return;
    }
    target_ = *file;
    status_ = checkTarget(target_);
    if (status_.done())
        note(fresh_.create(target_));
}

void ReplacingFile::write(std::string_view text) {
    if (text.empty())  // an empty view may have no characters to copy from
        return;
    if (text.size() > capacity - used_)
        flush();
    if (text.size() > capacity)
        put(text);
    else
        used_ += text.copy(buffer_.get() + used_, text.size());
}

void ReplacingFile::flush() {
    put({buffer_.get(), used_});
    used_ = 0;
}

void ReplacingFile::put(std::string_view text) {
    if (status_.done())
        note(fresh_.write(text));
}

Status ReplacingFile::finish() {
    if (finished_)
        return {};
    flush();
    if (status_.done())
        status_ = checkTarget(target_);  // a rename would fail, and too late for a set of files
    if (status_.done() && survives_ == Survives::powerCut)
        note(fresh_.flushToDisk());
    note(fresh_.close());
    finished_ = status_.done();
    return status_;
}

Status ReplacingFile::commit() {
    if (auto status = finish(); status.failed())
        return status;
    note(fresh_.takePlace());
    if (status_.failed() || survives_ == Survives::processEnd)
        return status_;
    if (const int error = flushFolder(target_.parent_path()))
        status_ = Refusal{quoted(target_) + " was written, but its disk does not confirm that it " +
                          "would survive a power cut (" + std::generic_category().message(error) +
                          "). Save it on another disk too."};
    return status_;
}

void ReplacingFile::note(int error) {
    if (error != 0 && status_.done())
        status_ = unwritten(target_, error);
}

Status replaceFile(const fs::path& target, std::string_view text, Survives survives) {
    ReplacingFile file(target, survives);
    file.write(text);
    return file.commit();
}

}  // namespace trabeon
