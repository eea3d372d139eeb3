// trabeon-batch: the analysis without a window, for scripts and machines with no display.
#include "batch/commands.h"

int main(int count, char** words) {
    using namespace trabeon;
    const auto line = readCommandLine({words + 1, words + count});
    if (line)
        return static_cast<int>(carryOut(*line));
    complain("trabeon-batch: " + line.refusal().sentence);
    return static_cast<int>(Exit::usage);
}
