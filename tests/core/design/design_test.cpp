// The run: what is read, what carries over, and the lines that come out.
#include "core/design/design.h"
#include "core/analysis/result_files.h"
#include "core/analysis/result_state.h"
#include "core/store/project_file.h"

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

std::string lineOf(const DesignRow& row) {
    return textOf(std::vector{row}, Description::bare);
}

TEST(DesignRun, WritesTheseLines) {
    // b 300, d 400, fcu 30, fy 460, fyv 250, L 6, cover 25, link 10, hagg 0. In every section:
    // Max Rein 0.04 × 300 × 400 = 4800; minimum 0.002 × 120000 = 240 in both faces; L/d = 15;
    // v is below 0.87 sqrt(30) = 4.765; (30/25)^(1/3) = 1.06266; a pinned end: basic ratio 16.
    //
    // Zero moment, V 84.6: both faces 240: 4Y10 (W 125), 3Y12 (W 116) fit, 2Y16 ends: 402.1.
    //   p = 0.3351, vc = 0.79 × 0.3351^(1/3) / 1.25 × 1.06266 = 0.4665; v = 0.705, below 0.8665:
    //   0.4 × 300 / 217.5 = 0.5517; 56.549 / 103 = 0.5490 is too little, / 102 = 0.5544.
    //   fs = 0.625 × 460 × 240 / 402.1 = 171.6; Ft = 0.55 + 305.4 / 108 = 3.4, so 2;
    //   Fc = 1 + 0.3351 / 3.3351 = 1.1005; 16 × 2 × 1.1005 = 35.2.
    // Sagging 123: K = 123E6 / (300 × 400² × 30) = 0.08542, z = 357.53 below 360,
    //   As = 123E6 / (400.2 × 357.53) = 859.6: 11Y10 (W 230), 8Y12, 5Y16, 3Y20 fit, 2Y25 ends:
    //   981.7. v = 0: links as above. fs = 251.7, m = 2.5625: Ft = 0.55 + 225.3 / 415.5 = 1.0921;
    //   16 × 1.0921 × 1.1005 = 19.2.
    // Hogging 98.7, V -120: K = 0.06854, z = 360, 98.7E6 / (400.2 × 360) = 685.1: 2Y25 above.
    //   vc 0.4665 from the lower bars, v = 1: 0.5335 × 300 / 217.5 = 0.7359; 6 mm reach 0.565;
    //   8 mm: 100.53 / 137 = 0.7338, / 136 = 0.7392. fs = 171.6, m = 2.05625: Ft = 1.4109;
    //   Fc = 1 + 0.8181 / 3.8181 = 1.2143; 27.4.
    // Hogging 260, V 195: K = 0.18056: z = 310.75, d'/d = 0.094, fsc = 400.2. With fcu b d² =
    //   1.44E9: 0.0245556 × 1.44E9 / (400.2 × 362.5) = 243.7 below: 4Y10, 3Y12 fit, 2Y16 ends;
    //   0.156 × 1.44E9 / (400.2 × 310.75) + 243.7 = 2050.0 above: 5Y25 (W 215): 2454.4.
    //   v = 1.625: (1.625 - 0.4665) × 300 / 217.5 = 1.598; 10 mm reach 1.571;
    //   12 mm: 226.195 / 142 = 1.593, / 141 = 1.604. fs = 174.3, m = 5.4167: Ft = 0.9494;
    //   p = 2.0453: Fc = 1.4054; 21.3.
    const auto beam =
        memberOf({usual}, {"0.00E+00,0.00E+00,-8.46E+01", "2.10E+00,1.23E+02,0.00E+00",
                           "3.00E+00,-9.87E+01,-1.20E+02", "6.00E+00,-2.60E+02,1.95E+02"});
    const auto design = beam.design();
    const std::string lines =
        " 1, 0, 240, 240, 402, 402, 4800, 2Y 16 &   2Y 16, 0.552, 0.554, 1R 6- 102, 15, 35,"
        "Shear OK Def. OK\r\n"
        " 1, 2.1, 859, 240, 981, 402, 4800, 2Y 25 &   2Y 16, 0.552, 0.554, 1R 6- 102, 15, 19,"
        "Shear OK Def. OK\r\n"
        " 1, 3, 240, 685, 402, 981, 4800, 2Y 16 &   2Y 25, 0.736, 0.739, 1R 8- 136, 15, 27,"
        "Shear OK Def. OK\r\n"
        " 1, 6, 243, 2050, 402, 2454, 4800, 2Y 16 &   5Y 25, 1.6, 1.6, 1R 12- 141, 15, 21,"
        "Shear OK Def. OK\r\n";
    EXPECT_FALSE(design.ShearFailed);
    EXPECT_EQ(textOf(design.rows, Description::bare), lines);

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

/// The note, links required and provided and link text of each section.
Texts shearOf(const BeamDesign& design) {
    Texts texts;
    for (const auto& row : design.rows)
        texts.push_back(row.DefNote + '|' + row.AsvOsvreq + row.AsvOsvprov + row.ShearRein);
    return texts;
}

TEST(DesignRun, ShearFailureMarksEveryLaterSectionAndKeepsTheLastLinks) {
    // 60 kN want the least links; 600 kN are 5 N/mm2, above 4.765: what was required stays
    const std::string least = " Def. OK| 0.552 0.554 1R 6- 102";
    const auto design = memberOf({usual}, {"0,0,60", "1,0,600", "2,0,60"}).design();
    EXPECT_TRUE(design.ShearFailed);
    EXPECT_EQ(shearOf(design),
              (Texts{"Shear OK" + least, "Shear Failed!" + least, "Shear Failed!" + least}));
    EXPECT_EQ(shearOf(memberOf({usual}, {"0,0,600", "1,0,60", "2,0,0"}).design()),
              (Texts{"Shear Failed! Def. OK| 0 0", "Shear Failed! Def. OK| 0.552 0",
                     "Shear Failed! Def. OK| 0.552 0"}));
    // too shallow for links, it fails alone and leaves the flag
    const auto shallow = memberOf({usual, "300,150,133.3,30,460,200000,250,1", usual},
                                  {"0,0,10", "1,0,10", "2,0,10"})
                             .design();
    EXPECT_FALSE(shallow.ShearFailed);
    EXPECT_EQ(shearOf(shallow),
              (Texts{"Shear OK" + least, "Shear Failed! Def. OK| 0.552 0", "Shear OK" + least}));
}

TEST(DesignRun, SectionWithoutDimensionsIsDesignedAsTheOneBefore) {
    const auto rows =
        memberOf({"", usual, "", usual}, {"0,0,0", "1.236,100,50", "2,-200,150", "3,0,0"})
            .design()
            .rows;
    EXPECT_EQ(rows[0].x + rows[0].DefNote, " 0No Data");  // before any, all is 0
    auto half = memberOf({usual, usual, "", usual}, {"0,0,0", "1.236,100,50", "2,0,0", "3,0,0"});
    half.stations.resize(half.stations.find("2,0,0"));
    const auto cut = half.design().rows;
    EXPECT_EQ(cut[1].DefNote, "Shear OK Def. OK");
    EXPECT_EQ(cut[2].DefNote + cut[3].DefNote, "No DataNo Data");  // the stations ran out
    EXPECT_EQ(rows[1].x, " 1.24");
    EXPECT_EQ(lineOf(rows[2]), lineOf(rows[1]));
    EXPECT_NE(rows[3].Asreq, rows[2].Asreq);
}

TEST(DesignRun, SectionWhoseValuesCannotBeCalculatedSaysNoData) {
    for (const auto* sizes :
         {"0,450,400,30,460,200000,250,6", "300,450,,30,460,200000,250,6",
          "300,450,400,-1,460,200000,250,6", "300,450,400,30,,200000,250,6",
          "300,450,400,30,460,200000,0,6", "1E999,450,400,30,460,200000,250,6",
          "300,450,400,30,460,200000,250,1E999", "1E200,450,1E200,30,460,200000,250,6",
          "300,450,37.5,30,460,200000,250,6", "300,450,150,30,460,0,250,6"})
        EXPECT_EQ(lineOf(memberOf({sizes}, {"0,0,0", "1.5,-500,10", "2,0,0"}).design().rows[1]),
                  " 1, 1.5, 0, 0, 0, 0, 0,, 0, 0,, 0, 0,No Data\r\n")
            << sizes;
    // nor does it touch what carries over: the links of section 1 stand in section 3
    const auto rows =
        memberOf({usual, "300,450,400,30,460,200000,0,6", usual}, {"0,0,10", "1,0,10", "2,0,600"})
            .design()
            .rows;
    EXPECT_EQ(rows[1].DefNote, "No Data");
    EXPECT_EQ(rows[2].AsvOsvreq + rows[2].ShearRein, " 0.552 1R 6- 102");
    // no modulus is needed without compression steel; the overall depth never
    EXPECT_EQ(
        memberOf({"300,,400,30,460,,250,6"}, {"0,0,0", "1,50,9", "2,0,0"}).design().rows[1].DefNote,
        "Shear OK Def. OK");
}

TEST(DesignRun, TakesThePropertiesOfTheBeam) {
    Beam beam = memberOf({"300,450,400,30,460,200000,250,10.1"}, {"0,0,0", "1,-260,0", "2,0,0"});
    beam.joints = "1,Fixed,a\r\n2,Cantilever,b\r\n";
    const auto row = [&](const MiscProperties& misc) { return beam.design(misc).rows[1]; };
    EXPECT_EQ(row({}).DefActual + row({}).DefAllow + row({}).DefNote,
              " 0 0Please Provide Manual Calculation");
    EXPECT_EQ(row({50, 10, 0, false}).DefNote, "Shear OK Def. Failed!");
    EXPECT_EQ(row({50, 10, 0, false}).Asreq, " 261");  // 35.36E6 / (400.2 × 337.5)
    EXPECT_EQ(row({25, 10, 40, false}).MomentRein, " 2Y 16 &   5Y 25");
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
