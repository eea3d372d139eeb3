#include "toolkit/chart/graph_plot.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "toolkit/look/look.h"
#include "toolkit/look/shown_text.h"
#include "toolkit/outside/picture_file.h"

namespace trabeon {

namespace {

constexpr qint64 FrameMs = 33;
}  // namespace

GraphPlot::GraphPlot(const GraphTitles& titles, QWidget* parent)
    : QCustomPlot(parent), xTitle_(ShownText(titles.x)), valueTitle_(ShownText(titles.value)) {
    setMinimumSize(0, 0);
    setFocusPolicy(Qt::NoFocus);  // it uses no keys, and would get the focus first
    setBackground(Qt::white);
    MakeCurve();
    MakeItems(titles);
    MakeMouse();
    connect(this, &QCustomPlot::beforeReplot, this, &GraphPlot::Prepare);
    connect(this, &QCustomPlot::afterLayout, this, &GraphPlot::PlaceAll);
    ShowWhole();
    FitValues();
}

void GraphPlot::Redraw() {
    zoomed_ = false;
    const bool isDue = isVisible() && !size().isEmpty() &&
                       (!sinceRedraw_.isValid() || sinceRedraw_.elapsed() >= FrameMs);
    if (!isDue) {
        Refresh();
        return;
    }
    stale_ = false;
    replot(rpImmediateRefresh);
    sinceRedraw_.start();
}

// At most one call waits. The queue of QCustomPlot takes another one after each immediate drawing,
// and a long handler would leave hundreds.
void GraphPlot::Refresh() {
    stale_ = true;
    if (std::exchange(waiting_, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            waiting_ = false;
            if (stale_ && !size().isEmpty())  // a chart without size cannot be painted
                replot(rpRefreshHint);
            stale_ = false;
        },
        Qt::QueuedConnection);
}

void GraphPlot::resizeEvent(QResizeEvent* event) {
    if (!size().isEmpty())
        QCustomPlot::resizeEvent(event);
}

void GraphPlot::Prepare() {
    TakeData();
    FindExtremes();
    FitToSize();
    if (!zoomed_)
        ShowWhole();
    FitValues();
    FitCurve();
    FitMarks();
}

void GraphPlot::TakeData() {
    QVector<QCPGraphData> curve;
    curve.reserve(shown);
    for (int i = 0; i < shown; ++i) {
        const Point& point = points[static_cast<std::size_t>(i)];
        if (std::isfinite(point.x) && std::isfinite(point.y))
            curve.append({point.x, point.y});
    }
    // Sorting would not keep the order of points with the same x.
    const bool isSorted =
        std::is_sorted(curve.constBegin(), curve.constEnd(),
                       [](const auto& a, const auto& b) { return a.key < b.key; });
    graph(0)->data()->set(curve, isSorted);
    values_->factor = factor;
}

bool GraphPlot::IsRoomy() const {
    return viewport().height() >= 170;
}

// A small chart has no axis titles and fewer numbers.
void GraphPlot::FitToSize() {
    const bool roomy = IsRoomy();
    xAxis->setLabel(roomy ? xTitle_ : QString());
    yAxis->setLabel(roomy ? valueTitle_ : QString());
    topMargin_ = FitTitles() + (marks.empty() ? 0 : 18);
    axisRect()->setMinimumMargins(QMargins(8, topMargin_, 18, 4));
    xAxis->ticker()->setTickCount(std::clamp(viewport().width() / 80, 2, 10));
    yAxis->ticker()->setTickCount(std::clamp(viewport().height() / 36, 3, 8));
}

void GraphPlot::ShowWhole() {
    const auto& curve = *graph(0)->data();
    whole_ = {0, 1};
    if (!curve.isEmpty())
        whole_ = {curve.constBegin()->key, (curve.constEnd() - 1)->key};
    distances_->end = whole_.upper;
    if (!(whole_.size() > 0))
        whole_.upper = whole_.lower + 1;
    xAxis->setRange(whole_);
}

// The y axis shows zero and the visible part of the curve, with room for the labels.
void GraphPlot::FitValues() {
    QCPRange y = ValuesInSight();
    if (!(y.size() > 0))
        y = {-1, 1};
    const int below = IsRoomy() ? 42 : 20;  // the axis, its numbers and its title
    const int labelHigh = IsRoomy() ? 20 : 15;
    const double room =
        std::max(labelHigh, viewport().height() - topMargin_ - below - 2 * labelHigh);
    const double margin = y.size() * labelHigh / room;
    yAxis->setRange(y.lower - margin, y.upper + margin);
}

QCPRange GraphPlot::ValuesInSight() const {
    const QCPRange x = xAxis->range();
    const auto& curve = *graph(0)->data();
    QCPRange y(0, 0);
    const auto last = curve.findEnd(x.upper);
    for (auto at = curve.findBegin(x.lower); at != last; ++at) {
        if (x.contains(at->key))
            y.expand(at->value);
        if (at + 1 == last)
            break;
        const auto next = at + 1;
        for (const double edge : {x.lower, x.upper})  // where the line crosses the edge
            if (at->key < edge && edge < next->key)
                y.expand(at->value +
                         (next->value - at->value) * (edge - at->key) / (next->key - at->key));
    }
    return y;
}

QImage GraphPlot::PictureOf(QSize size, double ratio) {
    const auto mouse = mouse_;
    MoveReadOut({});
    pictured_ = true;
    const QRect onScreen = viewport();
    setViewport(QRect(QPoint(0, 0), size));
    Prepare();
    QImage picture = toPixmap(size.width(), size.height(), ratio).toImage();
    pictured_ = false;
    setViewport(onScreen);
    Prepare();
    MoveReadOut(mouse);
    SetRatio(picture, ratio);
    return picture;
}

}  // namespace trabeon
