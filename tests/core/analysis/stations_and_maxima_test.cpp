// Moments and shears at stations, and the maximum of each span, as the files tell them.
#include "core/text/number_masks.h"
#include "tests/core/analysis/beam_builder.h"

namespace trabeon {
namespace {

BeamBuilder simple(double L) {
    return BeamBuilder(pin).member(L, pin);
}

BeamBuilder twoSpans() {
    BeamBuilder beam(pin);
    return beam.member(6, continuous).member(6, pin).udl(1, 0, 6, 12, 12).udl(2, 0, 6, 12, 12);
}

/// A tip load of 10 turns the unloaded clamped span: 20 over the joint, half of it at the clamp.
BeamBuilder clampedSpanAndCantilever() {
    return BeamBuilder(fixed).member(6, continuous).member(2, cantilever).point(2, 2, 10);
}

/// An unloaded span with the moments -2 × left and -2 × right at its ends.
BeamBuilder betweenCantilevers(double left, double right) {
    BeamBuilder beam(cantilever);
    beam.member(2, continuous).member(6, continuous).member(2, cantilever);
    return beam.point(1, 0, left).point(3, 2, right);
}

/// Station k of a span as its row says it.
std::string rowOf(const Analysis& analysis, std::size_t span, std::size_t k) {
    const auto& [x, forces] = analysis.stationsOf(span)[k];
    return threeFigures(x) + ',' + threeFigures(forces.moment) + ',' + threeFigures(forces.shear);
}

TEST(TwoEqualSpans, HaveTheBalanceTableOfTheTextbook) {
    // wL²/12 = 36 at every end; half of the released 36 goes over to the middle: wL²/8 = 54.
    EXPECT_EQ(resultTexts(twoSpans()).table,
              "JOINT     000000001     000000002     000000002     000000003     \r\n"
              "D.Fac     100.00000%     50.00000%     50.00000%     100.00000%     \r\n"
              "F.E.M     -3.60E+01     +3.60E+01     -3.60E+01     +3.60E+01     \r\n"
              "Bal..     +3.60E+01     +0.00E+00     +0.00E+00     -3.60E+01     \r\n"
              "C.Ovr     +0.00E+00     +1.80E+01     -1.80E+01     +0.00E+00     \r\n"
              "Bal..     +0.00E+00     +0.00E+00     +0.00E+00     +0.00E+00     \r\n"
              "Final     +0.00E+00     +5.40E+01     -5.40E+01     +0.00E+00     ");
}

TEST(TwoEqualSpans, HaveTheirStationsWithTheMaximumAmongThem) {
    // M = 27x - 6x² and V = 12x - 27.
    const auto stations = resultTexts(twoSpans()).stations;
    EXPECT_EQ(stations.substr(0, stations.find("Span 2")),
              "Span 1 \r\n"
              "0.00E+00,0.00E+00,-2.70E+01\r\n6.00E-01,1.40E+01,-1.98E+01\r\n"
              "1.20E+00,2.38E+01,-1.26E+01\r\n1.80E+00,2.92E+01,-5.40E+00\r\n"
              "2.10E+00,3.04E+01,0.00E+00\r\n"
              "2.40E+00,3.02E+01,1.80E+00\r\n3.00E+00,2.70E+01,9.00E+00\r\n"
              "3.60E+00,1.94E+01,1.62E+01\r\n4.20E+00,7.56E+00,2.34E+01\r\n"
              "4.80E+00,-8.64E+00,3.06E+01\r\n5.40E+00,-2.92E+01,3.78E+01\r\n"
              "6.00E+00,-5.40E+01,4.50E+01\r\n");
}

TEST(MaximumRow, StandsBeforeTheStationAtItsPlace) {
    // At the right end of span 1 and at the left end of span 2.
    EXPECT_EQ(resultTexts(clampedSpanAndCantilever(), {2, 3}).stations,
              "Span 1 \r\n"
              "0.00E+00,1.00E+01,5.00E+00\r\n3.00E+00,-5.00E+00,5.00E+00\r\n"
              "6.00E+00,-2.00E+01,5.00E+00\r\n6.00E+00,-2.00E+01,5.00E+00\r\n"
              "Span 2 \r\n"
              "0.00E+00,-2.00E+01,-1.00E+01\r\n0.00E+00,-2.00E+01,-1.00E+01\r\n"
              "1.00E+00,-1.00E+01,-1.00E+01\r\n2.00E+00,0.00E+00,-1.00E+01\r\n");
}

TEST(Station, ReadsAsStaticsSay) {
    const auto behind = [](double gap) { return simple(1).point(1, 0.3 - gap, 10); };
    const auto third = simple(6).point(1, 2, 12), part = simple(6).udl(1, 2, 2, 6, 6);
    const auto whole = simple(0.7).udl(1, 0, 0.7, 0.3, 0.3);
    const auto loaded = [](BeamBuilder beam) {
        return beam.udl(1, 0.1, 0.6, 1.1, 0.3).point(1, 0.3, 1.7);
    };
    const auto free = loaded(BeamBuilder(fixed).member(0.7, cantilever));
    const auto overhang = BeamBuilder(cantilever).member(0.7, continuous).member(1.1, fixed);
    const auto tip = [](double P) {
        return BeamBuilder(cantilever).member(10, fixed).point(1, 0, P);
    };
    const struct {
        BeamBuilder beam;
        double Divisions;
        std::size_t k;
        const char* row;
    } rows[] = {
        // Left reaction 8 of a load of 12 at a third of 6: on the load, behind it.
        {third, 3, 1, "2.00E+00,1.60E+01,-8.00E+00"},
        {third, 3, 2, "4.00E+00,8.00E+00,4.00E+00"},
        // A load of 10 at 0.3 of 1, where 3 × 0.1 is above 0.3 in doubles: on it -7, behind it 3.
        {behind(0), 10, 3, "3.00E-01,2.10E+00,-7.00E+00"},
        {behind(0.9e-12), 10, 3, "3.00E-01,2.10E+00,-7.00E+00"},
        {behind(1.1e-12), 10, 3, "3.00E-01,2.10E+00,3.00E+00"},
        // 6 a length from 2 to 4 of 6: reactions 6, on it M = 6x - 3 (x - 2)². Its start, its
        // middle, its end, the joint.
        {part, 3, 1, "2.00E+00,1.20E+01,-6.00E+00"},
        {part, 2, 1, "3.00E+00,1.50E+01,0.00E+00"},
        {part, 3, 2, "4.00E+00,1.20E+01,6.00E+00"},
        {part, 3, 3, "6.00E+00,0.00E+00,6.00E+00"},
        // Zeros on paper that doubles miss: the middle of a span with wL²/8, the free ends.
        {whole, 10, 5, "3.50E-01,1.84E-02,0.00E+00"},
        {free, 7, 7, "7.00E-01,0.00E+00,0.00E+00"},
        {loaded(overhang), 7, 0, "0.00E+00,0.00E+00,0.00E+00"},
        // Of terms of 1 and -1 more than 10^-12 is a shear, less is rounding.
        {tip(1).point(1, 1, 1.1e-12 - 1), 5, 1, "2.00E+00,-1.00E+00,1.10E-12"},
        {tip(1).point(1, 1, 0.9e-12 - 1), 5, 1, "2.00E+00,-1.00E+00,0.00E+00"},
        // No reaction at a free end, so a large load farther on blurs nothing.
        {tip(1e-9).point(1, 8, 1e6), 10, 1, "1.00E+00,-1.00E-09,1.00E-09"},
    };
    for (const auto& [beam, Divisions, k, row] : rows)
        EXPECT_EQ(rowOf(*analysed(beam, {Divisions, 3}).analysis, 1, k), row);
}

TEST(Station, IsAtTheLengthExactlyWhenItIsTheLast) {
    // In doubles 0.9 / 3 × 3 is a last bit below 0.9, and 0.9 / 7 × 7 one above it.
    for (const double Divisions : {1.0, 3.0, 7.0})
        EXPECT_EQ(analysed(simple(0.9), {Divisions, 3})->stations.back().x, 0.9) << Divisions;
}

TEST(Maximum, IsWhereTheShearFirstChangesItsSign) {
    const auto uniform = simple(10).udl(1, 0, 10, 2, 2);
    const auto crossing = simple(10).point(1, 2, 10).point(1, 8, -10);
    const auto overhang = [] { return BeamBuilder(cantilever).member(6, fixed); };
    const struct {
        BeamBuilder beam;
        double Divisions, places;
        std::size_t span;
        const char* row;
    } rows[] = {
        // Bisected by hand. V = 12x - 27 is 0 at the second midpoint, 2.25; 12x - 45 at 3.75.
        {twoSpans(), 10, 3, 1, " 2.1 ,3.04E+01,0.00E+00"},
        {twoSpans(), 10, 3, 2, " 3.6 ,3.04E+01,0.00E+00"},
        // V = 2x - 10 is 0 at the first midpoint, or at station 5: then the bracket from 4 on
        // closes left of it, by 2^-4, 2^-14, 2^-20.
        {uniform, 3, 3, 1, " 3.33333333333333 ,2.50E+01,0.00E+00"},
        {uniform, 10, 0, 1, " 4.9375 ,2.50E+01,-1.25E-01"},
        {uniform, 10, 3, 1, " 4.99993896484375 ,2.50E+01,-1.22E-04"},
        {uniform, 10, 5, 1, " 4.99999904632568 ,2.50E+01,-1.91E-06"},
        // Midpoints 4.5, 4.25, 4.375, 4.3125: the last is behind the load at 4.3.
        {simple(10).point(1, 4.3, 10), 10, 0, 1, " 4.25 ,2.45E+01,4.30E+00"},
        // V is -6, from 2 on 4, from 8 on -6: the second change is passed over.
        {crossing, 10, 0, 1, " 2 ,1.18E+01,4.00E+00"},
        // Stations nearer than the width: the forces stay those at 0.
        {simple(1).udl(1, 0, 1, 2, 2), 20, 0, 1, " 0.45 ,0.00E+00,-1.00E+00"},
        // Shears of one sign: the larger end moment; of two equal in three figures the right one.
        {clampedSpanAndCantilever(), 10, 3, 1, " 6 ,-2.00E+01,5.00E+00"},
        {clampedSpanAndCantilever(), 10, 3, 2, " 0 ,-2.00E+01,-1.00E+01"},
        {betweenCantilevers(10, 10), 10, 3, 2, " 6 ,-2.00E+01,0.00E+00"},
        {betweenCantilevers(10.02, -10), 10, 3, 2, " 6 ,2.00E+01,-6.67E+00"},
        {betweenCantilevers(10.03, -10), 10, 3, 2, " 0 ,-2.01E+01,-6.68E+00"},
        {BeamBuilder(fixed).member(5, fixed), 10, 3, 1, " 5 ,0.00E+00,0.00E+00"},
        // The shear is 0 at a free left end: the search stops before the first station where it
        // is not.
        {overhang().udl(1, 0, 6, 2, 2), 10, 3, 1, " 0 ,0.00E+00,0.00E+00"},
        {overhang().point(1, 0, 5), 10, 3, 1, " 0 ,0.00E+00,0.00E+00"},
        {overhang().point(1, 3, 5), 6, 3, 1, " 3 ,0.00E+00,0.00E+00"},
    };
    for (const auto& [beam, Divisions, places, span, row] : rows) {
        const auto maxima = resultTexts(beam, {Divisions, places}).maxima;
        const auto heading = "Span # " + std::to_string(span) + " \r\n";
        EXPECT_NE(maxima.find(heading + row + "\r\n"), std::string::npos) << row << " is not in\n"
                                                                          << maxima;
    }
}

TEST(FindMxSx, GivesTheTextsOfTheLastSectionItCalculates) {
    const auto told = analysed(betweenCantilevers(10, 40).udl(2, 1, 4, 5, 50));
    const auto& beam = told->beam;
    SpanResults results(told->udls, told->points, 10);
    std::string B_Moment, S_Force;
    std::vector<double> TempMx, TempVx;
    const auto find = [&](std::size_t MemNo, double X_Dist, const char* FindMax) {
        results.FindMxSx(0, 0, 1e-4, MemNo, X_Dist, B_Moment, S_Force, FindMax, TempMx, TempVx,
                         beam.Length, told->Final, beam.SupportType, beam.Supports);
        return threeFigures(X_Dist) + ',' + B_Moment + ',' + S_Force;
    };
    for (std::size_t span = 1; span <= 3; ++span)
        for (const std::size_t k : {0, 5})
            EXPECT_EQ(find(span, told->stationsOf(span)[k].x, "Y"), rowOf(*told.analysis, span, k));
    find(0, 0, "N");
    EXPECT_EQ("2.00E+00," + B_Moment + ',' + S_Force, rowOf(*told.analysis, 3, 10));
    EXPECT_EQ(TempMx[0], told->stationsOf(3)[0].forces.moment);
    EXPECT_EQ(TempVx[10], told->stationsOf(3)[10].forces.shear);
}

}  // namespace
}  // namespace trabeon
