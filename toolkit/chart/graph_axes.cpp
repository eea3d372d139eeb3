#include "toolkit/chart/graph_axes.h"

#include <algorithm>
#include <cmath>

namespace trabeon {

namespace {

constexpr int Digits = 6;

QString PowerText(double value, int decimals) {
    return value == 0 ? "0" : QString::number(value, 'E', decimals);
}

}  // namespace

QVector<double> AxisTicker::createTickVector(double tickStep, const QCPRange& range) {
    QVector<double> ticks = QCPAxisTicker::createTickVector(tickStep, range);
    ChooseStyle(ticks, range);
    return ticks;
}

void AxisTicker::ChooseStyle(const QVector<double>& ticks, const QCPRange& range) {
    double greatest = 0;
    for (const double tick : ticks)
        if (range.contains(tick))  // a tick beyond each end is not shown
            greatest = std::max(greatest, std::abs(tick));
    powers_ = greatest >= 999'999.5 || (greatest > 0 && greatest < 1e-3);
    const auto isExact = [this](double tick) {
        return std::abs(PowerText(tick, decimals_).toDouble() - tick) <= 1e-6 * std::abs(tick);
    };
    decimals_ = 0;
    while (decimals_ < Digits - 1 && !std::all_of(ticks.begin(), ticks.end(), isExact))
        ++decimals_;
}

QString AxisTicker::getTickLabel(double tick, const QLocale&, QChar, int) {
    return powers_ ? PowerText(tick, decimals_)
                   : QString::number(tick + 0.0, 'g', Digits);  // + 0.0: a zero has no minus sign
}

QString ValueTicker::getTickLabel(double tick, const QLocale& locale, QChar format, int precision) {
    return AxisTicker::getTickLabel(tick * factor, locale, format, precision);
}

QVector<double> DistanceTicker::createTickVector(double tickStep, const QCPRange& range) {
    QVector<double> ticks = AxisTicker::createTickVector(tickStep, range);
    const double room = 0.45 * tickStep;
    if (!range.contains(end))
        return ticks;
    const auto isNear = [&](double tick) { return std::abs(tick - end) < room; };
    ticks.erase(std::remove_if(ticks.begin(), ticks.end(), isNear), ticks.end());
    ticks.insert(std::upper_bound(ticks.begin(), ticks.end(), end), end);
    ChooseStyle(ticks, range);
    return ticks;
}

MarkNames::MarkNames(QCustomPlot* plot) : QCPAbstractItem(plot) {
    setClipToAxisRect(false);
    setSelectable(false);
}

void MarkNames::Place(const std::vector<Name>& names) {
    placed_.clear();
    const QRectF area = mParentPlot->axisRect()->rect();
    const QFontMetricsF metrics(font);
    const double top = area.top() - metrics.height() - 2;
    double free = area.left();
    for (const auto& [x, text] : names) {
        if (x < free || x > area.right() + 1)
            continue;
        const double wide = metrics.horizontalAdvance(text);
        const double left =
            std::max(area.left(), std::min(x - wide / 2, mParentPlot->viewport().right() - wide));
        if (left < free)
            continue;
        placed_.push_back({{left, top, wide, metrics.height()}, text});
        free = left + wide + 6;
    }
}

void MarkNames::draw(QCPPainter* painter) {
    painter->setFont(font);
    painter->setPen(colour);
    for (const auto& [box, text] : placed_)
        painter->drawText(box, Qt::AlignCenter | Qt::TextDontClip, text);
}

}  // namespace trabeon
