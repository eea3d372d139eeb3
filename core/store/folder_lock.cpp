#include "core/store/folder_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <sstream>
#include <system_error>
#include <thread>

#include "core/store/working_files.h"

namespace trabeon {
namespace {

namespace fs = std::filesystem;

/// The process that "/proc/locks" lists for a file: "1: FLOCK ADVISORY WRITE 1234 08:02:5678 0
/// EOF".
long processThatLocks(const struct stat& file) {
    std::array<char, 64> wanted{};
    std::snprintf(wanted.data(), wanted.size(), "%02x:%02x:%lu", gnu_dev_major(file.st_dev),
                  gnu_dev_minor(file.st_dev), file.st_ino);
    long elsewhere = 0;  // some file systems show another device than their files do
    std::istringstream lines(readWhole("/proc/locks"));
    std::string line;
    while (std::getline(lines, line)) {
        std::istringstream words(line);
        std::string number, kind, mode, access, place;
        long process = 0;
        words >> number >> kind >> mode >> access >> process >> place;
        const auto inode = place.substr(place.find_last_of(':') + 1);
        if (kind != "FLOCK" || process <= 0)
            continue;
        if (place == wanted.data())
            return process;
        if (inode == std::to_string(file.st_ino))
            elsewhere = process;
    }
    return elsewhere;
}

FolderHolder holderOf(int descriptor) {
    struct stat status {};
    if (::fstat(descriptor, &status) != 0)
        return {};
    FolderHolder holder;
    // The list is read in pieces: a lock that comes or goes meanwhile can hide another one.
    for (int attempt = 0; attempt < 10 && holder.process == 0; ++attempt)
        holder.process = processThatLocks(status);
    const auto home = fs::path("/proc") / std::to_string(holder.process);
    holder.program = readWhole(home / "comm");
    holder.program.resize(std::min(holder.program.find('\n'), holder.program.size()));
    std::error_code unknown;
    holder.runsThisProgram = fs::equivalent(home / "exe", "/proc/self/exe", unknown) && !unknown;
    return holder;
}

Refusal heldBy(const fs::path& folder, const FolderHolder& holder) {
    const auto who = holder.program.empty()
                         ? "another program"
                         : holder.program + " (process " + std::to_string(holder.process) + ")";
    return {"The folder \"" + folder.string() + "\" is in use by " + who +
            ". Wait until it has finished or close it, then try again; nothing was changed."};
}

/// Returns 0 if it has the lock, or the errno of what failed. EWOULDBLOCK: another process has it.
int lockWithin(int descriptor, std::chrono::milliseconds patience) {
    const auto end = std::chrono::steady_clock::now() + patience;
    for (;;) {
        if (::flock(descriptor, LOCK_EX | LOCK_NB) == 0)
            return 0;
        if (errno != EWOULDBLOCK && errno != EINTR)
            return errno;
        if (std::chrono::steady_clock::now() >= end)
            return EWOULDBLOCK;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
}

/// Network file systems cannot lock a folder, only a file that is open for writing.
int fileToLock(int folder) {
    return ::openat(folder, "Trabeon.lock", O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC,
                    0666);
}

}  // namespace

FolderLock::~FolderLock() {
    if (descriptor_ >= 0)
        ::close(descriptor_);
}

Status FolderLock::take(const fs::path& folder, std::chrono::milliseconds patience) {
    if (descriptor_ >= 0)
        return {};
    int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    int error = descriptor < 0 ? errno : lockWithin(descriptor, patience);
    if (error == EBADF) {
        const int file = fileToLock(descriptor);
        ::close(descriptor);
        descriptor = file;
        error = descriptor < 0 ? errno : lockWithin(descriptor, patience);
    }
    if (error == 0) {
        descriptor_ = descriptor;
        return {};
    }
    const bool held = error == EWOULDBLOCK;
    if (held)
        holder_ = holderOf(descriptor);
    if (descriptor >= 0)
        ::close(descriptor);
    if (held)
        return heldBy(folder, holder_);
    return Refusal{"The folder \"" + folder.string() + "\" cannot be locked (" +
                   std::generic_category().message(error) + "). Use a folder on another disk."};
}

}  // namespace trabeon
