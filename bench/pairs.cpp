// Runs two commands in turn and compares them: A B A B ..., each from its start to its end.
#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <vector>

namespace {

struct Measure {
    double milliseconds = 0;
    long peakKiB = 0;
};

/// Ends the program if the command fails: a time of something that did not run is no figure.
Measure runOnce(const std::vector<char*>& command) {
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
    return {time.count(), usage.ru_maxrss};
}

double quantile(std::vector<double> values, double part) {
    std::sort(values.begin(), values.end());
    return values[static_cast<std::size_t>(part * static_cast<double>(values.size() - 1) + 0.5)];
}

void compare(int pairs, const std::vector<char*>& a, const std::vector<char*>& b) {
    runOnce(a);
    runOnce(b);
    std::vector<double> timesA, timesB, ratios;
    long peakA = 0;
    long peakB = 0;
    for (int i = 0; i < pairs; ++i) {
        const auto ofA = runOnce(a);
        const auto ofB = runOnce(b);
        timesA.push_back(ofA.milliseconds);
        timesB.push_back(ofB.milliseconds);
        ratios.push_back(ofA.milliseconds / ofB.milliseconds);
        peakA = std::max(peakA, ofA.peakKiB);
        peakB = std::max(peakB, ofB.peakKiB);
    }
    std::printf("%.2f %.2f %.3f %.3f %.3f %.1f %.1f\n", quantile(timesA, 0.5),
                quantile(timesB, 0.5), quantile(ratios, 0.5), quantile(ratios, 0.25),
                quantile(ratios, 0.75), static_cast<double>(peakA) / 1024,
                static_cast<double>(peakB) / 1024);
}

}  // namespace

/// Prints one line: the median milliseconds of A and of B, the median, lower and upper quartile of
/// the ratios A : B of the pairs, and the greatest memory of A and of B in MiB.
int main(int argc, char** argv) {
    const int pairs = argc > 1 ? std::atoi(argv[1]) : 0;
    std::vector<std::vector<char*>> commands;
    for (int i = 2; i < argc; ++i) {
        if (std::string_view(argv[i]) == "--")
            commands.emplace_back();
        else if (!commands.empty())
            commands.back().push_back(argv[i]);
    }
    const auto isEmpty = [](const std::vector<char*>& command) { return command.empty(); };
    if (pairs < 1 || commands.size() != 2 ||
        std::any_of(commands.begin(), commands.end(), isEmpty)) {
        std::fputs("Usage: bench-pairs COUNT -- PROGRAM ARGUMENTS... -- PROGRAM ARGUMENTS...\n",
                   stderr);
        return 2;
    }
    for (auto& command : commands)
        command.push_back(nullptr);
    compare(pairs, commands[0], commands[1]);
}
