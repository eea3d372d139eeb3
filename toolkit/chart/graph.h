// A line chart of one set of data, which comes in point by point. The diagram forms know its
// properties by these names and numbers.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "toolkit/chart/graph_values.h"
#include "toolkit/controls/control.h"

class QImage;

namespace trabeon {

class GraphPlot;

enum class DrawActions { Redraw = 3, CopyToClipboard = 4 };

class Graph : public Control {
  public:
    Graph(Container& parent, const GraphTitles& titles);
    ~Graph() override;

    /// 30: the number of points of the chart. Points that were written already stay.
    void SetPointCount(int count);
    [[nodiscard]] int PointCount() const;
    /// 42: the point that is written next, from 1. Writing does not change it. Point 1 begins a new
    /// plot: the chart then shows the points written since, up to the highest. The x of a plot must
    /// not fall; if it does, the line joins the points from left to right.
    void SetPointIndex(int index);
    void SetPointValue(double y);  // 16
    void SetPointX(double x);      // 46
    /// 7: Redraw scales the chart to its points and draws it. It can be called after every point
    /// and then draws at most 30 times a second. CopyToClipboard always copies the latest points.
    void SetDrawAction(DrawActions action);

    /// True value = written value x factor. The labels and the readout show true values.
    void SetValueFactor(double factor);
    void SetMarks(std::vector<GraphMark> marks);
    void SetNote(const std::string& note);
    /// A note in red: the curve must not be used.
    void SetWarning(const std::string& warning);
    /// If several points have the greatest or the least value, these points get its label. They
    /// count from 1; 0 means the first of them.
    void SetExtremes(int greatest, int least);
    /// The text for the point under the pointer, by its index from 1.
    void SetPointText(std::function<std::string(int index)> text);

    /// The points that the chart shows, with the values as they were written.
    [[nodiscard]] std::vector<GraphPoint> Points() const;
    [[nodiscard]] double ValueFactor() const;
    [[nodiscard]] const std::vector<GraphMark>& Marks() const;
    [[nodiscard]] std::string Note() const;

    /// The chart as it is now, with enough dots for paper.
    [[nodiscard]] QImage Picture() const;
    /// The text of the label of the greatest or the least value. Empty if there is no label.
    [[nodiscard]] std::string GreatestLabel() const;
    [[nodiscard]] std::string LeastLabel() const;
    /// The text next to the pointer. Empty if there is none.
    [[nodiscard]] std::string ReadOut() const;

  private:
    GraphPlot& Inner() const;
    /// The point at index_; null while the chart has no points.
    GraphPoint* PointToWrite();

    int index_ = 1;
};

}  // namespace trabeon
