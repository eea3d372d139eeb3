#include "toolkit/drawing/paint_drawing.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

#include "toolkit/look/shown_text.h"

namespace trabeon {

namespace {

constexpr double SixteenthsPerDegree = 16;  // the toolkit's unit of angles

QFont Weighted(QFont font, bool bold) {
    font.setBold(bold);
    return font;
}

QPen PenOf(const std::optional<Pen>& pen) {
    if (!pen)
        return Qt::NoPen;
    return {QColor(pen->colour), pen->width, pen->dashed ? Qt::DashLine : Qt::SolidLine,
            Qt::FlatCap, Qt::RoundJoin};
}

QBrush BrushOf(const std::optional<Colour>& fill) {
    return fill ? QBrush(QColor(*fill)) : QBrush(Qt::NoBrush);
}

QPointF PointOf(const DrawnPoint& point) {
    return {point.x, point.y};
}

/// Paints one shape, by its kind.
struct Brush {
    QPainter& painter;
    QFont font;

    void operator()(const PathShape& path) const {
        QPolygonF points;
        points.reserve(static_cast<qsizetype>(path.points.size()));
        for (const DrawnPoint& point : path.points)
            points.append(PointOf(point));
        painter.setPen(PenOf(path.pen));
        painter.setBrush(BrushOf(path.fill));
        if (path.fill)
            painter.drawPolygon(points);
        else
            painter.drawPolyline(points);
    }

    void operator()(const ArcShape& arc) const {
        const QPointF reach(arc.radius, arc.radius);
        const QRectF box(PointOf(arc.centre) - reach, PointOf(arc.centre) + reach);
        painter.setPen(PenOf(arc.pen));
        painter.setBrush(BrushOf(arc.fill));
        if (arc.sweep == 360)
            painter.drawEllipse(box);
        else
            painter.drawArc(box, qRound(arc.start * SixteenthsPerDegree),
                            qRound(arc.sweep * SixteenthsPerDegree));
    }

    void operator()(const TextShape& text) const {
        painter.setFont(Weighted(font, text.bold));
        painter.setPen(QColor(text.colour));
        const double ascent = QFontMetricsF(painter.font(), painter.device()).ascent();
        painter.drawText(PointOf(text.corner) + QPointF(0, ascent), ShownText(text.text));
    }
};

}  // namespace

void PaintDrawing(QPainter& painter, const Drawing& drawing) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const Brush brush{painter, painter.font()};
    for (const Shape& shape : drawing)
        std::visit(brush, shape);
    painter.restore();
}

TextMeasure MeasureOf(const QFont& font) {
    const QFontMetricsF plain(Weighted(font, false)), bold(Weighted(font, true));
    return [plain, bold](const std::string& text, bool isBold) {
        const QFontMetricsF& metrics = isBold ? bold : plain;
        return TextSize{metrics.horizontalAdvance(ShownText(text)), metrics.height()};
    };
}

}  // namespace trabeon
