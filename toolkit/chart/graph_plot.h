// The widget of a Graph: its data, its labels, and what the mouse does on it. graph_plot.cpp fits
// it to its data and its size and draws it; graph_parts.cpp makes its parts; graph_labels.cpp
// places labels and marks; graph_mouse.cpp reads points off and zooms.
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
    int count = 0;              // of the points that are to come
    std::vector<Point> points;  // those that were written
    int shown = 0;              // this number of them belongs to the present plot
    double factor = 1;          // true value = written value x factor
    std::vector<GraphMark> marks;
    QString note;
    bool warns = false;  // the note is a warning
    // The points with the labels if several share the value: from 1; 0 means the first of them.
    int greatestPoint = 0;
    int leastPoint = 0;
    std::function<std::string(int index)> pointText;
    QCPItemText* greatest;
    QCPItemText* least;

    /// Shows all of the data: at once, or after the handlers have ended if the last time was less
    /// than 33 ms ago.
    void Redraw();
    /// Draws the chart after the handlers have ended.
    void Refresh();
    /// Updates the parts of the chart for the data and the size. Each drawing does this first.
    void Prepare();
    [[nodiscard]] QImage PictureOf(QSize size, double ratio);
    /// The text next to the pointer. Empty if there is none.
    [[nodiscard]] QString ReadOut() const;

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
    Point top_, bottom_;            // the highest and the lowest point as drawn
    QCPRange whole_{0, 1};          // of the data, in x
    std::optional<QPointF> mouse_;  // while it is over the chart
    int topMargin_ = 0;             // pixels above the axes
    bool zoomed_ = false;
    bool pictured_ = false;  // it is being drawn for a picture, not for the screen
    bool stale_ = false;     // the screen does not show the data yet
    bool waiting_ = false;   // a drawing waits for the end of the handlers
    QElapsedTimer sinceRedraw_;
};

}  // namespace trabeon
