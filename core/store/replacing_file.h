// A file that takes the place of an old one whole, or not at all.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "core/outcome.h"
#include "core/store/temporary_file.h"

namespace trabeon {

/// Whether a file that was written survives a power cut (it is slow: the program waits for the
/// disk), or only the end of the process.
enum class Survives { processEnd, powerCut };

/// New content goes to a temporary file beside the target, and commit() renames it over the target.
/// Until then, and if anything fails or the process dies, the old file stays as it was. A link
/// stays, and the file that it points to is replaced.
///
/// Refused are a target that is no regular file (a folder, a device, a pipe), a link that points to
/// nothing, and a file that is write-protected, for root as well.
class ReplacingFile {
  public:
    explicit ReplacingFile(const std::filesystem::path& target,
                           Survives survives = Survives::processEnd);
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

    /// Everything that was written is in the temporary file; a full disk shows here at the latest.
    [[nodiscard]] Failure finish();

    /// Takes the old file's place; finishes first if that is not done.
    [[nodiscard]] Failure commit();

    /// The temporary file, for a set of files that takes its place together.
    [[nodiscard]] TemporaryFile& temporary() { return fresh_; }

  private:
    static constexpr std::size_t capacity = 128 * 1024;

    void flush();
    void put(std::string_view text);
    /// Keeps the first failure.
    void note(int error);

    std::filesystem::path target_;
    TemporaryFile fresh_;
    Survives survives_;
    std::unique_ptr<char[]> buffer_;
    std::size_t used_ = 0;
    Failure wrong_;
    bool finished_ = false;
};

/// Replaces a file by this text in one go.
[[nodiscard]] Failure replaceFile(const std::filesystem::path& target, std::string_view text,
                                  Survives survives = Survives::processEnd);

}  // namespace trabeon
