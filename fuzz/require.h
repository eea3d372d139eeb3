// What a fuzz target holds to be true of every input.
#pragma once

#include <cstdio>
#include <cstdlib>

namespace trabeon::fuzz {

/// Stops the run, so that the input at hand is kept.
inline void require(bool holds, const char* what) {
    if (holds)
        return;
    std::fprintf(stderr, "Broken: %s\n", what);
    std::abort();
}

}  // namespace trabeon::fuzz
