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
        folder.write("Joint.txt", "1,Fixed,a\r\n2,Continuous,b\r\n3,Pin Jointed,c\r\n");
        folder.write("Member.txt", "1,200,2,4,a\r\n2,25000,0.5,6,b\r\n");
    }
    frmDiagram& Open() {
        Open<frmMembers>("&Structure|&Members...").cmdDiagram.Press();
        return forms().Get<frmDiagram>();
    }
    using EditorTest::Open;
    /// Opened at a picture of 6615 by 3985 twips: the scale is 641.5 for 10 of length.
    frmDiagram& OpenAt6615() {
        auto& diagram = Open();
        diagram.SetScaleSize(6615, 4485);
        return diagram;
    }
    static std::vector<Stroke> Drawn(const frmDiagram& diagram, Kind kind) {
        std::vector<Stroke> found;
        for (const auto& stroke : diagram.picContBeam.Drawn())
            if (stroke.kind == kind)
                found.push_back(stroke);
        return found;
    }
    static Texts Printed(const frmDiagram& diagram) {
        Texts texts;
        for (const auto& stroke : Drawn(diagram, Kind::Text))
            texts.push_back(stroke.text);
        return texts;
    }
    static void ExpectLine(const Stroke& stroke, double x1, double y1, double x2, double y2) {
        EXPECT_NEAR(stroke.x1, x1, 1e-9);
        EXPECT_NEAR(stroke.y1, y1, 1e-9);
        EXPECT_NEAR(stroke.x2, x2, 1e-9);
        EXPECT_NEAR(stroke.y2, y2, 1e-9);
    }
};

TEST_F(Diagram, BeamAndSymbolsAreDrawnToTheTwip) {
    const auto& diagram = OpenAt6615();
    EXPECT_EQ(diagram.picContBeam.Width(), 6615);
    EXPECT_NEAR(diagram.picContBeam.Height(), 3985, 8);
    EXPECT_EQ(diagram.cmdReport.Left(), 0);
    const double y = 3985 - 400;
    const auto lines = Drawn(diagram, Kind::Line);
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
    const auto circles = Drawn(diagram, Kind::Circle);
    ASSERT_EQ(circles.size(), 99U);
    EXPECT_EQ(circles[0].x2, 1);
    EXPECT_EQ(circles[1].x2, 1.5);
    EXPECT_EQ(circles[98].x2, 50);
    EXPECT_NEAR(circles[98].x1, 6415, 1e-9);
    EXPECT_EQ(circles[98].colour, QBColor(4));
}

TEST_F(Diagram, TheTableRunsTwoMembersToALineUnderItsHeadings) {
    folder.write("Member.txt", "1,200,2,4,a\r\n2,25000,0.5,6,b\r\n 3,1e999,1,10,c\r\n");
    const auto& diagram = Open();
    EXPECT_EQ(diagram.ScaleWidth(), 6690);
    EXPECT_EQ(diagram.ScaleHeight(), 4485);
    EXPECT_EQ(Printed(diagram),
              (Texts{"Member    E", "    I", "    L", "          Member", "    E", "    I", "    L",
                     " 1 ", "2.00E+02", "2.00E+00", "4.00E+00", " 2 ", "2.50E+04", "5.00E-01",
                     "6.00E+00", " 3 ", "1e999", "1.00E+00", "1.00E+01"}));
    const auto texts = Drawn(diagram, Kind::Text);
    EXPECT_EQ(texts[0].x1, 0);
    EXPECT_EQ(texts[0].y1, 100);
    const QFontMetricsF metrics(diagram.picContBeam.Widget()->font());
    const double blank = metrics.horizontalAdvance(" ") * TwipsPerPixel;
    for (const int column : {1, 2, 4, 5, 6}) {  // a heading's letter stands above its value
        const auto& heading = texts[static_cast<std::size_t>(column)];
        const auto& value = texts[static_cast<std::size_t>(column) + 8];
        const double letter = heading.x1 + 4 * blank;
        EXPECT_GE(letter, value.x1) << column;
        EXPECT_LE(letter, value.x1 + metrics.horizontalAdvance("2.00E+02") * TwipsPerPixel)
            << column;
        EXPECT_EQ(value.x1, texts[static_cast<std::size_t>(column) + 8].x1);
    }
    EXPECT_EQ(texts[7].y1, texts[14].y1);
    EXPECT_GT(texts[15].y1, texts[14].y1);
    EXPECT_EQ(texts[15].x1, 0);
    EXPECT_LT(texts[14].x1 + metrics.horizontalAdvance("2.00E+02") * TwipsPerPixel, 6690);
}

TEST_F(Diagram, EachResizeReadsTheFilesAnew) {
    auto& diagram = OpenAt6615();
    folder.write("Member.txt", "1,200,2,5,a\r\n2,200,2,5,b\r\n");
    folder.write("Joint.txt", "1,Cantilever,a\r\n2,Continuous,b\r\n3,Cantilever,c\r\n");
    EXPECT_EQ(Drawn(diagram, Kind::Line).size(), 22U);
    diagram.SetScaleSize(6630, 4485);
    EXPECT_EQ(Drawn(diagram, Kind::Line).size(), 4U);  // a free end is just the end of the line
    EXPECT_NEAR(Drawn(diagram, Kind::Line)[0].x2, 6430, 1e-9);
    diagram.Move(0, 0, 0, 0);
    EXPECT_GE(diagram.picContBeam.Height(), 0);
    const double W = diagram.ScaleWidth();
    EXPECT_NEAR(Drawn(diagram, Kind::Line)[0].x2, W - 200, 1e-9);
}

TEST_F(Diagram, WhatCannotBeDrawnIsLeftOut) {
    folder.write("Member.txt", "");
    EXPECT_EQ(Drawn(Open(), Kind::Line).size(), 0U);
    EXPECT_EQ(Printed(Open()).size(), 7U);
    folder.write("Member.txt", "1,200,2,4,a\r\n2,200,2,6,b\r\n");
    folder.write("Joint.txt", "1,Fixed,a\r\n2,Continuous,b\r\n");
    EXPECT_EQ(Drawn(OpenAt6615(), Kind::Line).size(), 1U + 15U + 3U);
    folder.write("Joint.txt", "");
    Open().SetScaleSize(6690, 4485);
    EXPECT_EQ(Drawn(Open(), Kind::Line).size(), 1U);
    folder.write("Member.txt", "1,200,2,1e999,a\r\n");
    Open().SetScaleSize(6615, 4485);
    EXPECT_EQ(Drawn(Open(), Kind::Line).size(), 0U);
}

TEST_F(Diagram, AddToReportPastesThePictureAndClosesTheForm) {
    EXPECT_FALSE(Open().cmdReport.Enabled());
    Open().Unload();
    Settle();
    int pasted = 0;
    context().pasteIntoReport = [&] { pasted += !outside.clipboardPicture.isNull(); };
    auto& diagram = Open();
    Click(diagram.cmdReport);
    EXPECT_EQ(pasted, 1);
    EXPECT_EQ(outside.clipboardPicture.width(), 4 * 6690 / 15);
    EXPECT_FALSE(forms().IsLoaded("frmDiagram"));
    Settle();
}

}  // namespace
}  // namespace trabeon::test
