// The parts of the chart that tell a number or a name where it stands.
#include <algorithm>
#include <cmath>

#include "toolkit/graph_plot.h"

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

}  // namespace trabeon
