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
const QColor Ink(0x1a1a1a);
const QColor Faint(0x6b7580);
const QColor Warning(0xa61b1b);
const QColor Curve(0x0a64ad);

// Draws its line and what is below it in pieces: the cost grows with the square of their length.
class PiecewiseGraph : public QCPGraph {
  public:
    using QCPGraph::QCPGraph;

  protected:
    void drawLinePlot(QCPPainter* painter, const QVector<QPointF>& line) const override {
        for (const auto& piece : PiecesOf(line))
            QCPGraph::drawLinePlot(painter, piece);
    }
    void drawFill(QCPPainter* painter, QVector<QPointF>* line) const override {
        for (auto& piece : PiecesOf(*line))
            QCPGraph::drawFill(painter, &piece);
    }

  private:
    static QVector<QVector<QPointF>> PiecesOf(const QVector<QPointF>& line) {
        constexpr qsizetype Length = 32;
        QVector<QVector<QPointF>> pieces;
        for (qsizetype at = 0; at + 1 < line.size(); at += Length)
            pieces.append(line.mid(at, Length + 1));
        return pieces;
    }
};

QPen CurvePen(double width) {
    return {Curve, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

}  // namespace

QColor GraphPlot::NoteColour() const {
    return warns ? Warning : Faint;
}

GraphPlot::GraphPlot(const GraphTitles& titles, QWidget* parent)
    : QCustomPlot(parent), xTitle_(ShownText(titles.x)), valueTitle_(ShownText(titles.value)) {
    setMinimumSize(0, 0);
    setFocusPolicy(Qt::NoFocus);  // it has no use for keys, and would be the form's first stop
    setBackground(Qt::white);
    MakeCurve();
    MakeItems(titles);
    MakeMouse();
    connect(this, &QCustomPlot::beforeReplot, this, &GraphPlot::Prepare);
    connect(this, &QCustomPlot::afterLayout, this, &GraphPlot::PlaceAll);
    ShowWhole();
    FitValues();
}

void GraphPlot::MakeCurve() {
    new PiecewiseGraph(xAxis, yAxis);
    MakeAxes();
    // Joints and the like have a line down through the chart, and their names above it.
    xAxis2->setTicker(markTicks_);
    xAxis2->setTickLength(4);
    xAxis2->setSubTicks(false);
    xAxis2->setTickLabels(false);
    xAxis2->setBasePen(Qt::NoPen);
    xAxis2->grid()->setVisible(true);
    xAxis2->grid()->setPen(QPen(QColor(0xb4bdc6), 1, Qt::DashLine));
    markNames_ = new MarkNames(this);
    markNames_->font = FontNamed("Arial", 8, false);
    markNames_->colour = Faint;
}

void GraphPlot::MakeAxes() {
    xAxis->setTicker(distances_);
    yAxis->setTicker(values_);
    xAxis->setSubTicks(false);
    yAxis->setSubTicks(false);
    for (QCPAxis* axis : {xAxis, yAxis, xAxis2}) {
        axis->setTickLabelFont(FontNamed("Arial", 8, false));
        axis->setLabelFont(FontNamed("Arial", 9, false));
        axis->setTickLabelColor(Ink);
        axis->setLabelColor(Ink);
        axis->setBasePen(QPen(Faint));
        axis->setTickPen(QPen(Faint));
        axis->grid()->setPen(QPen(QColor(0xe3e7eb)));
        axis->grid()->setZeroLinePen(Qt::NoPen);
    }
}

QCPItemText* GraphPlot::MakeText(const QColor& colour, double size, bool bold) {
    auto* text = new QCPItemText(this);
    text->setText({});  // it has one of its own
    text->setClipToAxisRect(false);
    text->position->setType(QCPItemPosition::ptAbsolute);
    text->setFont(FontNamed("Arial", size, bold));
    text->setColor(colour);
    text->setSelectable(false);
    return text;
}

void GraphPlot::MakeItems(const GraphTitles& titles) {
    auto* zero = new QCPItemStraightLine(this);
    zero->point1->setCoords(0, 0);
    zero->point2->setCoords(1, 0);
    zero->setPen(QPen(Ink, 1.4));
    title_ = MakeText(Ink, 10, true);
    title_->setText(ShownText(titles.title));
    title_->setPositionAlignment(Qt::AlignTop | Qt::AlignHCenter);
    note_ = MakeText(Faint, 8, false);
    note_->setPositionAlignment(Qt::AlignTop | Qt::AlignHCenter);
    topDot_ = MakeDot(Curve, 6);
    bottomDot_ = MakeDot(Curve, 6);
    for (QCPItemTracer* dot : {topDot_, bottomDot_})
        dot->setBrush(Curve);
    greatest = MakeText(Ink, 8, true);
    least = MakeText(Ink, 8, true);
    for (QCPItemText* label : {greatest, least})
        label->setBrush(QColor(255, 255, 255, 190));  // grid and joints shine through, faintly
    ring_ = MakeDot(QPen(QColor(0xc0392b), 2), 8);
    readOut_ = MakeText(Ink, 8, false);
    readOut_->setBrush(QColor(0xffffe8));
    readOut_->setPen(QPen(Faint));
    readOut_->setPadding(QMargins(4, 2, 4, 2));
    readOut_->setPositionAlignment(Qt::AlignLeft | Qt::AlignBottom);
    readOut_->setVisible(false);
    // A layer of their own, so that a move of the mouse draws nothing else.
    ring_->setLayer("overlay");
    readOut_->setLayer("overlay");
}

QCPItemTracer* GraphPlot::MakeDot(const QPen& pen, double size) {
    auto* dot = new QCPItemTracer(this);
    dot->setStyle(QCPItemTracer::tsCircle);
    dot->setPen(pen);
    dot->setSize(size);
    dot->setClipToAxisRect(false);  // else those on the edge would be half cut
    dot->setSelectable(false);
    dot->setVisible(false);
    return dot;
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

// One call waits at most. The chart's own queue takes another one after each immediate replot, and
// a long handler would leave hundreds.
void GraphPlot::Refresh() {
    stale_ = true;
    if (std::exchange(waiting_, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            waiting_ = false;
            if (stale_ && !size().isEmpty())  // a chart of no size has nothing to paint on
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
    // Sorting would not keep points at one x in the order they came in.
    const bool isSorted =
        std::is_sorted(curve.constBegin(), curve.constEnd(),
                       [](const auto& a, const auto& b) { return a.key < b.key; });
    graph(0)->data()->set(curve, isSorted);
    values_->factor = factor;
}

bool GraphPlot::IsRoomy() const {
    return viewport().height() >= 170;
}

// A small chart gives up what it can do without, first its axis titles.
void GraphPlot::FitToSize() {
    const bool roomy = IsRoomy();
    xAxis->setLabel(roomy ? xTitle_ : QString());
    yAxis->setLabel(roomy ? valueTitle_ : QString());
    topMargin_ = FitTitles() + (marks.empty() ? 0 : 18);
    axisRect()->setMinimumMargins(QMargins(8, topMargin_, 18, 4));
    xAxis->ticker()->setTickCount(std::clamp(viewport().width() / 80, 2, 10));
    yAxis->ticker()->setTickCount(std::clamp(viewport().height() / 36, 3, 8));
}

// Many points to a pixel make a block of colour anyway: there a hair line without a fill looks the
// same and costs far less.
void GraphPlot::FitCurve() {
    constexpr double ManyPerPixel = 6;
    const auto& curve = *graph(0)->data();
    const double whole =
        curve.isEmpty() ? 0 : (curve.constEnd() - 1)->key - curve.constBegin()->key;
    const double inSight = whole > 0 ? std::min(1.0, xAxis->range().size() / whole) : 1;
    const bool dense = shown * inSight > ManyPerPixel * viewport().width();
    graph(0)->setPen(CurvePen(dense ? 1 : 1.6));
    graph(0)->setBrush(dense ? QBrush() : QColor(Curve.red(), Curve.green(), Curve.blue(), 38));
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

// Zero and all of the curve that is in sight, with room for the labels.
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
        for (const double edge : {x.lower, x.upper})  // where the line leaves the chart
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
