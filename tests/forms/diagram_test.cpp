// The picture of the structure.
#include <gtest/gtest.h>

#include "forms/input/frmDiagram.h"
#include "forms/input/frmMembers.h"
#include "tests/support/editor_fixture.h"

namespace trabeon::test {
namespace {

using Kind = Stroke::Kind;

class Diagram : public EditorTest {
  protected:
    Diagram() {
        Start();
        Write("1,Fixed,a\r\n2,Continuous,b\r\n3,Pin Jointed,c\r\n",
              "1,200,2,4,a\r\n2,25000,0.5,6,b\r\n");
    }
    void Write(const std::string& joints, const std::string& members) {
        folder.write("Joint.txt", joints);
        folder.write("Member.txt", members);
    }
    frmDiagram& Open() {
        EditorTest::Open<frmMembers>("&Structure|&Members...").cmdDiagram.Press();
        return forms().Get<frmDiagram>();
    }
    /// Opened at a picture of 6615 by 3985 twips, drawn anew: the scale is 641.5 for 10 of length.
    frmDiagram& OpenAt6615() {
        Open().SetScaleSize(6600, 4485);
        Open().SetScaleSize(6615, 4485);
        return Open();
    }
    std::vector<Stroke> Lines() { return StrokesOf(OpenAt6615().picContBeam, Kind::Line); }
};

TEST_F(Diagram, BeamAndSymbolsAreDrawnToTheTwip) {
    const auto lines = Lines();
    auto& diagram = Open();
    EXPECT_EQ(diagram.picContBeam.Width(), 6615);
    EXPECT_NEAR(diagram.picContBeam.Height(), 3985, 8);
    EXPECT_EQ(diagram.cmdReport.Left(), 0);
    const double y = 3985 - 400;
    ASSERT_EQ(lines.size(), 1U + 15U + 3U + 3U);
    ExpectLine(lines[0], 100, y, 6415, y);
    ExpectLine(lines[1], 100, y, 100, y - 300);
    ExpectLine(lines[2], 100, y, 100, y + 300);
    ExpectLine(lines[3], 50, y - 320, 150, y - 280);
    ExpectLine(lines[15], 50, y + 280, 150, y + 320);
    ExpectLine(lines[16], 2566, y, 2516, y + 150);
    ExpectLine(lines[17], 2566, y, 2616, y + 150);
    ExpectLine(lines[18], 2516, y + 150, 2616, y + 150);
    ExpectLine(lines[19], 6415, y, 6365, y + 150);
    const auto circles = StrokesOf(diagram.picContBeam, Kind::Circle);
    ASSERT_EQ(circles.size(), 99U);
    EXPECT_EQ(circles[0].x2, 1);
    EXPECT_EQ(circles[1].x2, 1.5);
    EXPECT_EQ(circles[98].x2, 50);
    EXPECT_NEAR(circles[98].x1, 6415, 1e-9);
    EXPECT_EQ(circles[98].colour, QBColor(4));
    diagram.Move(0, 0, 0, 0);
    EXPECT_GE(diagram.picContBeam.Height(), 0);
    EXPECT_NEAR(StrokesOf(diagram.picContBeam, Kind::Line)[0].x2, diagram.ScaleWidth() - 200, 1e-9);
}

TEST_F(Diagram, TheTableRunsTwoMembersToALineUnderItsHeadings) {
    folder.write("Member.txt", "1,200,2,4,a\r\n2,25000,0.5,6,b\r\n 3,1e999,1,10,c\r\n");
    const auto& diagram = Open();
    ExpectTidy(diagram);
    EXPECT_EQ(std::pair(diagram.ScaleWidth(), diagram.ScaleHeight()), std::pair(6690, 4485));
    const auto texts = StrokesOf(diagram.picContBeam, Kind::Text);
    Texts printed;
    for (const auto& stroke : texts)
        printed.push_back(stroke.text);
    EXPECT_EQ(printed, (Texts{"Member    E", "    I", "    L", "          Member", "    E", "    I",
                              "    L", " 1 ", "2.00E+02", "2.00E+00", "4.00E+00", " 2 ", "2.50E+04",
                              "5.00E-01", "6.00E+00", " 3 ", "1e999", "1.00E+00", "1.00E+01"}));
    EXPECT_EQ(texts[0].x1, 0);
    EXPECT_EQ(texts[0].y1, 100);
    const QFontMetricsF metrics(diagram.picContBeam.Widget()->font());
    const double blank = metrics.horizontalAdvance(" ") * TwipsPerPixel;
    const double number = metrics.horizontalAdvance("2.00E+02") * TwipsPerPixel;
    for (const std::size_t column : {1, 2, 4, 5, 6}) {  // a heading's letter above its value
        const double letter = texts[column].x1 + 4 * blank;
        EXPECT_GE(letter, texts[column + 8].x1) << column;
        EXPECT_LE(letter, texts[column + 8].x1 + number) << column;
    }
    EXPECT_EQ(texts[7].y1, texts[14].y1);
    EXPECT_GT(texts[15].y1, texts[14].y1);
    EXPECT_EQ(texts[15].x1, 0);
    EXPECT_LT(texts[14].x1 + number, 6690);
}

TEST_F(Diagram, EachResizeReadsTheFilesAnewAndLeavesOutWhatCannotBeDrawn) {
    const std::string fixedAndInner = "1,Fixed,a\r\n2,Continuous,b\r\n";
    const std::string two = "1,200,2,4,a\r\n2,200,2,6,b\r\n";
    const std::tuple<std::string, std::string, std::size_t> rows[] = {
        {"1,Cantilever,a\r\n2,Continuous,b\r\n3,Cantilever,c\r\n", two,
         1 + 3},  // a free end is none
        {fixedAndInner, two, 1 + 15 + 3},
        {"", two, 1},
        {fixedAndInner, "", 0},
        {fixedAndInner, "1,200,2,1e999,a\r\n", 0}};
    for (const auto& [joints, members, count] : rows) {
        Write(joints, members);
        EXPECT_EQ(Lines().size(), count) << joints << members;
    }
}

TEST_F(Diagram, AddToReportPastesThePictureAndClosesTheForm) {
    EXPECT_FALSE(Open().cmdReport.Enabled());
    Open().Unload();
    Settle();
    int pasted = 0;
    context().pasteIntoReport = [&] { pasted += !outside.clipboardPicture.isNull(); };
    Click(Open().cmdReport);
    EXPECT_EQ(pasted, 1);
    EXPECT_EQ(outside.clipboardPicture.width(), 4 * 6690 / 15);
    EXPECT_FALSE(forms().IsLoaded("frmDiagram"));
    Settle();
}

}  // namespace
}  // namespace trabeon::test
