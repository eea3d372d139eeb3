// Runs two commands in turn (A B A B ...), each from start to end, and compares them.
#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <vector>

namespace {

using Command = std::vector<char*>;

struct Measure {
    double milliseconds = 0;
    double processor = 0;  // milliseconds of processor time, user and system
    long peakKiB = 0;
};

double milliseconds(const timeval& time) {
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
}

/// Ends the program if the command fails, because its time would be meaningless.
Measure runOnce(const Command& command) {
    const auto start = std::chrono::steady_clock::now();
    pid_t child = 0;
    int status = 0;
    rusage usage{};
    if (posix_spawn(&child, command[0], nullptr, nullptr, command.data(), environ) != 0 ||
        wait4(child, &status, 0, &usage) != child || status != 0) {
        std::fprintf(stderr, "%s failed\n", command[0]);
        std::exit(1);
    }
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    return {time.count(), milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime),
            usage.ru_maxrss};
}

double quantile(std::vector<double> values, double part) {
    std::sort(values.begin(), values.end());
    return values[static_cast<std::size_t>(
        std::lround(part * static_cast<double>(values.size() - 1)))];
}

void compare(int pairs, const Command& a, const Command& b, const Command* before) {
    std::vector<double> timesA, timesB, ratios, processorRatios;
    long peakA = 0;
    long peakB = 0;
    for (int i = 0; i <= pairs; ++i) {
        if (before != nullptr)
            runOnce(*before);
        const auto ofA = runOnce(a);
        const auto ofB = runOnce(b);
        if (i == 0)
            continue;  // the first pair only fills the caches
        timesA.push_back(ofA.milliseconds);
        timesB.push_back(ofB.milliseconds);
        ratios.push_back(ofA.milliseconds / ofB.milliseconds);
        processorRatios.push_back(ofA.processor / ofB.processor);
        peakA = std::max(peakA, ofA.peakKiB);
        peakB = std::max(peakB, ofB.peakKiB);
    }
    std::printf("%.2f %.2f %.2f %.2f %.2f %.2f %.1f %.1f\n", quantile(timesA, 0.5),
                quantile(timesB, 0.5), quantile(ratios, 0.5), quantile(ratios, 0.25),
                quantile(ratios, 0.75), quantile(processorRatios, 0.5),
                static_cast<double>(peakA) / 1024, static_cast<double>(peakB) / 1024);
}

}  // namespace

/// Arguments: two commands, A and B. An optional third command runs before each A and is not
/// measured. Prints one line: the median milliseconds of A and of B; the median, lower and upper
/// quartile of the ratio A : B of each pair; the median ratio of processor time; the peak memory of
/// A and of B in MiB.
int main(int argc, char** argv) {
    const int pairs = argc > 1 ? std::atoi(argv[1]) : 0;
    std::vector<Command> commands;
    for (int i = 2; i < argc; ++i) {
        if (std::string_view(argv[i]) == "--")
            commands.emplace_back();
        else if (!commands.empty())
            commands.back().push_back(argv[i]);
    }
    const auto isEmpty = [](const Command& command) { return command.empty(); };
    if (pairs < 1 || commands.size() < 2 || commands.size() > 3 ||
        std::any_of(commands.begin(), commands.end(), isEmpty)) {
        std::fputs("Usage: bench-pairs COUNT -- A... -- B... [-- BEFORE_A...]\n", stderr);
        return 2;
    }
    for (auto& command : commands)
        command.push_back(nullptr);
    compare(pairs, commands[0], commands[1], commands.size() == 3 ? &commands[2] : nullptr);
}
