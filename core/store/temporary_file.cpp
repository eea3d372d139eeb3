#include "core/store/temporary_file.h"

#include <fcntl.h>
#include <sys/random.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <utility>

namespace trabeon {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view ending = ".new";
constexpr std::size_t digits = 16;
constexpr std::size_t longestName = 255;  // of a directory entry, in bytes

/// Names that a signal handler removes. A handler may neither lock nor allocate, so they are C
/// strings in atomic places.
constinit std::array<std::atomic<const char*>, 64> namesAtSignal{};

pthread_t mainThread;

/// The threads of the toolkit leave the signal to the main thread, which may be in a SignalsWait.
void removeAndEnd(int signal) {
    if (::pthread_equal(::pthread_self(), mainThread) == 0) {
        ::pthread_kill(mainThread, signal);
        return;
    }
    for (const auto remove : {&::unlink, &::rmdir})  // a folder goes once it is empty
        for (const auto& place : namesAtSignal)
            if (const char* name = place.load())
                remove(name);
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

constexpr std::array endingSignals{SIGTERM, SIGINT, SIGHUP};

std::string randomDigits() {
    std::uint64_t number = 0;
    if (::getrandom(&number, sizeof number, 0) != sizeof number)
        number = static_cast<std::uint64_t>(::getpid());  // the file is still opened exclusively
    std::string text(digits, '0');
    for (auto& digit : text) {
        digit = "0123456789abcdef"[number % 16];
        number /= 16;
    }
    return text;
}

/// The path of the temporary file. A name that is too long with its ending loses its last
/// characters.
fs::path temporaryPath(const fs::path& target) {
    auto name = target.filename().string();
    name.resize(std::min(name.size(), longestName - 1 - digits - ending.size()));
    return target.parent_path() / (name + '.' + randomDigits() + std::string(ending));
}

int errorOf(int result) {
    return result == 0 ? 0 : errno;
}

/// Gives the new file the owner, group and permissions of the target. If the group cannot be kept,
/// the new group gets no more rights than everybody has.
int takeOver(int descriptor, const struct stat& target) {
    struct stat made {};
    if (::fstat(descriptor, &made) != 0)
        return errno;
    auto mode = target.st_mode & 0777;
    const bool sameOwner = made.st_uid == target.st_uid && made.st_gid == target.st_gid;
    if (!sameOwner && ::fchown(descriptor, target.st_uid, target.st_gid) != 0 &&
        made.st_gid != target.st_gid &&
        ::fchown(descriptor, static_cast<uid_t>(-1), target.st_gid) != 0)
        mode &= 0707U | ((mode & 07U) << 3U);
    return errorOf(::fchmod(descriptor, mode));
}

}  // namespace

RemovedAtSignal::RemovedAtSignal(const fs::path& path) : name_(::strdup(path.c_str())) {
    for (auto& place : namesAtSignal) {
        const char* none = nullptr;
        if (name_ == nullptr || place.compare_exchange_strong(none, name_))
            return;
    }
}

RemovedAtSignal::~RemovedAtSignal() {
    for (auto& place : namesAtSignal) {
        const char* name = name_;
        if (name != nullptr && place.compare_exchange_strong(name, nullptr))
            break;
    }
    std::free(const_cast<char*>(name_));
}

RemovedAtSignal& RemovedAtSignal::operator=(RemovedAtSignal&& other) noexcept {
    std::swap(name_, other.name_);
    return *this;
}

TemporaryFile::~TemporaryFile() {
    static_cast<void>(close());
    if (exists_)
        ::unlink(path_.c_str());
}

int TemporaryFile::create(const fs::path& target) {
    target_ = target;
    int error = EEXIST;
    for (int attempt = 0; attempt < 100 && error == EEXIST; ++attempt)
        error = open(target);
    return error;
}

int TemporaryFile::open(const fs::path& target) {
    struct stat old {};
    const bool replaces = ::lstat(target.c_str(), &old) == 0;
    path_ = temporaryPath(target);
    atSignal_ = RemovedAtSignal(path_);
    descriptor_ = ::open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC,
                         replaces ? 0600 : 0666);
    if (descriptor_ < 0) {
        const int error = errno;
        atSignal_ = {};  // a file of that name is not ours
        return error;
    }
    exists_ = true;
    return replaces ? takeOver(descriptor_, old) : 0;
}

int TemporaryFile::write(std::string_view text) const {
    while (!text.empty()) {
        const auto written = ::write(descriptor_, text.data(), text.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            return errno;
        text.remove_prefix(static_cast<std::size_t>(written));
    }
    return 0;
}

int TemporaryFile::flushToDisk() const {
    return errorOf(::fsync(descriptor_));
}

int TemporaryFile::close() {
    const int descriptor = std::exchange(descriptor_, -1);
    return descriptor < 0 ? 0 : errorOf(::close(descriptor));
}

int TemporaryFile::takePlace() {
    if (::rename(path_.c_str(), target_.c_str()) != 0)
        return errno;
    exists_ = false;
    keepOnSignal();
    return 0;
}

void TemporaryFile::keepOnSignal() {
    atSignal_ = {};
}

std::optional<std::string_view> targetOfTemporary(std::string_view name) {
    constexpr auto added = 1 + digits + ending.size();
    if (name.size() <= added || !name.ends_with(ending))
        return std::nullopt;
    const auto target = name.substr(0, name.size() - added);
    const auto token = name.substr(target.size() + 1, digits);
    if (name[target.size()] != '.' || token.find_first_not_of("0123456789abcdef") != token.npos)
        return std::nullopt;
    return target;
}

int flushFolder(const fs::path& folder) {
    const auto path = folder.empty() ? fs::path(".") : folder;
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return errno;
    int error = errorOf(::fsync(descriptor));
    if (error == EINVAL || error == ENOTSUP)  // a file system that has nothing to flush
        error = 0;
    ::close(descriptor);
    return error;
}

void prepareSignals() {
    mainThread = ::pthread_self();
    std::signal(SIGXFSZ, SIG_IGN);
    for (const int signal : endingSignals)
        if (std::signal(signal, &removeAndEnd) == SIG_IGN)  // as under nohup
            std::signal(signal, SIG_IGN);
}

SignalsWait::SignalsWait() {
    sigset_t waiting;
    ::sigemptyset(&waiting);
    for (const int signal : endingSignals)
        ::sigaddset(&waiting, signal);
    ::pthread_sigmask(SIG_BLOCK, &waiting, &before_);
}

SignalsWait::~SignalsWait() {
    ::pthread_sigmask(SIG_SETMASK, &before_, nullptr);
}

}  // namespace trabeon
