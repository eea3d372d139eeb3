// What the mouse does on the chart: it reads points off, and zooms to a part of the curve.
#include <algorithm>
#include <cmath>

#include "toolkit/chart/graph_plot.h"

namespace trabeon {

void GraphPlot::MakeMouse() {
    setInteractions(QCP::iRangeDrag | QCP::iRangeZoom);
    axisRect()->setRangeDrag(Qt::Horizontal);
    axisRect()->setRangeZoom(Qt::Horizontal);
    connect(xAxis, QOverload<const QCPRange&>::of(&QCPAxis::rangeChanged), this,
            &GraphPlot::KeepInside);
    connect(this, &QCustomPlot::mouseMove, this,
            [this](const QMouseEvent* event) { MoveReadOut(event->position()); });
    connect(this, &QCustomPlot::mouseDoubleClick, this, [this] {
        zoomed_ = false;
        Refresh();
    });
    setMouseTracking(true);
}

// The visible part stays inside the data, and is at least a quarter of the distance of two points.
void GraphPlot::KeepInside(const QCPRange& range) {
    const double finest = whole_.size() / std::max(4.0, 4.0 * shown);
    QCPRange kept = range;
    if (kept.size() < finest)
        kept = {kept.center() - finest / 2, kept.center() + finest / 2};
    kept = kept.bounded(whole_.lower, whole_.upper);
    zoomed_ = kept.size() < whole_.size() * (1 - 1e-9);
    if (!zoomed_)
        kept = whole_;
    if (kept != range)
        xAxis->setRange(kept);
    xAxis2->setRange(kept);
}

QString GraphPlot::ReadOut() const {
    return readOut_->visible() ? readOut_->text() : QString();
}

// Hides the readout if the mouse is not over the chart.
void GraphPlot::MoveReadOut(std::optional<QPointF> mouse) {
    mouse_ = mouse;
    const bool wasShown = readOut_->visible();
    PlaceReadOut();
    if (wasShown || readOut_->visible())
        layer("overlay")->replot();
}

// The index, from 1, of the visible point that is nearest in x, and of those with the same x the
// nearest in y. 0 if there is none.
int GraphPlot::PointNear(const QPointF& mouse) const {
    int nearest = 0;
    double across = 0, up = 0;
    for (int i = 0; i < shown; ++i) {
        const auto& [x, y] = points[static_cast<std::size_t>(i)];
        if (!std::isfinite(x) || !std::isfinite(y) || !IsInSight(x))
            continue;
        const double dx = std::abs(xAxis->coordToPixel(x) - mouse.x());
        const double dy = std::abs(yAxis->coordToPixel(y) - mouse.y());
        if (nearest != 0 && (dx > across || (dx == across && dy >= up)))
            continue;
        nearest = i + 1;
        across = dx;
        up = dy;
    }
    return nearest;
}

void GraphPlot::PlaceReadOut() {
    const QRect area = axisRect()->rect();
    const bool isOver = mouse_ && area.contains(mouse_->toPoint());
    const int index = isOver ? PointNear(*mouse_) : 0;
    ring_->setVisible(index != 0);
    readOut_->setVisible(index != 0);
    if (index == 0)
        return;
    const auto& [x, y] = points[static_cast<std::size_t>(index - 1)];
    ring_->position->setCoords(x, y);
    readOut_->setText(pointText ? QString::fromStdString(pointText(index))
                                : QString("x = %1, y = %2").arg(x).arg(y * factor));
    const QPointF at = ring_->position->pixelPosition();
    const double wide = QFontMetricsF(readOut_->font()).horizontalAdvance(readOut_->text()) + 12;
    const double left = at.x() + 10 + wide > area.right() ? at.x() - 10 - wide : at.x() + 10;
    readOut_->position->setPixelPosition(
        {std::max(left, 2.0), std::max(at.y() - 6, area.top() + 20.0)});
}

void GraphPlot::leaveEvent(QEvent* event) {
    QCustomPlot::leaveEvent(event);
    MoveReadOut({});
}

}  // namespace trabeon
