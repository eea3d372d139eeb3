// The chart and the picture box: what they hold, label and hand on as pictures.
#include "toolkit/chart/graph.h"

#include <QImage>
#include <QPainter>
#include <QSignalSpy>
#include <cmath>

#include "tests/toolkit/controls_fixture.h"
#include "toolkit/chart/graph_plot.h"
#include "toolkit/controls/picture_box.h"

namespace trabeon {
namespace {

class DrawTest : public ControlsTest {
  protected:
    DrawTest() {
        graph.Move(0, 0, 4500, 3000);
        box.Move(0, 3000, 3135, 1575);
        box.SetBorder(false);
    }

    void Feed(int index, int count, double x, double y) {
        graph.SetPointCount(count);
        graph.SetPointIndex(index);
        graph.SetPointValue(y);
        graph.SetPointX(x);
        graph.SetDrawAction(DrawActions::Redraw);
    }
    void Plot(const std::vector<std::pair<double, double>>& points) {
        for (std::size_t i = 0; i < points.size(); ++i)
            Feed(static_cast<int>(i + 1), static_cast<int>(points.size()), points[i].first,
                 points[i].second);
        Settle();
    }
    void PlotTriangle() { Plot({{0, 0}, {3, 10}, {6, 0}}); }
    std::string Labels() { return graph.GreatestLabel() + '|' + graph.LeastLabel(); }
    QPoint At(double x, double y) {
        return QPointF(plot.xAxis->coordToPixel(x), plot.yAxis->coordToPixel(y)).toPoint();
    }
    // Notches, away from the user, over the middle.
    void Wheel(int notches) {
        for (int i = 0; i < std::abs(notches); ++i) {
            QWheelEvent wheel(Middle(), graph.Widget()->mapToGlobal(Middle()), {},
                              {0, notches > 0 ? 120 : -120}, Qt::NoButton, Qt::NoModifier,
                              Qt::NoScrollPhase, false);
            QApplication::sendEvent(graph.Widget(), &wheel);
        }
        Settle();
    }
    QPoint Middle() { return graph.Widget()->rect().center(); }
    // How many pixels have the colour of the curve.
    static int CurvePixels(const QImage& image) {
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                count += image.pixelColor(x, y) == QColor(0x0a64ad);
        return count;
    }

