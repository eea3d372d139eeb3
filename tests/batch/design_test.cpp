// The design commands of trabeon-batch.
#include <gtest/gtest.h>

#include "tests/support/batch_program.h"

namespace trabeon {
namespace {

using test::batch;
using test::TemporaryFolder;

/// An example, unpacked and analysed.
void prepare(const TemporaryFolder& folder, const std::string& example) {
    ASSERT_EQ(batch({"unpack", EXAMPLES "/" + example + ".TB", folder.path().string()}).exit, 0);
    ASSERT_EQ(batch({"analyse", folder.path().string()}).exit, 0);
}

std::string line(const std::string& text, int number) {
    std::size_t at = 0;
    while (--number > 0)
        at = text.find('\n', at) + 1;
    return text.substr(at, text.find('\r', at) - at);
}

TEST(DesignCommand, WritesTheResultsAndTakesTheProperties) {
    const TemporaryFolder folder;
    prepare(folder, "five-span-with-cantilever");
    const auto dir = folder.path().string();
    auto answer = batch({"design", dir});
    EXPECT_EQ(answer.exit, 0) << answer.err;
    EXPECT_EQ(answer.err + answer.out, "");
    // K = 200E6 / (250 × 400² × 25) = 0.2; below 44E6 / (400.2 × 362.5) = 303.3; above
    // 156E6 / (400.2 × 310.75) + 303.3 = 1557.7
    EXPECT_EQ(line(folder.read("DResult.txt"), 13),
              " 2, 0, 303, 1557, 402, 1963, 4000, 2Y 16 &   4Y 25, 1.43, 1.44, 1R 10- 109, 18, 26,"
              "Shear OK Def. OK");
    // 44E6 / (400.2 × (400 - 62.5)) = 325.8; with hagg 20 and links of 12 two of 16 need 201
    answer =
        batch({"design", "--no-restrict", dir, "--cover", "50", "--link=12", "--aggregate", "20"});
    EXPECT_EQ(answer.exit, 0) << answer.err;
    EXPECT_EQ(line(folder.read("DResult.txt"), 13).substr(0, 20), " 2, 0, 325, 1580, 40");
}

TEST(DesignCommand, ShearFailureIsExitCodeOneAndTheResultsAreThere) {
    const TemporaryFolder folder;
    prepare(folder, "fixed-ended-transfer-beam");
    const auto answer = batch({"design", folder.path().string()});
    EXPECT_EQ(answer.exit, 1);
    EXPECT_EQ(answer.err, "Please Increase bv or d of beam.\n");
    EXPECT_NE(folder.read("DResult.txt").find("Shear Failed! Def. OK\r\n"), std::string::npos);
}

TEST(DesignCommand, SpansOverTenMetresAreRestrictedUnlessTold) {
    const TemporaryFolder folder;
    prepare(folder, "two-span-floor-beam");
    auto dimensions = folder.read("BeamDim.txt");
    for (std::size_t at = 0; (at = dimensions.find(",6\r", at)) != std::string::npos; at += 4)
        dimensions.replace(at, 3, ",20\r");
    folder.write("BeamDim.txt", dimensions);
    // section 1, without a moment: p = 402.1 / 1350, 16 × 2 × 1.0903 = 34.9; half for 20 m
    EXPECT_EQ(batch({"design", folder.path().string()}).exit, 0);
    EXPECT_TRUE(line(folder.read("DResult.txt"), 1).ends_with(", 44, 17,Shear OK Def. Failed!"));
    EXPECT_EQ(batch({"design", folder.path().string(), "--no-restrict"}).exit, 0);
    EXPECT_TRUE(line(folder.read("DResult.txt"), 1).ends_with(", 44, 34,Shear OK Def. Failed!"));
}

TEST(DesignCommand, RefusesWhatDoesNotFitAndNamesMissingDimensions) {
    const TemporaryFolder folder;
    const auto dir = folder.path().string();
    EXPECT_EQ(batch({"design", dir}).err,
              "The stations do not fit the beam: \"BM.txt\" must have 12 rows for each of 0 "
              "members. Analyse the beam first, with the same --divisions.\n");
    prepare(folder, "two-span-floor-beam");
    const auto before = folder.contents();
    const std::pair<std::vector<std::string>, const char*> refusals[] = {
        {{"--divisions", "20"}, "must have 22 rows for each of 2 members"},
        {{"--divisions", "2.5"}, "must be a whole number from 1 to 10,000"},
        {{"--cover", "1E999"}, "must be numbers of mm"}};
    for (auto [words, reason] : refusals) {
        words.insert(words.begin(), {"design", dir});
        const auto answer = batch(words);
        EXPECT_EQ(answer.exit, 1);
        EXPECT_NE(answer.err.find(reason), std::string::npos) << answer.err;
        EXPECT_EQ(folder.contents(), before);
    }
    folder.write("BeamDim.txt", "1,1,300,500,450,30,460,200000,250,6\r\n");
    const auto answer = batch({"design", dir});
    EXPECT_EQ(answer.exit, 0);
    EXPECT_EQ(answer.err,
              "Sections without dimensions of their own: 23, the first is section 2 of member 1. "
              "Each takes the values of the section before it; enter its dimensions.\n");
}

TEST(DesignCommand, WrongUsage) {
    const std::string usage =
        "Usage: trabeon-batch design DIR [--divisions N] [--cover MM] [--link MM] "
        "[--aggregate MM] [--no-restrict]\n";
    const std::pair<std::vector<std::string>, std::string> rows[] = {
        {{"design"}, "\"design\" takes DIR, not 0 names. " + usage},
        {{"design", ".", "--no-restrict=1"}, "--no-restrict takes no value. " + usage},
        {{"design", ".", "--cover", "-5"}, "--cover takes a size of 0 mm or more.\n"},
        {{"design", ".", "--link", "thick"}, "--link takes a number, not \"thick\".\n"},
        {{"tables", ".", "--cover", "5"},
         "\"tables\" has no option --cover. Usage: trabeon-batch tables DIR\n"}};
    for (const auto& [words, text] : rows) {
        const auto answer = batch(words);
        EXPECT_EQ(answer.exit, 2);
        EXPECT_EQ(answer.err, "trabeon-batch: " + text);
    }
}

TEST(TablesCommand, WritesBothTables) {
    const TemporaryFolder folder;
    EXPECT_EQ(batch({"tables", folder.path().string()}).exit, 0);
    EXPECT_EQ(line(folder.read("AreaofS.txt"), 6),
              " 25 , 490, 981, 1472, 1963, 2454, 2945, 3436, 3926, 4417, 4908");
    EXPECT_EQ(line(folder.read("Asvosv.txt"), 3), " 100,0.565,1.005,1.571,2.262,3.079,4.021");
    EXPECT_EQ(batch({"tables", (folder / "none").string()}).exit, 1);
}

TEST(Run, GoesOnToTheDesign) {
    const TemporaryFolder folder;
    const auto run = [&](const std::string& example) {
        return batch({"run", EXAMPLES "/" + example + ".TB", "--out", (folder / example).string()});
    };
    // 54E6 / (400.2 × 405) = 333.2 above the middle support; 0.2 % of 300 × 450 is 270
    auto answer = run("two-span-floor-beam");
    EXPECT_EQ(answer.exit, 0);
    EXPECT_NE(answer.out.find("\n1              270         0      2Y16       333         6      "
                              "2Y16   1R6-102  OK\n"),
              std::string::npos)
        << answer.out;
    answer = run("five-span-with-cantilever");
    EXPECT_NE(answer.out.find("4Y25  1R10-109  OK\n"), std::string::npos) << answer.out;
    answer = run("fixed-ended-transfer-beam");
    EXPECT_EQ(answer.exit, 0);
    EXPECT_NE(answer.out.find("none  Shear Failed!\nPlease Increase bv or d of beam.\n"),
              std::string::npos)
        << answer.out;
    EXPECT_NE(folder.read("fixed-ended-transfer-beam/DResult.txt").find("Shear Failed!"),
              std::string::npos);
}

TEST(Run, ProjectWithoutDimensionsIsNotDesigned) {
    const TemporaryFolder folder, work;
    prepare(work, "two-span-floor-beam");
    work.write("BeamDim.txt", "");
    const auto project = (folder / "beam.TB").string();
    ASSERT_EQ(batch({"pack", work.path().string(), project}).exit, 0);
    EXPECT_EQ(batch({"run", project}).out.find("Design"), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(folder / "beam/DResult.txt"));
}

}  // namespace
}  // namespace trabeon
