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

// Four significant digits, and all of those before the point while they are few.
QString ShortNumber(double value) {
    const double size = std::abs(value);
    return size >= 1e3 && size < 1e6 ? QString::number(value, 'f', 0)
                                     : QString::number(value + 0.0, 'g', 4);
}

QString LabelText(double value, double x) {
    return QString("%1 at %2").arg(ShortNumber(value), ShortNumber(x));
}

void SetPixel(QCPItemText& item, const QPointF& at) {
    item.position->setPixelPosition(at);
}

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

void Graph::Plot::FindExtremes() {
    const auto& curve = *graph(0)->data();
    extremes_->data()->clear();
    greatest->setText({});
    least->setText({});
    if (curve.isEmpty())
        return;
    const auto lower = [](const QCPGraphData& a, const QCPGraphData& b) {
        return a.value < b.value;
    };
    const auto low = std::min_element(curve.constBegin(), curve.constEnd(), lower);
    const auto high = std::max_element(curve.constBegin(), curve.constEnd(), lower);
    top_ = {high->key, high->value};
    bottom_ = {low->key, low->value};
    const QString above = LabelText(top_.y * factor, top_.x);
    const QString below = LabelText(bottom_.y * factor, bottom_.x);
    greatest->setText(factor < 0 ? below : above);
    if (top_.y > bottom_.y)
        least->setText(factor < 0 ? above : below);
    extremes_->addData(top_.x, top_.y);
    extremes_->addData(bottom_.x, bottom_.y);
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
    SetPixel(*title_, {middle, 6});
    SetPixel(*note, {middle, 23});
}

// Leaves out labels that would stand on one another.
void Graph::Plot::FitMarks() {
    xAxis2->setVisible(!marks.empty());
    xAxis2->setTickLabels(!marks.empty());
    QMap<double, QString> ticks;
    const double pixelsPerX = (viewport().width() - 80) / xAxis->range().size();
    const QFontMetricsF metrics(xAxis2->tickLabelFont());
    double free = -1e300;
    for (const GraphMark& mark : marks) {
        const QString label = QString::fromStdString(mark.label);
        const double half = metrics.horizontalAdvance(label) / 2 + 3;
        const bool fits = mark.x * pixelsPerX - half >= free;
        ticks.insert(mark.x, fits ? label : QString());
        if (fits)
            free = mark.x * pixelsPerX + half;
    }
    markTicks_->setTicks(ticks);
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

QRectF Graph::Plot::PlaceLabel(QCPItemText& label, const Point& at, bool above) {
    const QRectF area = axisRect()->rect();
    const QPointF point(xAxis->coordToPixel(at.x), yAxis->coordToPixel(at.y));
    label.setVisible(!label.text().isEmpty() && area.adjusted(-1, -1, 1, 1).contains(point));
    const QFontMetricsF metrics(label.font());
    const double wide = metrics.horizontalAdvance(label.text()) + 4;
    const double high = metrics.height();
    const double left =
        std::max(area.left() + 2, std::min(point.x() - wide / 2, area.right() - wide - 2));
    const double top = above ? point.y() - high - 4 : point.y() + 4;
    label.setPositionAlignment(Qt::AlignTop | Qt::AlignLeft);
    const QRectF box(left, std::clamp(top, area.top(), std::max(area.top(), area.bottom() - high)),
                     wide, high);
    SetPixel(label, box.topLeft());
    return label.visible() ? box : QRectF();
}

void Graph::Plot::PlaceLabels() {
    QCPItemText& upper = factor < 0 && !least->text().isEmpty() ? *least : *greatest;
    QCPItemText& lower = &upper == greatest ? *least : *greatest;
    const QRectF first = PlaceLabel(upper, top_, true);
    const QRectF second = PlaceLabel(lower, bottom_, false);
    if (!first.intersects(second))
        return;
    const QRectF area = axisRect()->rect();
    if (first.right() + 6 + second.width() <= area.right())
        SetPixel(lower, {first.right() + 6, second.top()});
    else if (first.left() - 6 - second.width() >= area.left())
        SetPixel(lower, {first.left() - 6 - second.width(), second.top()});
    else
        lower.setVisible(false);
}

void Graph::Plot::ReadOut(const QPointF& mouse) {
    const QRect area = axisRect()->rect();
    if (graph(0)->data()->isEmpty() || !area.contains(mouse.toPoint())) {
        HideReadOut();
        return;
    }
    dot_->setGraph(graph(0));
    dot_->setGraphKey(xAxis->pixelToCoord(mouse.x()));
    dot_->updatePosition();
    const QPointF at = dot_->position->pixelPosition();
    readOut_->setText(QString("x = %1   %2")
                          .arg(ShortNumber(dot_->position->key()),
                               ShortNumber(dot_->position->value() * factor)));
    const double wide = QFontMetricsF(readOut_->font()).horizontalAdvance(readOut_->text()) + 12;
    SetPixel(*readOut_, {at.x() + 10 + wide > area.right() ? at.x() - 10 - wide : at.x() + 10,
                         std::max(at.y() - 6, area.top() + 20.0)});
    dot_->setVisible(true);
    readOut_->setVisible(true);
    Refresh();
}

void Graph::Plot::HideReadOut() {
    if (!readOut_->visible())
        return;
    dot_->setVisible(false);
    dot_->setGraph(nullptr);  // it cannot stand on a chart that may be empty the next time
    readOut_->setVisible(false);
    Refresh();
}

void Graph::Plot::leaveEvent(QEvent* event) {
    QCustomPlot::leaveEvent(event);
    HideReadOut();
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
