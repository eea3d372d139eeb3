// The minimum cost of the text of an analysis. Formats as many cells as the balance table and the
// station file contain with std::to_chars and writes them in large blocks.
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "core/store/working_files.h"

namespace {

/// The number of cells of the balance table and of the station file.
struct CellCount {
    std::size_t table = 0, stations = 0;
};

bool isCell(std::string_view line) {
    return !line.empty() && (line.front() == '-' || (line.front() >= '0' && line.front() <= '9'));
}

/// In the table, five blanks end each cell. The label of a row is not a cell.
CellCount cellsOf(const std::filesystem::path& folder) {
    CellCount count;
    const auto table = trabeon::readWhole(folder / trabeon::working_file::balanceTable);
    for (std::size_t at = 0; (at = table.find("     ", at)) != table.npos; at += 5)
        ++count.table;
    for (std::size_t at = 0; at < table.size(); ++at) {
        --count.table;
        at = std::min(table.find('\n', at), table.size());
    }
    const auto stations = trabeon::readWhole(folder / trabeon::working_file::stations);
    for (std::size_t at = 0; at < stations.size();) {
        const auto end = std::min(stations.find('\n', at), stations.size());
        if (isCell(std::string_view(stations).substr(at, end - at)))
            count.stations += 3;
        at = end + 1;
    }
    return count;
}

/// Numbers like the moments of a relaxation: from thousandths to hundreds, both signs, all digits.
std::vector<double> representativeValues() {
    std::vector<double> values(4096);
    std::uint64_t state = 1;
    for (auto& value : values) {
        state = state * 6364136223846793005U + 1442695040888963407U;
        const double part = static_cast<double>(state >> 11) / 9007199254740992.0;
        value = std::pow(10, 6 * part - 3) * ((state & 1024) != 0 ? 1 : -1);
    }
    return values;
}

class BlockWriter {
  public:
    explicit BlockWriter(const char* name) : file_(std::fopen(name, "wb")), block_(size) {
        if (file_ != nullptr)
            std::setvbuf(file_, nullptr, _IONBF, 0);
    }
    BlockWriter(const BlockWriter&) = delete;
    BlockWriter& operator=(const BlockWriter&) = delete;
    ~BlockWriter() {
        if (file_ != nullptr)
            std::fclose(file_);
    }

    void writeCell(double value, std::string_view separator) {
        if (used_ + 64 > size)
            flush();
        char* at = block_.data() + used_;
        at = std::to_chars(at, at + 32, value, std::chars_format::scientific, 2).ptr;
        std::memcpy(at, separator.data(), separator.size());
        used_ = static_cast<std::size_t>(at - block_.data()) + separator.size();
    }
    template <class Number>
    void writeNumber(Number value, std::string_view separator) {
        if (used_ + 64 > size)
            flush();
        char* at = block_.data() + used_;
        at = std::to_chars(at, at + 32, value).ptr;
        std::memcpy(at, separator.data(), separator.size());
        used_ = static_cast<std::size_t>(at - block_.data()) + separator.size();
    }
    void writeText(std::string_view text, std::string_view separator) {
        if (used_ + 64 > size)
            flush();
        used_ += text.copy(block_.data() + used_, text.size());
        used_ += separator.copy(block_.data() + used_, separator.size());
    }
    bool finish() {
        flush();
        return good_;
    }

  private:
    static constexpr std::size_t size = 256 * 1024;

    void flush() {
        good_ = good_ && file_ != nullptr && std::fwrite(block_.data(), 1, used_, file_) == used_;
        used_ = 0;
    }

    std::FILE* file_;
    std::vector<char> block_;
    std::size_t used_ = 0;
    bool good_ = true;
};

/// Rows of comma separated values as an export has them: n in the pattern is a number with all its
/// digits, w a whole number, t a text. `more` numbers follow, for the cells that were read.
int writeRows(std::size_t rows, std::string_view pattern, std::size_t more, const char* name) {
    const auto values = representativeValues();
    BlockWriter file(name);
    std::size_t cell = 0;
    for (std::size_t row = 0; row < rows; ++row)
        for (std::size_t k = 0; k < pattern.size(); ++k) {
            const std::string_view separator = k + 1 < pattern.size() ? "," : "\r\n";
            if (pattern[k] == 'n')
                file.writeNumber(values[cell++ % values.size()], separator);
            else if (pattern[k] == 'w')
                file.writeNumber(row, separator);
            else
                file.writeText("right", separator);
        }
    for (; more > 0; --more)
        file.writeNumber(values[cell++ % values.size()], ",");
    return file.finish() ? 0 : 1;
}

int writeCells(CellCount count, const char* name) {
    const auto values = representativeValues();
    BlockWriter file(name);
    for (std::size_t k = 0; k < count.table; ++k)
        file.writeCell(values[k % values.size()], "     ");
    constexpr std::array<std::string_view, 3> separators{",", ",", "\r\n"};
    for (std::size_t k = 0; k < count.stations; ++k)
        file.writeCell(values[k % values.size()], separators[k % 3]);
    return file.finish() ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc == 3 && std::string_view(argv[1]) == "count") {
        const auto count = cellsOf(argv[2]);
        std::printf("%zu %zu\n", count.table, count.stations);
        return 0;
    }
    if (argc == 4)
        return writeCells(
            {std::strtoull(argv[1], nullptr, 10), std::strtoull(argv[2], nullptr, 10)}, argv[3]);
    if (argc == 6 && std::string_view(argv[1]) == "rows")
        return writeRows(std::strtoull(argv[2], nullptr, 10), argv[3],
                         std::strtoull(argv[4], nullptr, 10), argv[5]);
    std::fputs(
        "Usage: bench-floor count DIR\n       bench-floor TABLE STATIONS FILE\n"
        "       bench-floor rows ROWS PATTERN MORE FILE\n",
        stderr);
    return 2;
}
