// The calls to the two word processors: each case is a file of the expected calls.
#include <gtest/gtest.h>

#include <ostream>

#include "output/lotus_output.h"
#include "output/word_output.h"
#include "tests/output/recording.h"
#include "tests/support/scripted_outside.h"
#include "tests/support/temporary_folder.h"

namespace trabeon::test {
namespace {

struct Case {
    const char* file;
    OutputKinds kinds;
    bool hasBeam = true;

    [[nodiscard]] bool isWord() const { return std::string_view(file).starts_with("word"); }
    friend std::ostream& operator<<(std::ostream& out, const Case& one) { return out << one.file; }
};

/// Two members in two divisions.
void writeBeam(const TemporaryFolder& folder) {
    folder.write("Joint.txt", "1,Fixed,\"None\"\r\n2,Continuous,Mid\r\n 3,Fixed,\"None\"\r\n");
    folder.write("Member.txt", "1,200,2,6,\"None\"\r\n2,200,2,6,\"None\"\r\n");
    folder.write("Point.txt", "1,1,0,Zero Load\r\n");
    folder.write("Udl.txt", "1,0,6,12,12,A\r\n2,0,6,12,12,see [tab] key\r\n");
    folder.write("TB.txt", "JOINT     Cell 1 aa     Cell 2 bb     \r\nFinal     +1     ");
    folder.write("BM.txt",
                 "Span 1 \r\n0,1,2\r\n1,2,3\r\n1,2,4\r\n2,3,4\r\n"
                 "Span 2 \r\n0,5,6\r\n1,6,7\r\n1,6,8\r\n2,7,8\r\n");
    folder.write("BeamDim.txt", "1,1,300,500,450,30,460,200,250,6\r\n");
    folder.write("DResult.txt", " 1, 0, 1, 2, 3, 4, 5, 2Y16, 0.4, 0.5, 1R6, 20, 27,OK\r\n");
}

class Sequence : public testing::TestWithParam<Case> {
  protected:
    template <class Output>
    Outcome<Extent> Write() {
        const OutputSource source{folder.path(), {"P", "D", "B1"}, 2, charts};
        Output writer(source, objWord);
        return writeProject(source, GetParam().kinds, writer);
    }

    ScriptedOutside outside;
    TemporaryFolder folder;
    RecordingProcessor objWord;
    RecordingCharts charts{objWord.calls, 2};
};

TEST_P(Sequence, IsTheToldOne) {
    const auto& one = GetParam();
    const bool stops = one.isWord() && one.kinds.values;
    if (one.hasBeam)
        writeBeam(folder);
    if (stops)
        outside.ExpectMsgBox(wordStops);
    const auto end = one.isWord() ? Write<WordOutput>() : Write<LotusOutput>();
    ASSERT_TRUE(end);
    EXPECT_EQ(*end, stops ? Extent::part : Extent::whole);
    EXPECT_EQ(objWord.text(), TemporaryFolder::readFile(std::filesystem::path(CASES) / one.file));
    if (stops) {
        EXPECT_EQ(outside.lastStyle, 3);
        EXPECT_EQ(outside.lastTitle, "Use Lotus");
    }
}

constexpr OutputKinds all{true, true, true, true, true, true, true, true, true};

/// Remarks are lines of their own, each between the title of its results and the results.
TEST(Remarks, AreAboveTheResultsThatTheyAreAbout) {
    const TemporaryFolder folder;
    writeBeam(folder);
    RecordingProcessor plain, remarked;
    for (auto* objWord : {&plain, &remarked}) {
        RecordingCharts charts{objWord->calls, 2};
        const OutputRemarks remarks{"of table", "of stations", "of design"};
        const OutputSource source{folder.path(),
                                  {"P", "D", "B1"},
                                  2,
                                  charts,
                                  objWord == &plain ? OutputRemarks{} : remarks};
        LotusOutput writer(source, *objWord);
        ASSERT_TRUE(writeProject(source, all, writer));
    }
    const auto found = [&](const std::string& text) { return remarked.text().find(text); };
    EXPECT_EQ(plain.text().find("of table"), std::string::npos);
    EXPECT_LT(found("of table"), found("Bending Moment & Shear Force Values"));
    EXPECT_LT(found("Bending Moment & Shear Force Values"), found("of stations"));
    EXPECT_LT(found("of stations"), found("Beam Dimensions and Properties"));
    EXPECT_LT(found("\"Beam Design"), found("of design"));
    EXPECT_NE(found("of design"), std::string::npos);
}

constexpr OutputKinds allButValues{true, true, true, true, false, true, true, true, true};
constexpr OutputKinds none{false, false, false, false, false, false, false, false, false};
constexpr OutputKinds design{false, false, false, false, false, false, false, false, true};

INSTANTIATE_TEST_SUITE_P(Output, Sequence,
                         testing::Values(Case{"word-none.txt", none}, Case{"word-one.txt", design},
                                         Case{"word-all.txt", all},
                                         Case{"word-all-but-values.txt", allButValues},
                                         Case{"word-empty.txt", all, false},
                                         Case{"lotus-none.txt", none},
                                         Case{"lotus-one.txt", design}, Case{"lotus-all.txt", all},
                                         Case{"lotus-empty.txt", all, false}));

TEST(BalanceTableFields, AreTheLabelAndTheCellsOfEachLine) {
    EXPECT_EQ(balanceTableFields("JOINT     Cell 1 aa     Cell 2 bb     \r\nFinal     +1     ", 5),
              "JOINT,Cell 1 aa,Cell 2 bb,,\r\nFinal,+1     ,,,\r\n");
}

}  // namespace
}  // namespace trabeon::test
