// trabeon-batch started as a user starts it.
#pragma once

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <string>
#include <vector>

#include "tests/support/temporary_folder.h"

namespace trabeon::test {

/// Starts the program with its output in the folder's files "out" and "err".
inline pid_t start(const TemporaryFolder& folder, const std::vector<std::string>& words,
                   rlim_t fileLimit = RLIM_INFINITY) {
    const auto out = (folder / "out").string();
    const auto err = (folder / "err").string();
    std::vector<char*> arguments{const_cast<char*>(TRABEON_BATCH)};
    for (const auto& word : words)
        arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);
    std::fflush(nullptr);  // or the child would print it again
    const pid_t child = fork();
    if (child != 0)
        return child;
    if (std::freopen(out.c_str(), "w", stdout) == nullptr ||
        std::freopen(err.c_str(), "w", stderr) == nullptr)
        _exit(126);
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{fileLimit, RLIM_INFINITY};
    setrlimit(RLIMIT_FSIZE, &limit);
    execv(arguments[0], arguments.data());
    _exit(127);
}

struct Answer {
    int exit;
    std::string out, err;
};

inline Answer batch(const std::vector<std::string>& words, rlim_t fileLimit = RLIM_INFINITY) {
    const TemporaryFolder folder;
    int status = 0;
    waitpid(start(folder, words, fileLimit), &status, 0);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, folder.read("out"), folder.read("err")};
}

}  // namespace trabeon::test
