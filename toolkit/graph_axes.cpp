#include "toolkit/graph_axes.h"

#include <cmath>

namespace trabeon {

QString NumberOnAxis(double value) {
    return QString::number(value + 0.0, 'g', 6);  // + 0.0: a zero has no minus sign
}

QString ValueTicker::getTickLabel(double tick, const QLocale&, QChar, int) {
    return NumberOnAxis(tick * factor);
}

QVector<double> DistanceTicker::createTickVector(double tickStep, const QCPRange& range) {
    QVector<double> ticks = QCPAxisTicker::createTickVector(tickStep, range);
    const double room = 0.45 * tickStep;
    if (!range.contains(end))
        return ticks;
    const auto isNear = [&](double tick) { return std::abs(tick - end) < room; };
    ticks.erase(std::remove_if(ticks.begin(), ticks.end(), isNear), ticks.end());
    ticks.insert(std::upper_bound(ticks.begin(), ticks.end(), end), end);
    return ticks;
}

QString DistanceTicker::getTickLabel(double tick, const QLocale&, QChar, int) {
    return NumberOnAxis(tick);
}

}  // namespace trabeon
