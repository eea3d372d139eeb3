#include "core/store/replacing_file.h"

#include <cerrno>
#include <utility>

namespace trabeon {
namespace {

std::filesystem::path besides(std::filesystem::path target) {
    return target += ".new";
}

/// The file that a link points to, or the path itself.
std::filesystem::path resolved(std::filesystem::path target) {
    std::error_code error;
    if (!std::filesystem::is_symlink(target, error))
        return target;
    auto file = std::filesystem::canonical(target, error);
    return error ? target : file;
}

void keepPermissions(const std::filesystem::path& from, const std::filesystem::path& to) {
    std::error_code missing;
    const auto old = std::filesystem::status(from, missing);
    if (std::filesystem::is_regular_file(old))
        std::filesystem::permissions(to, old.permissions(), missing);
}

}  // namespace

ReplacingFile::ReplacingFile(std::filesystem::path target)
    : target_(resolved(std::move(target))),
      fresh_(besides(target_)),
      buffer_(std::make_unique_for_overwrite<char[]>(capacity)) {
    file_ = std::fopen(fresh_.string().c_str(), "wb");
    opened_ = file_ != nullptr;
    if (opened_)
        std::setvbuf(file_, nullptr, _IONBF, 0);
    else
        noteError();
}

ReplacingFile::~ReplacingFile() {
    if (committed_)
        return;
    if (file_ != nullptr)
        std::fclose(file_);
    std::error_code ignored;
    if (opened_)
        std::filesystem::remove(fresh_, ignored);
}

void ReplacingFile::write(std::string_view text) {
    if (text.empty())  // an empty view may have no characters to copy from
        return;
    if (text.size() > capacity - used_)
        flush();
    if (text.size() > capacity) {
        if (file_ != nullptr && std::fwrite(text.data(), 1, text.size(), file_) != text.size())
            noteError();
        return;
    }
    used_ += text.copy(buffer_.get() + used_, text.size());
}

void ReplacingFile::flush() {
    if (file_ != nullptr && used_ > 0 && std::fwrite(buffer_.get(), 1, used_, file_) != used_)
        noteError();
    used_ = 0;
}

Failure ReplacingFile::finish() {
    if (finished_)
        return std::nullopt;
    flush();
    std::error_code missing;
    if (error_ == 0 && std::filesystem::is_directory(target_, missing))
        error_ = EISDIR;  // a rename over it would fail, and too late for a set of files
    if (file_ != nullptr && std::fclose(std::exchange(file_, nullptr)) != 0)
        noteError();
    if (error_ != 0)
        return refusal();
    keepPermissions(target_, fresh_);
    finished_ = true;
    return std::nullopt;
}

Failure ReplacingFile::commit() {
    if (auto failure = finish())
        return failure;
    std::error_code error;
    std::filesystem::rename(fresh_, target_, error);
    if (error) {
        error_ = error.value();
        return refusal();
    }
    committed_ = true;
    return std::nullopt;
}

void ReplacingFile::noteError() {
    if (error_ == 0)
        error_ = errno != 0 ? errno : EIO;
}

Refusal ReplacingFile::refusal() const {
    return {"\"" + target_.string() + "\" could not be written (" +
            std::generic_category().message(error_) +
            "). What stood there before is unchanged; make room or choose another folder, then try "
            "again."};
}

void replaceByLeftBehind(const std::filesystem::path& target) {
    const auto file = resolved(target);
    std::error_code missing;
    std::filesystem::rename(besides(file), file, missing);
}

Failure replaceFile(const std::filesystem::path& target, std::string_view text) {
    ReplacingFile file(target);
    file.write(text);
    return file.commit();
}

}  // namespace trabeon
