// trabeon-batch: the analysis and the design without a window, for scripts and machines with no
// display.
#include <cstdio>
#include <exception>

#include "batch/commands.h"
#include "core/store/temporary_file.h"

namespace {

using namespace trabeon;

Exit run(const std::vector<std::string>& words) {
    const auto line = readCommandLine(words, commands());
    if (line)
        return carryOut(*line);
    complain("trabeon-batch: " + line.refusal().sentence);
    return Exit::usage;
}

}  // namespace

int main(int count, char** words) {
    prepareSignals();
    auto end = Exit::refused;
    try {
        end = run({words + 1, words + count});
    } catch (const std::exception& error) {  // above all: not enough memory
        complain(std::string("The job is too large for this machine (") + error.what() + ").");
    }
    if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
        complain("The output could not be written.");
        end = Exit::refused;
    }
    return static_cast<int>(end);
}
