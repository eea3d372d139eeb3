// A line chart of one data set, fed point by point. The properties and their numbers are those of
// the chart control that the diagram forms speak to.
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

    // 30: the chart holds that many points. Those written so far stay.
    void SetPointCount(int count);
    int PointCount() const;
    // 42: the point that is written next, from 1. Point 1 begins a plot: what shows from then on
    // are the points written since, up to the highest. The x of a plot rises or
    // stands; where it falls the line joins the points from left to right.
    void SetPointIndex(int index);
    void SetPointValue(double y);  // 16
    void SetPointX(double x);      // 46
    // 7: Redraw scales the chart to its points; it may be asked for after every point, and then
    // keeps the screen's pace. The picture on the clipboard is always up to date.
    void SetDrawAction(DrawActions action);

    // The values were multiplied by this to be drawn; labels and readout show the true ones.
    void SetValueFactor(double factor);
    void SetMarks(std::vector<GraphMark> marks);
    void SetNote(const std::string& note);
    // The same in red: what is drawn must not be used.
    void SetWarning(const std::string& warning);
    // The points, counted from 1, that bear the label of the greatest and of the least value where
    // several points have that value.
    void SetExtremes(int greatest, int least);
    // What the chart says of the point under the pointer, by the point's index from 1.
    void SetPointText(std::function<std::string(int index)> text);

    // What shows: the points of the plot that runs, with the values that were written.
    std::vector<GraphPoint> Points() const;
    double ValueFactor() const;
    const std::vector<GraphMark>& Marks() const;
    std::string Note() const;

    // The chart as it stands, sharp on paper.
    QImage Picture() const;
    // What the label of the greatest or the least value reads; empty while there is none.
    std::string GreatestLabel() const;
    std::string LeastLabel() const;
    // What shows under the pointer; empty while nothing does.
    std::string ReadOut() const;

  private:
    GraphPlot& Inner() const;
    GraphPoint* Addressed();  // null while there are no points

    int index_ = 1;
};

}  // namespace trabeon
