#include "toolkit/graph.h"

#include <QImage>
#include <algorithm>

#include "toolkit/graph_plot.h"
#include "toolkit/outside.h"

namespace trabeon {

namespace {

constexpr QSize LeastPicture(320, 200);

}  // namespace

Graph::Graph(Container& parent, const GraphTitles& titles)
    : Control(new Plot(titles, parent.Canvas())) {
    SetAccessibleName(titles.title);
}

Graph::~Graph() = default;

Graph::Plot& Graph::Inner() const {
    return *static_cast<Plot*>(Widget());
}

void Graph::SetAutoAdvance(bool advances) {
    autoAdvance_ = advances;
}

void Graph::SetPointCount(int count) {
    Inner().points.resize(static_cast<std::size_t>(std::max(0, count)));
    Inner().shown = std::min(Inner().shown, PointCount());
}

int Graph::PointCount() const {
    return static_cast<int>(Inner().points.size());
}

void Graph::SetPointIndex(int index) {
    index_ = std::clamp(index, 1, std::max(1, PointCount()));
    if (index_ == 1)
        Inner().shown = 0;
}

void Graph::SetPointValue(double y) {
    if (PointCount() > 0)
        Inner().points[static_cast<std::size_t>(index_ - 1)].y = y;
}

void Graph::SetPointX(double x) {
    Plot& plot = Inner();
    if (PointCount() == 0)
        return;
    plot.points[static_cast<std::size_t>(index_ - 1)].x = x;
    plot.shown = std::max(plot.shown, index_);
    if (autoAdvance_)
        index_ = std::min(index_ + 1, PointCount());
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
    Inner().note->setText(QString::fromStdString(note));
    Inner().Refresh();
}

QImage Graph::Picture() const {
    return Inner().PictureOf(Inner().size().expandedTo(LeastPicture),
                             std::max(2.0, Inner().devicePixelRatioF()));
}

std::string Graph::GreatestLabel() const {
    Inner().Prepare();
    return Inner().greatest->text().toStdString();
}

std::string Graph::LeastLabel() const {
    Inner().Prepare();
    return Inner().least->text().toStdString();
}

}  // namespace trabeon
