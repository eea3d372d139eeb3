// The analysis against the force method, and against the laws that every beam obeys.
#include <algorithm>
#include <cmath>
#include <random>

#include "tests/core/analysis/beam_builder.h"

namespace trabeon {
namespace {

/// Numbers that are the same with every standard library.
class Dice {
  public:
    double between(double low, double high) {
        return low + (high - low) * static_cast<double>(engine_()) / 4294967296.0;
    }
    std::size_t upTo(std::size_t most) { return engine_() % (most + 1); }

  private:
    std::mt19937 engine_{20};
};

BeamBuilder randomBeam(Dice& dice) {
    const std::size_t n = 1 + dice.upTo(11);
    const char* ends[] = {fixed, pin, cantilever};
    const char* left = ends[dice.upTo(2)];
    const char* right = ends[dice.upTo(2)];
    if (n <= 2 && left == cantilever && right == cantilever)
        right = fixed;
    if (n == 1 && (left == cantilever || right == cantilever))
        (left == cantilever ? right : left) = fixed;
    BeamBuilder beam(left);
    for (std::size_t i = 1; i <= n; ++i) {
        const double L = dice.between(2, 12);
        beam.member(L, i < n ? continuous : right, dice.between(100, 300), dice.between(0.5, 2));
        for (auto k = dice.upTo(2); k > 0; --k)
            beam.point(i, dice.between(0, L), dice.between(-1000, 3000));
        for (auto k = dice.upTo(2); k > 0; --k) {
            const double a = dice.between(0, 0.8 * L);
            const double b = dice.between(0.05 * L, L - a);
            beam.udl(i, a, b, dice.between(-500, 2000), dice.between(-500, 2000));
        }
    }
    return beam;
}

template <class Check>
void forRandomBeams(int count, const Check& check) {
    Dice dice;
    for (int k = 0; k < count; ++k) {
        SCOPED_TRACE("random beam " + std::to_string(k));
        check(randomBeam(dice));
    }
}

/// A force F at s.
struct Force {
    double s, F;
};

/// The part of a distributed load between two places as forces at the three places of Gauss: exact
/// for every influence that is a polynomial of degree 4 or less there.
void addPart(std::vector<Force>& forces, const BeamBuilder::Udl& load, double from, double to) {
    const double middle = (from + to) / 2, half = (to - from) / 2;
    for (const auto& [place, weight] :
         {std::pair{-std::sqrt(0.6), 5.0 / 9}, std::pair{0.0, 8.0 / 9},
          std::pair{std::sqrt(0.6), 5.0 / 9}}) {
        const double s = middle + half * place;
        const double w = load.w1 + (load.w2 - load.w1) * (s - load.a) / load.b;
        forces.push_back({s, w * weight * half});
    }
}

/// The loads of a member as forces, distributed ones cut at x.
std::vector<Force> forcesOn(const BeamBuilder& beam, std::size_t member, double x = 0) {
    std::vector<Force> forces;
    for (const auto& load : beam.points)
        if (load.member == member)
            forces.push_back({load.a, load.P});
    for (const auto& load : beam.udls)
        if (load.member == member) {
            const double end = load.a + load.b, cut = std::clamp(x, load.a, end);
            addPart(forces, load, load.a, cut);
            addPart(forces, load, cut, end);
        }
    return forces;
}

/// The moments over the joints, sagging positive, by the force method: at a clamped or continuous
/// joint the rotations of the simple spans beside it must close.
std::vector<double> jointMoments(const BeamBuilder& beam) {
    const auto n = beam.members.size();
    std::vector<double> before(n + 1), own(n + 1), after(n + 1), right(n + 1);
    for (std::size_t i = 1; i <= n; ++i) {
        const auto& [L, E, I] = beam.members[i - 1];
        own[i - 1] += L / (3 * E * I);
        own[i] += L / (3 * E * I);
        after[i - 1] = before[i] = L / (6 * E * I);
        for (const auto& [s, F] : forcesOn(beam, i)) {
            right[i - 1] -= F * s * (L - s) * (2 * L - s) / (6 * L * E * I);
            right[i] -= F * s * (L - s) * (L + s) / (6 * L * E * I);
        }
    }
    const auto give = [&](std::size_t joint, double moment) {
        before[joint] = after[joint] = 0;
        own[joint] = 1;
        right[joint] = moment;
    };
    for (const std::size_t joint : {std::size_t{0}, n})
        if (beam.joints[joint] != fixed)
            give(joint, 0);
    double tip = 0;
    if (beam.joints.front() == cantilever) {
        for (const auto& [s, F] : forcesOn(beam, 1))
            tip -= F * (beam.members[0].L - s);
        give(1, tip);
    }
    tip = 0;
    if (beam.joints.back() == cantilever) {
        for (const auto& [s, F] : forcesOn(beam, n))
            tip -= F * s;
        give(n - 1, tip);
    }
    for (std::size_t j = 1; j <= n; ++j) {
        const double part = before[j] / own[j - 1];
        own[j] -= part * after[j - 1];
        right[j] -= part * right[j - 1];
    }
    right[n] /= own[n];
    for (std::size_t j = n; j-- > 0;)
        right[j] = (right[j] - after[j] * right[j + 1]) / own[j];
    return right;
}

/// How far the moments may be from the exact ones when no balance is above 0.01. Balances at a
/// joint are its turn r times each member's stiffness, and a carry-over with the balance after it
/// leaves turns of at most half the largest: all that would follow turns no joint by more than the
/// largest r of the last balance. So an end still lacks at most the last carry-over, 0.005, and
/// the moments of these turns at its two joints, K (r + r/2).
double allowed(const BeamBuilder& beam) {
    double stiffest = 0, softest = HUGE_VAL;
    for (const auto& [L, E, I] : beam.members) {
        stiffest = std::max(stiffest, E * I / L);
        softest = std::min(softest, E * I / L);
    }
    return 0.005 + 1.5 * stiffest * 0.01 / softest;
}

double largest(const std::vector<double>& values) {
    double most = 0;
    for (const double value : values)
        most = std::max(most, std::fabs(value));
    return most;
}

TEST(Beams, HaveTheEndMomentsOfTheForceMethod) {
    forRandomBeams(300, [](const BeamBuilder& beam) {
        const auto exact = jointMoments(beam);
        const auto told = analysed(beam);
        ASSERT_EQ(told.messages, std::vector<std::string>{});
        const auto& Final = told->Final;
        for (std::size_t i = 1; i <= beam.members.size(); ++i) {
            EXPECT_NEAR(Final[2 * i - 1], exact[i - 1], allowed(beam)) << "left end of " << i;
            EXPECT_NEAR(Final[2 * i], -exact[i], allowed(beam)) << "right end of " << i;
        }
    });
}

TEST(Beams, HaveTheStationsOfTheInfluenceLines) {
    forRandomBeams(300, [](const BeamBuilder& beam) {
        const auto told = analysed(beam, {7, 3});
        for (std::size_t i = 1; i <= beam.members.size(); ++i) {
            const double L = beam.members[i - 1].L;
            const double left = told->Final[2 * i - 1], right = -told->Final[2 * i];
            int k = 0;
            for (const auto& [x, got] : told->stationsOf(i)) {
                EXPECT_NEAR(x, L * k++ / 7, 1e-12 * L);
                double moment = left + (right - left) * x / L, shear = (left - right) / L;
                double size = std::fabs(left) + std::fabs(right);
                for (const auto& [s, F] : forcesOn(beam, i, x)) {
                    moment += F * (s < x ? s * (L - x) : x * (L - s)) / L;
                    shear += F * (s < x ? s : s - L) / L;
                    size += std::fabs(F) * L;
                }
                EXPECT_NEAR(got.moment, moment, 1e-11 * size) << "at " << x << " of member " << i;
                EXPECT_NEAR(got.shear, shear, 1e-11 * size / L) << "at " << x << " of member " << i;
            }
        }
    });
}

TEST(Beams, StandInEquilibrium) {
    forRandomBeams(100, [](const BeamBuilder& beam) {
        const auto n = beam.members.size();
        const auto told = analysed(beam);
        const auto& Final = told->Final;
        double up = 0, turning = 0, size = largest(Final), start = 0;
        for (std::size_t i = 1; i <= n; ++i) {
            const double L = beam.members[i - 1].L;
            const double leftUp = -told->stationsOf(i).front().forces.shear;
            const double rightUp = told->stationsOf(i).back().forces.shear;
            up += leftUp + rightUp;
            turning += Final[2 * i - 1] + Final[2 * i] - leftUp * start - rightUp * (start + L);
            for (const auto& [s, F] : forcesOn(beam, i)) {
                up -= F;
                turning += F * (start + s);
                size += std::fabs(F) * (start + L);
            }
            start += L;
            if (i < n) {
                EXPECT_NEAR(Final[2 * i], -Final[2 * i + 1], 1e-11 * size) << "joint " << i + 1;
            }
        }
        EXPECT_NEAR(up, 0, 1e-11 * size);
        EXPECT_NEAR(turning, 0, 1e-11 * size);
    });
}

BeamBuilder mirrored(const BeamBuilder& beam) {
    const auto n = beam.members.size();
    BeamBuilder mirror(beam.joints.back());
    for (std::size_t i = n; i > 0; --i)
        mirror.member(beam.members[i - 1].L, beam.joints[i - 1], beam.members[i - 1].E,
                      beam.members[i - 1].I);
    for (const auto& [member, a, P] : beam.points)
        mirror.point(n + 1 - member, beam.members[member - 1].L - a, P);
    for (const auto& [member, a, b, w1, w2] : beam.udls)
        mirror.udl(n + 1 - member, beam.members[member - 1].L - a - b, b, w2, w1);
    return mirror;
}

TEST(Beams, HaveTheMirrorImageOfTheirResultInAMirror) {
    forRandomBeams(100, [](const BeamBuilder& beam) {
        const auto told = analysed(beam), mirror = analysed(mirrored(beam));
        const auto& stations = told->stations;
        const auto last = stations.size() - 1, ends = told->Final.size() - 1;
        const double rounding = 1e-9 * (1 + largest(told->Final));
        for (std::size_t k = 1; k <= ends; ++k)
            EXPECT_NEAR(told->Final[k], -mirror->Final[ends + 1 - k], rounding);
        for (std::size_t k = 0; k <= last; ++k) {
            const auto& image = mirror->stations[last - k].forces;
            EXPECT_NEAR(stations[k].forces.moment, image.moment, rounding) << "station " << k;
            EXPECT_NEAR(stations[k].forces.shear, -image.shear, rounding) << "station " << k;
        }
    });
}

TEST(Beams, AddUpTheirLoads) {
    forRandomBeams(100, [](const BeamBuilder& beam) {
        auto points = beam, udls = beam, doubled = beam;
        points.udls.clear();
        udls.points.clear();
        for (auto& load : doubled.points)
            load.P *= 2;
        doubled.udls.insert(doubled.udls.end(), beam.udls.begin(), beam.udls.end());
        const auto both = analysed(beam), one = analysed(points), other = analysed(udls),
                   two = analysed(doubled);
        for (std::size_t k = 1; k < both->Final.size(); ++k) {
            EXPECT_NEAR(both->Final[k], one->Final[k] + other->Final[k], 3 * allowed(beam));
            EXPECT_NEAR(2 * both->Final[k], two->Final[k], 3 * allowed(beam));
        }
    });
}

TEST(Beams, FeelNoCommonFactorOfE) {
    forRandomBeams(100, [](const BeamBuilder& beam) {
        auto stiffer = beam;
        for (auto& member : stiffer.members)
            member.E *= 8;
        EXPECT_EQ(analysed(beam).table, analysed(stiffer).table);
    });
}

TEST(Beams, HaveTheSameMomentsInOtherUnits) {
    forRandomBeams(100, [](const BeamBuilder& beam) {  // kN and m, then N and mm
        auto finer = beam;
        for (auto& member : finer.members)
            member.L *= 1e3;
        for (auto& load : finer.points)
            load = {load.member, load.a * 1e3, load.P * 1e3};
        for (auto& load : finer.udls)
            load.a *= 1e3, load.b *= 1e3;
        const auto coarse = analysed(beam), fine = analysed(finer);
        for (std::size_t k = 1; k < coarse->Final.size(); ++k)
            EXPECT_NEAR(coarse->Final[k], fine->Final[k] / 1e6, allowed(beam) * (1 + 1e-6));
    });
}

TEST(Beams, SettleWhenTheLastBalanceIsAHundredthOrLess) {
    // Pinned at both ends, under PL/8 = P, each cycle halves the balance: 40.96 = 2^12 × 0.01.
    for (const auto& [P, cycles] : {std::pair{40.96, 12U}, std::pair{40.97, 13U}}) {
        const auto told = analysed(BeamBuilder(pin).member(8, pin).point(1, 4, P));
        EXPECT_EQ(told.table.size(), 4 + 2 * cycles + 1) << P;
    }
}

}  // namespace
}  // namespace trabeon
