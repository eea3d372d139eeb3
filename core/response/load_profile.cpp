#include "core/response/load_profile.h"

#include <algorithm>

#include "core/response/two_doubles.h"

namespace trabeon {
namespace {

constexpr double roundingOfLength = 1e-12;  // of the member's length

/// What changes at a place: a force, the intensity and its slope, and how many loads are there.
struct Change {
    TwoDoubles place;
    double force = 0, intensity = 0;
    TwoDoubles slope;
    int loads = 0;
};

double onMember(double a, double L) {
    const double margin = roundingOfLength * L;
    return a <= margin ? 0 : a >= L - margin ? L : a;
}

std::vector<Change> changesOf(std::span<const PointLoad> points, std::span<const UdlLoad> udls,
                              double L) {
    std::vector<Change> changes;
    changes.reserve(points.size() + 2 * udls.size());
    for (const auto& load : points)
        if (!load.isZero())
            changes.push_back({{onMember(load.a, L), 0}, load.P, 0, {}, 0});
    for (const auto& load : udls) {
        if (load.isZero())
            continue;
        const TwoDoubles end = std::min(exactSum(load.a, load.b), TwoDoubles{L, 0});
        const auto slope = exactSum(load.w2, -load.w1) / load.b;
        changes.push_back({{load.a, 0}, 0, load.w1, slope, 1});
        changes.push_back({end, 0, -load.w2, {-slope.high, -slope.low}, -1});
    }
    std::sort(changes.begin(), changes.end(),
              [](const Change& a, const Change& b) { return a.place < b.place; });
    return changes;
}

/// Goes along the member from change to change.
class Sweep {
  public:
    explicit Sweep(std::size_t changes) {
        profile_.stretches.reserve(changes + 1);
        profile_.forces.reserve(changes + 2);
        profile_.forces.push_back(0);
    }

    /// Ends the stretch at this place.
    void advanceTo(const TwoDoubles& place) {
        const auto width = place - at_;
        if (width.value() > 0) {
            const double w1 = intensity_.value();
            intensity_ += slope_ * width;
            profile_.stretches.push_back({at_.value(), width.value(), w1, intensity_.value()});
            profile_.forces.push_back(0);
            at_ = place;
        }
    }

    void take(const Change& change) {
        profile_.forces.back() += change.force;
        intensity_ += change.intensity;
        slope_ += change.slope;
        loads_ += change.loads;
        if (loads_ == 0)
            intensity_ = slope_ = {};
    }

    LoadProfile profile() { return std::move(profile_); }

  private:
    LoadProfile profile_;
    TwoDoubles at_, intensity_, slope_;
    int loads_ = 0;
};

}  // namespace

LoadProfile loadProfile(std::span<const PointLoad> points, std::span<const UdlLoad> udls,
                        double L) {
    const auto changes = changesOf(points, udls, L);
    Sweep sweep(changes.size());
    for (const auto& change : changes) {
        sweep.advanceTo(change.place);
        sweep.take(change);
    }
    sweep.advanceTo({L, 0});
    return sweep.profile();
}

}  // namespace trabeon
