#include "core/analysis/span_results.h"

#include <algorithm>

#include "core/analysis/settled_sum.h"

namespace trabeon {
namespace {

/// A simple span with its end moments and the loads that are added. The left reaction is added in
/// parts: the share of each end moment and of each load.
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

}  // namespace

SectionForces FindMxSx(const LoadedBeam& loaded, std::size_t MemNo, double X_Dist) {
    const auto& [beam, Final, udls, points] = loaded;
    const bool freeToFixed =
        beam.SupportType[MemNo] == Joint::cantilever && beam.SupportType[MemNo + 1] == Joint::fixed;
    SimpleSpan simple(beam.Length[MemNo], -Final[2 * MemNo - 1], Final[2 * MemNo], !freeToFixed,
                      X_Dist);
    for (const auto& load : udls.on(MemNo))
        simple.add(load);
    for (const auto& load : points.on(MemNo))
        simple.add(load);
    return simple.forces();
}

double stationAt(std::size_t k, std::size_t Divisions, double Length) {
    const double part = Length / static_cast<double>(Divisions);
    return k == Divisions ? Length : static_cast<double>(k) * part;
}

std::vector<Station> FindMxSx(const LoadedBeam& loaded, std::size_t Divisions) {
    std::vector<Station> stations;
    stations.reserve(loaded.beam.members() * (Divisions + 1));
    for (std::size_t span = 1; span <= loaded.beam.members(); ++span) {
        for (std::size_t k = 0; k <= Divisions; ++k) {
            const double x = stationAt(k, Divisions, loaded.beam.Length[span]);
            stations.push_back({x, FindMxSx(loaded, span, x)});
        }
    }
    return stations;
}

}  // namespace trabeon
