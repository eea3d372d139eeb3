// The chart: what it holds, labels and gives as a picture.
#include "toolkit/chart/graph.h"

#include <QImage>
#include <QSignalSpy>
#include <cmath>

#include "tests/toolkit/controls_fixture.h"
#include "toolkit/chart/graph_plot.h"

namespace trabeon {
namespace {

class DrawTest : public ControlsTest {
  protected:
    DrawTest() { graph.Move(0, 0, 4500, 3000); }

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
};

TEST_F(DrawTest, LabelsTellTheGreatestAndTheLeastValueAndTheirPlace) {
    EXPECT_EQ(Labels(), "|");
    Plot({{0, 12.5}, {3, 0}, {4, -7.25}, {6, 1}});
    EXPECT_EQ(Labels(), "12.5 at 0|-7.25 at 4");
    graph.SetValueFactor(-1);  // drawn upside down, the labels show the true values
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

TEST_F(DrawTest, TheReadOutSnapsToAPointAndLastsUntilTheMouseLeaves) {
    Plot({{0, 0}, {3, 10}, {3, -4}, {4, 2}, {6, 0}});
    graph.SetPointText([](int index) { return "row " + std::to_string(index); });
    Settle();
    const QImage whole = graph.Picture(), face = Face(graph);
    const QSignalSpy replots(&plot, &QCustomPlot::afterReplot);
    for (const auto& [at, row] : {std::pair{At(2, 9), "row 2"},
                                  {At(2, -1), "row 3"},
                                  {At(3.6, 5), "row 4"},
                                  {At(1, 0), "row 1"}}) {
        QTest::mouseMove(graph.Widget(), at);
        EXPECT_EQ(graph.ReadOut(), row);
    }
    EXPECT_EQ(replots.count(), 0) << "a move draws the readout alone";
    EXPECT_NE(Face(graph), face);
    EXPECT_EQ(graph.Picture(), whole) << "the readout stays out of the picture";
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

TEST_F(DrawTest, NumbersOfAnAxisLookAlikeAndDistancesHaveNoFactor) {
    const auto numbers = [this](double greatest) {
        Plot({{0, 0}, {6, greatest}});
        return plot.yAxis->tickVectorLabels().join(' ').toStdString();
    };
    EXPECT_EQ(numbers(800'000), "0 250000 500000 750000");
    EXPECT_EQ(numbers(1'500'000), "0 5.0E+05 1.0E+06 1.5E+06");
    EXPECT_EQ(numbers(0.0004), "0 1E-04 2E-04 3E-04 4E-04");
    graph.SetValueFactor(-1);
    Plot({{0, 0}, {6, 10}});
    EXPECT_EQ(plot.xAxis->tickVectorLabels().last(), "6");
    EXPECT_EQ(plot.yAxis->tickVectorLabels().last(), "-10");
}

}  // namespace
}  // namespace trabeon
