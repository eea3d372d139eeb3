// Beams from numbers in a line or two, and what their analysis tells and writes.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <charconv>
#include <cmath>
#include <fstream>

#include "core/analysis/result_files.h"

namespace trabeon {

inline constexpr auto cantilever = "Cantilever";
inline constexpr auto pin = "Pin Jointed";
inline constexpr auto continuous = "Continuous";
inline constexpr auto fixed = "Fixed";

inline std::string exactText(double value) {
    std::array<char, 40> text{};
    return {text.data(), std::to_chars(text.data(), text.data() + text.size(), value).ptr};
}

/// A beam in numbers, from the left: its first joint, then each member with the joint at its right
/// end. Loads name their member, from 1.
struct BeamBuilder {
    struct Member {
        double L, E, I;
    };
    struct Udl {
        std::size_t member;
        double a, b, w1, w2;
    };
    struct Point {
        std::size_t member;
        double a, P;
    };
    std::vector<std::string> joints;
    std::vector<Member> members;
    std::vector<Udl> udls;
    std::vector<Point> points;

    explicit BeamBuilder(std::string firstJoint) : joints{std::move(firstJoint)} {}

    BeamBuilder& member(double L, std::string rightJoint, double E = 1, double I = 1) {
        members.push_back({L, E, I});
        joints.push_back(std::move(rightJoint));
        return *this;
    }
    BeamBuilder& udl(std::size_t member, double a, double b, double w1, double w2) {
        udls.push_back({member, a, b, w1, w2});
        return *this;
    }
    BeamBuilder& point(std::size_t member, double a, double P) {
        points.push_back({member, a, P});
        return *this;
    }

    [[nodiscard]] BeamRows rows() const {
        BeamRows rows;
        for (const auto& type : joints)
            rows.joints.push_back({"", type, "None"});
        for (const auto& [L, E, I] : members)
            rows.members.push_back({"", exactText(E), exactText(I), exactText(L), "None"});
        for (const auto& [member, a, b, w1, w2] : udls)
            rows.udls.push_back({exactText(static_cast<double>(member)), exactText(a), exactText(b),
                                 exactText(w1), exactText(w2), "None"});
        for (const auto& [member, a, P] : points)
            rows.points.push_back(
                {exactText(static_cast<double>(member)), exactText(a), exactText(P), "None"});
        return rows;
    }
};

/// An analysis and all that it told on the way.
struct Analysed {
    struct Row {
        std::string label;
        std::vector<double> cells;
        bool operator==(const Row&) const = default;
    };
    std::vector<std::string> messages;
    std::vector<double> progress;
    std::vector<Row> table;
    std::optional<Analysis> analysis;

    const Analysis* operator->() const { return &analysis.value(); }
    [[nodiscard]] const std::vector<double>& row(std::string_view label) const {
        for (const auto& row : table)
            if (row.label == label)
                return row.cells;
        throw std::out_of_range("The table has no such row.");
    }
};

inline Analysed analysed(const BeamBuilder& beam, const AnalysisSettings& settings = {}) {
    Analysed told;
    told.analysis = analyse(
        beam.rows(), settings,
        {[&](const Message& message) { told.messages.push_back(message.text); },
         [&](const TableRow& row) {
             told.table.push_back({std::string(row.label), {row.cells.begin(), row.cells.end()}});
         },
         [&](double value) { told.progress.push_back(value); }});
    return told;
}

/// The texts that the analysis of a beam leaves in its folder.
struct ResultTexts {
    std::string table, stations, maxima;
};

inline ResultTexts resultTexts(const BeamBuilder& beam, const AnalysisSettings& settings = {}) {
    const auto* test = testing::UnitTest::GetInstance()->current_test_info();
    const auto folder = std::filesystem::path(testing::TempDir()) / "trabeon" / test->name();
    std::filesystem::create_directories(folder);
    const auto write = [&](std::string_view file, const std::string& text) {
        std::ofstream(folder / file, std::ios::binary) << text;
    };
    const auto rows = beam.rows();
    write(working_file::joint, textOf(rows.joints, Description::quoted));
    write(working_file::member, textOf(rows.members, Description::quoted));
    write(working_file::udl, textOf(rows.udls, Description::quoted));
    write(working_file::point, textOf(rows.points, Description::quoted));
    EXPECT_TRUE(analyseFolder(folder, settings,
                              {[](const Message& message) { ADD_FAILURE() << message.text; }}));
    ResultTexts texts{readWhole(folder / working_file::balanceTable),
                      readWhole(folder / working_file::stations),
                      readWhole(folder / working_file::maxima)};
    std::filesystem::remove_all(folder);
    return texts;
}

/// Within the relative tolerance of the formulas; a 0 exactly.
inline void expectClose(double got, double expected, const std::string& what) {
    EXPECT_NEAR(got, expected, 1e-9 * std::fabs(expected)) << what;
}

}  // namespace trabeon
