#include "toolkit/windows/memory.h"

#include <unistd.h>

#include <cstddef>
#include <string_view>

namespace trabeon {

void EndWithoutMemory() {
    constexpr std::string_view sentence =
        "There is not enough memory to go on. Close other programs or allow this one more memory, "
        "then start it again.\n";
    [[maybe_unused]] const auto written = write(STDERR_FILENO, sentence.data(), sentence.size());
    _exit(1);
}

}  // namespace trabeon

#ifndef __SANITIZE_ADDRESS__  // it has its own malloc

namespace {

void* Granted(void* memory, std::size_t size) {
    if (memory == nullptr && size != 0)
        trabeon::EndWithoutMemory();
    return memory;
}

}  // namespace

// These replace the functions of the C library in the whole program. The names with __libc_ are
// other names of the same functions, which stay.
extern "C" {

// NOLINTBEGIN(bugprone-reserved-identifier)
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* memory, std::size_t size);
// NOLINTEND(bugprone-reserved-identifier)

void* malloc(std::size_t size) {
    return Granted(__libc_malloc(size), size);
}

void* calloc(std::size_t count, std::size_t size) {
    return Granted(__libc_calloc(count, size), count == 0 ? 0 : size);
}

void* realloc(void* memory, std::size_t size) {
    return Granted(__libc_realloc(memory, size), size);
}

}  // extern "C"

#endif
