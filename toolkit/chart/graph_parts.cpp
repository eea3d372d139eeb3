// What the chart consists of and how it looks: the curve, the axes, the texts and the dots.
#include <algorithm>

#include "toolkit/chart/graph_plot.h"
#include "toolkit/look/look.h"
#include "toolkit/look/shown_text.h"

namespace trabeon {

namespace {

const QColor Ink(0x1a1a1a);
const QColor Faint(0x6b7580);
const QColor Warning(0xa61b1b);
const QColor Curve(0x0a64ad);

// Draws the line and its fill in pieces, because the cost grows with the square of the length.
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

void GraphPlot::MakeCurve() {
    new PiecewiseGraph(xAxis, yAxis);
    MakeAxes();
    // Each mark is a line down through the chart, with its name above.
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
    text->setText({});  // it has a text at first
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
        label->setBrush(QColor(255, 255, 255, 190));  // the grid shows through a little
    ring_ = MakeDot(QPen(QColor(0xc0392b), 2), 8);
    readOut_ = MakeText(Ink, 8, false);
    readOut_->setBrush(QColor(0xffffe8));
    readOut_->setPen(QPen(Faint));
    readOut_->setPadding(QMargins(4, 2, 4, 2));
    readOut_->setPositionAlignment(Qt::AlignLeft | Qt::AlignBottom);
    readOut_->setVisible(false);
    // On a separate layer, so that a move of the mouse draws nothing else.
    ring_->setLayer("overlay");
    readOut_->setLayer("overlay");
}

QCPItemTracer* GraphPlot::MakeDot(const QPen& pen, double size) {
    auto* dot = new QCPItemTracer(this);
    dot->setStyle(QCPItemTracer::tsCircle);
    dot->setPen(pen);
    dot->setSize(size);
    dot->setClipToAxisRect(false);  // else a dot on the edge would be cut off
    dot->setSelectable(false);
    dot->setVisible(false);
    return dot;
}

// Many points in a pixel make a block of colour anyway. A thin line without a fill looks the same
// there and takes far less time.
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

}  // namespace trabeon
