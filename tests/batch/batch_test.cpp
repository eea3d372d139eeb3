// trabeon-batch as a user calls it: words in, exit code, texts and files out.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <iterator>
#include <sstream>
#include <vector>

#include "core/text/number_text.h"
#include "tests/support/batch_program.h"

namespace trabeon {
namespace {

namespace fs = std::filesystem;
using test::batch;
using test::start;
using test::TemporaryFolder;
using Contents = std::map<std::string, std::string>;

void copyCase(const fs::path& from, const TemporaryFolder& to) {
    for (const auto& entry : fs::directory_iterator(from))
        fs::copy_file(entry, to.path() / entry.path().filename());
}

/// A beam of equal spans of 6 under 12, pinned at both ends.
void writeBeam(const TemporaryFolder& folder, int spans) {
    std::string joints, members, loads;
    for (int j = 0; j <= spans; ++j)
        joints += std::to_string(j + 1) + (j == 0 || j == spans ? ",Pin Jointed" : ",Continuous") +
                  ",\"None\"\r\n";
    for (int i = 1; i <= spans; ++i) {
        members += std::to_string(i) + ",200,2,6,\"None\"\r\n";
        loads += std::to_string(i) + ",0,6,12,12,\"None\"\r\n";
    }
    folder.write("Joint.txt", joints);
    folder.write("Member.txt", members);
    folder.write("Udl.txt", loads);
    folder.write("Point.txt", "");
}

class GoldenCase : public testing::TestWithParam<fs::path> {};

TEST_P(GoldenCase, ComesOutToTheLetter) {
    const TemporaryFolder folder;
    copyCase(GetParam() / "in", folder);
    std::vector<std::string> words{"analyse", folder.path().string()};
    if (fs::exists(folder / "arguments")) {
        std::istringstream more(folder.read("arguments"));
        words.insert(words.end(), std::istream_iterator<std::string>(more), {});
    }
    const auto answer = batch(words);
    EXPECT_EQ(answer.exit, 0) << answer.err;
    for (const auto& expected : fs::directory_iterator(GetParam() / "out"))
        EXPECT_EQ(folder.read(expected.path().filename().string()),
                  TemporaryFolder::readFile(expected))
            << expected.path().filename();
}

std::vector<fs::path> goldenCases() {
    std::vector<fs::path> cases;
    for (const auto& entry : fs::directory_iterator(CASES))
        cases.push_back(entry.path());
    return cases;
}

INSTANTIATE_TEST_SUITE_P(Beams, GoldenCase, testing::ValuesIn(goldenCases()), [](const auto& beam) {
    auto name = beam.param.filename().string();
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
});

TEST(Analyse, RulesAndRefusalsGoToStandardErrorAndChangeNoFile) {
    const auto refuse = [](const std::string& file, const std::string& text,
                           std::vector<std::string> more, const std::string& expected) {
        const TemporaryFolder folder;
        writeBeam(folder, 2);
        if (!file.empty())
            folder.write(file, text);
        const auto before = folder.contents();
        more.insert(more.begin(), {"analyse", folder.path().string()});
        const auto answer = batch(more);
        EXPECT_EQ(answer.exit, 1);
        EXPECT_EQ(answer.err, expected);
        EXPECT_EQ(folder.contents(), before) << expected;
    };
    refuse("Joint.txt", "", {},
           "You can't have 0 number of joint!\n"
           " Please provide more Joints as Total Joints are less than Total Members.\n");
    refuse("Joint.txt", "1,Fixed,a\r\n2,Hinge,b\r\n3,Fixed,c\r\n", {},
           "Joint 2: its type is \"Hinge\". It must be Cantilever, Pin Jointed, Continuous or "
           "Fixed.\n");
    refuse("Joint.txt", "1,Fixed,a\r\n2,pinned,b\r\n3,Fixed,c\r\n", {},
           "Joint 2, whose type \"pinned\" was taken for Pin Jointed: You can't have a Fix Joint, "
           "Cantilever Joint or Pin Joint in a continuous position of the beam.\n");
    refuse("Member.txt", "1,200,2,6,a\r\n2,200,2,0.0,b\r\n", {},
           "Member 2: L is \"0.0\". It must be a number above 0; mend the member's row.\n");
    refuse("Member.txt", "1,,2,6,a\r\n2,200,2,6,b\r\n", {},
           "Member 1: E is \"\". It must be a number above 0; mend the member's row.\n");
    refuse(
        "Member.txt", "1,200,2,6,a\r\n2,1E200,1E200,6,b\r\n", {},
        "Member 2: its stiffness E × I / L is too large or too small a number. Use other units.\n");
    refuse("Udl.txt", "9,0,0,1,1,beyond\r\n2,1,0,5,5,a\r\n", {},
           "Row 2 of the distributed loads, on member 2: its width b is 0. Give it a width, or "
           "make it a point load.\n");
    refuse("Point.txt", "1,2,1E999,a\r\n", {},
           "Row 1 of the point loads, on member 1: a or P is too large a number. Enter a smaller "
           "one.\n");
    refuse("Point.txt", "2,3,1E308,a\r\n2,3,1E308,b\r\n2,3,1E308,c\r\n", {},
           "Member 2: its moments or shears are too large to be calculated. Use other units.\n");
    const auto* divisions =
        "The number of sections of a span must be a whole number from 1 to 10,000.\n";
    for (const auto* wrong : {"0", "-1", "10.5", "10001", "1E999"})
        refuse("", "", {"--divisions", wrong}, divisions);
    const auto* places = "The decimal places of the maximum must be a number from 0 to 12.\n";
    for (const auto* wrong : {"-1", "12.5"})
        refuse("", "", {"--places", wrong}, places);
}

TEST(Analyse, SettingsAtTheirLimitsAreTaken) {
    const TemporaryFolder folder;
    writeBeam(folder, 1);
    for (const auto& [divisions, places] : {std::pair{"1", "0"}, {"10000", "12"}, {"10", "2.5"}}) {
        const auto answer = batch(
            {"analyse", folder.path().string(), "--divisions", divisions, "--places", places});
        EXPECT_EQ(answer.exit, 0) << answer.err;
        const auto rows = folder.read("BM.txt");
        EXPECT_EQ(std::count(rows.begin(), rows.end(), '\n'), leadingNumber(divisions) + 3);
    }
}

TEST(Analyse, FullDiskLeavesEveryOldFileWhole) {
    const TemporaryFolder folder;
    writeBeam(folder, 50);
    const auto before = folder.contents();
    for (const rlim_t limit : {500, 4000, 20000}) {
        const auto answer = batch({"analyse", folder.path().string()}, limit);
        EXPECT_EQ(answer.exit, 1);
        EXPECT_NE(answer.err.find("could not be written"), std::string::npos)
            << limit << answer.err;
        EXPECT_EQ(folder.contents(), before) << limit;
    }
}

TEST(Analyse, KilledProcessLeavesEachFileOldOrNew) {
    const TemporaryFolder folder, untouched, output;
    writeBeam(folder, 2000);
    const auto old = folder.contents();
    for (const auto& [name, text] : old)
        untouched.write(name, text);
    ASSERT_EQ(batch({"analyse", untouched.path().string()}).exit, 0);
    const auto fresh = untouched.contents();
    int killed = 0;
    for (useconds_t delay = 0; delay < 40'000; delay += 500) {
        for (const auto& [name, text] : fresh)
            fs::remove(folder / name);
        for (const auto& [name, text] : old)
            folder.write(name, text);
        const pid_t child = start(output, {"analyse", folder.path().string()});
        usleep(delay);
        kill(child, SIGKILL);
        int status = 0;
        waitpid(child, &status, 0);
        killed += WIFSIGNALED(status) ? 1 : 0;
        for (const auto& [name, text] : folder.contents()) {
            if (name.ends_with(".new"))
                continue;
            const auto before = old.find(name);
            EXPECT_TRUE(text == fresh.at(name) || (before != old.end() && text == before->second))
                << name;
        }
    }
    EXPECT_GT(killed, 0);
}

TEST(Run, ShowsTheProjectsTablesAndLeavesItsFiles) {
    const TemporaryFolder folder;
    fs::copy_file(fs::path(EXAMPLES) / "two-span-floor-beam.TB", folder / "floor.TB");
    const auto answer = batch({"run", (folder / "floor.TB").string()});
    EXPECT_EQ(answer.exit, 0) << answer.err;
    EXPECT_EQ(answer.err, "");
    for (const auto* text :
         {"Library extension: Floor beam B1, by A. Engineer",
          "F.E.M      -3.60E+01   +3.60E+01   -3.60E+01   +3.60E+01\n",
          "1                  0         -54         2.1    3.04E+01    0.00E+00\n",
          "2                 90\n", "Reactions add up to 144, loads to 144: they agree."})
        EXPECT_NE(answer.out.find(text), std::string::npos) << text << '\n' << answer.out;
    EXPECT_TRUE(fs::exists(folder / "floor/BM.txt"));

    // The overhang of 2 m under 15 and 10 at its tip: 15 × 2²/2 + 10 × 2 = 50; nothing holds the
    // tip.
    const auto long_ = batch(
        {"run", EXAMPLES "/five-span-with-cantilever.TB", "--out", (folder / "five").string()});
    for (const auto* text :
         {"\n5                -50           0           0   -5.00E+01   -4.00E+01\n",
          "\n6                  0\n", "loads to 915.5: they agree."})
        EXPECT_NE(long_.out.find(text), std::string::npos) << text << '\n' << long_.out;
}

TEST(Run, LongBeamShowsItsMomentsAndSaysWhereItsTableIs) {
    const TemporaryFolder folder;
    writeBeam(folder, 21);
    const auto project = (folder / "long.TB").string();
    ASSERT_EQ(batch({"pack", folder.path().string(), project}).exit, 0);
    const auto answer = batch({"run", project});
    const auto table = (folder / "long/TB.txt").string();
    // Many equal spans: wL²/12 = 36 at the supports in the middle.
    for (const auto& text : {"The balance table of the 21 members stands in \"" + table + "\".",
                             std::string("\n11               -36         -36"),
                             std::string("Reactions add up to 1512, loads to 1512: they agree.")})
        EXPECT_NE(answer.out.find(text), std::string::npos) << text << answer.out;
}

TEST(Run, RefusedSettingsLeaveTheFolderAsItWas) {
    const TemporaryFolder folder;
    const auto answer = batch({"run", EXAMPLES "/two-span-floor-beam.TB", "--out",
                               (folder / "a/b").string(), "--places", "99"});
    EXPECT_EQ(answer.exit, 1);
    EXPECT_FALSE(fs::exists(folder / "a"));
}

TEST(Run, RefusedProjectLeavesNoFolder) {
    const TemporaryFolder folder;
    folder.write("broken.TB", "not a project\r\n");
    const auto answer = batch({"run", (folder / "broken.TB").string()});
    EXPECT_EQ(answer.exit, 1);
    EXPECT_NE(answer.err.find("line 2: the file ends where the heading \"TITLE\" was expected"),
              std::string::npos)
        << answer.err;
    EXPECT_FALSE(fs::exists(folder / "broken"));
}

TEST(PackAndUnpack, GiveTheProjectBackWithItsTitle) {
    const TemporaryFolder folder;
    const auto example = fs::path(EXAMPLES) / "five-span-with-cantilever.TB";
    const auto work = (folder / "work").string();
    EXPECT_EQ(batch({"unpack", example.string(), work}).exit, 0);
    EXPECT_EQ(batch({"pack", work, (folder / "again.TB").string(), "--title", "Workshop roof",
                     "--designer=A. Engineer", "--beam", "Roof beam R3"})
                  .exit,
              0);
    EXPECT_EQ(folder.read("again.TB"), TemporaryFolder::readFile(example));
    EXPECT_EQ(batch({"unpack", (folder / "none.TB").string(), work}).exit, 1);
    EXPECT_EQ(batch({"pack", (folder / "none").string(), (folder / "x.TB").string()}).exit, 1);
}

TEST(CommandLine, WrongUsageIsOneLineAndExitCodeTwo) {
    const std::pair<std::vector<std::string>, const char*> rows[] = {
        {{}, "trabeon-batch: A command is missing. See trabeon-batch --help.\n"},
        {{"draw"}, "trabeon-batch: There is no command \"draw\". See trabeon-batch --help.\n"},
        {{"analyse"},
         "trabeon-batch: \"analyse\" takes DIR, not 0 names. Usage: trabeon-batch analyse DIR [--divisions N] [--places N]\n"},
        {{"unpack", "a", "b", "c"},
         "trabeon-batch: \"unpack\" takes FILE.TB DIR, not 3 names. Usage: trabeon-batch unpack "
         "FILE.TB DIR\n"},
        {{"unpack", "a", "b", "--out", "c"},
         "trabeon-batch: \"unpack\" has no option --out. Usage: trabeon-batch unpack FILE.TB "
         "DIR\n"},
        {{"run", "a", "--out"},
         "trabeon-batch: A value is missing behind --out. Usage: trabeon-batch run FILE.TB "
         "[--divisions N] "
         "[--places N] [--out DIR]\n"},
        {{"analyse", ".", "--places", "few"},
         "trabeon-batch: --places takes a number, not \"few\".\n"},
    };
    for (const auto& [words, line] : rows) {
        const auto answer = batch(words);
        EXPECT_EQ(answer.exit, 2);
        EXPECT_EQ(answer.err, line);
    }
    const auto help = batch({"run", "--help"});
    EXPECT_EQ(help.exit, 0);
    for (const auto* command : {"run", "analyse", "design", "tables", "unpack", "pack"})
        EXPECT_NE(help.out.find(std::string("Example: trabeon-batch ") + command),
                  std::string::npos)
            << command;
}

}  // namespace
}  // namespace trabeon
