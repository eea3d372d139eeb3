// Tables in files beside the tests. A heading in brackets names what is calculated; below it comes
// a row a line: first what goes in, then what must come out, cells apart by commas. A cell in
// double quotes is taken as it is, a number may be a fraction, and a '#' begins a remark.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <functional>
#include <iomanip>
#include <map>
#include <string>
#include <variant>
#include <vector>

namespace trabeon::test {

using Cell = std::variant<double, std::string>;

class Row {
  public:
    explicit Row(std::string line) {
        line.resize(std::min(line.find('#'), line.size()));
        for (std::size_t at = 0; at < line.size();)
            at = readCell(line, at) + 1;
    }

    [[nodiscard]] std::size_t size() const { return cells_.size(); }
    const std::string& operator[](std::size_t index) const { return cells_.at(index); }
    double operator()(std::size_t index) const { return number(cells_.at(index)); }

    /// The last cells must be these: numbers to nine digits, texts to the letter.
    void expect(const std::vector<Cell>& got) const {
        ASSERT_LT(got.size(), size() + 1);
        for (std::size_t k = 0; k < got.size(); ++k) {
            const auto& expected = cells_[size() - got.size() + k];
            if (const auto* text = std::get_if<std::string>(&got[k]))
                EXPECT_EQ(*text, expected);
            else
                EXPECT_LE(std::fabs(std::get<double>(got[k]) - number(expected)),
                          1e-9 * std::fabs(number(expected)))
                    << std::setprecision(17) << std::get<double>(got[k]) << " where " << expected
                    << " was expected";
        }
    }

  private:
    /// Takes the cell that begins at a place and gives the place of the comma after it.
    std::size_t readCell(const std::string& line, std::size_t at) {
        const auto first = std::min(line.find_first_not_of(' ', at), line.size());
        const bool quoted = first < line.size() && line[first] == '"';
        const auto begin = quoted ? first + 1 : first;
        const auto end = std::min(line.find(quoted ? '"' : ',', begin), line.size());
        const auto cell = line.substr(begin, end - begin);
        cells_.push_back(quoted ? cell : cell.substr(0, cell.find_last_not_of(' ') + 1));
        return std::min(line.find(',', end), line.size());
    }
    static double number(const std::string& text) {
        char* end = nullptr;
        const double value = std::strtod(text.c_str(), &end);
        return *end == '/' ? value / std::strtod(end + 1, nullptr) : value;
    }

    std::vector<std::string> cells_;
};

/// What is calculated from the first cells of a row, by the heading of its table.
using Formulas = std::map<std::string, std::function<std::vector<Cell>(const Row&)>>;

/// Every row of the file has a formula and agrees with it, and every formula has a row.
inline void expectTables(const std::string& file, const Formulas& formulas) {
    std::ifstream in(file);
    std::map<std::string, int> rows;
    std::string heading;
    int number = 0;
    for (std::string line; std::getline(in, line);) {
        SCOPED_TRACE(file + ":" + std::to_string(++number));
        if (line.starts_with('['))
            heading = line.substr(1, line.find(']') - 1);
        else if (!line.empty() && line[0] != '#') {
            ++rows[heading];
            ASSERT_EQ(formulas.count(heading), 1u) << heading;
            const Row row(line);
            row.expect(formulas.at(heading)(row));
        }
    }
    for (const auto& [name, formula] : formulas)
        EXPECT_GT(rows[name], 0) << name;
}

}  // namespace trabeon::test
