// The numbers on the axes of a chart, and the names of its marks.
#pragma once

#include <qcustomplot.h>

#include <vector>

namespace trabeon {

/// Writes all numbers of an axis in one style: decimals, or powers of ten if a number would have
/// seven or more digits before the point, or if all are below 0.001.
class AxisTicker : public QCPAxisTicker {
  protected:
    QVector<double> createTickVector(double tickStep, const QCPRange& range) override;
    QString getTickLabel(double tick, const QLocale& locale, QChar format, int precision) override;
    /// Chooses the style for the ticks in the range.
    void ChooseStyle(const QVector<double>& ticks, const QCPRange& range);

  private:
    bool powers_ = false;
    int decimals_ = 0;  // in front of the power of ten
};

/// An axis whose values are true value divided by `factor`. It shows the true values.
class ValueTicker : public AxisTicker {
  public:
    double factor = 1;

  protected:
    QString getTickLabel(double tick, const QLocale& locale, QChar format, int precision) override;
};

/// Also shows the number at the end of the data, and omits round numbers too close to it.
class DistanceTicker : public AxisTicker {
  public:
    double end = 0;

  protected:
    QVector<double> createTickVector(double tickStep, const QCPRange& range) override;
};

/// The names of the marks, above the chart. A name at an edge moves inward.
class MarkNames : public QCPAbstractItem {
  public:
    explicit MarkNames(QCustomPlot* plot);

    struct Name {
        double x;  // pixels
        QString text;
    };
    /// The names, sorted by x. A name without room next to the one before is left out.
    void Place(const std::vector<Name>& names);
    QFont font;
    QColor colour;

    double selectTest(const QPointF&, bool, QVariant*) const override { return -1; }

  protected:
    void draw(QCPPainter* painter) override;

  private:
    struct Placed {
        QRectF box;
        QString text;
    };
    std::vector<Placed> placed_;
};

}  // namespace trabeon
