// Every formula and search of the design, and the reference tables, against the table beside.
#include "core/design/bars.h"
#include "core/design/deflection.h"
#include "core/design/design_results.h"
#include "core/design/flexure.h"
#include "core/design/links.h"
#include "core/design/reinforcement_tables.h"
#include "core/design/shear.h"
#include "tests/support/table.h"

namespace trabeon {
namespace {

using test::Row;
using Cells = std::vector<test::Cell>;

SpanKind kindOf(double number) {
    return static_cast<SpanKind>(static_cast<int>(number));
}

Cells lineOf(const std::string& text, double number) {
    std::size_t at = 0;
    for (; number > 1; --number)
        at = text.find("\r\n", at) + 2;
    return {text.substr(at, text.find("\r\n", at) - at)};
}

Cells barsOf(const Row& row) {
    const auto bars = barsFor(row(0), row(1), {25, 10, row(2)});
    return {bars.count, bars.size};
}

Cells steelOf(const Row& row) {
    const auto steel = steelFor(row(0), row(1), row(2), row(3), row(4), row(5), row(6));
    return {steel.As, steel.Asp};
}

Cells reinforcementOf(const Row& row) {
    double Asprov = 0, Aspprov = 0;
    std::string text;
    ProvideReinforcement(row(0), row(1), row(2), row(3), Asprov, Aspprov, text, -1, 0,
                         {25, 10, row(4)});
    return {Asprov, Aspprov, text};
}

Cells momentSteelOf(const Row& row) {
    double d = 450, Asreq = -1, Aspreq = -1;
    DesignMoment(250, d, 400, 25, 460, 2e5, 250, 6, 3, std::fabs(row(0)), 10, Asreq, Aspreq, row(0),
                 -10, {row(1)});
    EXPECT_EQ(d, 400);
    return {Asreq, Aspreq};
}

Cells minimaOf(const Row& row) {
    double tension = 0, compression = 0, most = 0;
    MinReinforcement(row(0), 300, 400, tension, compression);
    MaxReinforcement(300, 400, most);
    EXPECT_EQ(most, 4800);
    return {tension, compression};
}

Cells raisedOf(const Row& row) {
    double Asreq = row(1), Aspreq = row(2);
    raiseToMinimum(row(0), 288, 240, Asreq, Aspreq);
    return {Asreq, Aspreq};
}

Cells shearOf(const Row& row) {
    double AsvOsvreq = 7;
    bool failed = row(2) != 0;
    DesignShear(250, 400, row(0), 250, row(1), 1000, AsvOsvreq, failed);
    return {AsvOsvreq, failed ? 1.0 : 0.0};
}

Cells linksOf(const Row& row) {
    double provided = 3;
    std::string text = "old";
    const bool enough = ProvideShearLinks(row(0), row(1), row(2), provided, text);
    EXPECT_EQ(enough, !text.empty());
    return {provided, text};
}

Cells deflectionOf(const Row& row) {
    const std::vector<JointRow> joints{{"", "Pin Jointed", ""},
                                       {"", "Continuous", ""},
                                       {"", "Continuous", ""},
                                       {"", "Cantilever", ""}};
    double actual = -1, allowed = -1;
    std::string note = "Shear OK";
    DesignDeflection(static_cast<std::size_t>(row(0)), row(1), 200, row(3), 300, row(2), 460, 50,
                     actual, allowed, note, row(4), joints, row(5) != 0);
    return {actual, allowed, note};
}

TEST(Design, FormulasAgreeWithTheirTables) {
    test::expectTables(
        TABLES "/design/formulas.csv",
        {{"gradeLetter", [](const Row& r) { return Cells{std::string(1, gradeLetter(r(0)))}; }},
         {"barsNeeded", [](const Row& r) { return Cells{barsNeeded(r(0), r(1))}; }},
         {"breadthNeeded",
          [](const Row& r) {
              return Cells{breadthNeeded({r(0), r(1)}, {r(2), r(3), r(4)})};
          }},
         {"barsFor", barsOf},
         {"ProvideReinforcement", reinforcementOf},
         {"leverArm", [](const Row& r) { return Cells{leverArm(r(0), r(1))}; }},
         {"compressionSteelDepth", [](const Row& r) { return Cells{compressionSteelDepth(r(0))}; }},
         {"compressionSteelStress",
          [](const Row& r) { return Cells{compressionSteelStress(r(0), r(1), r(2), r(3))}; }},
         {"steelFor", steelOf},
         {"DesignMoment", momentSteelOf},
         {"MinReinforcement", minimaOf},
         {"raiseToMinimum", raisedOf},
         {"concreteShearStress",
          [](const Row& r) { return Cells{concreteShearStress(250, r(0), r(1), r(2))}; }},
         {"linksRequired",
          [](const Row& r) { return Cells{linksRequired(r(0), r(1), r(2), r(3))}; }},
         {"greatestShearStress", [](const Row& r) { return Cells{greatestShearStress(r(0))}; }},
         {"DesignShear", shearOf},
         {"ProvideShearLinks", linksOf},
         {"spanKind",
          [](const Row& r) { return Cells{static_cast<double>(spanKind(r[0], r[1]))}; }},
         {"ratioForLength",
          [](const Row& r) {
              return Cells{ratioForLength(kindOf(r(0)), r(1), r(2), r(3) != 0).value_or(0)};
          }},
         {"tensionFactor",
          [](const Row& r) { return Cells{tensionFactor(r(0), r(1), 300, 400, r(2), r(3))}; }},
         {"compressionFactor",
          [](const Row& r) { return Cells{compressionFactor(r(0), 250, 400)}; }},
         {"DesignDeflection", deflectionOf},
         {"threeFiguresNumber", [](const Row& r) { return Cells{threeFiguresNumber(r(0))}; }},
         {"wholePart", [](const Row& r) { return Cells{wholePart(r(0))}; }},
         {"AreaofS.txt", [](const Row& r) { return lineOf(steelAreas(), r(0)); }},
         {"Asvosv.txt", [](const Row& r) { return lineOf(linkResistances(), r(0)); }}});
}

TEST(Design, BarsNeededAreAsCountingUpFindsThem) {
    for (int n = 2; n < 2000; ++n) {
        const double area = n * 3.141592654 * 156.25;
        EXPECT_EQ(barsNeeded(area, 25), n);
        EXPECT_EQ(barsNeeded(std::nextafter(area, 1e9), 25), n + 1);
    }
}

}  // namespace
}  // namespace trabeon
