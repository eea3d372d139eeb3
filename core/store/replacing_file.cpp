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
Failure unfitTarget(const fs::path& file) {
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
        wrong_ = file.refusal();
        return;
    }
    target_ = *file;
    wrong_ = unfitTarget(target_);
    if (!wrong_)
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
    if (!wrong_)
        note(fresh_.write(text));
}

Failure ReplacingFile::finish() {
    if (finished_)
        return std::nullopt;
    flush();
    if (!wrong_)
        wrong_ = unfitTarget(target_);  // a rename would fail, and too late for a set of files
    if (!wrong_ && survives_ == Survives::powerCut)
        note(fresh_.flushToDisk());
    note(fresh_.close());
    finished_ = !wrong_;
    return wrong_;
}

Failure ReplacingFile::commit() {
    if (auto failure = finish())
        return failure;
    note(fresh_.takePlace());
    if (wrong_ || survives_ == Survives::processEnd)
        return wrong_;
    if (const int error = flushFolder(target_.parent_path()))
        wrong_ = Refusal{quoted(target_) + " was written, but its disk does not confirm that it " +
                         "would survive a power cut (" + std::generic_category().message(error) +
                         "). Save it on another disk too."};
    return wrong_;
}

void ReplacingFile::note(int error) {
    if (error != 0 && !wrong_)
        wrong_ = unwritten(target_, error);
}

Failure replaceFile(const fs::path& target, std::string_view text, Survives survives) {
    ReplacingFile file(target, survives);
    file.write(text);
    return file.commit();
}

}  // namespace trabeon
