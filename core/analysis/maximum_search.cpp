#include "core/analysis/maximum_search.h"

#include <cmath>
#include <span>

#include "core/text/number_text.h"

namespace trabeon {
namespace {

int signOf(double shear) {
    return (shear > 0) - (shear < 0);
}

/// Of a text in the mask "0.00E+00", in which only 0 begins with the digit 0.
int signOf(const std::string& shear) {
    return shear[0] == '-' ? -1 : shear[0] == '0' ? 0 : 1;
}

class MaximumSearch {
  public:
    MaximumSearch(SpanResults& results, const Beam& beam, const std::vector<double>& Final,
                  double CorrectTo)
        : results_(results), beam_(beam), Final_(Final), CorrectTo_(CorrectTo) {
        find(0, 0, 0, 0, "N");
    }

    SpanMaximum ofSpan(std::size_t span) {
        calculate(span, 0);
        const auto perSpan = results_.stationsPerSpan();
        const auto stations = std::span(results_.stations()).subspan((span - 1) * perSpan, perSpan);
        const int running = signOf(stations.front().forces.shear);
        double left = 0;
        for (const auto& station : stations) {
            if (signOf(station.forces.shear) != running) {
                closeIn(span, left, station.x, running);
                return {left, B_Moment_, S_Force_};
            }
            left = station.x;
        }
        return largerEnd(span);
    }

  private:
    /// Halves the bracket while the current shear is not 0 and the bracket is wider than CorrectTo.
    void closeIn(std::size_t span, double& left, double right, int leftSign) {
        while (signOf(S_Force_) != 0 && right - left > CorrectTo_) {
            const double middle = left + (right - left) / 2;
            if (middle <= left || middle >= right)
                return;
            find(left, right, span, middle, "Y");
            (signOf(S_Force_) == leftSign ? left : right) = middle;
        }
    }

    SpanMaximum largerEnd(std::size_t span) {
        SpanMaximum atLeft{0, B_Moment_, S_Force_};
        const double L = beam_.Length[span];
        calculate(span, L);
        if (size(B_Moment_) >= size(atLeft.moment))
            return {L, B_Moment_, S_Force_};
        return atLeft;
    }

    static double size(const std::string& moment) { return std::fabs(leadingNumber(moment)); }

    void calculate(std::size_t span, double x) { find(0, 0, span, x, "Y"); }

    void find(double left, double right, std::size_t span, double x, std::string_view FindMax) {
        results_.FindMxSx(left, right, CorrectTo_, span, x, B_Moment_, S_Force_, FindMax, TempMx_,
                          TempVx_, beam_.Length, Final_, beam_.SupportType, beam_.Supports);
    }

    SpanResults& results_;
    const Beam& beam_;
    const std::vector<double>& Final_;
    double CorrectTo_;
    std::string B_Moment_, S_Force_;
    std::vector<double> TempMx_, TempVx_;
};

}  // namespace

std::vector<SpanMaximum> searchMaxima(SpanResults& results, const Beam& beam,
                                      const std::vector<double>& Final, double CorrectTo,
                                      const std::function<void(std::size_t)>& searched) {
    MaximumSearch search(results, beam, Final, CorrectTo);
    std::vector<SpanMaximum> maxima;
    maxima.reserve(beam.members());
    for (std::size_t span = 1; span <= beam.members(); ++span) {
        maxima.push_back(search.ofSpan(span));
        searched(span);
    }
    return maxima;
}

}  // namespace trabeon
