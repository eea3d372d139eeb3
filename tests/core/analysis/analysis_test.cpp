// The analysis against tables by hand, against the force method, and against whole result files.
#include "core/analysis/result_files.h"
#include "core/text/number_masks.h"
#include "core/text/number_text.h"
#include "tests/core/analysis/beams.h"
#include "tests/core/analysis/force_method.h"
#include "tests/support/table.h"
#include "tests/support/temporary_folder.h"

namespace trabeon {
namespace {

namespace fs = std::filesystem;
using test::Cell;
using test::Row;
using test::TemporaryFolder;

/// Station k of a span as its row says it.
std::string rowOf(const Analysis& analysis, std::size_t span, std::size_t k) {
    const auto& [x, forces] = analysis.stationsOf(span)[k];
    return threeFigures(x) + ',' + threeFigures(forces.moment) + ',' + threeFigures(forces.shear);
}

std::vector<Cell> tableRow(const BeamRows& rows, std::size_t number) {
    const auto cells = analysed(rows).table.at(number);
    return {cells.begin(), cells.end()};
}

TEST(Beams, AgreeWithTheTablesByHand) {
    const auto beam = [](const Row& row) { return beamOf(row[0], row[1]); };
    test::expectTables(
        TABLES "/analysis/beams.csv",
        {{"F.E.M", [=](const Row& row) { return tableRow(beam(row), 2); }},
         {"D.Fac", [](const Row& row) { return tableRow(beamOf(row[0], ""), 1); }},
         {"cycles",
          [=](const Row& row) {
              const auto rows = analysed(beam(row)).table.size();
              return std::vector<Cell>{static_cast<double>(rows - 5) / 2};
          }},
         {"station",
          [=](const Row& row) {
              const auto found = analysed(beam(row), {row(2), 3});
              return std::vector<Cell>{rowOf(*found.analysis, 1, static_cast<std::size_t>(row(3)))};
          }},
         {"maximum", [=](const Row& row) {
              const auto found = analysed(beam(row), {row(2), row(3)});
              const auto& [x, forces] = found->maxima.at(static_cast<std::size_t>(row(4)) - 1);
              return std::vector<Cell>{printForm(x) + ',' + threeFigures(forces.moment) + ',' +
                                       threeFigures(forces.shear)};
          }}});
}

TEST(Beams, HaveExactFixedEndMomentsForRoundNumbers) {
    // A last bit too few would turn 87.85 into 87.8 instead of 87.9.
    const auto beam = beamOf("fixed 6 fixed", "u1 0 6 25 25; u1 2 3 12 0");
    EXPECT_EQ(analysed(beam).table.at(2), (std::vector<double>{-87.85, 87.65}));
}

/// How far the moments may be from the exact ones when no balance is above 0.01. Balances at a
/// joint are its turn r times each member's stiffness, and a carry-over with the balance after it
/// leaves turns of at most half the largest: all that would follow turns no joint by more than the
/// largest r of the last balance. So an end still lacks at most the last carry-over, 0.005, and
/// the moments of these turns at its two joints, K (r + r/2).
double allowed(const Beam& beam) {
    const auto [softest, stiffest] =
        std::minmax_element(beam.Stiffness.begin() + 1, beam.Stiffness.end());
    return 0.005 + 1.5 * *stiffest * 0.01 / *softest;
}

TEST(Beams, HaveTheMomentsOfTheForceMethodAndTheStationsOfTheInfluenceLines) {
    Dice dice;
    for (int number = 0; number < 400 && !testing::Test::HasFailure(); ++number) {
        SCOPED_TRACE("random beam " + std::to_string(number));
        const auto found = analysed(randomBeam(dice), {7, 3});
        const auto exact = jointMoments(*found.analysis);
        for (std::size_t i = 1; i <= found->beam.members(); ++i) {
            const double L = found->beam.Length[i];
            const double left = found->Final[2 * i - 1], right = -found->Final[2 * i];
            EXPECT_NEAR(left, exact[i - 1], allowed(found->beam)) << "left end of " << i;
            EXPECT_NEAR(right, exact[i], allowed(found->beam)) << "right end of " << i;
            int k = 0;
            for (const auto& [x, got] : found->stationsOf(i)) {
                EXPECT_NEAR(x, L * k++ / 7, 1e-12 * L);
                double moment = left + (right - left) * x / L, shear = (left - right) / L;
                double size = std::fabs(left) + std::fabs(right);
                for (const auto& [s, F] : forcesOn(*found.analysis, i, x)) {
                    moment += F * (s < x ? s * (L - x) : x * (L - s)) / L;
                    shear += F * (s < x ? s : s - L) / L;
                    size += std::fabs(F) * L;
                }
                EXPECT_NEAR(got.moment, moment, 1e-11 * size) << "at " << x << " of member " << i;
                EXPECT_NEAR(got.shear, shear, 1e-11 * size / L) << "at " << x << " of member " << i;
            }
        }
    }
}

TEST(Beams, TellTheirProgressAndEndAtTheLengthExactly) {
    EXPECT_EQ(analysed(beamOf("fixed 8 continuous 8 fixed", "")).progress,
              (std::vector<double>{0, 50, 75, 100}));
    // In doubles 0.9 / 3 × 3 is a last bit below 0.9, and 0.9 / 7 × 7 one above it.
    for (const double Divisions : {1.0, 3.0, 7.0})
        EXPECT_EQ(analysed(beamOf("pin 0.9 pin", ""), {Divisions, 3})->stations.back().x, 0.9);
}

void copyFiles(const fs::path& from, const TemporaryFolder& to) {
    for (const auto& entry : fs::directory_iterator(from))
        fs::copy_file(entry, to / entry.path().filename(), fs::copy_options::overwrite_existing);
}

/// The messages of an analysis of a folder, one after the other.
std::string messagesOf(const TemporaryFolder& folder, const AnalysisSettings& settings = {}) {
    std::string messages;
    const auto found = [&](const Message& message) { messages += message.text; };
    const bool done = analyseFolder(folder.path(), settings, {found}).has_value();
    EXPECT_EQ(done, messages.empty());
    return messages;
}

TEST(AnalyseFolder, WritesTheGoldenFilesToTheLetter) {
    for (const auto& beam : fs::directory_iterator(CASES)) {
        const TemporaryFolder folder;
        copyFiles(beam.path() / "in", folder);
        AnalysisSettings settings;
        std::istringstream arguments(folder.contents()["arguments"]);
        for (std::string option; arguments >> option;)
            arguments >> (option == "--places" ? settings.places : settings.Divisions);
        EXPECT_EQ(messagesOf(folder, settings), "");
        for (const auto& expected : fs::directory_iterator(beam.path() / "out"))
            EXPECT_EQ(folder.read(expected.path().filename()), TemporaryFolder::readFile(expected))
                << expected.path();
    }
}

TEST(AnalyseFolder, RefusesBeforeAnyFileChanges) {
    const auto refused = [](const Row& row) {
        const TemporaryFolder folder;
        copyFiles(CASES "/two-equal-spans/in", folder);
        auto rows = row[1] + (row[1].empty() ? "" : "\r\n");
        for (std::size_t at; (at = rows.find('/')) != std::string::npos;)
            rows.replace(at, 1, "\r\n");
        folder.write(row[0], rows);
        const auto before = folder.contents();
        auto messages = messagesOf(folder);
        EXPECT_EQ(folder.contents(), before);
        std::replace(messages.begin(), messages.end(), '"', '`');
        return std::vector<Cell>{messages};
    };
    test::expectTables(TABLES "/analysis/refusals.csv", {{"refusals", refused}});
    const auto settings = [](double Divisions, double places) {
        const auto why = checkSettings({Divisions, places});
        return why ? why->sentence : "";
    };
    for (const double wrong : {0.0, -1.0, 10.5, 10001.0, HUGE_VAL})
        EXPECT_EQ(settings(wrong, 3),
                  "The number of sections of a span must be a whole number from 1 to 10,000.");
    for (const double wrong : {-1.0, 12.5})
        EXPECT_EQ(settings(10, wrong),
                  "The decimal places of the maximum must be a number from 0 to 12.");
    EXPECT_EQ(settings(1, 0) + settings(10000, 12) + settings(10, 2.5), "");
}

}  // namespace
}  // namespace trabeon
