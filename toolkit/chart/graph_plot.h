// The chart behind Graph: its data, its labels, and what the mouse does on it.
#pragma once

#include <qcustomplot.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "toolkit/chart/graph_axes.h"
#include "toolkit/chart/graph_values.h"

namespace trabeon {

class GraphPlot : public QCustomPlot {
  public:
    GraphPlot(const GraphTitles& titles, QWidget* parent);

    using Point = GraphPoint;
    int count = 0;              // of the points that were told of
    std::vector<Point> points;  // those that were written
    int shown = 0;              // of the points, those of the plot that runs
    double factor = 1;
    std::vector<GraphMark> marks;
    QString note;
    bool warns = false;  // the note says that the curve must not be used
    // Of points that share the greatest or the least value, from 1; 0 is the first.
    int greatestPoint = 0;
    int leastPoint = 0;
    std::function<std::string(int index)> pointText;
    QCPItemText* greatest;
    QCPItemText* least;

    // Shows the whole of the data, at the screen's pace: at once if the last time is long enough
    // ago, else when the handlers have come to their end.
    void Redraw();
    // The same data, once the handlers have come to their end.
    void Refresh();
    // Brings the chart's parts up to date with the data and the size; each replot does it.
    void Prepare();
    QImage PictureOf(QSize size, double ratio);
    // What shows under the pointer; empty while nothing does.
    QString ReadOut() const;

  protected:
    void leaveEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void MakeItems(const GraphTitles& titles);
    void MakeCurve();
    void MakeAxes();
    void MakeMouse();
    QCPItemText* MakeText(const QColor& colour, double size, bool bold);
    QCPItemTracer* MakeDot(const QPen& pen, double size);

    void TakeData();
    void FindExtremes();
    void FitToSize();
    int FitTitles();
    QColor NoteColour() const;
    void FitCurve();
    void FitMarks();
    void ShowWhole();
    void FitValues();
    QCPRange ValuesInSight() const;
    void PlaceAll();
    void PlaceMarkNames();
    void PlaceDots();
    void PlaceLabels();
    QRectF PlaceLabel(QCPItemText& label, const Point& at, bool above);
    void KeepInside(const QCPRange& range);
    void MoveReadOut(std::optional<QPointF> mouse);
    void PlaceReadOut();
    int PointNear(const QPointF& mouse) const;
    bool IsInSight(double x) const;
    bool IsRoomy() const;

    QCPItemText* title_;
    QCPItemText* note_;
    QCPItemText* readOut_;
    QCPItemTracer* ring_;
    QCPItemTracer* topDot_;
    QCPItemTracer* bottomDot_;
    MarkNames* markNames_;
    QSharedPointer<DistanceTicker> distances_{new DistanceTicker};
    QSharedPointer<ValueTicker> values_{new ValueTicker};
    QSharedPointer<QCPAxisTickerText> markTicks_{new QCPAxisTickerText};
    QString xTitle_;
    QString valueTitle_;
    Point top_, bottom_;            // the highest and the lowest as drawn
    QCPRange whole_{0, 1};          // the data's
    std::optional<QPointF> mouse_;  // over the chart
    int topMargin_ = 0;             // pixels above the axes
    bool zoomed_ = false;
    bool pictured_ = false;  // drawn for a picture, not for the screen
    bool stale_ = false;     // the screen is behind the data
    bool waiting_ = false;   // for the handlers to come to their end
    QElapsedTimer sinceRedraw_;
};

}  // namespace trabeon
