// Loaded in front of a program, stops it at a chosen step of its work on the files of one folder.
// A step is a call that opens, writes, closes, renames or removes a file there; the middle of a
// write is a step of its own. The environment says what happens:
//
//   FAULT_FOLDER  the folder's path, as the program has it
//   FAULT_KIND    kill, term: the process gets SIGKILL or SIGTERM at step FAULT_AT
//                 full: from step FAULT_AT on the disk takes no new file and no more characters
//                 record: each file that takes its place is copied to FAULT_RECORD/NUMBER-NAME, the
//                 number of steps is in FAULT_RECORD.steps at the end, and each step's name and
//                 file in a line of FAULT_RECORD.calls
#include <dlfcn.h>
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <string_view>

namespace {

namespace fs = std::filesystem;

std::string setting(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
}

struct Plan {
    std::string folder = setting("FAULT_FOLDER") + '/';
    std::string kind = setting("FAULT_KIND");
    std::string record = setting("FAULT_RECORD");
    int at = std::atoi(setting("FAULT_AT").c_str());
    int step = 0;
    int recorded = 0;
    std::map<int, std::string> written;  // descriptors that are open for writing in the folder
    std::string calls;

    ~Plan() {
        if (kind != "record")
            return;
        std::ofstream(record + ".steps") << step;
        std::ofstream(record + ".calls") << calls;
    }
};

Plan& plan() {
    static Plan plan;
    return plan;
}

bool within(const char* path) {
    return path != nullptr && std::string_view(path).starts_with(plan().folder);
}

/// True: the call must fail for want of room.
bool step(const char* call, const std::string& file) {
    auto& the = plan();
    ++the.step;
    if (the.kind == "record")
        the.calls += std::string(call) + ' ' + fs::path(file).filename().string() + '\n';
    if ((the.kind == "kill" || the.kind == "term") && the.step == the.at)
        std::raise(the.kind == "kill" ? SIGKILL : SIGTERM);
    return the.kind == "full" && the.step >= the.at;
}

void record(const fs::path& file) {
    auto& the = plan();
    if (the.kind == "record")
        fs::copy_file(file, the.record + '/' + std::to_string(++the.recorded) + '-' +
                                file.filename().string());
}

template <class Function>
Function* next(Function*, const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}
#define NEXT(function) next(&(function), #function)

int opened(decltype(&::open) open, const char* path, int flags, mode_t mode) {
    const bool creates = within(path) && (flags & O_CREAT) != 0;
    if (creates && step("create", path)) {
        errno = ENOSPC;
        return -1;
    }
    const int file = open(path, flags, mode);
    if (creates && file >= 0)
        plan().written[file] = path;
    return file;
}

mode_t modeOf(int flags, std::va_list& arguments) {
    return (flags & O_CREAT) == 0 ? 0 : va_arg(arguments, mode_t);
}

}  // namespace

extern "C" {

int open(const char* path, int flags, ...) {
    std::va_list arguments;
    va_start(arguments, flags);
    const auto mode = modeOf(flags, arguments);
    va_end(arguments);
    return opened(NEXT(open), path, flags, mode);
}

int open64(const char* path, int flags, ...) {
    std::va_list arguments;
    va_start(arguments, flags);
    const auto mode = modeOf(flags, arguments);
    va_end(arguments);
    return opened(NEXT(open64), path, flags, mode);
}

ssize_t write(int file, const void* text, std::size_t size) {
    const auto found = plan().written.find(file);
    if (found == plan().written.end() || size == 0)
        return NEXT(write)(file, text, size);
    if (step("write", found->second)) {
        errno = ENOSPC;
        return -1;
    }
    const auto half = NEXT(write)(file, text, size / 2);
    if (half < 0 || step("write", found->second))
        return half;
    const auto rest = NEXT(write)(file, static_cast<const char*>(text) + half,
                                  size - static_cast<std::size_t>(half));
    return rest < 0 ? half : half + rest;
}

int fsync(int file) {
    const auto path = fs::read_symlink("/proc/self/fd/" + std::to_string(file)).string() + '/';
    if (within(path.c_str()) && step("flush", path.substr(0, path.size() - 1))) {
        errno = ENOSPC;
        return -1;
    }
    return NEXT(fsync)(file);
}

int close(int file) {
    const auto found = plan().written.find(file);
    if (found != plan().written.end()) {
        step("close", found->second);
        plan().written.erase(file);
    }
    return NEXT(close)(file);
}

int rename(const char* from, const char* to) noexcept {
    if (!within(to))
        return NEXT(rename)(from, to);
    step("rename", to);
    const int done = NEXT(rename)(from, to);
    if (done == 0)
        record(to);
    return done;
}

int remove(const char* path) noexcept {
    if (within(path))
        step("remove", path);
    return NEXT(remove)(path);
}

int unlink(const char* path) noexcept {
    if (within(path))
        step("remove", path);
    return NEXT(unlink)(path);
}

}  // extern "C"
