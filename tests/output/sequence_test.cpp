#include <gtest/gtest.h>

#include "report/output/lotus_output.h"
#include "report/output/word_output.h"
#include "tests/output/recording.h"
#include "tests/support/scripted_outside.h"
#include "tests/support/temporary_folder.h"

namespace trabeon::test {
namespace {

constexpr OutputKinds nothing{false, false, false, false, false, false, false, false, false};
constexpr OutputKinds everything{true, true, true, true, true, true, true, true, true};

constexpr auto stopped =
    "The Word For Windows Program Was Automatically and Purposely Exitted Due To The Programmer's "
    "Preference in Using Lotus. However, if you would like to use Word For Windows For Your "
    "Printing Purposes, Please Email The Programmer.";

OutputKinds only(bool OutputKinds::*kind) {
    OutputKinds kinds = nothing;
    kinds.*kind = true;
    return kinds;
}

class Sequence : public testing::Test {
  protected:
    /// Two members in two divisions.
    void WriteBeam() {
        folder.write("Joint.txt", "1,Fixed,\"None\"\r\n2,Continuous,Mid\r\n 3,Fixed,\"None\"\r\n");
        folder.write("Member.txt", "1,200,2,6,\"None\"\r\n2,200,2,6,\"None\"\r\n");
        folder.write("Point.txt", "1,1,0,Zero Load\r\n");
        folder.write("Udl.txt", "1,0,6,12,12,A\r\n2,0,6,12,12,B\r\n");
        folder.write("TB.txt", "JOINT     Cell 1 aa     Cell 2 bb     \r\nFinal     +1     ");
        folder.write("BM.txt",
                     "Span 1 \r\n0,1,2\r\n1,2,3\r\n1,2,4\r\n2,3,4\r\n"
                     "Span 2 \r\n0,5,6\r\n1,6,7\r\n1,6,8\r\n2,7,8\r\n");
        folder.write("BeamDim.txt", "1,1,300,500,450,30,460,200,250,6\r\n");
        folder.write("DResult.txt", " 1, 0, 1, 2, 3, 4, 5, 2Y16, 0.4, 0.5, 1R6, 20, 27,OK\r\n");
    }

    template <class Output>
    OutputEnd Write(const OutputKinds& kinds) {
        const OutputSource source{folder.path(), {"P", "D", "B1"}, 2, charts};
        Output writer(source, objWord);
        return writeProject(source, kinds, writer);
    }

