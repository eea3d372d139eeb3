// Fixed-end moments and distribution factors, row by row of the balance table.
#include <cmath>

#include "tests/core/analysis/beam_builder.h"

namespace trabeon {
namespace {

struct MomentRow {
    BeamBuilder beam;
    double left, right;  // clockwise positive
};

BeamBuilder member(const char* left, double L, const char* right) {
    return BeamBuilder(left).member(L, right);
}

void expectFixedEndMoments(const std::vector<MomentRow>& rows) {
    for (std::size_t k = 0; k < rows.size(); ++k) {
        SCOPED_TRACE("row " + std::to_string(k + 1));
        const auto told = analysed(rows[k].beam);
        expectClose(told.row("F.E.M")[0], rows[k].left, "left end");
        expectClose(told.row("F.E.M")[1], rows[k].right, "right end");
    }
}

TEST(FixedEndMoments, OfDistributedLoadsAreTheirIntegrals) {
    const auto six = member(fixed, 6, fixed), seven = member(fixed, 7, fixed),
               long1000 = member(fixed, 1000, fixed);
    const auto under = [](BeamBuilder beam, double a, double b, double w1, double w2) {
        return beam.udl(1, a, b, w1, w2);
    };
    expectFixedEndMoments({
        // Handbook: wL²/12; on half the span 11wL²/192 and 5wL²/192. Pins are clamped first.
        {under(six, 0, 6, 12, 12), -36, 36},
        {under(member(pin, 6, pin), 0, 6, 12, 12), -36, 36},
        {under(six, 0, 3, 12, 12), -24.75, 11.25},
        {under(six, 0, 6, -12, -12), 36, -36},
        // Handbook: a rising triangle wL²/30 and wL²/20, a falling one exchanged.
        {under(six, 0, 6, 0, 10), -12, 18},
        {under(six, 0, 6, 10, 0), -18, 12},
        // Integrals of w x (L - x)²/L² and w x² (L - x)/L² in exact fractions: the product
        // expanded to a polynomial in x and integrated term by term.
        {under(seven, 2, 3, 12, 12), -207.0 / 7, 207.0 / 7},
        {under(seven, 2, 3, 0, 10), -522.0 / 49, 1371.0 / 98},
        {under(seven, 2, 3, 10, 0), -1371.0 / 98, 522.0 / 49},
        {under(seven, 1, 5, 4, 10), -6835.0 / 294, 4055.0 / 147},
        {under(seven, 1, 5, 10, 4), -4055.0 / 147, 6835.0 / 294},
        {under(seven, 1, 5, 4, -10), 35.0 / 6, -335.0 / 21},
        // The same past the end of the member.
        {under(six, 5, 2, 12, 12), -4.0 / 3, -8.0 / 3},
        {under(six, 4, 3, 6, 18), -151.0 / 40, 29.0 / 40},
        {under(six, 4, 3, 18, 6), -229.0 / 40, 551.0 / 40},
        // The same fractions to 16 digits. The point loads that these narrow ones tend to give
        // -0.000999 and 0.998001; -1.998 and 1996.002; -1.996002 and 0.001998.
        {under(long1000, 999, 1e-6, 1e6, 1e6), -9.989990015003324e-4, 0.9980005019984993},
        {under(long1000, 999, 1e-3, 1e6, 3e6), -1.99567099750065, 1994.8399948358326},
        {under(long1000, 999, 1e-3, 3e6, 1e6), -1.9963363318336833, 1995.1719965014997},
        {under(long1000, 1, 1e-6, 1e6, 3e6), -1.9960031620034984, 1.9980023298341643e-3},
    });
}

TEST(FixedEndMoments, OfRoundNumbersAreExact) {
    // A last bit too few would turn 87.85, these two together, into 87.8 instead of 87.9.
    const auto told = analysed(member(fixed, 6, fixed).udl(1, 0, 6, 25, 25).udl(1, 2, 3, 12, 0));
    EXPECT_EQ(told.row("F.E.M"), (std::vector<double>{-87.85, 87.65}));
}

TEST(FixedEndMoments, OfPointLoadsFollowTheirPlace) {
    const auto under = [](double a, double P) { return member(fixed, 6, fixed).point(1, a, P); };
    expectFixedEndMoments({
        // P a c²/L² and P a² c/L² by hand; in the middle PL/8; past the end c is -1.
        {under(3, 40), -30, 30},
        {under(2, 27), -24, 12},
        {under(2, -27), 24, -12},
        {under(0, 27), 0, 0},
        {under(6, 27), 0, 0},
        {under(7, 36), -7, -49},
        {under(3, 40).point(1, 2, 27).udl(1, 0, 6, 12, 12), -90, 78},
    });
}

TEST(FixedEndMoments, OfCantileversAreTheStaticalMomentAtTheSupport) {
    const auto left = [] { return member(cantilever, 4, fixed); };
    const auto right = [] { return member(fixed, 4, cantilever); };
    expectFixedEndMoments({
        // Resultant of the load times its distance from the support, by hand.
        {left().udl(1, 0, 4, 12, 12), 0, 96},
        {left().udl(1, 1, 1.5, 2, 8), 0, 15.75},
        {left().udl(1, 1, 1.5, 8, 2), 0, 18},
        {left().udl(1, 3, 2, 2, 8), 0, -2},
        {left().point(1, 1, 5), 0, 15},
        {right().udl(1, 0, 4, 12, 12), -96, 0},
        {right().udl(1, 1, 1.5, 2, 8), -14.25, 0},
        {right().udl(1, 1, 1.5, 8, 2), -12, 0},
        {right().udl(1, 3, 2, 2, 8), -42, 0},
        {right().point(1, 1, 5), -5, 0},
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
