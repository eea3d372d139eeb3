// A lock, so that two programs do not use one working folder at a time.
#pragma once

#include <chrono>
#include <filesystem>
#include <string>

#include "core/outcome.h"

namespace trabeon {

/// The process that holds a folder, as far as the system knows it.
struct FolderHolder {
    long process = 0;  // its number; 0 if it is not known
    std::string program;
    bool runsThisProgram = false;  // the same program file as this process
};

/// Locks a folder against other processes until it goes out of scope. The lock is flock on the
/// folder itself. The system releases it when the process ends, also after a crash, so a lock never
/// remains.
class FolderLock {
  public:
    FolderLock() = default;
    ~FolderLock();
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;

    /// Takes the lock if this object does not have it yet, and waits for it up to `patience`. The
    /// refusal says who holds the folder, or why it cannot be locked.
    [[nodiscard]] Failure take(const std::filesystem::path& folder,
                               std::chrono::milliseconds patience);

    /// Who held the folder when take() gave up.
    [[nodiscard]] const FolderHolder& holder() const { return holder_; }

  private:
    int descriptor_ = -1;
    FolderHolder holder_;
};

}  // namespace trabeon
