// Loaded in front of a program, stops it at a chosen step of its work on the files of one folder.
// A step is a call that opens, writes, closes, renames or removes a file there; the middle of a
// write is a step of its own. What happens is told by the environment:
//
//   FAULT_FOLDER  the folder's path, as the program has it
//   FAULT_KIND    kill: the process is killed at step FAULT_AT
//                 full: from step FAULT_AT on the disk takes no new file and no more characters
//                 record: each file that takes its place is copied to FAULT_RECORD/NUMBER-NAME,
//                 and the number of steps stands in FAULT_RECORD.steps at the end
#include <dlfcn.h>
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>
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
    std::set<std::FILE*> written;  // open for writing in the folder

    ~Plan() {
        if (kind == "record")
            std::ofstream(record + ".steps") << step;
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
bool step() {
    auto& the = plan();
    ++the.step;
    if (the.kind == "kill" && the.step == the.at)
        std::raise(SIGKILL);
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
#define NEXT(function) next(&function, #function)

std::FILE* opened(decltype(&std::fopen) open, const char* path, const char* mode) {
    const bool writes = within(path) && mode[0] != 'r';
    if (writes && step()) {
        errno = ENOSPC;
        return nullptr;
    }
    std::FILE* file = open(path, mode);
    if (writes && file != nullptr)
        plan().written.insert(file);
    return file;
}

}  // namespace

extern "C" {

std::FILE* fopen(const char* path, const char* mode) {
    return opened(NEXT(fopen), path, mode);
}

std::FILE* fopen64(const char* path, const char* mode) {
    return opened(NEXT(fopen64), path, mode);
}

std::size_t fwrite(const void* text, std::size_t size, std::size_t count, std::FILE* file) {
    if (!plan().written.contains(file))
        return NEXT(fwrite)(text, size, count, file);
    const bool noRoom = step();
    const auto half = NEXT(fwrite)(text, size, count / 2, file);
    if (noRoom || step()) {
        errno = ENOSPC;
        return half;
    }
    const auto* rest = static_cast<const char*>(text) + half * size;
    return half + NEXT(fwrite)(rest, size, count - half, file);
}

int fclose(std::FILE* file) {
    if (plan().written.erase(file) > 0)
        step();
    return NEXT(fclose)(file);
}

int rename(const char* from, const char* to) noexcept {
    if (!within(to))
        return NEXT(rename)(from, to);
    step();
    const int done = NEXT(rename)(from, to);
    if (done == 0)
        record(to);
    return done;
}

int remove(const char* path) noexcept {
    if (within(path))
        step();
    return NEXT(remove)(path);
}

int unlink(const char* path) noexcept {
    if (within(path))
        step();
    return NEXT(unlink)(path);
}

}  // extern "C"
