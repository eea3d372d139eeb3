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

}  // namespace

std::uint64_t stationsFingerprint(std::uint64_t input, double Divisions) {
    return mixedFingerprint({input, std::bit_cast<std::uint64_t>(Divisions)});
}

ResultState resultState(const std::filesystem::path& file,
                        const std::optional<std::uint64_t>& recorded, std::uint64_t now) {
    if (isEmpty(file))
        return ResultState::absent;
    if (!recorded)
        return ResultState::unrecorded;
    return *recorded == now ? ResultState::current : ResultState::outdated;
}

ResultState tableState(const std::filesystem::path& folder) {
    return resultState(folder / working_file::balanceTable, readRecord(folder).table,
                       inputFingerprint(folder));
}

ResultState stationsState(const std::filesystem::path& folder, double Divisions) {
    return resultState(folder / working_file::stations, readRecord(folder).stations,
                       stationsFingerprint(inputFingerprint(folder), Divisions));
}

std::string_view remarkOn(ResultState state, std::string_view outdated) {
    switch (state) {
        case ResultState::absent:
            return noResults;
        case ResultState::unrecorded:
        case ResultState::outdated:
            return outdated;
        case ResultState::current:
            break;
    }
    return "";
}

}  // namespace trabeon
