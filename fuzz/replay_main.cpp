// Runs a fuzz target over every file of the given folders. This makes the corpus a test.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>

#include "core/store/working_files.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char** argv) {
    int count = 0;
    for (int i = 1; i < argc; ++i) {
        for (const auto& entry : std::filesystem::directory_iterator(argv[i])) {
            std::printf("%s\n", entry.path().filename().string().c_str());
            std::fflush(stdout);  // if the run stops, the last name is the cause
            const auto text = trabeon::readWhole(entry.path());
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(text.data()), text.size());
            ++count;
        }
    }
    std::printf("%d inputs\n", count);
    return count > 0 ? 0 : 1;
}
