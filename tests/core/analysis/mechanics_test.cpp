// The analysis against the force method, and against the laws that every beam obeys.
#include "tests/core/analysis/force_method.h"
#include "tests/core/analysis/random_beams.h"

namespace trabeon {
namespace {

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

TEST(Beams, HaveTheEndMomentsOfTheForceMethod) {
    forRandomBeams(400, [](const BeamBuilder& beam) {
        const auto exact = jointMoments(beam);
        const auto told = analysed(beam);
        ASSERT_EQ(told.messages, std::vector<std::string>{});
        for (std::size_t i = 1; i <= beam.members.size(); ++i) {
            EXPECT_NEAR(told->Final[2 * i - 1], exact[i - 1], allowed(beam)) << "left end of " << i;
            EXPECT_NEAR(told->Final[2 * i], -exact[i], allowed(beam)) << "right end of " << i;
        }
    });
}

TEST(Beams, HaveTheStationsOfTheInfluenceLinesBetweenTheirEndMoments) {
    forRandomBeams(400, [](const BeamBuilder& beam) {
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
        const auto told = analysed(beam);
        const auto& Final = told->Final;
        double up = 0, turning = 0, start = 0;
        for (std::size_t i = 1; i <= beam.members.size(); ++i) {
            const double L = beam.members[i - 1].L;
            const double leftUp = -told->stationsOf(i).front().forces.shear;
            const double rightUp = told->stationsOf(i).back().forces.shear;
            if (i > 1) {
                EXPECT_NEAR(Final[2 * i - 2], -Final[2 * i - 1], 1e-6) << "over joint " << i;
            }
            up += leftUp + rightUp;
            turning += Final[2 * i - 1] + Final[2 * i] - leftUp * start - rightUp * (start + L);
            for (const auto& [s, F] : forcesOn(beam, i)) {
                up -= F;
                turning += F * (start + s);
            }
            start += L;
        }
        EXPECT_NEAR(up, 0, 1e-6);
        EXPECT_NEAR(turning, 0, 1e-6);
    });
}

BeamBuilder mirrored(const BeamBuilder& beam) {
    const auto n = beam.members.size();
    BeamBuilder mirror(beam.joints.back());
    for (std::size_t i = n; i > 0; --i)
        mirror.member(beam.members[i - 1].L, beam.joints[i - 1], beam.members[i - 1].E,
                      beam.members[i - 1].I);
    for (const auto& [i, a, P] : beam.points)
        mirror.point(n + 1 - i, beam.members[i - 1].L - a, P);
    for (const auto& [i, a, b, w1, w2] : beam.udls)
        mirror.udl(n + 1 - i, beam.members[i - 1].L - a - b, b, w2, w1);
    return mirror;
}

TEST(Beams, HaveTheMirrorImageOfTheirResultInAMirror) {
    forRandomBeams(100, [](const BeamBuilder& beam) {
        const auto told = analysed(beam), mirror = analysed(mirrored(beam));
        const auto last = told->stations.size() - 1, ends = told->Final.size() - 1;
        for (std::size_t k = 1; k <= ends; ++k)
            EXPECT_NEAR(told->Final[k], -mirror->Final[ends + 1 - k], 1e-6) << "end " << k;
        for (std::size_t k = 0; k <= last; ++k) {
            const auto &own = told->stations[k].forces, &image = mirror->stations[last - k].forces;
            EXPECT_NEAR(own.moment, image.moment, 1e-6) << "station " << k;
            EXPECT_NEAR(own.shear, -image.shear, 1e-6) << "station " << k;
        }
    });
}

TEST(Beams, AddUpTheirLoads) {
    forRandomBeams(100, [](const BeamBuilder& beam) {
        auto twice = beam, once = beam;  // every other load doubled, and the rest as it is
        for (std::size_t k = 0; k < beam.points.size(); ++k)
            (k % 2 == 0 ? once : twice).points[k].P = 0;
        for (std::size_t k = 0; k < beam.udls.size(); ++k) {
            auto& load = (k % 2 == 0 ? once : twice).udls[k];
            load.w1 = load.w2 = 0;
        }
        for (auto& load : twice.points)
            load.P *= 2;
        for (auto& load : twice.udls)
            load = {load.member, load.a, load.b, load.w1 * 2, load.w2 * 2};
        const auto all = analysed(beam), doubled = analysed(twice), rest = analysed(once);
        for (std::size_t k = 1; k < all->Final.size(); ++k)
            EXPECT_NEAR(all->Final[k], doubled->Final[k] / 2 + rest->Final[k], 2.5 * allowed(beam));
    });
}

TEST(Beams, FeelNoCommonFactorOfE) {
    forRandomBeams(100, [](const BeamBuilder& beam) {
        auto stiffer = beam;
        for (auto& member : stiffer.members)
            member.E *= 8;  // exact in doubles, so the whole table is the same
        EXPECT_EQ(analysed(beam).table, analysed(stiffer).table);
    });
}

TEST(Beams, HaveTheSameMomentsInOtherUnits) {
    forRandomBeams(100, [](const BeamBuilder& beam) {  // lengths in m, then in mm
        auto finer = beam;
        for (auto& member : finer.members)
            member.L *= 1e3;
        for (auto& load : finer.points)
            load.a *= 1e3;
        for (auto& load : finer.udls)
            load = {load.member, load.a * 1e3, load.b * 1e3, load.w1 / 1e3, load.w2 / 1e3};
        const auto coarse = analysed(beam), fine = analysed(finer);
        for (std::size_t k = 1; k < coarse->Final.size(); ++k)
            EXPECT_NEAR(coarse->Final[k], fine->Final[k] / 1e3, 1.001 * allowed(beam));
    });
}

TEST(Beams, SettleWhenTheLastBalanceIsAHundredthOrLess) {
    const auto halving = [](double P) { return BeamBuilder(pin).member(8, pin).point(1, 4, P); };
    auto balanced = BeamBuilder(fixed).member(8, continuous).member(8, fixed);
    balanced.point(1, 4, 80).point(2, 4, 80);
    const struct {
        BeamBuilder beam;
        std::size_t cycles;
    } rows[] = {
        // Pinned at both ends, under PL/8 = P, each cycle halves the balance: 40.96 = 2^12 × 0.01.
        {halving(40.96), 12},
        {halving(40.97), 13},
        // wL²/12 = 0.02 as summed in doubles is a bit above it; the second balance is 0.01 all the
        // same.
        {BeamBuilder(pin).member(2, pin).udl(1, 0, 2, 0.06, 0.06), 1},
        // One carry-over and one balance are always made.
        {balanced, 1},
        {BeamBuilder(fixed).member(8, fixed), 1},
    };
    for (const auto& [beam, cycles] : rows)
        EXPECT_EQ(analysed(beam).table.size(), 4 + 2 * cycles + 1) << cycles << " cycles";
    EXPECT_EQ(analysed(balanced).progress, (std::vector<double>{0, 50, 75, 100}));
}

TEST(Beams, LoadCutInTwoIsTheSameLoad) {
    const auto whole = [](BeamBuilder beam) { return beam.udl(1, 0.7, 4.2, 8, 22); };
    const auto cut = [](BeamBuilder beam) {
        return beam.udl(1, 0.7, 1.8, 8, 14).udl(1, 2.5, 2.4, 14, 22);  // 8 + 14 × 1.8 / 4.2 = 14
    };
    for (const auto& beam : {BeamBuilder(fixed).member(6, continuous).member(4, pin),
                             BeamBuilder(cantilever).member(6, continuous).member(4, fixed)}) {
        const auto one = analysed(whole(beam)), two = analysed(cut(beam));
        for (std::size_t k = 1; k <= 4; ++k)
            EXPECT_NEAR(one->Final[k], two->Final[k], 1e-9 * 60) << k;
        for (std::size_t k = 0; k < one->stations.size(); ++k)
            EXPECT_NEAR(one->stations[k].forces.moment, two->stations[k].forces.moment, 1e-9 * 60);
    }
}

TEST(Beams, EqualSpansAndLoadsBalanceAtOnce) {
    // L = 1.6 and w = 25.4 leave a last bit between the two fixed-end moments at the middle joint.
    const auto told = analysed(BeamBuilder(fixed)
                                   .member(1.6, continuous)
                                   .member(1.6, fixed)
                                   .udl(1, 0, 1.6, 25.4, 25.4)
                                   .udl(2, 0, 1.6, 25.4, 25.4)
                                   .point(1, 0.7, 13.1)
                                   .point(2, 0.9, 13.1));
    EXPECT_EQ(told.table.size(), 7u);
    for (std::size_t row = 3; row < 6; ++row)
        EXPECT_EQ(told.table[row].cells, std::vector<double>(4, 0)) << told.table[row].label;
}

TEST(Beams, LoadsThatCancelLeaveNoDustInTheTable) {
    const auto told = analysed(BeamBuilder(fixed)
                                   .member(7.3, fixed)
                                   .udl(1, 0.1, 6.9, 11.7, 3.3)
                                   .udl(1, 0.1, 6.9, -11.7, -3.3)
                                   .udl(1, 0.7, 2.2, 0.1, 0.1)
                                   .udl(1, 0.7, 2.2, 0.2, 0.2)
                                   .udl(1, 0.7, 2.2, -0.3, -0.3));
    EXPECT_EQ(told->Final[1], 0);
    EXPECT_EQ(told->Final[2], 0);
}

}  // namespace
}  // namespace trabeon
