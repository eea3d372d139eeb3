// The check that fuzz targets use.
#pragma once

#include <cstdio>
#include <cstdlib>

namespace trabeon::fuzz {

/// Stops the run if `holds` is false, so that the fuzzer keeps the input.
inline void require(bool holds, const char* what) {
    if (holds)
        return;
    std::fprintf(stderr, "Broken: %s\n", what);
    std::abort();
}

}  // namespace trabeon::fuzz
