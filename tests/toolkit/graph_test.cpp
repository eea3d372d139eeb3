// The chart and the picture box: what they hold, label and hand on as pictures.
#include "toolkit/graph.h"

#include <QElapsedTimer>
#include <QImage>
#include <QPainter>
#include <cmath>

#include "tests/support/gui_fixture.h"
#include "tests/support/time_limit.h"
#include "toolkit/form.h"
#include "toolkit/picture_box.h"
#include "toolkit/picture_file.h"

namespace trabeon {
namespace {

struct Nothing {};

class frmDraw : public Form {
  public:
    static constexpr const char* Name = "frmDraw";
    explicit frmDraw(Nothing&) : Form("Draw") {
        graph.Move(0, 0, 4500, 3000);
        picture.Move(0, 3000, 3135, 1575);
    }
    Graph graph{*this, {"Shear vs. Span", "Distance along the beam", "Shear force"}};
    PictureBox picture{*this};
};

class DrawTest : public GuiTest {
  protected:
    DrawTest() { forms.Register<frmDraw>(nothing); }

    Graph& graph() { return forms.Get<frmDraw>().graph; }
    PictureBox& picture() { return forms.Get<frmDraw>().picture; }
    void Feed(int index, int count, double x, double y) {
        graph().SetAutoAdvance(false);
        graph().SetPointCount(count);
        graph().SetPointIndex(index);
        graph().SetPointValue(y);
        graph().SetPointX(x);
        graph().SetDrawAction(DrawActions::Redraw);
    }
    void Plot(const std::vector<std::pair<double, double>>& points) {
        for (std::size_t i = 0; i < points.size(); ++i)
            Feed(static_cast<int>(i + 1), static_cast<int>(points.size()), points[i].first,
                 points[i].second);
    }
    // How many pixels have the colour of the curve.
    static int CurvePixels(const QImage& image) {
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                count += image.pixelColor(x, y) == QColor(0x0a64ad);
        return count;
    }

