#include "toolkit/chart/graph.h"

#include <QImage>
#include <algorithm>

#include "toolkit/chart/graph_plot.h"
#include "toolkit/look/shown_text.h"
#include "toolkit/outside/outside.h"
#include "toolkit/outside/picture_file.h"

namespace trabeon {

namespace {

constexpr QSize LeastPicture(320, 200);

}  // namespace

Graph::Graph(Container& parent, const GraphTitles& titles)
    : Control(new GraphPlot(titles, parent.Canvas())) {
    SetAccessibleName(titles.title);
}

Graph::~Graph() = default;

GraphPlot& Graph::Inner() const {
    return *static_cast<GraphPlot*>(Widget());
}

// Memory is taken as points are written, because a count may be far higher than the points that
// come.
void Graph::SetPointCount(int count) {
    GraphPlot& plot = Inner();
    plot.count = std::max(0, count);
    if (plot.points.size() > static_cast<std::size_t>(plot.count))
        plot.points.resize(static_cast<std::size_t>(plot.count));
    plot.shown = std::min(plot.shown, plot.count);
}

int Graph::PointCount() const {
    return Inner().count;
}

void Graph::SetPointIndex(int index) {
    index_ = std::clamp(index, 1, std::max(1, PointCount()));
    if (index_ == 1)
        Inner().shown = 0;
}

GraphPoint* Graph::PointToWrite() {
    GraphPlot& plot = Inner();
    if (plot.count == 0)
        return nullptr;
    if (plot.points.size() < static_cast<std::size_t>(index_))
        plot.points.resize(static_cast<std::size_t>(index_));
    return &plot.points[static_cast<std::size_t>(index_ - 1)];
}

void Graph::SetPointValue(double y) {
    if (GraphPoint* point = PointToWrite())
        point->y = y;
}

void Graph::SetPointX(double x) {
    GraphPoint* point = PointToWrite();
    if (!point)
        return;
    point->x = x;
    Inner().shown = std::max(Inner().shown, index_);
}

void Graph::SetDrawAction(DrawActions action) {
    if (action == DrawActions::CopyToClipboard)
        Outside::Current().PutPicture(Picture());
    else
        Inner().Redraw();
}

void Graph::SetValueFactor(double factor) {
    Inner().factor = factor;
    Inner().Refresh();
}

void Graph::SetMarks(std::vector<GraphMark> marks) {
    Inner().marks = std::move(marks);
    Inner().Refresh();
}

void Graph::SetNote(const std::string& note) {
    Inner().note = ShownText(note);
    Inner().warns = false;
    Inner().Refresh();
}

void Graph::SetWarning(const std::string& warning) {
    Inner().note = ShownText(warning);
    Inner().warns = true;
    Inner().Refresh();
}

void Graph::SetExtremes(int greatest, int least) {
    Inner().greatestPoint = greatest;
    Inner().leastPoint = least;
    Inner().Refresh();
}

void Graph::SetPointText(std::function<std::string(int index)> text) {
    Inner().pointText = std::move(text);
}

std::vector<GraphPoint> Graph::Points() const {
    const auto& points = Inner().points;
    return {points.begin(), points.begin() + Inner().shown};
}

double Graph::ValueFactor() const {
    return Inner().factor;
}

const std::vector<GraphMark>& Graph::Marks() const {
    return Inner().marks;
}

std::string Graph::Note() const {
    return Inner().note.toStdString();
}

QImage Graph::Picture() const {
    const QSize size = Inner().size().expandedTo(LeastPicture);
    return Inner().PictureOf(size, SharpRatio(size));
}

std::string Graph::GreatestLabel() const {
    Inner().Prepare();
    return Inner().greatest->text().toStdString();
}

std::string Graph::LeastLabel() const {
    Inner().Prepare();
    return Inner().least->text().toStdString();
}

std::string Graph::ReadOut() const {
    return Inner().ReadOut().toStdString();
}

}  // namespace trabeon
