#include "toolkit/graph_plot.h"

#include <algorithm>
#include <cmath>

#include "toolkit/look.h"

namespace trabeon {

namespace {

constexpr qint64 FrameMs = 33;
constexpr int LabelHigh = 20;  // pixels that a label of an extreme takes above or below it
const QColor Ink(0x1a1a1a);
const QColor Faint(0x6b7580);
const QColor Curve(0x0a64ad);

}  // namespace

Graph::Plot::Plot(const GraphTitles& titles, QWidget* parent)
    : QCustomPlot(parent),
      xTitle_(QString::fromStdString(titles.x)),
      valueTitle_(QString::fromStdString(titles.value)) {
    setMinimumSize(0, 0);
    setBackground(Qt::white);
    MakeCurve();
    MakeItems(titles);
    MakeMouse();
    connect(this, &QCustomPlot::beforeReplot, this, &Plot::Prepare);
    connect(this, &QCustomPlot::afterLayout, this, &Plot::PlaceLabels);
    Rescale();
}

void Graph::Plot::MakeCurve() {
    addGraph();
    graph(0)->setPen(QPen(Curve, 1.6));
    graph(0)->setBrush(QColor(Curve.red(), Curve.green(), Curve.blue(), 38));
    extremes_ = addGraph();
    extremes_->setLineStyle(QCPGraph::lsNone);
    extremes_->setScatterStyle(QCPScatterStyle(QCPScatterStyle::ssDisc, Curve, Curve, 6));

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
    // Joints and the like stand on the upper edge, with a line down through the chart.
    xAxis2->setTicker(markTicks_);
    xAxis2->setTickLength(4);
    xAxis2->setSubTicks(false);
    xAxis2->setTickLabelColor(Faint);
    xAxis2->setBasePen(Qt::NoPen);
    xAxis2->grid()->setVisible(true);
    xAxis2->grid()->setPen(QPen(QColor(0xb4bdc6), 1, Qt::DashLine));
    connect(xAxis, QOverload<const QCPRange&>::of(&QCPAxis::rangeChanged), xAxis2,
            QOverload<const QCPRange&>::of(&QCPAxis::setRange));
}

QCPItemText* Graph::Plot::MakeText(const QColor& colour, double size, bool bold) {
    auto* text = new QCPItemText(this);
    text->setClipToAxisRect(false);
    text->position->setType(QCPItemPosition::ptAbsolute);
    text->setFont(FontNamed("Arial", size, bold));
    text->setColor(colour);
    text->setSelectable(false);
    return text;
}

void Graph::Plot::MakeItems(const GraphTitles& titles) {
    auto* zero = new QCPItemStraightLine(this);
    zero->point1->setCoords(0, 0);
    zero->point2->setCoords(1, 0);
    zero->setPen(QPen(Ink, 1.4));
    title_ = MakeText(Ink, 10, true);
    title_->setText(QString::fromStdString(titles.title));
    title_->setPositionAlignment(Qt::AlignTop | Qt::AlignHCenter);
    note = MakeText(Faint, 8, false);
    note->setPositionAlignment(Qt::AlignTop | Qt::AlignHCenter);
    greatest = MakeText(Ink, 8, true);
    least = MakeText(Ink, 8, true);
    dot_ = new QCPItemTracer(this);
    dot_->setInterpolating(true);
    dot_->setStyle(QCPItemTracer::tsCircle);
    dot_->setSize(8);
    dot_->setPen(QPen(QColor(0xc0392b), 2));
    dot_->setVisible(false);
    readOut_ = MakeText(Ink, 8, false);
    readOut_->setBrush(QColor(0xffffe8));
    readOut_->setPen(QPen(Faint));
    readOut_->setPadding(QMargins(4, 2, 4, 2));
    readOut_->setPositionAlignment(Qt::AlignLeft | Qt::AlignBottom);
    readOut_->setVisible(false);
}

void Graph::Plot::MakeMouse() {
    setInteractions(QCP::iRangeDrag | QCP::iRangeZoom);
    connect(this, &QCustomPlot::mouseWheel, this, [this] { zoomed_ = true; });
    connect(this, &QCustomPlot::mouseMove, this, [this](const QMouseEvent* event) {
        if (event->buttons() & Qt::LeftButton)
            zoomed_ = true;
        ReadOut(event->position());
    });
    connect(this, &QCustomPlot::mouseDoubleClick, this, [this] {
        zoomed_ = false;
        Refresh();
    });
    setMouseTracking(true);
}

void Graph::Plot::Redraw() {
    zoomed_ = false;
    const bool isDue = isVisible() && !size().isEmpty() &&
                       (!sinceRedraw_.isValid() || sinceRedraw_.elapsed() >= FrameMs);
    if (!isDue) {
        Refresh();
        return;
    }
    replot(rpImmediateRefresh);
    sinceRedraw_.start();
}

// A chart of no size has nothing to paint on.
void Graph::Plot::Refresh() {
    if (!size().isEmpty())
        replot(rpQueuedReplot);
}

void Graph::Plot::resizeEvent(QResizeEvent* event) {
    if (!size().isEmpty())
        QCustomPlot::resizeEvent(event);
}

void Graph::Plot::Prepare() {
    TakeData();
    FindExtremes();
    FitToSize();
    FitMarks();
    if (!zoomed_)
        Rescale();
}

void Graph::Plot::TakeData() {
    QVector<QCPGraphData> curve;
    curve.reserve(shown);
    for (int i = 0; i < shown; ++i) {
        const Point& point = points[static_cast<std::size_t>(i)];
        if (std::isfinite(point.x) && std::isfinite(point.y))
            curve.append({point.x, point.y});
    }
    // Told to be sorted, so that points at one x stay in the order they came in.
    graph(0)->data()->set(curve, true);
    values_->factor = factor;
}

bool Graph::Plot::IsRoomy() const {
    return viewport().height() >= 170;
}

// A small chart gives up what it can do without, first its axis titles.
void Graph::Plot::FitToSize() {
    const bool roomy = IsRoomy();
    const bool titled = viewport().height() >= 90;
    const bool noted = roomy && !note->text().isEmpty();
    title_->setVisible(titled);
    note->setVisible(noted);
    xAxis->setLabel(roomy ? xTitle_ : QString());
    yAxis->setLabel(roomy ? valueTitle_ : QString());
    const int top = (titled ? 26 : 6) + (noted ? 14 : 0) + (marks.empty() ? 0 : 16);
    axisRect()->setMinimumMargins(QMargins(8, top, 18, 4));
    xAxis->ticker()->setTickCount(std::clamp(viewport().width() / 80, 2, 10));
    yAxis->ticker()->setTickCount(std::clamp(viewport().height() / 40, 2, 8));
    const double middle = viewport().width() / 2.0;
    title_->position->setPixelPosition({middle, 6});
    note->position->setPixelPosition({middle, 23});
}

void Graph::Plot::Rescale() {
    const auto& curve = *graph(0)->data();
    QCPRange x(0, 1), y(-1, 1);
    if (!curve.isEmpty()) {
        x = {curve.constBegin()->key, (curve.constEnd() - 1)->key};
        y = {std::min(0.0, bottom_.y), std::max(0.0, top_.y)};
    }
    distances_->end = x.upper;
    if (!(x.size() > 0))
        x.upper = x.lower + 1;
    if (!(y.size() > 0))
        y = {-1, 1};
    const int around = IsRoomy() ? 90 : 46;  // title, tick labels and axis titles
    const double room = std::max(LabelHigh, viewport().height() - around - 2 * LabelHigh);
    const double margin = y.size() * LabelHigh / room;
    xAxis->setRange(x);
    yAxis->setRange(y.lower - margin, y.upper + margin);
}

QImage Graph::Plot::PictureOf(QSize size, double ratio) {
    HideReadOut();
    const QRect onScreen = viewport();
    setViewport(QRect(QPoint(0, 0), size));
    Prepare();
    QImage picture = toPixmap(size.width(), size.height(), ratio).toImage();
    setViewport(onScreen);
    Prepare();
    picture.setDevicePixelRatio(ratio);
    return picture;
}

}  // namespace trabeon
