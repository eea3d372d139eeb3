// trabeon-batch as a user calls it: words in, exit code, texts and files out.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <memory>
#include <sstream>
#include <vector>

#include "core/store/folder_lock.h"
#include "core/text/readable.h"
#include "tests/support/batch_program.h"

namespace trabeon {
namespace {

namespace fs = std::filesystem;
using test::batch;
using test::TemporaryFolder;

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

TEST(Analyse, TakesItsSettingsAndRefusesOnStandardError) {
    const TemporaryFolder folder;
    writeBeam(folder, 1);
    const auto analyse = [&](const std::string& divisions, const std::string& places) {
        return batch(
            {"analyse", folder.path().string(), "--divisions", divisions, "--places", places});
    };
    const auto before = folder.contents();
    EXPECT_EQ(analyse("10", "12.5").err,
              "The decimal places of the maximum must be a number from 0 to 12.\n");
    EXPECT_EQ(analyse("0", "3").exit, 1);
    EXPECT_EQ(folder.contents(), before);
    EXPECT_EQ(analyse("20", "0").exit, 0);
    const auto rows = folder.read("BM.txt");
    EXPECT_EQ(std::count(rows.begin(), rows.end(), '\n'), 23);
    EXPECT_NE(folder.read("BMMax.txt").find("\r\n 2.925 ,"), std::string::npos)
        << folder.read("BMMax.txt");
    folder.write("Joint.txt", "");
    EXPECT_EQ(
        analyse("10", "3").err,
        "You can't have 0 number of joint!\n Please provide more Joints as Total Joints are less than Total Members.\n");
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

/// Each of these stands in the text.
void expectAll(const std::string& text, const std::vector<std::string>& parts) {
    for (const auto& part : parts)
        EXPECT_NE(text.find(part), std::string::npos) << part << " is not in\n" << text;
}

std::string example(const std::string& name) {
    return EXAMPLES "/" + name + ".TB";
}

TEST(Run, ShowsTheProjectsTablesAndItsDesignAndLeavesItsFiles) {
    const TemporaryFolder folder;
    fs::copy_file(example("two-span-floor-beam"), folder / "floor.TB");
    auto answer = batch({"run", (folder / "floor.TB").string()});
    EXPECT_EQ(answer.exit, 0);
    EXPECT_EQ(answer.err, "");
    // 54E6 / (400.2 × 405) = 333.2 above the middle support; 0.2 % of 300 × 450 is 270
    expectAll(
        answer.out,
        {"Library extension: Floor beam B1, by A. Engineer",
         "F.E.M      -3.60E+01   +3.60E+01   -3.60E+01   +3.60E+01\n",
         "1                  0         -54         2.1    3.04E+01    0.00E+00\n",
         "2                 90\n", "Reactions add up to 144, loads to 144: they agree.",
         "\n1              270         0      2Y16       333         6      2Y16   1R6-102  OK\n"});
    EXPECT_TRUE(fs::exists(folder / "floor/BM.txt"));
    // The overhang of 2 m under 15 and 10 at its tip: 15 × 2²/2 + 10 × 2 = 50; nothing holds the
    // tip.
    answer =
        batch({"run", example("five-span-with-cantilever"), "--out", (folder / "five").string()});
    expectAll(answer.out,
              {"\n5                -50           0           0   -5.00E+01   -4.00E+01\n",
               "\n6                  0\n", "loads to 915.5: they agree.", "4Y25  1R10-109  OK\n"});
    answer = batch({"run", example("fixed-ended-transfer-beam"), "--out", (folder / "x").string()});
    EXPECT_EQ(answer.exit, 1);  // a section fails in shear
    expectAll(answer.out, {"none  Shear Failed!\nPlease Increase bv or d of beam.\n"});
    expectAll(folder.read("x/DResult.txt"), {"Shear Failed!"});
}

TEST(Run, NamesLoadsThatLeaveTheirMemberAndAnalysesThem) {
    const TemporaryFolder folder;
    writeBeam(folder, 2);
    folder.write("Udl.txt", "2,1,6,12,12,long\r\n1,0,6,12,12,fits\r\n");
    folder.write("Point.txt", "1,7,5,late\r\n");
    const std::string said =
        "Row 1 of the point loads, on member 1: a is 7, beyond the member's end at 6. It was "
        "analysed as entered; correct the row if that is not intended.\n"
        "Row 1 of the distributed loads, on member 2: a + b is 7, beyond the member's end at 6. It "
        "was analysed as entered; correct the row if that is not intended.\n";
    const auto project = (folder / "stray.TB").string();
    ASSERT_EQ(batch({"pack", folder.path().string(), project}).exit, 0);
    for (const auto& words : {std::vector<std::string>{"run", project},
                              std::vector<std::string>{"analyse", folder.path().string()}}) {
        const auto answer = batch(words);
        EXPECT_EQ(answer.exit, 0);
        EXPECT_EQ(answer.err, said);
    }
    EXPECT_TRUE(folder.read("Udl.txt").starts_with(" 1,0,6"));  // in order by now
}

TEST(Run, LongBeamShowsItsMomentsAndSaysWhereItsTableIs) {
    const TemporaryFolder folder;
    writeBeam(folder, 21);
    const auto project = (folder / "long.TB").string();
    ASSERT_EQ(batch({"pack", folder.path().string(), project}).exit, 0);
    const auto answer = batch({"run", project});
    // Many equal spans: wL²/12 = 36 at the supports in the middle.
    expectAll(answer.out, {"The balance table of the 21 members is in \"" +
                               (folder / "long/TB.txt").string() + "\".",
                           "\n11               -36         -36",
                           "Reactions add up to 1512, loads to 1512: they agree."});
    EXPECT_EQ(answer.out.find("Design"), std::string::npos);  // without dimensions there is none
    EXPECT_FALSE(fs::exists(folder / "long/DResult.txt"));
}

TEST(Run, RefusedSettingsOrProjectLeaveNoFolder) {
    const TemporaryFolder folder;
    auto answer = batch({"run", example("two-span-floor-beam"), "--out", (folder / "a/b").string(),
                         "--places", "99"});
    EXPECT_EQ(answer.exit, 1);
    EXPECT_FALSE(fs::exists(folder / "a"));
    folder.write("broken.TB", "not a project\r\n");
    answer = batch({"run", (folder / "broken.TB").string()});
    EXPECT_EQ(answer.exit, 1);
    expectAll(answer.err, {"line 2: the file ends where the heading \"TITLE\" was expected"});
    EXPECT_FALSE(fs::exists(folder / "broken"));
}

TEST(PackAndUnpack, GiveTheProjectBackWithItsTitle) {
    const TemporaryFolder folder;
    const auto work = (folder / "work").string();
    EXPECT_EQ(batch({"unpack", example("five-span-with-cantilever"), work}).exit, 0);
    EXPECT_EQ(batch({"pack", work, (folder / "again.TB").string(), "--title", "Workshop roof",
                     "--designer=A. Engineer", "--beam", "Roof beam R3"})
                  .exit,
              0);
    EXPECT_EQ(folder.read("again.TB"),
              TemporaryFolder::readFile(example("five-span-with-cantilever")));
    folder.write("notes.txt", "mine");
    fs::copy_file(folder / "again.TB", folder / "..TB");
    const auto before = folder.contents();
    for (const auto* taken : {"notes.txt", "work/Udl.txt", "work/Unfinished.set"}) {
        const auto answer = batch({"pack", work, (folder / taken).string()});
        EXPECT_EQ(answer.exit, 1);
        expectAll(answer.err, {taken});
    }
    EXPECT_EQ(batch({"run", (folder / "..TB").string()}).exit, 0);
    EXPECT_TRUE(fs::exists(folder / "..TB results/BM.txt"));
    EXPECT_EQ(folder.contents(), before);
    EXPECT_EQ(batch({"unpack", (folder / "none.TB").string(), work}).exit, 1);
    EXPECT_EQ(batch({"pack", (folder / "none").string(), (folder / "x.TB").string()}).exit, 1);
}

TEST(PackAndUnpack, KeepTheTitleAndRefuseRowsThatExistNowhereElse) {
    const TemporaryFolder folder;
    const auto work = (folder / "work").string();
    const auto run = [&](const std::string& command, const std::string& project,
                         const std::string& option = "") {
        return batch(option.empty()
                         ? std::vector<std::string>{command, example(project), work}
                         : std::vector<std::string>{command, example(project), option, work});
    };
    for (int time = 0; time < 2; ++time) {  // a run may use its own result folder again
        EXPECT_EQ(run("run", "two-span-floor-beam", "--out").exit, 0);
        EXPECT_EQ(batch({"analyse", work, "--divisions", "20"}).exit, 0);
        EXPECT_EQ(run("unpack", "five-span-with-cantilever").exit, 0);
    }
    EXPECT_EQ(batch({"pack", work, (folder / "again.TB").string()}).exit, 0);
    expectAll(folder.read("again.TB"), {"TITLE\r\n\"Workshop roof\"\r\n"});
    std::ofstream(folder / "work/Joint.txt", std::ios::app) << "7,Fixed,typed\r\n";
    for (const auto& answer :
         {run("run", "two-span-floor-beam", "--out"), run("unpack", "two-span-floor-beam")}) {
        EXPECT_EQ(answer.exit, 1);
        expectAll(answer.err, {"The folder \"" + work + "\" contains rows (Joint.txt, "});
    }
    expectAll(folder.read("work/Joint.txt"), {"7,Fixed,typed"});
    EXPECT_EQ(batch({"pack", work, (folder / "saved.TB").string()}).exit, 1);  // an old table
    EXPECT_EQ(run("unpack", "two-span-floor-beam").exit, 0);  // now they are in a project
}

TEST(Commands, OfTwoInOneFolderOneWaitsAndNoneTearsTheOthersFiles) {
    const TemporaryFolder work, left, right;
    ASSERT_EQ(batch({"unpack", example("five-span-with-cantilever"), work.path().string()}).exit,
              0);
    const auto analyse = [&](const TemporaryFolder& output, const std::string& divisions) {
        return test::start(output, {"analyse", work.path().string(), "--divisions", divisions});
    };
    for (int pair = 0; pair < 20; ++pair) {
        const std::array running{analyse(left, "200"), analyse(right, "300")};
        for (const pid_t process : running) {
            int status = 0;
            waitpid(process, &status, 0);
            EXPECT_EQ(status, 0) << left.read("err") << right.read("err");
        }
        const auto rows = work.read("BM.txt");
        const auto lines = std::count(rows.begin(), rows.end(), '\n');
        EXPECT_TRUE(lines == 5 * 203 || lines == 5 * 303) << lines;
    }
}

TEST(Commands, AFolderThatIsInUseIsLeftAlone) {
    const TemporaryFolder work, folder;
    const auto dir = work.path().string();
    ASSERT_EQ(batch({"unpack", example("two-span-floor-beam"), dir}).exit, 0);
    const auto before = work.contents();
    const auto project = example("two-span-floor-beam");
    FolderLock lock;
    ASSERT_TRUE(lock.take(work.path(), std::chrono::seconds(0)).done());
    const std::vector<std::vector<std::string>> all{{"analyse", dir},
                                                    {"design", dir},
                                                    {"tables", dir},
                                                    {"unpack", project, dir},
                                                    {"run", project, "--out", dir},
                                                    {"pack", dir, (folder / "a.TB").string()}};
    std::vector<std::pair<pid_t, std::unique_ptr<TemporaryFolder>>> running;
    for (const auto& words : all) {  // side by side: each waits a while
        auto output = std::make_unique<TemporaryFolder>();
        const auto process = test::start(*output, words);
        running.emplace_back(process, std::move(output));
    }
    for (const auto& [process, output] : running) {
        int status = 0;
        waitpid(process, &status, 0);
        EXPECT_EQ(WEXITSTATUS(status), 1);
        EXPECT_EQ(output->read("err"), "The folder \"" + dir +
                                           "\" is in use by batch_test (process " +
                                           std::to_string(getpid()) +
                                           "). Wait until it has finished or close it, then try "
                                           "again; nothing was changed.\n");
    }
    EXPECT_EQ(work.contents(), before);
    EXPECT_TRUE(folder.contents().empty());
}

struct Design : testing::Test {
    TemporaryFolder folder;

    /// An example, unpacked and analysed.
    void Prepare(const std::string& name) {
        ASSERT_EQ(batch({"unpack", example(name), folder.path().string()}).exit, 0);
        ASSERT_EQ(batch({"analyse", folder.path().string()}).exit, 0);
    }
    test::Answer Run(std::vector<std::string> options = {}) {
        options.insert(options.begin(), {"design", folder.path().string()});
        return batch(options);
    }
    std::string Line(const std::string& file, int number) {
        std::istringstream text(folder.read(file));
        std::string line;
        while (number-- > 0)
            std::getline(text, line, '\n');
        return line.substr(0, line.find('\r'));
    }
};

TEST_F(Design, WritesTheResultsAndTakesTheProperties) {
    Prepare("five-span-with-cantilever");
    auto answer = Run();
    EXPECT_EQ(answer.exit, 0);
    EXPECT_EQ(answer.err + answer.out, "");
    // K = 200E6 / (250 × 400² × 25) = 0.2; below 44E6 / (400.2 × 362.5) = 303.3; above
    // 156E6 / (400.2 × 310.75) + 303.3 = 1557.7
    EXPECT_EQ(Line("DResult.txt", 13),
              " 2, 0, 303, 1557, 402, 1963, 4000, 2Y 16 &   4Y 25, 1.43, 1.44, 1R 10- 109, 18, 26,"
              "Shear OK Def. OK");
    // 44E6 / (400.2 × (400 - 62.5)) = 325.8; with hagg 20 and links of 12 two of 16 need 201
    EXPECT_EQ(Run({"--no-restrict", "--cover", "50", "--link=12", "--aggregate", "20"}).exit, 0);
    EXPECT_EQ(Line("DResult.txt", 13).substr(0, 20), " 2, 0, 325, 1580, 40");
    auto dimensions = folder.read("BeamDim.txt");
    dimensions.replace(dimensions.find(",6\r"), 2, ",20");
    folder.write("BeamDim.txt", dimensions);
    Run();
    const auto restricted = Line("DResult.txt", 1);
    Run({"--no-restrict"});
    EXPECT_NE(Line("DResult.txt", 1), restricted);
    EXPECT_EQ(batch({"tables", folder.path().string()}).exit, 0);
    EXPECT_EQ(Line("AreaofS.txt", 1).substr(0, 10), " 8 , 50, 1");
    EXPECT_EQ(Line("Asvosv.txt", 3), " 100,0.565,1.005,1.571,2.262,3.079,4.021");
    EXPECT_EQ(batch({"tables", (folder / "none").string()}).exit, 1);
}

TEST_F(Design, ShearFailureIsExitCodeOneAndTheResultsAreThere) {
    Prepare("fixed-ended-transfer-beam");
    const auto answer = Run();
    EXPECT_EQ(answer.exit, 1);
    EXPECT_EQ(answer.err, "Please Increase bv or d of beam.\n");
    expectAll(folder.read("DResult.txt"), {"Shear Failed! Def. OK\r\n"});
}

TEST_F(Design, RefusesStationsAndTellsOfATableOfAnEarlierState) {
    Prepare("two-span-floor-beam");
    std::ofstream(folder / "Udl.txt", std::ios::app) << "2,1,2,5,5,more\r\n";
    const std::string why = "\": Of another beam or an earlier state: analyse again\n";
    auto answer = Run();
    EXPECT_EQ(answer.exit, 1);
    EXPECT_EQ(answer.err, '"' + (folder / "BM.txt").string() + why);
    EXPECT_FALSE(fs::exists(folder / "DResult.txt"));
    answer = batch({"pack", folder.path().string(), (folder / "a.TB").string()});
    EXPECT_EQ(answer.exit, 1);
    EXPECT_EQ(answer.err, '"' + (folder / "a.TB").string() +
                              "\" was written. Its balance table: Of another beam or an earlier "
                              "state: analyse again\n");
    EXPECT_TRUE(fs::exists(folder / "a.TB"));
    fs::remove(folder / "Record.txt");  // results of another program are taken as they are
    EXPECT_EQ(Run().exit, 0);
}

TEST_F(Design, RefusesWhatDoesNotFitAndNamesMissingDimensions) {
    EXPECT_EQ(Run().err,
              "The stations do not match the beam: \"BM.txt\" must have 12 rows for each of 0 "
              "members. Analyse the beam first, with the same --divisions.\n");
    Prepare("two-span-floor-beam");
    const auto before = folder.contents();
    const std::pair<std::vector<std::string>, const char*> refusals[] = {
        {{"--divisions", "20"}, "must have 22 rows for each of 2 members"},
        {{"--divisions", "2.5"}, "must be a whole number from 1 to 10,000"},
        {{"--cover", "1E999"}, "must be numbers of mm"}};
    for (const auto& [options, reason] : refusals) {
        const auto answer = Run(options);
        EXPECT_EQ(answer.exit, 1);
        expectAll(answer.err, {reason});
        EXPECT_EQ(folder.contents(), before);
    }
    folder.write("BeamDim.txt", "1,1,300,500,450,30,460,200000,250,6\r\n");
    const auto answer = Run();
    EXPECT_EQ(answer.exit, 0);
    EXPECT_EQ(answer.err,
              "Sections without dimensions: 23, the first is section 2 of member 1. "
              "Each is designed as the section before it; enter its dimensions.\n");
}

TEST(CommandLine, WrongUsageIsOneLineAndExitCodeTwo) {
    const std::string design =
        " Usage: trabeon-batch design DIR [--divisions N] [--cover MM] [--link MM] [--aggregate MM] "
        "[--no-restrict]";
    const std::pair<std::vector<std::string>, std::string> rows[] = {
        {{}, "A command is missing. See trabeon-batch --help."},
        {{"draw"}, "There is no command \"draw\". See trabeon-batch --help."},
        {{"analyse"},
         "\"analyse\" takes DIR, not 0 names. Usage: trabeon-batch analyse DIR [--divisions N] "
         "[--places N]"},
        {{"unpack", "a", "b", "c"},
         "\"unpack\" takes FILE.TB DIR, not 3 names. Usage: trabeon-batch unpack FILE.TB DIR"},
        {{"unpack", "a", "b", "--out", "c"},
         "\"unpack\" has no option --out. Usage: trabeon-batch unpack FILE.TB DIR"},
        {{"run", "a", "--out"},
         "A value is missing after --out. Usage: trabeon-batch run FILE.TB [FILE.TB ...] "
         "[--divisions N] [--places N] [--out DIR]"},
        {{"analyse", ".", "--places", "few"}, "--places takes a number, not \"few\"."},
        {{std::string(10'000, '\xE4')},
         "There is no command \"" + readable(std::string(77, '\xE4')) +
             "...\". See trabeon-batch --help."},
        {{"design", ".", "--no-restrict=1"}, "--no-restrict takes no value." + design},
        {{"design", ".", "--cover", "-5"}, "--cover takes a size of 0 mm or more."}};
    for (const auto& [words, line] : rows) {
        const auto answer = batch(words);
        EXPECT_EQ(answer.exit, 2);
        EXPECT_EQ(answer.err, "trabeon-batch: " + line + "\n");
    }
    const auto help = batch({"run", "--help"});
    EXPECT_EQ(help.exit, 0);
    for (const std::string command : {"run", "analyse", "design", "tables", "unpack", "pack"})
        expectAll(help.out, {"Example: trabeon-batch " + command});
}

}  // namespace
}  // namespace trabeon
