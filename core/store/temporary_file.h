// The file that new content is written to before it takes the place of an old file.
#pragma once

#include <csignal>
#include <filesystem>
#include <optional>
#include <string_view>

namespace trabeon {

/// While it lives, a signal that ends the process removes this file, or this folder once it is
/// empty (see prepareSignals).
class RemovedAtSignal {
  public:
    RemovedAtSignal() = default;
    explicit RemovedAtSignal(const std::filesystem::path& path);
    ~RemovedAtSignal();
    RemovedAtSignal(const RemovedAtSignal&) = delete;
    RemovedAtSignal& operator=(RemovedAtSignal&& other) noexcept;

  private:
    const char* name_ = nullptr;
};

/// A new file in the folder of its target, named "TARGET.<16 hexadecimal digits>.new". Nobody can
/// guess the name, and it is never opened through a link, so a save writes into no other file. The
/// file has the permissions, and where possible the owner and group, of the target from its first
/// byte on.
///
/// Unless it took the target's place, the file is removed when the object goes, and when a signal
/// ends the process (see prepareSignals).
class TemporaryFile {
  public:
    TemporaryFile() = default;
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    // Each of these returns 0, or the errno of what failed.

    /// Creates and opens the file. The target must not be a link; it may be absent.
    [[nodiscard]] int create(const std::filesystem::path& target);
    [[nodiscard]] int write(std::string_view text) const;
    /// Waits until the content is on the disk and would survive a power cut.
    [[nodiscard]] int flushToDisk() const;
    [[nodiscard]] int close();
    /// Renames the file over its target.
    [[nodiscard]] int takePlace();

    /// From here on a signal leaves the file where it is: the next start finishes the set that it
    /// belongs to.
    void keepOnSignal();

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

  private:
    [[nodiscard]] int open(const std::filesystem::path& target);

    std::filesystem::path target_, path_;
    int descriptor_ = -1;
    RemovedAtSignal atSignal_;
    bool exists_ = false;
};

/// The name of the target of a temporary file's name; nothing if the name has another form.
[[nodiscard]] std::optional<std::string_view> targetOfTemporary(std::string_view name);

/// Waits until a folder's entries are on the disk. Returns 0, or the errno of what failed.
[[nodiscard]] int flushFolder(const std::filesystem::path& folder);

/// For the start of each program. SIGTERM, SIGINT and SIGHUP remove the temporary files before they
/// end the process, and a file size limit (SIGXFSZ) fails the write instead of ending the process.
void prepareSignals();

/// While it lives, SIGTERM, SIGINT and SIGHUP wait.
class SignalsWait {
  public:
    SignalsWait();
    ~SignalsWait();
    SignalsWait(const SignalsWait&) = delete;
    SignalsWait& operator=(const SignalsWait&) = delete;

  private:
    sigset_t before_{};
};

}  // namespace trabeon
