// The parts of the chart that tell a number or a name where it stands.
#include <algorithm>
#include <cmath>

#include "toolkit/graph_plot.h"
#include "toolkit/look.h"
#include "toolkit/shown_text.h"

namespace trabeon {

namespace {

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

void GraphPlot::FindExtremes() {
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

// Gives the height that the two take. In a small chart they share a line, if it is long enough.
int GraphPlot::FitTitles() {
    const bool roomy = IsRoomy();
    const bool titled = viewport().height() >= 70;
    title_->setFont(FontNamed("Arial", roomy ? 10 : 8, true));
    const double titleWide = QFontMetricsF(title_->font()).horizontalAdvance(title_->text());
    const double noteWide = QFontMetricsF(note->font()).horizontalAdvance(note->text()) + 12;
    const bool inOneLine = !roomy && titleWide + noteWide <= viewport().width();
    title_->setVisible(titled);
    note->setVisible(titled && !note->text().isEmpty() && (roomy || inOneLine));
    const double middle = viewport().width() / 2.0;
    const double aside = note->visible() && inOneLine ? 0.5 : 0;
    SetPixel(*title_, {middle - aside * noteWide, roomy ? 6.0 : 2.0});
    SetPixel(*note, {middle + aside * titleWide, roomy ? 23.0 : 2.0});
    if (!titled)
        return 6;
    return roomy ? (note->visible() ? 40 : 26) : 21;
}

// Leaves out labels that would stand on one another, and lines that would become a grey area.
void GraphPlot::FitMarks() {
    constexpr double LeastApart = 8;
    xAxis2->setVisible(!marks.empty());
    xAxis2->setTickLabels(!marks.empty());
    QMap<double, QString> ticks;
    const double pixelsPerX = (viewport().width() - 80) / xAxis->range().size();
    const QFontMetricsF metrics(xAxis2->tickLabelFont());
    double former = -1e300;
    double free = -1e300;
    for (const GraphMark& mark : marks) {
        const QString label = ShownText(mark.label);
        const double at = mark.x * pixelsPerX;
        const double half = metrics.horizontalAdvance(label) / 2 + 3;
        const bool fits = at - half >= free;
        if (!fits && at - former < LeastApart)
            continue;
        ticks.insert(mark.x, fits ? label : QString());
        former = at;
        if (fits)
            free = at + half;
    }
    markTicks_->setTicks(ticks);
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

void GraphPlot::ReadOut(const QPointF& mouse) {
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

void GraphPlot::HideReadOut() {
    if (!readOut_->visible())
        return;
    dot_->setVisible(false);
    dot_->setGraph(nullptr);  // it cannot stand on a chart that may be empty the next time
    readOut_->setVisible(false);
    Refresh();
}

void GraphPlot::leaveEvent(QEvent* event) {
    QCustomPlot::leaveEvent(event);
    HideReadOut();
}

}  // namespace trabeon
