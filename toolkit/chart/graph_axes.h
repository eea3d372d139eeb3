// How the chart's axes are numbered.
#pragma once

#include <qcustomplot.h>

#include <vector>

namespace trabeon {

// Numbers one axis in one style: plain decimals, or powers of ten where a number would need seven
// digits or more, or begin with three zeros.
class AxisTicker : public QCPAxisTicker {
  protected:
    QVector<double> createTickVector(double tickStep, const QCPRange& range) override;
    QString getTickLabel(double tick, const QLocale& locale, QChar format, int precision) override;
    // The style in which those of the range can be read.
    void ChooseStyle(const QVector<double>& ticks, const QCPRange& range);

  private:
    bool powers_ = false;
    int decimals_ = 0;  // of the powers
};

// Tells the true value at a place whose value was multiplied by a factor to be drawn.
class ValueTicker : public AxisTicker {
  public:
    double factor = 1;

  protected:
    QString getTickLabel(double tick, const QLocale& locale, QChar format, int precision) override;
};

// Numbers the end of the data as well, in place of a round number too near to it.
class DistanceTicker : public AxisTicker {
  public:
    double end = 0;

  protected:
    QVector<double> createTickVector(double tickStep, const QCPRange& range) override;
};

// Names above the chart, one for each mark. Those at the edges stay above the chart.
class MarkNames : public QCPAbstractItem {
  public:
    explicit MarkNames(QCustomPlot* plot);

    struct Name {
        double x;  // pixels
        QString text;
    };
    // By rising x. A name that has no room beside the former one is left out.
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
