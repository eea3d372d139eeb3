// The labels of the extremes, the titles, and the marks with their names.
#include <algorithm>
#include <cmath>

#include "toolkit/chart/graph_plot.h"
#include "toolkit/look/look.h"
#include "toolkit/look/shown_text.h"

namespace trabeon {

namespace {

// Four significant digits, but up to six in front of the point.
QString ShortNumber(double value) {
    const double size = std::abs(value);
    return size >= 1e3 && size < 1e6 ? QString::number(value, 'f', 0)
                                     : QString::number(value + 0.0, 'G', 4);
}

QString LabelText(double value, double x) {
    return QString("%1 at %2").arg(ShortNumber(value), ShortNumber(x));
}

void SetPixel(QCPItemText& item, const QPointF& at) {
    item.position->setPixelPosition(at);
}

}  // namespace

void GraphPlot::FindExtremes() {
    const auto& curve = *graph(0)->data();
    greatest->setText({});
    least->setText({});
    if (curve.isEmpty())
        return;
    const auto lower = [](const QCPGraphData& a, const QCPGraphData& b) {
        return a.value < b.value;
    };
    const auto low = std::min_element(curve.constBegin(), curve.constEnd(), lower);
    const auto high = std::max_element(curve.constBegin(), curve.constEnd(), lower);
    // If several points have this value, the caller knows which one is meant.
    const auto chosen = [this](const QCPGraphData& found, int index) {
        const bool isShown = index >= 1 && index <= shown;
        const Point point = isShown ? points[static_cast<std::size_t>(index - 1)] : Point();
        return isShown && point.y == found.value && std::isfinite(point.x)
                   ? point
                   : Point{found.key, found.value};
    };
    top_ = chosen(*high, factor < 0 ? leastPoint : greatestPoint);
    bottom_ = chosen(*low, factor < 0 ? greatestPoint : leastPoint);
    const QString above = LabelText(top_.y * factor, top_.x);
    const QString below = LabelText(bottom_.y * factor, bottom_.x);
    greatest->setText(factor < 0 ? below : above);
    if (top_.y > bottom_.y)
        least->setText(factor < 0 ? above : below);
}

// Returns the height of title and note, in pixels. In a small chart they share a line. If that is
// too short, only the note is shown, because the caption of the window names the diagram too.
int GraphPlot::FitTitles() {
    const bool roomy = IsRoomy();
    const bool titled = viewport().height() >= 70;
    const QFontMetricsF noteMetrics(note_->font());
    const QString hint = zoomed_ && !pictured_ && !warns ? "Double click shows all" : "";
    note_->setColor(NoteColour());
    QString text = note.isEmpty() || hint.isEmpty() ? note + hint : note + ". " + hint;
    if (!hint.isEmpty() && noteMetrics.horizontalAdvance(text) > viewport().width())
        text = hint;
    note_->setText(text);
    title_->setFont(FontNamed("Arial", roomy ? 10 : 8, true));
    const double titleWide = QFontMetricsF(title_->font()).horizontalAdvance(title_->text());
    const double noteWide = noteMetrics.horizontalAdvance(text) + 12;
    const bool inOneLine = !roomy && titleWide + noteWide <= viewport().width();
    title_->setVisible(titled && (roomy || inOneLine || text.isEmpty()));
    note_->setVisible(titled && !text.isEmpty());
    const double middle = viewport().width() / 2.0;
    const double aside = note_->visible() && inOneLine ? 0.5 : 0;
    SetPixel(*title_, {middle - aside * noteWide, roomy ? 6.0 : 2.0});
    SetPixel(*note_, {middle + aside * titleWide, roomy ? 23.0 : 2.0});
    if (!titled)
        return 6;
    return roomy ? (note_->visible() ? 40 : 26) : 21;
}

// Leaves out lines that are so close that they would make a grey area.
void GraphPlot::FitMarks() {
    constexpr double LeastApart = 8;
    xAxis2->setVisible(!marks.empty());
    QMap<double, QString> ticks;
    const double pixelsPerX = (viewport().width() - 80) / xAxis->range().size();
    double former = -1e300;
    for (const GraphMark& mark : marks) {
        const double at = mark.x * pixelsPerX;
        if (at - former < LeastApart)
            continue;
        ticks.insert(mark.x, {});
        former = at;
    }
    markTicks_->setTicks(ticks);
}

bool GraphPlot::IsInSight(double x) const {
    const QCPRange& range = xAxis->range();
    const double dust = 1e-9 * range.size();
    return x >= range.lower - dust && x <= range.upper + dust;
}

void GraphPlot::PlaceAll() {
    PlaceMarkNames();
    PlaceDots();
    PlaceLabels();
    PlaceReadOut();
}

void GraphPlot::PlaceMarkNames() {
    std::vector<MarkNames::Name> names;
    for (const GraphMark& mark : marks)
        if (IsInSight(mark.x))
            names.push_back({xAxis->coordToPixel(mark.x), QString::fromStdString(mark.label)});
    markNames_->Place(names);
}

void GraphPlot::PlaceDots() {
    for (auto [dot, at] : {std::pair{topDot_, top_}, {bottomDot_, bottom_}}) {
        dot->position->setCoords(at.x, at.y);
        dot->setVisible(!graph(0)->data()->isEmpty() && IsInSight(at.x));
    }
}

QRectF GraphPlot::PlaceLabel(QCPItemText& label, const Point& at, bool above) {
    const QRectF area = axisRect()->rect();
    const QPointF point(xAxis->coordToPixel(at.x), yAxis->coordToPixel(at.y));
    label.setVisible(!label.text().isEmpty() && area.adjusted(-1, -1, 1, 1).contains(point));
    const QFontMetricsF metrics(label.font());
    const double wide = metrics.horizontalAdvance(label.text()) + 4;
    const double high = metrics.height();
    const double left =
        std::max(area.left() + 5, std::min(point.x() - wide / 2, area.right() - wide - 2));
    const double top = above ? point.y() - high - 4 : point.y() + 4;
    label.setPositionAlignment(Qt::AlignTop | Qt::AlignLeft);
    const QRectF box(left, std::clamp(top, area.top(), std::max(area.top(), area.bottom() - high)),
                     wide, high);
    SetPixel(label, box.topLeft());
    return label.visible() ? box : QRectF();
}

void GraphPlot::PlaceLabels() {
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

}  // namespace trabeon