    Nothing nothing;
};

TEST_F(DrawTest, LabelsTellTheGreatestAndTheLeastValueAndTheirPlace) {
    const auto labels = [this] { return graph().GreatestLabel() + '|' + graph().LeastLabel(); };
    EXPECT_EQ(labels(), "|");
    Plot({{0, 12.5}, {3, 0}, {4, -7.25}, {6, 1}});
    EXPECT_EQ(labels(), "12.5 at 0|-7.25 at 4");
    graph().SetValueFactor(-1);  // drawn upside down, the true values stand there
    Plot({{0, -12.5}, {4, 7.25}, {6, 0}});
    EXPECT_EQ(labels(), "12.5 at 0|-7.25 at 4");
    Plot({{0, 0}, {6, -0.0}});
    EXPECT_EQ(labels(), "0 at 0|");
    Plot({{6, -1}, {3, -10}, {0, 0}});  // points that run back
    EXPECT_EQ(labels(), "10 at 3|0 at 0");
    EXPECT_GT(CurvePixels(graph().Picture()), 500);
}

TEST_F(DrawTest, TheSameCountKeepsThePointsAndAnotherPlotBeginsAnew) {
    Plot({{0, 5}, {1, 9}, {2, 1}});
    graph().SetPointCount(3);
    EXPECT_EQ(graph().PointCount(), 3);
    EXPECT_EQ(graph().GreatestLabel(), "9 at 1");
    Feed(1, 2, 0, 4);
    EXPECT_EQ(graph().GreatestLabel(), "4 at 0");  // what is not written yet does not show
    Feed(2, 2, 3, 6);
    EXPECT_EQ(graph().GreatestLabel(), "6 at 3");
    EXPECT_EQ(graph().LeastLabel(), "4 at 0");
}

TEST_F(DrawTest, WhatShowsCanBeReadBack) {
    EXPECT_EQ(graph().Note(), "");
    Plot({{0, 5}, {1, 9}, {2, 1}});
    ASSERT_EQ(graph().Points().size(), 3u);
    EXPECT_EQ(graph().Points()[1].x, 1);
    EXPECT_EQ(graph().Points()[1].y, 9);
    graph().SetPointIndex(1);
    EXPECT_TRUE(graph().Points().empty());
    graph().SetValueFactor(-1);
    graph().SetNote("Sagging");
    graph().SetMarks({{6, "2"}});
    EXPECT_EQ(graph().ValueFactor(), -1);
    EXPECT_EQ(graph().Note(), "Sagging");
    ASSERT_EQ(graph().Marks().size(), 1u);
    EXPECT_EQ(graph().Marks()[0].label, "2");
}

TEST_F(DrawTest, ACountBeyondWhatEverComesTakesNoRoom) {
    Feed(1, 2'000'000'000, 0, 4);
    Feed(2, 2'000'000'000, 3, 6);
    EXPECT_EQ(graph().PointCount(), 2'000'000'000);
    EXPECT_EQ(graph().Points().size(), 2u);
    graph().SetPointCount(1);
    EXPECT_EQ(graph().Points().size(), 1u);
}

TEST_F(DrawTest, AutoAdvanceMovesToTheNextPoint) {
    graph().SetPointCount(2);
    graph().SetPointIndex(1);
    graph().SetAutoAdvance(true);
    for (const double at : {1.0, 2.0}) {
        graph().SetPointValue(10 * at);
        graph().SetPointX(at);
    }
    EXPECT_EQ(graph().GreatestLabel(), "20 at 2");
    EXPECT_EQ(graph().LeastLabel(), "10 at 1");
}

TEST_F(DrawTest, TheClipboardPictureIsSharpAndUpToDate) {
    graph().SetDrawAction(DrawActions::CopyToClipboard);
    EXPECT_EQ(CurvePixels(outside.clipboardPicture), 0);
    Plot({{0, 0}, {3, 10}, {6, 0}});
    graph().SetDrawAction(DrawActions::CopyToClipboard);
    const QImage copied = outside.clipboardPicture;
    EXPECT_EQ(copied.devicePixelRatio(), 4);
    EXPECT_NEAR(copied.dotsPerMeterX() * 0.0254, 384, 0.1);
    EXPECT_GE(copied.width(), 4 * graph().Widget()->width());
    EXPECT_GT(CurvePixels(copied), 500);
}

TEST_F(DrawTest, AFeedWithARedrawAfterEachPointCostsMilliseconds) {
    QElapsedTimer timer;
    timer.start();
    for (int i = 1; i <= 24000; ++i)
        Feed(i, 24000, i * 0.01, std::sin(i * 0.01));
    Settle();
    EXPECT_LT(static_cast<double>(timer.elapsed()),
              test::limit(1000));  // milliseconds as a rule; a redraw for each takes half a minute
}

TEST_F(DrawTest, ManyJointsAndPointsToAPixelArePaintedInMilliseconds) {
    std::vector<GraphMark> joints;
    for (int k = 0; k <= 1000; ++k)
        joints.push_back({12.0 * k, std::to_string(k + 1)});
    graph().SetMarks(joints);
    for (int i = 1; i <= 12000; ++i)
        Feed(i, 12000, i, i % 12);
    QElapsedTimer timer;
    timer.start();
    Settle();
    EXPECT_LT(static_cast<double>(timer.elapsed()),
              test::limit(100));  // a line for each joint and a fill take half a second
}

TEST_F(DrawTest, NoteAndTitleShareALineInASmallChart) {
    const auto noteShows = [&](int width, int height) {
        graph().SetNote("");
        graph().Move(0, 0, width, height);
        Settle();
        const QImage without = graph().Widget()->grab().toImage();
        graph().SetNote("Upward reactions step up");
        Settle();
        return graph().Widget()->grab().toImage() != without;
    };
    EXPECT_TRUE(noteShows(4500, 3000));
    EXPECT_TRUE(noteShows(4180, 1580));
    EXPECT_FALSE(noteShows(2500, 1580));  // too short a line
    EXPECT_FALSE(noteShows(4180, 900));
}

TEST_F(DrawTest, TheCurveGrowsWhileAHandlerRunsAtTheScreensPace) {
    Settle();
    const PaintCounter counter(graph());
    QElapsedTimer timer;
    timer.start();
    for (int i = 1; timer.elapsed() < 150; ++i)
        Feed(i, 100000, i, 1);
    EXPECT_GE(counter.paints, 2);
    EXPECT_LE(counter.paints, 7);
}

TEST_F(DrawTest, TheWheelZoomsAndADoubleClickBringsTheWholeBack) {
    Plot({{0, 0}, {3, 10}, {6, 0}});
    Settle();
    const QImage whole = graph().Picture();
    const QPoint middle(graph().Widget()->rect().center());
    QWheelEvent wheel(middle, graph().Widget()->mapToGlobal(middle), {}, {0, 120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(graph().Widget(), &wheel);
    Settle();
    EXPECT_NE(graph().Picture(), whole);
    QTest::mouseDClick(graph().Widget(), Qt::LeftButton, {}, middle);
    Settle();
    EXPECT_EQ(graph().Picture(), whole);
}

TEST_F(DrawTest, TheReadOutComesWithTheMouseAndStaysOutOfThePicture) {
    Plot({{0, 0}, {3, 10}, {6, 0}});
    Settle();
    const QImage without = graph().Widget()->grab().toImage();
    const QImage copied = graph().Picture();
    QTest::mouseMove(graph().Widget(), graph().Widget()->rect().center());
    Settle();
    EXPECT_NE(graph().Widget()->grab().toImage(), without);
    EXPECT_EQ(graph().Picture(), copied);
}

TEST_F(DrawTest, AChartOfNoHeightStillGivesAPicture) {
    Plot({{0, 0}, {3, 10}, {6, 0}});
    graph().Move(0, 0, 4500, -20);
    EXPECT_EQ(graph().Height(), 0);
    EXPECT_GT(CurvePixels(graph().Picture()), 500);
}

TEST_F(DrawTest, StrokesAreKeptAsTheNumbersThatWereDrawn) {
    PictureBox& box = picture();
    box.ForeColor = QBColor(1);
    box.Line(1567.5, 700, 1467.5, 600);
    box.Circle(100, 400, 50, QBColor(4));
    ASSERT_EQ(box.Drawn().size(), 2u);
    const Stroke& line = box.Drawn()[0];
    EXPECT_EQ(std::make_tuple(line.x1, line.y1, line.x2, line.y2, line.colour),
              std::make_tuple(1567.5, 700., 1467.5, 600., 0x000080u));
    const Stroke& circle = box.Drawn()[1];
    EXPECT_EQ(std::make_tuple(circle.x1, circle.y1, circle.x2, circle.colour),
              std::make_tuple(100., 400., 50., 0x800000u));
    box.Cls();
    EXPECT_TRUE(box.Drawn().empty());
}

TEST_F(DrawTest, TextStandsWhereThePenIs) {
    PictureBox& box = picture();
    box.Line(100, 700, 3035, 700);
    EXPECT_EQ(box.CurrentX, 3035);
    EXPECT_EQ(box.CurrentY, 700);
    box.PrintLine();
    EXPECT_EQ(box.CurrentX, 0);
    const double row = box.CurrentY - 700;
    EXPECT_GT(row, 0);
    box.Print("a = 3");
    EXPECT_GT(box.CurrentX, 0);
    EXPECT_EQ(box.CurrentY, 700 + row);
    box.PrintLine();
    EXPECT_EQ(box.CurrentY, 700 + 2 * row);
    ASSERT_EQ(box.Drawn().size(), 2u);
    EXPECT_EQ(box.Drawn()[1].text, "a = 3");
    EXPECT_EQ(box.Drawn()[1].y1, 700 + row);
}

TEST_F(DrawTest, TabsLeadToTheNextStop) {
    PictureBox& box = picture();
    box.TabWidth = 1000;
    box.Print("\ta\t\tb");
    ASSERT_EQ(box.Drawn().size(), 2u);
    EXPECT_EQ(box.Drawn()[0].x1, 1000);
    EXPECT_EQ(box.Drawn()[1].x1, 3000);
}

TEST_F(DrawTest, ABoxTakesThePictureOfAnotherScaledToItself) {
    Form& form = forms.Get<frmDraw>();
    PictureBox page(form), small(form);
    small.Move(0, 0, 1500, 3000);
    small.SetBorder(false);
    EXPECT_FALSE(small.StretchFrom(page)) << "there is no picture";
    QImage halves(400, 800, QImage::Format_RGB32);
    halves.fill(Qt::white);
    QPainter(&halves).fillRect(0, 0, 400, 400, Qt::black);
    page.SetPicture(halves);
    EXPECT_TRUE(small.StretchFrom(page));
    const QImage shown = small.Picture();
    EXPECT_EQ(shown.pixelColor(shown.width() / 2, shown.height() / 2 - 4), QColor(Qt::black));
    EXPECT_EQ(shown.pixelColor(shown.width() / 2, shown.height() / 2 + 4), QColor(Qt::white));
    small.SetWidth(0);
    EXPECT_FALSE(small.StretchFrom(page)) << "there is no room";
}

TEST_F(DrawTest, ThePictureOfTheBoxIsSharpAndWithoutItsBorder) {
    PictureBox& box = picture();
    box.SetBorder(false);
    box.Line(0, 750, 3135, 750, QBColor(4));
    box.CopyToClipboard();
    const QImage copied = outside.clipboardPicture;
    EXPECT_EQ(copied.size(), QSize(4 * 209, 4 * 105));
    EXPECT_EQ(copied.devicePixelRatio(), 4);
    EXPECT_EQ(copied.pixelColor(400, 200), QColor(0x800000));
    EXPECT_EQ(copied.pixelColor(400, 40), QColor(Qt::white));
    EXPECT_EQ(QImage::fromData(PngOf(copied)), copied) << "nothing is lost in a file";
    box.SetWidth(2000 * TwipsPerPixel);
    EXPECT_EQ(box.Picture().width(), 5000) << "300 dots an inch on any paper";
}

}  // namespace
}  // namespace trabeon