    Graph graph{Bench(), {"Shear vs. Span", "Distance along the beam", "Shear force"}};
    QCustomPlot& plot = *static_cast<QCustomPlot*>(graph.Widget());
    PictureBox box{Bench()};
};

TEST_F(DrawTest, LabelsTellTheGreatestAndTheLeastValueAndTheirPlace) {
    EXPECT_EQ(Labels(), "|");
    Plot({{0, 12.5}, {3, 0}, {4, -7.25}, {6, 1}});
    EXPECT_EQ(Labels(), "12.5 at 0|-7.25 at 4");
    graph.SetValueFactor(-1);  // drawn upside down, the true values stand there
    Plot({{0, -12.5}, {4, 7.25}, {6, 0}});
    EXPECT_EQ(Labels(), "12.5 at 0|-7.25 at 4");
    Plot({{0, 0}, {6, -0.0}});
    EXPECT_EQ(Labels(), "0 at 0|");
    Plot({{6, -1}, {3, -10}, {0, 0}});  // points that run back
    EXPECT_EQ(Labels(), "10 at 3|0 at 0");
    const QImage without = graph.Picture();
    EXPECT_GT(CurvePixels(without), 500);
    graph.SetMarks({{3, "2"}});
    EXPECT_NE(graph.Picture(), without) << "a joint is marked";
}

TEST_F(DrawTest, TheSameCountKeepsThePointsAndAnotherPlotBeginsAnew) {
    Plot({{0, 5}, {1, 9}, {2, 1}});
    graph.SetPointCount(3);
    EXPECT_EQ(graph.PointCount(), 3);
    EXPECT_EQ(Labels(), "9 at 1|1 at 2");
    constexpr int beyond = 2'000'000'000;  // takes no room
    Feed(1, beyond, 0, 4);
    EXPECT_EQ(graph.GreatestLabel(), "4 at 0");  // what is not written yet does not show
    Feed(2, beyond, 3, 6);
    EXPECT_EQ(Labels(), "6 at 3|4 at 0");
    EXPECT_EQ(graph.PointCount(), beyond);
    EXPECT_EQ(graph.Points().size(), 2u);
    graph.SetPointCount(1);
    EXPECT_EQ(graph.Points().size(), 1u);
}

TEST_F(DrawTest, TheClipboardPictureIsSharpAndUpToDateAlsoWithoutHeight) {
    graph.SetDrawAction(DrawActions::CopyToClipboard);
    EXPECT_EQ(CurvePixels(outside.clipboardPicture), 0);
    for (const int height : {3000, -20}) {
        graph.SetHeight(height);
        PlotTriangle();
        graph.SetDrawAction(DrawActions::CopyToClipboard);
        const QImage copied = outside.clipboardPicture;
        EXPECT_GE(copied.width(), 4 * graph.Widget()->width());
        EXPECT_GT(CurvePixels(copied), 500);
    }
}

TEST_F(DrawTest, TheCurveGrowsWhileAHandlerRunsAtTheScreensPace) {
    Settle();
    const PaintCounter counter(graph);
    int fed = 0;
    for (; counter.paints < 4 && fed < 10'000'000; ++fed)
        Feed(fed % 24000 + 1, 24000, fed * 0.01, std::sin(fed * 0.01));
    EXPECT_EQ(counter.paints, 4);
    EXPECT_GT(fed, 4 * 50) << "few points are not worth a redraw";
}

TEST_F(DrawTest, TheReadOutSnapsToAPointAndLastsUntilTheMouseLeaves) {
    Plot({{0, 0}, {3, 10}, {3, -4}, {4, 2}, {6, 0}});
    graph.SetPointText([](int index) { return "row " + std::to_string(index); });
    Settle();
    const QImage whole = graph.Picture(), face = Face(graph);
    const QSignalSpy replots(&plot, &QCustomPlot::afterReplot);
    const auto over = [&](double x, double y) { return At(x, y); };
    for (const auto& [at, row] : {std::pair{over(2, 9), "row 2"},
                                  {over(2, -1), "row 3"},
                                  {over(3.6, 5), "row 4"},
                                  {over(1, 0), "row 1"}}) {
        QTest::mouseMove(graph.Widget(), at);
        EXPECT_EQ(graph.ReadOut(), row);
    }
    EXPECT_EQ(replots.count(), 0) << "a move draws the readout alone";
    EXPECT_NE(Face(graph), face);
    EXPECT_EQ(graph.Picture(), whole) << "the readout stays out of the picture";
    EXPECT_EQ(graph.ReadOut(), "row 1");
    QTest::mouseMove(graph.Widget(), Middle());
    const auto shown = graph.ReadOut();
    Wheel(5);
    QTest::mousePress(graph.Widget(), Qt::LeftButton, {}, Middle());
    QTest::mouseMove(graph.Widget(), Middle() + QPoint(30, 10));
    QTest::mouseRelease(graph.Widget(), Qt::LeftButton, {}, Middle());
    QTest::mouseDClick(graph.Widget(), Qt::LeftButton, {}, Middle());
    QTest::mouseMove(graph.Widget(), Middle());
    Settle();
    EXPECT_EQ(graph.ReadOut(), shown);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(graph.Widget(), &leave);
    Settle();
    EXPECT_EQ(graph.ReadOut(), "");
    EXPECT_EQ(Face(graph), face) << "no ring is left";
}

TEST_F(DrawTest, WheelAndDragShowAPartOfTheBeamAndADoubleClickTheWhole) {
    Plot({{0, 40}, {2, 10}, {3, 4}, {4, 6}, {6, 40}});
    const QImage whole = graph.Picture(), face = Face(graph);
    const QCPRange x = plot.xAxis->range(), y = plot.yAxis->range();
    Wheel(4);
    const QCPRange part = plot.xAxis->range();
    EXPECT_LT(part.size(), 0.6 * x.size());
    EXPECT_LE(plot.yAxis->range().lower, 0) << "zero stays in sight";
    EXPECT_LT(plot.yAxis->range().upper, 0.6 * y.upper) << "fits what is visible";
    EXPECT_NE(graph.Picture(), whole);
    QTest::mousePress(graph.Widget(), Qt::LeftButton, {}, Middle());
    QTest::mouseMove(graph.Widget(), Middle() + QPoint(500, 80));
    QTest::mouseRelease(graph.Widget(), Qt::LeftButton, {}, Middle() + QPoint(500, 80));
    Settle();
    EXPECT_EQ(plot.xAxis->range().lower, 0) << "a drag ends with the beam";
    EXPECT_NEAR(plot.xAxis->range().size(), part.size(), 1e-9);
    Wheel(100);
    EXPECT_GT(plot.xAxis->range().size(), 0.1) << "no finer than the points";
    Wheel(-100);
    EXPECT_EQ(plot.xAxis->range(), x);
    Wheel(4);
    QTest::mouseDClick(graph.Widget(), Qt::LeftButton, {}, Middle());
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(graph.Widget(), &leave);
    Settle();
    EXPECT_EQ(graph.Picture(), whole);
    EXPECT_EQ(Face(graph), face);
}

TEST_F(DrawTest, NumbersOfAnAxisLookAlikeAndADotOnTheEdgeIsWhole) {
    const auto numbers = [this](double greatest) {
        Plot({{0, 0}, {6, greatest}});
        return plot.yAxis->tickVectorLabels().join(' ').toStdString();
    };
    EXPECT_EQ(numbers(800'000), "0 250000 500000 750000");
    EXPECT_EQ(numbers(1'500'000), "0 5.0E+05 1.0E+06 1.5E+06");
    EXPECT_EQ(numbers(0.0004), "0 1E-04 2E-04 3E-04 4E-04");
    Plot({{0, 0}, {6, 10}});
    const auto dots = [this](int right) {
        const QImage image =
            graph.Widget()->grab(QRect(At(6, 10) - QPoint(4, 4), QSize(4 + right, 9))).toImage();
        return CurvePixels(image);
    };
    EXPECT_GE(dots(4) - dots(0), 6) << "right of the axis";
}

TEST_F(DrawTest, TextStandsWhereThePenIsAndTabsLeadToTheNextStop) {
    box.TabWidth = 1000;
    box.Line(100, 700, 3035, 700);
    EXPECT_EQ(box.CurrentX, 3035);
    EXPECT_EQ(box.CurrentY, 700);
    box.PrintLine();
    EXPECT_EQ(box.CurrentX, 0);
    const double row = box.CurrentY - 700;
    EXPECT_GT(row, 0);
    box.PrintLine("\ta\t\tb");
    EXPECT_EQ(box.CurrentY, 700 + 2 * row);
    ASSERT_EQ(box.Drawn().size(), 3u);
    const Stroke &a = box.Drawn()[1], &b = box.Drawn()[2];
    EXPECT_EQ(std::tie(a.text, a.x1, a.y1), std::make_tuple("a", 1000., 700 + row));
    EXPECT_EQ(std::tie(b.text, b.x1, b.y1), std::make_tuple("b", 3000., 700 + row));
}

TEST_F(DrawTest, ABoxTakesThePictureOfAnotherScaledToItself) {
    PictureBox page(Bench());
    box.Move(0, 0, 1500, 3000);
    EXPECT_FALSE(box.StretchFrom(page)) << "there is no picture";
    QImage halves(400, 800, QImage::Format_RGB32);
    halves.fill(Qt::white);
    QPainter(&halves).fillRect(0, 0, 400, 400, Qt::black);
    page.SetPicture(halves);
    EXPECT_TRUE(box.StretchFrom(page));
    const QImage shown = box.Picture();
    EXPECT_EQ(shown.pixelColor(shown.width() / 2, shown.height() / 2 - 4), QColor(Qt::black));
    EXPECT_EQ(shown.pixelColor(shown.width() / 2, shown.height() / 2 + 4), QColor(Qt::white));
    box.SetWidth(0);
    EXPECT_FALSE(box.StretchFrom(page)) << "there is no room";
}

}  // namespace
}  // namespace trabeon
