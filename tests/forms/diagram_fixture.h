// A beam that is analysed, and its station file read in a way of its own.
#pragma once

#include <sstream>

#include "core/store/project_file.h"
#include "forms/results/frmAnalysis.h"
#include "forms/results/frmOptions.h"
#include "tests/support/program_fixture.h"
#include "toolkit/graph.h"

namespace trabeon {

inline bool operator==(const GraphPoint& a, const GraphPoint& b) {
    return a.y == b.y && std::abs(a.x - b.x) < 1e-9;
}
inline void PrintTo(const GraphPoint& point, std::ostream* out) {
    *out << "(" << point.x << ", " << point.y << ")";
}

namespace test {

/// x, moment and shear.
using Row = std::array<double, 3>;
using Points = std::vector<GraphPoint>;
inline constexpr std::size_t moment = 1, shear = 2;

class DiagramTest : public ProgramTest {
  protected:
    /// Starts the program with the example of five spans, analysed.
    void StartWithResults() {
        Start();
        const auto project = std::string(EXAMPLES) + "/five-span-with-cantilever.TB";
        ASSERT_TRUE(static_cast<bool>(unpackProject(project, folder.path())));
        Analyse();
    }

    void Analyse() {
        Choose("&Structure|&Analyse...");
        forms().Get<frmAnalysis>().cmdAnalyse.Press();
        forms().Unload("frmAnalysis");
        Settle();
    }

    /// An equal beam of pinned ends, as long as one likes.
    void WriteBeam(int members) {
        std::string joints = "1,Pin Jointed,\"None\"\r\n";
        std::string rows, udls;
        for (int k = 1; k <= members; ++k) {
            const auto number = std::to_string(k);
            joints += number + (k == members ? ",Pin Jointed" : ",Continuous") + ",\"None\"\r\n";
            rows += number + ",200,2,6,\"None\"\r\n";
            udls += number + ",0,6,12," + std::to_string(10 + k % 7) + ",\"None\"\r\n";
        }
        folder.write("Joint.txt", joints);
        folder.write("Member.txt", rows);
        folder.write("Udl.txt", udls);
    }

    /// Presses the options' buttons until both diagrams are drawn that way; analyses again.
    void SetOption(const std::string& option) {
        auto& options = forms().Get<frmOptions>();
        if (options.lblMOption.Caption() != option)
            options.cmdChangeM.Press();
        if (options.lblSOption.Caption() != option)
            options.cmdChangeS.Press();
        options.Hide();
        Settle();
        Analyse();
    }

    /// The rows of each member, told apart by the headings.
    std::vector<std::vector<Row>> Rows() {
        std::vector<std::vector<Row>> members;
        std::istringstream lines(folder.read("BM.txt"));
        for (std::string line; std::getline(lines, line);) {
            Row row{};
            if (line.starts_with("Span"))
                members.emplace_back();
            else if (std::sscanf(line.c_str(), "%lf,%lf,%lf", &row[0], &row[1], &row[2]) == 3)
                members.back().push_back(row);
        }
        return members;
    }

    /// What the chart must hold of members that are laid end to end.
    Points Expected(const std::vector<std::size_t>& members, std::size_t field, double sign) {
        const auto rows = Rows();
        Points points;
        double begin = 0;
        for (const auto member : members) {
            for (const auto& row : rows.at(member - 1))
                points.push_back({begin + row[0], sign * row[field]});
            begin = points.back().x;
        }
        return points;
    }
};

}  // namespace test
}  // namespace trabeon
