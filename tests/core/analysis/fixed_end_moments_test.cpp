// Fixed-end moments and distribution factors, row by row of the balance table.
#include <cmath>

#include "tests/core/analysis/beam_builder.h"

namespace trabeon {
namespace {

struct MomentRow {
    const char* name;
    BeamBuilder beam;
    double left, right;  // clockwise positive
};

BeamBuilder between(const char* left, double L, const char* right) {
    return BeamBuilder(left).member(L, right);
}
BeamBuilder clamped(double L) {
    return between(fixed, L, fixed);
}

void expectFixedEndMoments(const std::vector<MomentRow>& rows) {
    for (const auto& [name, beam, left, right] : rows) {
        const auto told = analysed(beam);
        ASSERT_EQ(told.messages, std::vector<std::string>{}) << name;
        expectClose(told.row("F.E.M")[0], left, name);
        expectClose(told.row("F.E.M")[1], right, name);
    }
}

TEST(FixedEndMoments, OfDistributedLoadsAreTheirIntegrals) {
    expectFixedEndMoments({
        // Handbook: -wL²/12 and wL²/12; half the span -11wL²/192 and 5wL²/192.
        {"whole span", clamped(6).udl(1, 0, 6, 12, 12), -36, 36},
        {"left half", clamped(6).udl(1, 0, 3, 12, 12), -24.75, 11.25},
        {"right half", clamped(6).udl(1, 3, 3, 12, 12), -11.25, 24.75},
        {"pins are clamped first", between(pin, 6, pin).udl(1, 0, 6, 12, 12), -36, 36},
        {"upward", clamped(6).udl(1, 0, 6, -12, -12), 36, -36},
        // Handbook: -wL²/30 and wL²/20, and exchanged.
        {"rising triangle", clamped(6).udl(1, 0, 6, 0, 10), -12, 18},
        {"falling triangle", clamped(6).udl(1, 0, 6, 10, 0), -18, 12},
        // Integrals of w x (L - x)²/L² and w x² (L - x)/L² in exact fractions, by expanding the
        // product to a polynomial in x and integrating it term by term.
        {"inner uniform", clamped(7).udl(1, 2, 3, 12, 12), -207.0 / 7, 207.0 / 7},
        {"inner rising", clamped(7).udl(1, 2, 3, 0, 10), -522.0 / 49, 1371.0 / 98},
        {"inner falling", clamped(7).udl(1, 2, 3, 10, 0), -1371.0 / 98, 522.0 / 49},
        {"rising trapezoid", clamped(7).udl(1, 1, 5, 4, 10), -6835.0 / 294, 4055.0 / 147},
        {"falling trapezoid", clamped(7).udl(1, 1, 5, 10, 4), -4055.0 / 147, 6835.0 / 294},
        {"changing sign", clamped(7).udl(1, 1, 5, 4, -10), 35.0 / 6, -335.0 / 21},
        {"past the end, uniform", clamped(6).udl(1, 5, 2, 12, 12), -4.0 / 3, -8.0 / 3},
        {"past the end, rising", clamped(6).udl(1, 4, 3, 6, 18), -151.0 / 40, 29.0 / 40},
        {"past the end, falling", clamped(6).udl(1, 4, 3, 18, 6), -229.0 / 40, 551.0 / 40},
        // The same fractions to 16 digits. A point load of the same size at 999 gives -0.999·10^-3
        // and 0.998001 where b = 10^-6, and -1.998 and 1996.002 where b = 10^-3.
        {"narrow and far", clamped(1000).udl(1, 999, 1e-6, 1e6, 1e6), -9.989990015003324e-4,
         0.9980005019984993},
        {"narrow, far, rising", clamped(1000).udl(1, 999, 1e-3, 1e6, 3e6), -1.99567099750065,
         1994.8399948358326},
        {"narrow, far, falling", clamped(1000).udl(1, 999, 1e-3, 3e6, 1e6), -1.9963363318336833,
         1995.1719965014997},
        {"narrow and near", clamped(1000).udl(1, 1, 1e-6, 1e6, 3e6), -1.9960031620034984,
         1.9980023298341643e-3},
    });
}

TEST(FixedEndMoments, OfPointLoadsFollowTheirPlace) {
    expectFixedEndMoments({
        // -P a c²/L² and P a² c/L² by hand; the middle is PL/8.
        {"middle", clamped(6).point(1, 3, 40), -30, 30},
        {"third", clamped(6).point(1, 2, 27), -24, 12},
        {"upward", clamped(6).point(1, 2, -27), 24, -12},
        {"on the left joint", clamped(6).point(1, 0, 27), 0, 0},
        {"on the right joint", clamped(6).point(1, 6, 27), 0, 0},
        {"past the end", clamped(6).point(1, 7, 36), -7, -49},
        {"two loads and a distributed one",
         clamped(6).point(1, 3, 40).point(1, 2, 27).udl(1, 0, 6, 12, 12), -90, 78},
        {"no load on a member shorter than 1", clamped(0.5).point(1, 0.25, 0), 0, 0},
    });
}

TEST(FixedEndMoments, OfCantileversAreTheStaticalMomentAtTheSupport) {
    const auto left = between(cantilever, 4, fixed);
    const auto right = between(fixed, 4, cantilever);
    // Resultant of the load times its distance from the support, by hand.
    expectFixedEndMoments({
        {"left, whole", BeamBuilder(left).udl(1, 0, 4, 12, 12), 0, 96},
        {"left, inner", BeamBuilder(left).udl(1, 1, 2, 12, 12), 0, 48},
        {"left, rising", BeamBuilder(left).udl(1, 1, 1.5, 2, 8), 0, 15.75},
        {"left, falling", BeamBuilder(left).udl(1, 1, 1.5, 8, 2), 0, 18},
        {"left, past the support", BeamBuilder(left).udl(1, 3, 2, 2, 8), 0, -2},
        {"left, at the tip", BeamBuilder(left).point(1, 0, 5), 0, 20},
        {"left, inside", BeamBuilder(left).point(1, 1, 5), 0, 15},
        {"right, whole", BeamBuilder(right).udl(1, 0, 4, 12, 12), -96, 0},
        {"right, inner", BeamBuilder(right).udl(1, 1, 2, 12, 12), -48, 0},
        {"right, rising", BeamBuilder(right).udl(1, 1, 1.5, 2, 8), -14.25, 0},
        {"right, falling", BeamBuilder(right).udl(1, 1, 1.5, 8, 2), -12, 0},
        {"right, past the tip", BeamBuilder(right).udl(1, 3, 2, 2, 8), -42, 0},
        {"right, at the tip", BeamBuilder(right).point(1, 4, 5), -20, 0},
        {"right, inside", BeamBuilder(right).point(1, 1, 5), -5, 0},
    });
}

TEST(FixedEndMoments, OfACantileverBesideSpansTouchNoOtherMember) {
    auto beam = BeamBuilder(cantilever).member(2, continuous).member(6, continuous);
    beam.member(3, cantilever).point(1, 0, 5).point(2, 3, 40).point(3, 3, 7);
    // PL, -PL/8, PL/8, -PL; the free ends take nothing.
    EXPECT_EQ(analysed(beam).row("F.E.M"), (std::vector<double>{0, 10, -30, 30, -21, 0}));
}

TEST(DistributionFactors, AreTheShareOfTheStiffness) {
    struct {
        const char* left;
        std::vector<double> L;  // E = 12, I = 2: the stiffnesses are 24 / L
        const char* right;
        std::vector<double> factors;
    } const rows[] = {
        {fixed, {6}, fixed, {0, 0}},
        {fixed, {6}, pin, {0, 1}},
        {pin, {6}, fixed, {1, 0}},
        {pin, {6}, pin, {1, 1}},
        {cantilever, {6}, fixed, {0, 0}},
        {fixed, {6}, cantilever, {0, 0}},
        // Stiffnesses 6 and 2: shares 3/4 and 1/4, whatever the far end is.
        {pin, {4, 12}, pin, {1, 0.75, 0.25, 1}},
        {pin, {4, 12}, fixed, {1, 0.75, 0.25, 0}},
        {fixed, {4, 12}, pin, {0, 0.75, 0.25, 1}},
        {fixed, {12, 4}, fixed, {0, 0.25, 0.75, 0}},
        // Beside a cantilever the far member takes all.
        {cantilever, {4, 12}, pin, {0, 0, 1, 1}},
        {cantilever, {4, 12}, fixed, {0, 0, 1, 0}},
        {pin, {4, 12}, cantilever, {1, 1, 0, 0}},
        {fixed, {4, 12}, cantilever, {0, 1, 0, 0}},
        // Stiffnesses 6, 2 and 6; then 6, 2, 2 and 6.
        {fixed, {4, 12, 4}, pin, {0, 0.75, 0.25, 0.25, 0.75, 1}},
        {pin, {4, 12, 4}, fixed, {1, 0.75, 0.25, 0.25, 0.75, 0}},
        {cantilever, {4, 12, 4}, cantilever, {0, 0, 1, 1, 0, 0}},
        {cantilever, {4, 12, 4}, pin, {0, 0, 1, 0.25, 0.75, 1}},
        {fixed, {4, 12, 4}, cantilever, {0, 0.75, 0.25, 1, 0, 0}},
        {cantilever, {4, 12, 12, 4}, cantilever, {0, 0, 1, 0.5, 0.5, 1, 0, 0}},
    };
    for (const auto& [left, L, right, factors] : rows) {
        BeamBuilder beam(left);
        for (std::size_t i = 0; i < L.size(); ++i)
            beam.member(L[i], i + 1 < L.size() ? continuous : right, 12, 2);
        const auto told = analysed(beam);
        EXPECT_EQ(told.row("D.Fac"), factors)
            << left << " to " << right << " on " << L.size() << " members";
    }
}

}  // namespace
}  // namespace trabeon
