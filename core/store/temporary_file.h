// A temporary file for new content, which then replaces an old file.
#pragma once

#include <csignal>
#include <filesystem>
#include <optional>
#include <string_view>

namespace trabeon {

/// As long as this object exists, a signal that ends the process removes the file, or the folder if
/// it is empty (see prepareSignals).
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

/// A new file in the folder of its target, named "TARGET.<16 hexadecimal digits>.new". The name
/// cannot be guessed, and the file is never opened through a link, so a save cannot write into
/// another file. From the start it has the permissions of the target, and where possible its owner
/// and group.
///
/// The file is removed with the object, and when a signal ends the process (see prepareSignals),
/// unless it has replaced its target.
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

    /// From now on a signal does not remove the file. The next start finishes the set that it
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

/// Each program calls this at its start. SIGTERM, SIGINT and SIGHUP then remove the temporary files
/// before they end the process. A file size limit (SIGXFSZ) makes the write fail instead of ending
/// the process.
void prepareSignals();

/// As long as this object exists, SIGTERM, SIGINT and SIGHUP wait.
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
