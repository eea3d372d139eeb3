// A file that replaces an old one completely, or not at all.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "core/outcome.h"
#include "core/store/temporary_file.h"

namespace trabeon {

/// What a written file survives: only the end of the process, or a power cut too. The latter is
/// slow, because the program waits for the disk.
enum class Survives { processEnd, powerCut };

/// New content goes to a temporary file in the folder of the target, and commit() renames it over
/// the target. Until then, and if anything fails or the process dies, the old file does not change.
/// If the target is a link, the file that it points to is replaced.
///
/// Refuses a target that is not a regular file (a folder, a device, a pipe), a link that points to
/// nothing, and a write-protected file, also for root.
class ReplacingFile {
  public:
    explicit ReplacingFile(const std::filesystem::path& target,
                           Survives survives = Survives::processEnd);
    ReplacingFile(const ReplacingFile&) = delete;
    ReplacingFile& operator=(const ReplacingFile&) = delete;

    void write(std::string_view text);

    /// Room for `size` characters, at most 4096, in the buffer. The caller writes them there and
    /// passes their end to advance().
    char* room(std::size_t size) {
        if (capacity - used_ < size)
            flush();
        return buffer_.get() + used_;
    }
    void advance(const char* end) { used_ = static_cast<std::size_t>(end - buffer_.get()); }

    /// Writes the rest of the buffer to the temporary file. A full disk is noticed here at the
    /// latest.
    [[nodiscard]] Status finish();

    /// Replaces the old file. Calls finish() first if that was not done.
    [[nodiscard]] Status commit();

    /// The temporary file, for a set of files that are replaced together.
    [[nodiscard]] TemporaryFile& temporary() { return fresh_; }

  private:
    static constexpr std::size_t capacity = 128 * 1024;

    void flush();
    void put(std::string_view text);
    /// Keeps the first error.
    void note(int error);

    std::filesystem::path target_;
    TemporaryFile fresh_;
    Survives survives_;
    std::unique_ptr<char[]> buffer_;
    std::size_t used_ = 0;
    Status status_;
    bool finished_ = false;
};

/// Replaces the content of a file by this text.
[[nodiscard]] Status replaceFile(const std::filesystem::path& target, std::string_view text,
                                 Survives survives = Survives::processEnd);

}  // namespace trabeon