    ScriptedOutside outside;
    TemporaryFolder folder;
    RecordingProcessor objWord;
    RecordingCharts charts{objWord.calls, 2};
};

const Calls wordTitleEnd{"Selection.Font.Underline 0", "Selection.TypeParagraph",
                         "Selection.TypeParagraph", "Selection.Font.Name \"Times New Roman\""};

void append(Calls& calls, const Calls& more) {
    calls.insert(calls.end(), more.begin(), more.end());
}

Calls wordTitle(const std::string& title) {
    Calls calls{"Selection.Font.Underline 1", "Selection.Font.Name \"Arial Black\"",
                "Selection.TypeText Text=\"" + title + "\""};
    append(calls, wordTitleEnd);
    return calls;
}

Calls wordBegin() {
    const std::string page = "ActiveDocument.PageSetup.";
    Calls calls{"Visible True", "Documents.Add"};
    for (const auto* property :
         {"LineNumbering.Active False", "Orientation 1", "TopMargin 89.85827",
          "BottomMargin 89.85827", "LeftMargin 72", "RightMargin 72", "Gutter 0",
          "HeaderDistance 36", "FooterDistance 36", "PageWidth 792", "PageHeight 612",
          "FirstPageTray 0", "OtherPagesTray 0", "SectionStart 2",
          "OddAndEvenPagesHeaderFooter False", "DifferentFirstPageHeaderFooter False",
          "VerticalAlignment 0", "SuppressEndnotes False", "MirrorMargins False"})
        calls.push_back(page + property);
    append(calls, wordTitle("TRABEON (P) by D"));
    append(calls, wordTitle("B1"));
    return calls;
}

Calls wordTable(int columns, int lines) {
    const std::string count = std::to_string(lines);
    return {"Selection.MoveUp Unit=5, Count=" + count + ", Extend=1",
            "Selection.ConvertToTable Separator=2, NumColumns=" + std::to_string(columns) +
                ", NumRows=" + count +
                ", Format=0, ApplyBorders=True, ApplyShading=True, ApplyFont=True, "
                "ApplyColor=True, ApplyHeadingRows=True, ApplyLastRow=False, "
                "ApplyFirstColumn=True, ApplyLastColumn=False, AutoFit=False",
            "Selection.Cells.HeightRule 0",
            "Selection.Rows.Alignment 0",
            "Selection.Rows.AllowBreakAcrossPages True",
            "Selection.Cells.AutoFit",
            "Selection.Font.Size 7",
            "Selection.MoveDown Unit=5, Count=2",
            "Selection.TypeParagraph"};
}

Calls wordBold(const std::string& text) {
    return {"Selection.Font.Bold True", "Selection.TypeText Text=\"" + text + "\""};
}

TEST_F(Sequence, WordWithNoKindHasItsTwoTitles) {
    EXPECT_TRUE(Write<WordOutput>(nothing).whole);
    EXPECT_EQ(objWord.calls, wordBegin());
}

TEST_F(Sequence, WordTypesTheLinesOfATableAndTurnsThem) {
    WriteBeam();
    EXPECT_TRUE(Write<WordOutput>(only(&OutputKinds::joints)).whole);
    Calls expected = wordBegin();
    append(expected, wordTitle("Joints"));
    append(expected, wordBold("Joint,Type,Name"));
    append(expected, {"Selection.TypeParagraph", "Selection.Font.Bold False"});
    for (const auto& [number, type, name] : {std::array{"1", ",Fixed", ",None"},
                                             {"2", ",Continuous", ",Mid"},
                                             {"3", ",Fixed", ",None"}}) {
        append(expected, wordBold(number));
        append(
            expected,
            {"Selection.Font.Bold False", "Selection.TypeText Text=\"" + std::string(type) + "\"",
             "Selection.TypeText Text=\"" + std::string(name) + "\"", "Selection.TypeParagraph"});
    }
    append(expected, wordTable(3, 4));
    EXPECT_EQ(objWord.calls, expected);
}

TEST_F(Sequence, WordPutsTheDiagramsOfAMemberSideBySide) {
    EXPECT_TRUE(Write<WordOutput>(only(&OutputKinds::diagrams)).whole);
    Calls expected = wordBegin();
    expected.emplace_back("(show single span)");
    append(expected, wordTitle("Bending Moments & Shear Force Diagrams By Members"));
    for (int i = 0; i < 2; ++i) {
        const auto number = std::to_string(i);
        append(expected, wordBold("Member  " + std::to_string(i + 1)));
        append(expected,
               {"Selection.TypeParagraph", "Selection.Font.Bold False", "Selection.TypeParagraph",
                "(moment " + number + ")", "Selection.Paste", "(shear " + number + ")",
                "Selection.Paste",
                "ActiveDocument.Shapes.Select \"Picture " + std::to_string(2 * i + 2) + "\""});
        append(expected, Calls(30, "Selection.ShapeRange.IncrementLeft 7.2"));
        expected.emplace_back("Selection.EndKey Unit=6");
    }
    EXPECT_EQ(objWord.calls, expected);
}

TEST_F(Sequence, WordPastesTheContinuousDiagrams) {
    EXPECT_TRUE(Write<WordOutput>(only(&OutputKinds::continuous)).whole);
    Calls expected = wordBegin();
    append(expected, wordTitle("Continuous Bending Moment & Shear Force Diagrams"));
    append(expected, {"(plot continuous)", "(continuous moment)", "Selection.Paste",
                      "Selection.TypeParagraph", "(continuous shear)", "Selection.Paste",
                      "Selection.TypeParagraph", "(restore)"});
    EXPECT_EQ(objWord.calls, expected);
}

const std::vector<std::string> wordOutline{"Selection.Font.Name \"Arial", "Selection.MoveUp",
                                           "Application.Quit", "Selection.Paste"};

TEST_F(Sequence, WordStopsAtTheValues) {
    WriteBeam();
    outside.ExpectMsgBox(stopped);
    const auto end = Write<WordOutput>(everything);
    EXPECT_FALSE(end.whole);
    EXPECT_EQ(end.failure, "");
    EXPECT_EQ(outside.lastStyle, 3);
    EXPECT_EQ(outside.lastTitle, "Use Lotus");
    EXPECT_EQ(objWord.calls.back(), "Application.Quit");
    EXPECT_EQ(objWord.of({"Selection.MoveUp"}),
              (Calls{"Selection.MoveUp Unit=5, Count=4, Extend=1",
                     "Selection.MoveUp Unit=5, Count=3, Extend=1",
                     "Selection.MoveUp Unit=5, Count=2, Extend=1",
                     "Selection.MoveUp Unit=5, Count=3, Extend=1",
                     "Selection.MoveUp Unit=5, Count=2, Extend=1",  // the balance table: no head
                     "Selection.MoveUp Unit=5, Count=6, Extend=1"}));
    EXPECT_EQ(
        objWord.of({"Selection.TypeText Text=\"Span", "Selection.TypeText Text=\"x,"}),
        (Calls{"Selection.TypeText Text=\"Span 1, , \"", "Selection.TypeText Text=\"x,M,S\""}));
    EXPECT_EQ(folder.read("TB.tmp"), "JOINT,Cell 1 aa,Cell 2 bb,,\r\nFinal,+1     ,,,\r\n");
}

TEST_F(Sequence, WordGoesOnToTheEndWithoutTheValues) {
    WriteBeam();
    OutputKinds kinds = everything;
    kinds.values = false;
    EXPECT_TRUE(Write<WordOutput>(kinds).whole);
    const auto titles = objWord.of({"Selection.TypeText Text=\"Beam D", "Selection.Paste"});
    EXPECT_EQ(titles.size(), 2 + 6U);
    EXPECT_EQ(objWord.of({"Selection.ConvertToTable"}).size(), 7U);
    EXPECT_EQ(objWord.of({"Selection.TypeText Text=\"Member No,x,As"}),
              Calls{"Selection.TypeText Text=\"Member No,x,As req,As' req,As prov,As'prov,Max "
                    "Reinf,Reinf,E,Asv/sv req,Asv/sv prov,Reinf,\""});
}

TEST_F(Sequence, WordMakesATableOfTheHeadAloneFromAnEmptyFile) {
    outside.ExpectMsgBox(stopped);
    EXPECT_FALSE(Write<WordOutput>(everything).whole);
    const std::string one = "Selection.MoveUp Unit=5, Count=1, Extend=1";
    EXPECT_EQ(objWord.of({"Selection.MoveUp"}),
              (Calls{one, one, one, one, "Selection.MoveUp Unit=5, Count=0, Extend=1"}));
}

Calls lotusTitle(const std::string& title) {
    return {"Underline",
            "Text.Font.FontName \"Arial Black\"",
            "Type \"" + title + "\"",
            "Underline",
            "Type \"[Enter][Enter]\"",
            "Text.Font.FontName \"Times New Roman\""};
}

Calls lotusBegin() {
    Calls calls{"Visible True", R"(NewDocument "", "", "default.mwp", "", "", "")",
                "Page.Layout.RightPage.LandscapeMode True", "Text.Font.Size 10"};
    append(calls, lotusTitle("TRABEON (P) by D"));
    append(calls, lotusTitle("B1"));
    return calls;
}

Calls lotusRow(const Calls& fields) {
    Calls calls{"Bold", "Type \"" + fields[0] + "\"", "Bold", "Type \"[tab]\""};
    for (std::size_t i = 1; i < fields.size(); ++i)
        append(calls, {"Type \"" + fields[i] + "\"", "Type \"[tab]\""});
    return calls;
}

const Calls lotusTableEnd{"Type \"[shiftRight][shiftRight]\"", "Undo", "Type \"[Down][Enter]\"",
                          "Type \"[Enter][Enter]\""};

TEST_F(Sequence, LotusKeysATableIn) {
    WriteBeam();
    EXPECT_TRUE(Write<LotusOutput>(only(&OutputKinds::joints)).whole);
    Calls expected = lotusBegin();
    append(expected, lotusTitle("Joints"));
    expected.emplace_back("CreateTable False, \"Default Table\", 3, 3");
    append(expected, lotusRow({"1", "Fixed", "None"}));
    append(expected, lotusRow({"2", "Continuous", "Mid"}));
    append(expected, lotusRow({"3", "Fixed", "None"}));
    append(expected, lotusTableEnd);
    EXPECT_EQ(objWord.calls, expected);
}

TEST_F(Sequence, LotusMakesATableAMemberOfTheValues) {
    WriteBeam();
    EXPECT_TRUE(Write<LotusOutput>(only(&OutputKinds::values)).whole);
    Calls expected = lotusBegin();
    append(expected, lotusTitle("Bending Moment & Shear Force Values"));
    for (const auto& [heading, first] :
         {std::pair{"Span 1", Calls{"0", "1", "2"}}, {"Span 2", Calls{"0", "5", "6"}}}) {
        append(expected, {"CreateTable False, \"Default Table\", 3, 4", "Bold",
                          "Type \"" + std::string(heading) + "[tab][tab][tab]\"", "Bold", "Bold",
                          "Type \"x[tab]\"", "Bold", "Type \"M[tab]\"", "Bold", "Type \"S[tab]\""});
        Calls row = lotusRow(first);
        row.erase(row.begin());  // bold is on already
        append(expected, row);
        const bool one = first[1] == "1";
        append(expected, lotusRow({"1", one ? "2" : "6", one ? "3" : "7"}));
        append(expected, lotusRow({"1", one ? "2" : "6", one ? "4" : "8"}));
        append(expected, lotusRow({"2", one ? "3" : "7", one ? "4" : "8"}));
        append(expected, {"Undo", "Type \"[right][enter][enter]\""});
    }
    EXPECT_EQ(objWord.calls, expected);
}

TEST_F(Sequence, LotusPassesPicturesByKeys) {
    OutputKinds kinds = only(&OutputKinds::diagrams);
    kinds.continuous = true;
    EXPECT_TRUE(Write<LotusOutput>(kinds).whole);
    Calls expected = lotusBegin();
    expected.emplace_back("(show single span)");
    append(expected, lotusTitle("Bending Moments & Shear Force Diagrams By Members"));
    for (int i = 0; i < 2; ++i) {
        const auto number = std::to_string(i);
        append(expected,
               {"Bold", "Type \"Member  " + std::to_string(i + 1) + "\"", "Type \"[Enter]\"",
                "Bold", "(moment " + number + ")", "Paste", "Type \"[Esc]\""});
        append(expected, Calls(6, "Type \"[tab]\""));
        append(expected, {"(shear " + number + ")", "Paste", "Type \"[Esc]\""});
        append(expected, Calls(10, "Type \"[Enter]\""));
    }
    append(expected, lotusTitle("Continuous Bending Moment & Shear Force Diagrams"));
    expected.emplace_back("(plot continuous)");
    for (const auto* picture : {"(continuous moment)", "(continuous shear)"}) {
        append(expected, {picture, "Paste", "Type \"[Esc]\""});
        append(expected, Calls(25, "Type \"[Enter]\""));
    }
    expected.emplace_back("(restore)");
    EXPECT_EQ(objWord.calls, expected);
}

TEST_F(Sequence, LotusRunsThroughAllKinds) {
    WriteBeam();
    EXPECT_TRUE(Write<LotusOutput>(everything).whole);
    const std::string table = "CreateTable False, \"Default Table\", ";
    EXPECT_EQ(objWord.of({"CreateTable"}),
              (Calls{table + "3, 3", table + "5, 2", table + "4, 1", table + "6, 2", table + "5, 2",
                     table + "3, 4", table + "3, 4", table + "10, 1", table + "14, 1"}));
}

TEST_F(Sequence, LotusHandsNoRowsOfEmptyFiles) {
    EXPECT_TRUE(Write<LotusOutput>(everything).whole);
    const std::string table = "CreateTable False, \"Default Table\", ";
    EXPECT_EQ(objWord.of({"CreateTable"}),
              (Calls{table + "3, 0", table + "5, 0", table + "4, 0", table + "6, 0",
                     table + "-1, 0", table + "10, 0", table + "14, 0"}));
}

TEST_F(Sequence, AFieldThatReadsLikeACommandStaysText) {
    folder.write("Joint.txt", "1,Fixed,see [tab] key\r\n");
    EXPECT_TRUE(Write<LotusOutput>(only(&OutputKinds::joints)).whole);
    EXPECT_EQ(objWord.of({"Type \"see", "Type \"tab"}),
              (Calls{"Type \"see [\"", "Type \"tab] key\""}));
}

TEST_F(Sequence, AScratchFileThatCannotBeWrittenEndsIt) {
    std::filesystem::create_directory(folder / "TB.tmp.new");
    const auto end = Write<LotusOutput>(everything);
    EXPECT_FALSE(end.whole);
    EXPECT_NE(end.failure.find("TB.tmp"), std::string::npos) << end.failure;
}

}  // namespace
}  // namespace trabeon::test
