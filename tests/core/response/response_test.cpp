// The curves of members against closed forms, against an exact solution, and by laws.
#include "core/analysis/stray_loads.h"
#include "core/response/extremes.h"
#include "core/response/polyline.h"
#include "core/response/roots.h"
#include "tests/core/response/exact_beam.h"
#include "tests/support/table.h"

namespace trabeon {
namespace {

using test::Cell;
using test::Row;

RelaxedBeam beamIn(const Row& row) {
    return exactBeam(beamOf(row[0], row[1]));
}

std::vector<Cell> cellsOf(const Extremes& extremes) {
    return {extremes.greatest.value, extremes.greatest.x, extremes.least.value, extremes.least.x};
}

/// Bernstein coefficients of the product of s - a, s - b, ...
std::vector<double> productOf(const std::vector<double>& roots) {
    std::vector<double> product{1};
    for (const double root : roots) {
        const auto degree = static_cast<double>(product.size());
        std::vector<double> next(product.size() + 1);
        for (std::size_t k = 0; k < product.size(); ++k) {
            const auto place = static_cast<double>(k);
            next[k] += product[k] * -root * (degree - place) / degree;
            next[k + 1] += product[k] * (1 - root) * (place + 1) / degree;
        }
        product = next;
    }
    return product;
}

std::vector<double> numbersIn(const std::string& text) {
    std::istringstream words(text);
    return {std::istream_iterator<double>(words), {}};
}

TEST(Response, AgreesWithClosedFormsAndExactFractions) {
    const auto number = [](const Row& row, std::size_t cell) {
        return static_cast<std::size_t>(row(cell));
    };
    test::expectTables(
        TABLES "/response/response.csv",
        {{"section",
          [=](const Row& row) {
              const auto beam = beamIn(row);
              const MemberResponse member(beam.loaded(), number(row, 2));
              const auto before = member.at(row(3), Side::before);
              return std::vector<Cell>{before.moment, before.shear,
                                       member.at(row(3), Side::after).shear, before.rotation,
                                       before.deflection};
          }},
         {"joint",
          [=](const Row& row) {
              const auto beam = beamIn(row);
              const auto joint = jointResponses(beam.loaded()).at(number(row, 2) - 1);
              return std::vector<Cell>{joint.x, joint.reaction, joint.moment, joint.rotation};
          }},
         {"extremes",
          [=](const Row& row) {
              const auto beam = beamIn(row);
              const MemberResponse member(beam.loaded(), number(row, 2));
              auto cells = cellsOf(extremesOf(member, Quantity::moment));
              const auto deflection = greatestDeflection(member);
              cells.insert(cells.end(), {deflection.value, deflection.x});
              return cells;
          }},
         {"shear",
          [=](const Row& row) {
              const auto beam = beamIn(row);
              return cellsOf(extremesOf({beam.loaded(), number(row, 2)}, Quantity::shear));
          }},
         {"roots", [](const Row& row) {
              const auto found = rootsInside(productOf(numbersIn(row[0])));
              const auto expected = numbersIn(row[2]);
              EXPECT_EQ(found.size(), expected.size());
              for (std::size_t k = 0; k < std::min(found.size(), expected.size()); ++k) {
                  EXPECT_NEAR(found[k].fromLeft, expected[k], row(1));
                  EXPECT_DOUBLE_EQ(found[k].fromLeft + found[k].fromRight, 1);
              }
              return std::vector<Cell>{row[2]};
          }}});
}

/// The largest magnitude of a curve.
double sizeOf(const MemberResponse& member, Quantity quantity) {
    const auto [greatest, least] = extremesOf(member, quantity);
    return std::max(std::fabs(greatest.value), std::fabs(least.value));
}

/// curve' = factor × slope, by their coefficients.
template <std::size_t degree>
void expectSlope(const Bernstein<degree>& curve, double factor, const Bernstein<degree - 1>& slope,
                 double width, double size) {
    for (std::size_t k = 0; k < degree; ++k)
        EXPECT_NEAR(degree * (curve.c[k + 1] - curve.c[k]), factor * slope.c[k] * width,
                    1e-11 * size);
}

void expectLaws(const MemberResponse& member, double EI, std::span<const UdlLoad> udls) {
    const double L = member.length();
    const double moment = sizeOf(member, Quantity::moment) + 1e-3 * member.ends().largestForce * L;
    const double force = member.ends().largestForce + moment / L;
    const double rotation = sizeOf(member, Quantity::rotation) + moment * L / EI;
    for (std::size_t k = 0; k < member.pieces().size(); ++k) {
        const auto& piece = member.pieces()[k];
        const bool isLoaded =
            std::any_of(udls.begin(), udls.end(), [middle = (piece.x + piece.end) / 2](auto& load) {
                return load.a <= middle && middle <= load.a + load.b;
            });
        EXPECT_TRUE(isLoaded || (piece.load.first() == 0 && piece.load.last() == 0));
        expectSlope(piece.shear, 1, piece.load, piece.width, force);
        expectSlope(piece.moment, -1, piece.shear, piece.width, moment);
        expectSlope(piece.rotation, -1 / EI, piece.moment, piece.width, rotation);
        expectSlope(piece.deflection, 1, piece.rotation, piece.width, rotation * L);
        if (k > 0) {
            EXPECT_EQ(member.pieces()[k - 1].moment.last(), piece.moment.first());
            EXPECT_EQ(member.pieces()[k - 1].deflection.last(), piece.deflection.first());
            EXPECT_NEAR(piece.shear.first() - member.pieces()[k - 1].shear.last(),
                        member.forces()[k], 1e-11 * force);
        }
    }
}

/// Every extreme is a value of its curve, and no section has a larger one.
void expectExtremes(const MemberResponse& member, Quantity quantity) {
    const auto [greatest, least] = extremesOf(member, quantity);
    const double rounding = 1.1e-9 * sizeOf(member, quantity);
    for (const auto& [value, x] : {greatest, least})
        EXPECT_LE(std::min(std::fabs(valueOf(member.at(x, Side::before), quantity) - value),
                           std::fabs(valueOf(member.at(x, Side::after), quantity) - value)),
                  rounding);
    for (int k = 0; k <= 100; ++k) {
        const double value = valueOf(member.at(k * member.length() / 100, Side::after), quantity);
        if (quantity != Quantity::shear || (k > 0 && k < 100)) {
            EXPECT_LE(value, greatest.value + rounding);
            EXPECT_GE(value, least.value - rounding);
        }
    }
}

TEST(Response, KeepsTheLawsOfBeamsOnRandomOnes) {
    Dice dice;
    double misfit = 0;
    for (int number = 0; number < 200 && !testing::Test::HasFailure(); ++number) {
        SCOPED_TRACE("random beam " + std::to_string(number));
        const auto beam = exactBeam(randomBeam(dice));
        const auto response = responseOf(beam.loaded());
        ASSERT_TRUE(response);
        const auto n = beam.beam.members();
        double rotation = 0, force = 0, up = 0, aboutLeft = 0;
        for (const auto& member : response->members)
            rotation = std::max(rotation, sizeOf(member, Quantity::rotation));
        for (std::size_t i = 1; i <= n; ++i) {
            const auto& member = response->members[i - 1];
            expectLaws(member, beam.beam.MemberE[i] * beam.beam.MemberI[i], beam.udls.on(i));
            for (const auto quantity :
                 {Quantity::moment, Quantity::shear, Quantity::rotation, Quantity::deflection})
                expectExtremes(member, quantity);
            const auto left = member.at(0), right = member.at(member.length());
            const auto isFree = [&](std::size_t joint) {
                return beam.beam.SupportType[joint] == Joint::cantilever;
            };
            EXPECT_TRUE(left.deflection == 0 || isFree(i));
            EXPECT_TRUE(right.deflection == 0 || isFree(i + 1));
            if (i < n)
                misfit = std::max(
                    misfit,
                    std::fabs(response->members[i].at(0).rotation - right.rotation) / rotation);
            for (const auto& [s, F] : forcesOn(beam, i)) {
                up -= F;
                force += std::fabs(F);
                aboutLeft -= F * (response->joints[i - 1].x + s);
            }
        }
        for (const auto& joint : response->joints) {
            up += joint.reaction;
            aboutLeft += joint.reaction * joint.x;
        }
        aboutLeft += response->joints.back().moment - response->joints.front().moment;
        EXPECT_NEAR(up, 0, 1e-11 * force);
        EXPECT_NEAR(aboutLeft, 0, 1e-11 * force * response->joints.back().x);
    }
    RecordProperty("largestMisfitOfSlopes", std::to_string(misfit * 1e15) + "e-15");
    EXPECT_LE(misfit, 1e-10);
}

TEST(Response, AgreesWithTheStationsOfTheAnalysis) {
    Dice dice;
    for (int number = 0; number < 100; ++number) {
        const auto found = analysed(randomBeam(dice), {20, 3});
        // Exactly, although the moments are only within the tolerance.
        const auto joints = jointResponses(found->loaded());
        for (std::size_t j = 1; j <= joints.size(); ++j) {
            const auto type = found->beam.SupportType[j];
            EXPECT_TRUE(type != Joint::fixed || joints[j - 1].rotation == 0);
            EXPECT_TRUE(type != Joint::cantilever || joints[j - 1].reaction == 0);
            EXPECT_TRUE(type == Joint::fixed || joints[j - 1].moment == 0);
        }
        for (std::size_t i = 1; i <= found->beam.members(); ++i) {
            const MemberResponse member(found->loaded(), i);
            const double force = member.ends().largestForce + 1;
            for (const auto& [x, forces] : found->stationsOf(i)) {
                EXPECT_NEAR(member.at(x).moment, forces.moment, 1e-11 * force * member.length());
                EXPECT_NEAR(member.at(x).shear, forces.shear, 1e-11 * force);
            }
        }
    }
}

/// A beam of four members with what a case needs.
struct Loaded {
    std::string line, loads;
    [[nodiscard]] MemberResponse member(std::size_t number) const {
        const auto beam = exactBeam(beamOf(line, loads));
        return {beam.loaded(), number};
    }
};

TEST(Response, IsReciprocalAndAddsUpAndHasAMirrorImage) {
    const std::string line = "cantilever 2 continuous 7 continuous 5 fixed";
    // Maxwell and Betti: each force on the deflections that the other one makes.
    const Loaded first{line, "p1 0.5 40"}, second{line, "p3 2 25"},
        both{line, "p1 0.5 40; p3 2 25"};
    const double work = 40 * second.member(1).at(0.5).deflection;
    EXPECT_NEAR(25 * first.member(3).at(2).deflection, work, 1e-9 * std::fabs(work));
    const Loaded mirrored{"fixed 5 continuous 7 continuous 2 cantilever", "p3 1.5 40; p1 3 25"};
    for (std::size_t i = 1; i <= 3; ++i) {
        const auto a = first.member(i), b = second.member(i), sum = both.member(i);
        const auto mirror = mirrored.member(4 - i);
        for (int k = 1; k < 8; ++k) {
            const double x = a.length() * k / 8 + 0.01;
            const auto at = sum.at(x), of = mirror.at(a.length() - x);
            const double moment = 1e-10 * sizeOf(sum, Quantity::moment);
            const double deflection = 1e-10 * sizeOf(sum, Quantity::deflection);
            EXPECT_NEAR(a.at(x).moment + b.at(x).moment, at.moment, moment);
            EXPECT_NEAR(a.at(x).deflection + b.at(x).deflection, at.deflection, deflection);
            EXPECT_NEAR(of.moment, at.moment, moment);
            EXPECT_NEAR(of.shear, -at.shear, moment);
            EXPECT_NEAR(of.rotation, -at.rotation, deflection);
            EXPECT_NEAR(of.deflection, at.deflection, deflection);
        }
    }
}

TEST(Response, RefusesLoadsThatLeaveTheirMemberAndValuesBeyondADouble) {
    const auto refusal = [](BeamRows rows, const char* E = "1") {
        rows.members.front().E = E;
        const auto beam = exactBeam(rows);
        const auto response = responseOf(beam.loaded());
        const auto objection = checkResponse(beam.loaded());
        EXPECT_EQ(objection.has_value(), !response);
        return response ? "" : response.refusal().sentence;
    };
    const auto beam = "pin 6 continuous 4 pin";
    const std::string cure =
        ". A beam with such a load has no reactions and no deflections; correct the row.";
    EXPECT_EQ(
        refusal(beamOf(beam, "u1 0 6 5 5; p2 4.5 3")),
        "Row 2 of the point loads, on member 2: a is 4.5, beyond the member's end at 4" + cure);
    EXPECT_EQ(refusal(beamOf(beam, "u1 3 -1 5 5")),
              "Row 1 of the distributed loads, on member 1: its width b is negative, -1" + cure);
    EXPECT_EQ(refusal(beamOf("pin 6 pin", "u1 0 6 5 5"), "1e-307"),
              "Member 1: its rotations or deflections are too large to be calculated. Use other "
              "units.");
    EXPECT_EQ(refusal(beamOf(beam, "p1 6 5; p2 0 5; u2 0 4 0 3; u1 0.1 0.2 1 1")), "");
}

TEST(Response, CostOfManyLoadsThatOverlapStaysThatOfSortingThem) {
    std::string loads = "u1 0 9 1 1";
    for (int k = 1; k <= 20'000; ++k)  // each with all others: 2 × 10^8 pairs
        loads += "; u1 " + std::to_string(k * 1e-4) + " 6 0.001 0.003";
    const auto beam = exactBeam(beamOf("fixed 9 fixed", loads));
    const MemberResponse member(beam.loaded(), 1);
    EXPECT_EQ(member.pieces().size(), 40'001u);
    EXPECT_NEAR(member.pieces().back().load.last(), 1, 1e-9);
}

TEST(Polyline, HasEveryCornerAndJump) {
    const auto pointsOf = [](const std::string& loads, Quantity quantity) {
        std::string text;
        for (const auto& [x, value] : polylineOf(Loaded{"pin 6 pin", loads}.member(1), quantity, 2))
            text += std::to_string(x).substr(0, 4) + ':' + std::to_string(value).substr(0, 4) + ' ';
        return text;
    };
    EXPECT_EQ(pointsOf("p1 2 27; p1 6 5", Quantity::shear),
              "0.00:-18. 2.00:-18. 2.00:9.00 6.00:9.00 6.00:14.0 ");
    EXPECT_EQ(pointsOf("p1 2 27", Quantity::moment), "0.00:0.00 2.00:36.0 6.00:0.00 ");
    EXPECT_EQ(pointsOf("u1 0 6 12 12", Quantity::moment),
              "0.00:0.00 2.00:48.0 4.00:48.0 6.00:0.00 ");
}

}  // namespace
}  // namespace trabeon
