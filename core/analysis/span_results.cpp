#include "core/analysis/span_results.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

#include "core/analysis/settled_sum.h"
#include "core/text/number_masks.h"

namespace trabeon {
namespace {

/// One span on its two joints: the end moments and whatever loads are added. The left reaction
/// enters as its parts, each end moment's and each load's share.
class SimpleSpan {
  public:
    /// MA and MB: what the left and the right end moment add to the moment at that end, reversed.
    /// A member from a free end to a fixed one has no left reaction.
    SimpleSpan(double L, double MA, double MB, bool hasReaction, double x)
        : L_(L), x_(x), hasReaction_(hasReaction) {
        addReaction(MA / L);
        addReaction(-MB / L);
        moment_.add(-MA);
    }

    void add(const UdlLoad& load) {
        addReaction(load.momentAbout(L_ - load.a, load.b) / L_);
        const double distance = x_ - load.a;
        if (distance <= margin())
            return;
        const double t = distance <= load.b + margin() ? std::min(distance, load.b) : load.b;
        moment_.add(-load.momentAbout(distance, t));
        shear_.add(load.resultant(t));
    }

    void add(const PointLoad& load) {
        addReaction(load.P * (L_ - load.a) / L_);
        const double distance = x_ - load.a;
        if (distance <= margin())
            return;
        moment_.add(-load.P * distance);
        shear_.add(load.P);
    }

    [[nodiscard]] SectionForces forces() const { return {moment_.value(), shear_.value()}; }

  private:
    /// A section this near to where a load starts or ends counts as on it.
    [[nodiscard]] double margin() const { return 1e-12 * L_; }

    void addReaction(double part) {
        if (!hasReaction_)
            return;
        moment_.add(part * x_);
        shear_.add(-part);
    }

    double L_, x_;
    bool hasReaction_;
    SettledSum moment_, shear_;
};

/// A value that is not finite has no text.
void putText(double value, std::string& text) {
    text.clear();
    if (!std::isfinite(value))
        return;
    std::array<char, longestMask> mask;
    text.assign(mask.data(), putThreeFigures(mask.data(), value));
}

}  // namespace

void SpanResults::FindMxSx(double, double, double, std::size_t MemNo, double X_Dist,
                           std::string& B_Moment, std::string& S_Force, std::string_view FindMax,
                           std::vector<double>& TempMx, std::vector<double>& TempVx,
                           const std::vector<double>& Length, const std::vector<double>& Final,
                           const std::vector<Joint>& SupportType, std::size_t Supports) {
    const auto calculate = [&](std::size_t span, double x, std::size_t index) {
        const bool freeToFixed =
            SupportType[span] == Joint::cantilever && SupportType[span + 1] == Joint::fixed;
        SimpleSpan simple(Length[span], -Final[2 * span - 1], Final[2 * span], !freeToFixed, x);
        for (const auto& load : udls_.on(span))
            simple.add(load);
        for (const auto& load : points_.on(span))
            simple.add(load);
        const auto forces = simple.forces();
        TempMx[index] = forces.moment;
        TempVx[index] = forces.shear;
        return forces;
    };
    TempMx.resize(stationsPerSpan(), 0);
    TempVx.resize(stationsPerSpan(), 0);
    SectionForces last;
    if (FindMax == "Y") {
        last = calculate(MemNo, X_Dist, 0);
    } else {
        stations_.clear();
        stations_.reserve((Supports - 1) * stationsPerSpan());
        for (std::size_t span = 1; span < Supports; ++span) {
            const double part = Length[span] / Divisions_;
            for (std::size_t k = 0; k < stationsPerSpan(); ++k) {
                const double x =
                    k + 1 == stationsPerSpan() ? Length[span] : static_cast<double>(k) * part;
                last = calculate(span, x, k);
                stations_.push_back({x, last});
            }
        }
    }
    putText(last.moment, B_Moment);
    putText(last.shear, S_Force);
}

}  // namespace trabeon
