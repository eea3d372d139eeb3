#include "core/analysis/result_state.h"

#include <bit>

#include "core/store/folder_record.h"
#include "core/store/working_files.h"

namespace trabeon {
namespace {

bool isEmpty(const std::filesystem::path& file) {
    std::error_code missing;
    const auto size = std::filesystem::file_size(file, missing);
    return missing || size == 0;
}

ResultState compared(const std::optional<std::uint64_t>& recorded, std::uint64_t now) {
    if (!recorded)
        return ResultState::unrecorded;
    return *recorded == now ? ResultState::current : ResultState::outdated;
}

}  // namespace

std::uint64_t stationsFingerprint(std::uint64_t input, double Divisions) {
    return mixedFingerprint({input, std::bit_cast<std::uint64_t>(Divisions)});
}

ResultState tableState(const std::filesystem::path& folder) {
    if (isEmpty(folder / working_file::balanceTable))
        return ResultState::absent;
    return compared(readRecord(folder).table, inputFingerprint(folder));
}

ResultState stationsState(const std::filesystem::path& folder, double Divisions) {
    if (isEmpty(folder / working_file::stations))
        return ResultState::absent;
    return compared(readRecord(folder).stations,
                    stationsFingerprint(inputFingerprint(folder), Divisions));
}

}  // namespace trabeon
