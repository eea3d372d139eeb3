// `export`, and `run` of several projects: texts, files and exit codes.
#include <gtest/gtest.h>

#include <sstream>

#include "tests/support/batch_program.h"

namespace trabeon {
namespace {

namespace fs = std::filesystem;
using test::batch;
using test::TemporaryFolder;

/// A wall with a bracket of 2 that carries P at its tip; E and I are 1.
std::string bracket(const std::string& P, const std::string& a = "2",
                    const std::string& title = "Shed") {
    return "WARNNING!\nTITLE\n\"" + title + "\"\n\"A, B\"\n\"B1\"\nJOINTS\n1,Fixed,x\n" +
           "2,Cantilever,x\nMEMBERS\n1,1,1,2,x\nLOADING\n1," + a + "," + P +
           ",x\nLOADING\nTRABEON RESULTS\nBEAM DIMENSIONS\n";
}

struct Export : testing::Test {
    TemporaryFolder folder;

    std::string Write(const std::string& name, const std::string& project) {
        folder.write(name, project);
        return (folder / name).string();
    }
    static test::Answer Run(std::vector<std::string> words) {
        words.insert(words.begin(), "export");
        return batch(words);
    }
};

TEST_F(Export, WritesEachTableOfACantileverByHand) {
    // V = -P, M = P (x - 2), v' = P x (4 - x) / 2, v = P x² (6 - x) / 6.
    const auto file = Write("a.TB", bracket("3"));
    const std::pair<std::string, std::string> tables[] = {
        {"members",
         "member,length,M_left,M_right,V_left,V_right,M_max,x_M_max,M_min,x_M_min,deflection_max,"
         "x_deflection_max\r\n1,2,-6,0,-3,-3,0,2,-6,0,8,2\r\n"},
        {"reactions",
         "joint,type,x,reaction,moment,rotation\r\n1,Fixed,0,3,-6,0\r\n2,Cantilever,2,0,0,6\r\n"},
        {"stations",
         "member,x,M,V,rotation,deflection\r\n1,0,-6,-3,0,0\r\n1,1,-3,-3,4.5,2.5\r\n"
         "1,2,0,-3,6,8\r\n"},
        {"relaxation",
         "row,label,member,end,value\r\n1,D.Fac,1,left,0\r\n1,D.Fac,1,right,0\r\n"
         "2,F.E.M,1,left,-6\r\n2,F.E.M,1,right,0\r\n3,Bal..,1,left,0\r\n3,Bal..,1,right,0\r\n"
         "4,C.Ovr,1,left,0\r\n4,C.Ovr,1,right,0\r\n5,Bal..,1,left,0\r\n5,Bal..,1,right,0\r\n"
         "6,Final,1,left,-6\r\n6,Final,1,right,0\r\n"}};
    for (const auto& [table, text] : tables) {
        const auto answer = Run({file, table, "--divisions", "2"});
        EXPECT_EQ(answer.exit, 0);
        EXPECT_EQ(answer.err, "");
        EXPECT_EQ(answer.out, text);
    }
    const auto answer =
        Run({Write("b.TB", bracket("3", "2", "Caf\xE9 \\")), "reactions", "--format=json"});
    EXPECT_EQ(answer.out,
              "{\"project\":\"Caf\xC3\xA9 \\\\\",\"designer\":\"A, B\",\"beam\":\"B1\","
              "\"table\":\"reactions\",\n"
              "\"columns\":[\"joint\",\"type\",\"x\",\"reaction\",\"moment\",\"rotation\"],\n"
              "\"rows\":[\n[1,\"Fixed\",0,3,-6,0],\n[2,\"Cantilever\",2,0,0,6]\n]}\n");
}

TEST_F(Export, DesignHasTheFieldsOfTheDesignRun) {
    const auto file = std::string(EXAMPLES) + "/five-span-with-cantilever.TB";
    const auto answer = Run({file, "design"});
    EXPECT_EQ(answer.exit, 0);
    EXPECT_TRUE(answer.out.starts_with(
        "member,section,x,Asreq,Aspreq,Asprov,Aspprov,MaxRein,MomentRein,AsvOsvreq,AsvOsvprov,"
        "ShearRein,DefActual,DefAllow,DefNote\r\n"));
    // 44E6 / (400.2 × 362.5) = 303.3 below, 1557.7 above; see Design in batch_test.cpp
    EXPECT_NE(answer.out.find("\r\n2,1,0,303,1557,402,1963,4000,2Y 16 &   4Y 25,1.43,1.44,"
                              "1R 10- 109,18,26,Shear OK Def. OK\r\n"),
              std::string::npos);
    const auto covered = Run({file, "design", "--cover", "50"});
    EXPECT_NE(covered.out, answer.out);
    const auto failed = Run({std::string(EXAMPLES) + "/fixed-ended-transfer-beam.TB", "design"});
    EXPECT_EQ(failed.exit, 0);  // the table is whole: it has the verdict
    EXPECT_EQ(failed.err, "Please Increase bv or d of beam.\n");
}

TEST_F(Export, JoinsManyProjectsInTheirOrderAndGoesOnPastARefusedOne) {
    std::vector<std::string> words;
    std::string expected = "project,joint,type,x,reaction,moment,rotation\r\n", complaint;
    for (int k = 1; k <= 100; ++k) {
        const auto name = "v" + std::to_string(k) + (k == 5 ? ",a" : "") + ".TB";
        const auto cell = k == 5 ? '"' + name + '"' : name;
        const auto P = std::to_string(3 * k);
        words.push_back(Write(name, bracket(P, k == 50 ? "2.5" : "2")));
        if (k == 50)
            complaint = words.back() +
                        ": Row 1 of the point loads, on member 1: a is 2.5, beyond the member's "
                        "end at 2. A beam with such a load has no reactions and no deflections; "
                        "correct the row.\n";
        else
            for (const auto& row : {",1,Fixed,0," + P + ",-" + std::to_string(6 * k) + ",0\r\n",
                                    ",2,Cantilever,2,0,0," + std::to_string(6 * k) + "\r\n"})
                expected.append(cell).append(row);
    }
    words.emplace_back("reactions");
    auto answer = Run(words);
    EXPECT_EQ(answer.exit, 1);
    EXPECT_EQ(answer.err, complaint);
    EXPECT_EQ(answer.out, expected);
    fs::create_directory(folder / "x");
    const auto first = Write("a.TB", bracket("1")), second = Write("x/a.TB", bracket("2"));
    answer = Run({first, second, "members", "--format", "json"});
    EXPECT_TRUE(
        answer.out.starts_with("{\"project\":null,\"designer\":null,\"beam\":null,"
                               "\"table\":\"members\",\n\"columns\":[\"project\","));
    EXPECT_NE(answer.out.find("[\n[\"" + first + "\",1,"), std::string::npos);
    EXPECT_NE(answer.out.find("],\n[\"" + second + "\",1,"), std::string::npos);
    // What the relaxation needs is not more than what an analysis needs.
    answer = Run({words[49], "relaxation"});
    EXPECT_EQ(answer.exit, 0);
    EXPECT_NE(answer.err.find("It was analysed as entered"), std::string::npos);
}

TEST_F(Export, OutReplacesATableByAWholeOneOrNothing) {
    const auto good = Write("a.TB", bracket("3")), bad = Write("bad.TB", bracket("3", "-1"));
    const auto out = (folder / "out.csv").string(), notes = Write("notes.txt", "mine");
    ASSERT_EQ(Run({good, "reactions", "--out", out}).exit, 0);
    const auto before = folder.contents();
    const std::vector<std::string> refusals[] = {
        {bad, "members", "--out", out},
        {bad, bad, "stations", "--out", out},
        {(folder / "none.TB").string(), "design", "--out", out},
        {good, "members", "--out", good},
        {good, "members", "--out", notes},
        {good, "members", "--out", (folder / "Joint.txt").string()},
        {good, "members", "--out", (folder / "none/out.csv").string()},
        {good, "stations", "--divisions", "0", "--out", out}};
    for (const auto& words : refusals) {
        const auto answer = Run(words);
        EXPECT_EQ(answer.exit, 1);
        EXPECT_EQ(answer.out, "");
        EXPECT_NE(answer.err, "");
        EXPECT_EQ(folder.contents(), before);
    }
    const auto answer = Run({bad, good, "members", "--out", out});
    EXPECT_EQ(answer.exit, 1);
    EXPECT_EQ(answer.out, "");
    EXPECT_EQ(folder.read("out.csv").substr(0, 15), "project,member,");
    EXPECT_EQ(folder.contents().size(), before.size());
}

TEST_F(Export, WrongUsageIsOneLineAndNoOutput) {
    const auto file = Write("a.TB", bracket("3"));
    const std::pair<std::vector<std::string>, std::string> rows[] = {
        {{file}, "\"export\" takes FILE.TB [FILE.TB ...] TABLE, not 1 names. Usage: "},
        {{file, "loads"},
         "There is no table \"loads\". The tables are relaxation, members, reactions, stations, "
         "design.\n"},
        {{file, "members", "--format", "xml"}, "--format takes csv or json, not \"xml\".\n"},
        {{file, "members", "--link", "-1"}, "--link takes a size of 0 mm or more.\n"}};
    for (const auto& [words, line] : rows) {
        const auto answer = Run(words);
        EXPECT_EQ(answer.exit, 2);
        EXPECT_EQ(answer.out, "");
        EXPECT_TRUE(answer.err.starts_with("trabeon-batch: " + line)) << answer.err;
    }
}

TEST_F(Export, RunShowsExactExtremesAndTakesSeveralProjects) {
    const auto a = Write("a.TB", bracket("3")), b = Write("b.TB", bracket("4", "2.5"));
    const auto none = (folder / "none.TB").string(), same = Write("a.tb", bracket("5"));
    const auto answer = batch({"run", a, none, same, b});
    EXPECT_EQ(answer.exit, 1);
    EXPECT_TRUE(answer.err.starts_with(none + ": ")) << answer.err;
    EXPECT_NE(answer.err.find("\n" + same + ": Its results would replace those of \"" + a + "\""),
              std::string::npos);
    EXPECT_NE(answer.err.find("\n" + b + ": Row 1 of the point loads, on member 1: a is 2.5"),
              std::string::npos);
    std::istringstream lines(answer.out);
    std::string kept;
    for (std::string line; std::getline(lines, line);)
        if (line.starts_with("Project file") || line.starts_with("1  ") ||
            line.starts_with("No reactions"))
            kept += line.substr(0, line.find(". A beam")) + '\n';
    EXPECT_EQ(kept, "Project file: " + a +
                        "\n1                 -6           0           0   -6.00E+00   -3.00E+00\n"
                        "1                  0           2          -6           0           8"
                        "           2\n"
                        "1                  3\nProject file: " +
                        b +
                        "\n1                -10          -2           0   -1.00E+01   -4.00E+00\n"
                        "No reactions and deflections: Row 1 of the point loads, on member 1: a is "
                        "2.5, beyond the member's end at 2\n");
    const auto out = (folder / "results").string();
    EXPECT_EQ(batch({"run", a, Write("c.TB", bracket("1")), "--out", out}).exit, 0);
    EXPECT_TRUE(fs::exists(folder / "results/a/BM.txt"));
    EXPECT_TRUE(fs::exists(folder / "results/c/BM.txt"));
}

}  // namespace
}  // namespace trabeon
