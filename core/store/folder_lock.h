// A lock, so that two programs do not use one working folder at a time.
#pragma once

#include <chrono>
#include <filesystem>
#include <string>

#include "core/outcome.h"

namespace trabeon {

/// Who holds a folder, as far as the system knows.
struct FolderHolder {
    long process = 0;  // its number; 0 if it is not known
    std::string program;
    bool runsThisProgram = false;  // the same program file as this process
};

/// Holds a folder against other processes until it goes out of scope. The system keeps the lock
/// (flock on the folder itself) and releases it when the process ends, however it ends, so nothing
/// that a dead process leaves can lock anybody out.
class FolderLock {
  public:
    FolderLock() = default;
    ~FolderLock();
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;

    /// Takes the lock if this object does not have it yet, and waits for it up to `patience`. The
    /// refusal says who holds the folder, or why it cannot be locked.
    [[nodiscard]] Status take(const std::filesystem::path& folder,
                              std::chrono::milliseconds patience);

    /// Who held the folder when take() gave up.
    [[nodiscard]] const FolderHolder& holder() const { return holder_; }

  private:
    int descriptor_ = -1;
    FolderHolder holder_;
};

}  // namespace trabeon
