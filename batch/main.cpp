// trabeon-batch: the analysis and the design for scripts and for machines without a display.
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <new>

#include "batch/commands.h"
#include "batch/messages.h"
#include "core/store/temporary_file.h"

namespace {

using namespace trabeon;

constexpr auto outOfMemory =
    "There is not enough memory to go on. Close other programs or allow this one more memory, then "
    "start it again.\n";

/// Called if there is not even enough memory for an exception.
[[noreturn]] void endWithoutException() {
    if (std::current_exception())
        std::abort();  // a fault of this program
    std::fputs(outOfMemory, stderr);
    std::_Exit(static_cast<int>(Exit::refused));
}

Exit run(const std::vector<std::string>& words) {
    const auto line = readCommandLine(words, commands());
    if (line)
        return execute(*line);
    complain("trabeon-batch: " + line.refusal().sentence);
    return Exit::usage;
}

}  // namespace

int main(int count, char** words) {
    prepareSignals();
    std::set_terminate(endWithoutException);
    auto end = Exit::refused;
    try {
        end = run({words + 1, words + count});
    } catch (const std::bad_alloc&) {
        std::fputs(outOfMemory, stderr);
    } catch (const std::exception& error) {
        complain(std::string("The command failed (") + error.what() + ").");
    }
    if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
        complain("The output could not be written.");
        end = Exit::refused;
    }
    return static_cast<int>(end);
}
