// The run: what is read, what carries over, and the lines that come out.
#include "core/design/design.h"
#include "core/analysis/result_files.h"
#include "core/analysis/result_state.h"
#include "core/store/project_file.h"

#include <algorithm>
#include <sstream>

#include "tests/support/table.h"
#include "tests/support/temporary_folder.h"

namespace trabeon {
namespace {

using Texts = std::vector<std::string>;

const std::string usual = "300,450,400,30,460,200000,250,6";  // b, d, d', fcu, fy, E, fyv, L

/// A beam of members between a pin and a continuous joint, in Divisions + 2 sections each.
struct Beam {
    std::string joints = "1,Pin Jointed,a\r\n2,Continuous,b\r\n3,Continuous,c\r\n";
    std::size_t members = 1, Divisions = 2;
    std::string dimensions, stations;

    Beam& section(int Member, int number, const std::string& sizes) {
        dimensions += std::to_string(Member) + ',' + std::to_string(number) + ',' + sizes + "\r\n";
        return *this;
    }
    [[nodiscard]] DesignData data() const {
        return DesignData::read(rowsOf<JointRow>(joints), members,
                                rowsOf<BeamDimensionRow>(dimensions), stations, Divisions);
    }
    [[nodiscard]] BeamDesign design(const MiscProperties& misc = {}) const {
        return designBeam(data(), misc);
    }
};

/// One member of stations "x,moment,shear", each with its sizes or all with the same.
Beam memberOf(const Texts& sizes, const Texts& stations) {
    Beam beam;
    beam.Divisions = stations.size() - 2;
    beam.stations = "Span 1 \r\n";
    for (std::size_t i = 0; i < stations.size(); ++i) {
        const auto& own = sizes[std::min(i, sizes.size() - 1)];
        if (!own.empty())
            beam.section(1, static_cast<int>(i + 1), own);
        beam.stations += stations[i] + "\r\n";
    }
    return beam;
}

/// "a//b" is a, nothing and b.
Texts partsOf(const std::string& text) {
    Texts parts(1);
    for (const char c : text)
        if (c == '/')
            parts.emplace_back();
        else
            parts.back() += c;
    std::replace(parts.begin(), parts.end(), std::string("u"), usual);
    return parts;
}

TEST(DesignRun, WritesTheLinesOfTheTable) {
    const auto run = [](const test::Row& row) {
        MiscProperties misc;
        std::istringstream properties(row[2]);
        std::string last;
        properties >> misc.cover >> misc.links >> misc.hagg >> misc.restrictDeflection >> last;
        auto beam = memberOf(partsOf(row[0]), partsOf(row[1]));
        if (last == "cantilever")
            beam.joints = "1,Fixed,a\r\n2,Cantilever,b\r\n";
        auto lines = textOf(beam.design(misc).rows, Description::bare);
        for (std::size_t end; (end = lines.find("\r\n")) != lines.npos;)
            lines.replace(end, 2, "/");
        return std::vector<test::Cell>{lines};
    };
    test::expectTables(TABLES "/design/runs.csv", {{"run", run}});
}

TEST(DesignRun, EndsWithTheStations) {
    auto half = memberOf({usual, usual, "", usual}, {"0,0,0", "1.236,100,50", "2,0,0", "3,0,0"});
    half.stations.resize(half.stations.find("2,0,0"));
    const auto cut = half.design().rows;
    EXPECT_EQ(cut[1].DefNote, "Shear OK Def. OK");
    EXPECT_EQ(cut[2].DefNote + cut[3].DefNote, "No DataNo Data");
}

TEST(DesignFolder, WritesItsFileOrRefuses) {
    const auto beam = memberOf({usual}, {"0,0,-84.6", "2.1,123,0", "3,-98.7,-120", "6,-260,195"});
    const auto lines = textOf(beam.design().rows, Description::bare);
    const test::TemporaryFolder folder;
    folder.write("Joint.txt", beam.joints);
    folder.write("Member.txt", " 1,1,1,6,a\r\n");
    folder.write("BeamDim.txt", beam.dimensions);
    folder.write("BM.txt", beam.stations);
    ASSERT_TRUE(designFolder(folder.path(), 2, {}));
    EXPECT_EQ(folder.read("DResult.txt"), lines);
    EXPECT_EQ(readRows<DesignRow>(folder.path())[1].MomentRein, "2Y 25 &   2Y 16");
    for (const double Divisions : {0.0, 2.5, 10001.0})
        EXPECT_FALSE(designFolder(folder.path(), Divisions, {}));
    EXPECT_FALSE(designFolder(folder.path(), 2, {1 / 0.0}));
    EXPECT_FALSE(designFolder(folder / "none", 2, {}));
    for (const auto* name : {"BM.txt", "BeamDim.txt", "Member.txt", "Joint.txt"}) {
        std::filesystem::remove(folder / name);
        std::filesystem::create_directory(folder / name);
        const auto refused = designFolder(folder.path(), 2, {});
        ASSERT_FALSE(refused);
        EXPECT_TRUE(refused.refusal().sentence.starts_with('"' + (folder / name).string() +
                                                           "\" cannot be read (it is a folder)"));
        EXPECT_EQ(folder.read("DResult.txt"), lines);
    }
}

TEST(GetData, FindsSectionsByNumberAndStationsByPlace) {
    Beam beam;
    beam.members = 2;
    beam.Divisions = 1;
    beam.stations =
        "Span 1 \r\n0,1,2\r\n3,-4,-5\r\n6,7,8\r\nSpan 2 \r\n0,10,11\r\n3,12,-13\r\n6,-14,15\r\n";
    beam.section(2, 2, "1,2,3,4,5,6,7,8").section(1, 2, "9,9,9,9,9,9,9,9");
    beam.section(2, 2, "0,0,0,0,0,0,0,0");  // the first row of a section counts
    EXPECT_EQ(beam.data().GetData(2, 1), (SectionData{1, 2, 3, 4, 5, 6, 7, 8, 3, 12, 13, 12, -13}));
    EXPECT_EQ(beam.data().GetData(2, 0), std::nullopt);
    EXPECT_EQ(beam.data().GetData(1, 1), (SectionData{9, 9, 9, 9, 9, 9, 9, 9, 3, 4, 5, -4, -5}));
    EXPECT_TRUE(beam.data().stationsFit());
    const auto [count, Member, Section] = beam.data().missingDimensions();
    EXPECT_EQ((std::vector{count, Member, Section}), (std::vector<std::size_t>{4, 1, 1}));
    const auto whole = beam.stations;
    for (const auto& text :
         {whole + "Span 3 \r\n", "Title\r\n" + whole.substr(9), whole.substr(0, whole.size() - 10),
          "0,1,2\r\n" + whole, std::string()}) {
        beam.stations = text;
        EXPECT_FALSE(beam.data().stationsFit()) << text;
    }
}

TEST(Results, KnowTheInputThatTheyWereMadeFrom) {
    const test::TemporaryFolder folder;
    const auto remarks = [&](double Divisions = 10) {
        return std::vector{std::string(remarkOn(tableState(folder.path()))),
                           std::string(remarkOn(stationsState(folder.path(), Divisions))),
                           std::string(remarkOnDesign(folder.path(), Divisions, {}))};
    };
    const std::string none(noResults), analyse(analyseAgain), design(designAgain);
    const auto project = std::string(EXAMPLES) + "/two-span-floor-beam.TB";
    ASSERT_TRUE(unpackProject(project, folder.path()));
    EXPECT_EQ(remarks(), (Texts{"", none, ""}));  // the table came with it
    ASSERT_TRUE(analyseFolder(folder.path(), {}, {}));
    ASSERT_TRUE(designFolder(folder.path(), 10, {}));
    EXPECT_EQ(remarks(), (Texts{"", "", ""}));
    EXPECT_EQ(remarks(20), (Texts{"", analyse, analyse}));
    EXPECT_EQ(remarkOnDesign(folder.path(), 10, {30}), design);
    const auto changed = [&](const std::string& name, const std::string& from,
                             const std::string& to) {
        const auto rows = folder.read(name);
        auto edited = rows;
        edited.replace(edited.find(from), from.size(), to);
        folder.write(name, edited);
        auto found = remarks();
        folder.write(name, rows);
        return found;
    };
    const Texts again{analyse, analyse, analyse}, same{"", "", ""};
    EXPECT_EQ(changed("Joint.txt", "Pin Jointed", "Fixed"), again);
    EXPECT_EQ(changed("Member.txt", ",6,", ",6.5,"), again);
    EXPECT_EQ(changed("Udl.txt", ",12,12,", ",12,13,"), again);
    EXPECT_EQ(changed("Point.txt", "1,1,0,Zero Load", "1,1,5,typed"), again);
    EXPECT_EQ(changed("BeamDim.txt", "300", "310"), (Texts{"", "", design}));
    // What makes no difference to the results: descriptions, spelling, rows without a load.
    EXPECT_EQ(changed("Joint.txt", "Wall A", "\"Wall, A\""), same);
    EXPECT_EQ(changed("Member.txt", ",6,", ",6.00,"), same);
    EXPECT_EQ(changed("Point.txt", " 1,1,0,Zero Load\r\n", ""), same);
    ASSERT_TRUE(
        unpackProject(std::string(EXAMPLES) + "/fixed-ended-transfer-beam.TB", folder.path()));
    EXPECT_EQ(remarks(), (Texts{"", analyse, analyse}));
    std::filesystem::remove(folder / "Record.txt");  // made by hand, or by another program
    EXPECT_EQ(remarks(), (Texts{analyse, analyse, analyse}));
}

}  // namespace
}  // namespace trabeon
