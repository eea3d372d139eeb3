// A file that takes the place of an old one whole, or not at all.
#pragma once

#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "core/outcome.h"

namespace trabeon {

/// New content is written to "NAME.new" beside the target and renamed over it by commit(); the new
/// file keeps the old one's permissions, and a link keeps pointing to the file that is replaced.
/// Until then, and if anything fails or the process dies, the old file stands as it was. One that
/// is destroyed before its commit removes what it wrote.
class ReplacingFile {
  public:
    explicit ReplacingFile(std::filesystem::path target);
    ~ReplacingFile();
    ReplacingFile(const ReplacingFile&) = delete;
    ReplacingFile& operator=(const ReplacingFile&) = delete;

    void write(std::string_view text);

    /// Room for `size` characters (at most 4096) to be written in place; advance() tells their end.
    char* room(std::size_t size) {
        if (capacity - used_ < size)
            flush();
        return buffer_.get() + used_;
    }
    void advance(const char* end) { used_ = static_cast<std::size_t>(end - buffer_.get()); }

    /// All that was written is with the file system; a full disk shows here at the latest.
    [[nodiscard]] Failure finish();

    /// Takes the old file's place; finishes first if that is not done.
    [[nodiscard]] Failure commit();

  private:
    static constexpr std::size_t capacity = 128 * 1024;

    void flush();
    void noteError();
    [[nodiscard]] Refusal refusal() const;

    std::filesystem::path target_;
    std::filesystem::path fresh_;
    std::FILE* file_ = nullptr;
    std::unique_ptr<char[]> buffer_;
    std::size_t used_ = 0;
    int error_ = 0;  // errno of the first failure
    bool opened_ = false;
    bool finished_ = false;
    bool committed_ = false;
};

/// What a killed process had written whole beside the target takes its place. Silent, also where
/// nothing was left.
void replaceByLeftBehind(const std::filesystem::path& target);

/// Replaces a file by this text in one go.
[[nodiscard]] Failure replaceFile(const std::filesystem::path& target, std::string_view text);

}  // namespace trabeon
