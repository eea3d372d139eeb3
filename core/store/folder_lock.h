// The lock that keeps two programs out of one working folder.
#pragma once

#include <chrono>
#include <filesystem>
#include <string>

#include "core/outcome.h"

namespace trabeon {

/// Who holds a folder, as far as the system knows.
struct FolderHolder {
    long process = 0;  // its number; 0: not known
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

    /// Takes the lock if it is not held yet, and waits for it as long as `patience`. Refuses with a
    /// sentence that says who holds the folder, or why it cannot be locked.
    [[nodiscard]] Failure take(const std::filesystem::path& folder,
                               std::chrono::milliseconds patience);

    /// Who held the folder when take() gave up.
    [[nodiscard]] const FolderHolder& holder() const { return holder_; }

  private:
    int descriptor_ = -1;
    FolderHolder holder_;
};

}  // namespace trabeon
