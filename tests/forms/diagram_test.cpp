// The picture of the structure.
#include "forms/input/frmDiagram.h"
#include "tests/support/editor_fixture.h"

namespace trabeon::test {
namespace {

using Kind = Stroke::Kind;

class Diagram : public EditorTest {
  protected:
    /// Drawn anew at a picture of 6615 by 3985 twips: the scale is 641.5 for 10 of length.
    std::vector<Stroke> Lines(const std::string& joints, const std::string& members) {
        folder.write("Joint.txt", joints);
        folder.write("Member.txt", members);
        Open<frmDiagram>().SetScaleSize(6600, 4485);
        Open<frmDiagram>().SetScaleSize(6615, 4485);
        return StrokesOf(Open<frmDiagram>().picContBeam, Kind::Line);
    }
    const std::string two = "1,200,2,4,a\r\n2,25000,0.5,6,b\r\n";
};

TEST_F(Diagram, BeamAndSymbolsAreDrawnToTheTwip) {
    const auto lines = Lines("1,Fixed,a\r\n2,Continuous,b\r\n3,Pin Jointed,c\r\n", two);
    auto& diagram = Open<frmDiagram>();
    EXPECT_EQ(diagram.picContBeam.Width(), 6615);
    EXPECT_NEAR(diagram.picContBeam.Height(), 3985, 8);
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
    EXPECT_EQ(std::pair(circles[1].x2, circles[98].x2), std::pair(1.5, 50.0));
    EXPECT_NEAR(circles[98].x1, 6415, 1e-9);
    EXPECT_EQ(circles[98].colour, QBColor(4));
    diagram.Move(0, 0, 0, 0);
    EXPECT_GE(diagram.picContBeam.Height(), 0);
}

TEST_F(Diagram, TheTableRunsTwoMembersToALineUnderItsHeadings) {
    folder.write("Member.txt", two + " 3,1e999,1,10,c\r\n");
    const auto& diagram = Open<frmDiagram>();
    EXPECT_EQ(std::pair(diagram.ScaleWidth(), diagram.ScaleHeight()), std::pair(6690, 4485));
    const auto texts = StrokesOf(diagram.picContBeam, Kind::Text);
    std::string printed;
    for (const auto& stroke : texts)
        printed += stroke.text + '|';
    EXPECT_EQ(printed,
              "Member    E|    I|    L|          Member|    E|    I|    L| 1 |2.00E+02|2.00E+00|"
              "4.00E+00| 2 |2.50E+04|5.00E-01|6.00E+00| 3 |1e999|1.00E+00|1.00E+01|");
    EXPECT_EQ(std::pair(texts[0].x1, texts[0].y1), std::pair(0.0, 100.0));
    const QFontMetricsF metrics(diagram.picContBeam.Widget()->font());
    const auto wide = [&](const std::string& text) {
        return metrics.horizontalAdvance(QString::fromStdString(text)) * TwipsPerPixel;
    };
    const double number = wide("2.00E+02");
    for (const std::size_t heading : {1, 2, 3, 4, 5, 6}) {  // above the middle of its value
        const auto &above = texts[heading], &below = texts[heading + 8];
        const auto blanks = above.text.find_first_not_of(' ');
        const double middle =
            above.x1 + (wide(above.text.substr(0, blanks)) + wide(above.text)) / 2;
        EXPECT_NEAR(middle, below.x1 + wide(below.text) / 2, number / 4) << above.text;
    }
    EXPECT_EQ(texts[7].y1, texts[14].y1);
    EXPECT_GT(texts[15].y1, texts[14].y1);
    EXPECT_EQ(texts[15].x1, 0);
    EXPECT_LT(texts[14].x1 + number, 6690);
}

TEST_F(Diagram, EachResizeReadsTheFilesAnewAndLeavesOutWhatCannotBeDrawn) {
    const std::string fixedAndInner = "1,Fixed,a\r\n2,Continuous,b\r\n";
    EXPECT_EQ(Lines("1,Cantilever,a\r\n2,Continuous,b\r\n3,Cantilever,c\r\n", two).size(), 1U + 3U);
    EXPECT_EQ(Lines(fixedAndInner, two).size(), 1U + 15U + 3U);
    EXPECT_EQ(Lines("", two).size(), 1U);
    EXPECT_EQ(Lines(fixedAndInner, "").size(), 0U);
    EXPECT_EQ(Lines(fixedAndInner, "1,200,2,1e999,a\r\n").size(), 0U);
}

}  // namespace
}  // namespace trabeon::test
