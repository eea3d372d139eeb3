// How the chart's axes are numbered.
#pragma once

#include <qcustomplot.h>

namespace trabeon {

// Plain decimal text of at most six digits.
QString NumberOnAxis(double value);

// Tells the true value at a place whose value was multiplied by a factor to be drawn.
class ValueTicker : public QCPAxisTicker {
  public:
    double factor = 1;

  protected:
    QString getTickLabel(double tick, const QLocale& locale, QChar format, int precision) override;
};

// Numbers the end of the data as well, in place of a round number too near to it.
class DistanceTicker : public QCPAxisTicker {
  public:
    double end = 0;

  protected:
    QVector<double> createTickVector(double tickStep, const QCPRange& range) override;
    QString getTickLabel(double tick, const QLocale& locale, QChar format, int precision) override;
};

}  // namespace trabeon
