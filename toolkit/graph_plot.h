// The chart behind Graph: its data, its labels, and what the mouse does on it.
#pragma once

#include <qcustomplot.h>

#include <vector>

#include "toolkit/graph_axes.h"
#include "toolkit/graph_values.h"

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
    QCPItemText* note;
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

  protected:
    void leaveEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void MakeItems(const GraphTitles& titles);
    void MakeCurve();
    void MakeMouse();
    QCPItemText* MakeText(const QColor& colour, double size, bool bold);

    void TakeData();
    void FindExtremes();
    void FitToSize();
    int FitTitles();
    void FitCurve();
    void FitMarks();
    void Rescale();
    void PlaceLabels();
    QRectF PlaceLabel(QCPItemText& label, const Point& at, bool above);
    void ReadOut(const QPointF& mouse);
    void HideReadOut();
    bool IsRoomy() const;

    QCPItemText* title_;
    QCPItemText* readOut_;
    QCPItemTracer* dot_;
    QCPGraph* extremes_;
    QSharedPointer<DistanceTicker> distances_{new DistanceTicker};
    QSharedPointer<ValueTicker> values_{new ValueTicker};
    QSharedPointer<QCPAxisTickerText> markTicks_{new QCPAxisTickerText};
    QString xTitle_;
    QString valueTitle_;
    Point top_, bottom_;  // the highest and the lowest as drawn
    int topMargin_ = 0;   // pixels above the axes
    bool zoomed_ = false;
    bool stale_ = false;    // the screen is behind the data
    bool waiting_ = false;  // for the handlers to come to their end
    QElapsedTimer sinceRedraw_;
};

}  // namespace trabeon
