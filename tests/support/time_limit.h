// How long something may take in a test.
#pragma once

namespace trabeon::test {

/// The limit in milliseconds, wider where sanitizers slow everything down.
constexpr double limit(double milliseconds) {
#ifdef __SANITIZE_ADDRESS__
    return 5 * milliseconds;
#else
    return milliseconds;
#endif
}

}  // namespace trabeon::test
