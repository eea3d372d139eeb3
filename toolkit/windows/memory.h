// How a program ends when there is no more memory.
#pragma once

namespace trabeon {

/// Says on standard error that there is no memory left, and ends the program with 1. Needs no
/// memory and runs no destructors; the files are complete at every moment. Every program with an
/// Application ends like this when malloc fails. The toolkit and its libraries would continue
/// without the memory: they would leave a picture out, or wait for a thread that never started.
[[noreturn]] void EndWithoutMemory();

}  // namespace trabeon
