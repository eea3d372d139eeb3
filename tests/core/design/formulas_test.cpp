// Every formula and search of the design, and the reference tables, against the table beside.
#include "core/design/bars.h"
#include "core/design/deflection.h"
#include "core/design/design_results.h"
#include "core/design/flexure.h"
#include "core/design/links.h"
#include "core/design/reinforcement_tables.h"
#include "core/design/shear.h"
#include "core/text/number_masks.h"
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
    for (auto line = static_cast<int>(number); line > 1; --line)
        at = text.find("\r\n", at) + 2;
    return {text.substr(at, text.find("\r\n", at) - at)};
}

Cells barsOf(const Row& row) {
    const auto bars = barsFor(row(0), row(1), {25, 10, row(2)});
    return {bars.count, bars.size};
}

Cells steelOf(const Row& row) {
    const SectionData section{
        .b = row(0), .d = row(1), .fcu = row(2), .fy = row(3), .YM = row(4), .Moment = row(5)};
    const auto steel = steelFor(section, row(6));
    return {steel.As, steel.Asp};
}

Cells reinforcementOf(const Row& row) {
    Reinforcement steel{row(2), row(3), 0, 0, ""};
    ProvideReinforcement(row(0), row(1), steel, {25, 10, row(4)});
    return {steel.Asprov, steel.Aspprov, steel.MomentRein};
}

Cells momentSteelOf(const Row& row) {
    SectionData section{250, 450, 400, 25, 460, 2e5, 250, 6, 3, std::fabs(row(0)), 10, row(0), -10};
    const auto steel = DesignMoment(section, {row(1)});
    EXPECT_EQ(section.d, 400);
    return {steel.Asreq, steel.Aspreq};
}

Cells minimaOf(const Row& row) {
    EXPECT_EQ(MaxReinforcement(300, 400), 4800);
    const auto [MinTenRein, MinCompRein] = MinReinforcement(row(0), 300, 400);
    return {MinTenRein, MinCompRein};
}

Cells raisedOf(const Row& row) {
    Reinforcement steel{row(1), row(2), 0, 0, ""};
    raiseToMinimum(row(0), {288, 240}, steel);
    return {steel.Asreq, steel.Aspreq};
}

Cells shearOf(const Row& row) {
    const auto AsvOsvreq =
        DesignShear({.b = 250, .d = 400, .fcu = row(0), .fyv = 250, .Shear = row(1)}, 1000);
    return {AsvOsvreq.value_or(0)};
}

Cells linksOf(const Row& row) {
    const auto [AsvOsvprov, ShearRein] = ProvideShearLinks(row(0), row(1), row(2));
    return {AsvOsvprov, ShearRein};
}

Cells deflectionOf(const Row& row) {
    const std::vector<JointRow> joints{{"", "Pin Jointed", ""},
                                       {"", "Continuous", ""},
                                       {"", "Continuous", ""},
                                       {"", "Cantilever", ""}};
    const auto kind = spanKind(joints, static_cast<std::size_t>(row(0)));
    const SectionData section{.b = 300, .d = row(2), .fy = 460, .L = row(1), .Moment = 50};
    const auto [DefActual, DefAllow, DefNote] =
        DesignDeflection(section, kind, {200, 0, row(3), row(4), ""}, row(5) != 0, "Shear OK");
    return {DefActual, DefAllow, DefNote};
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
          [](const Row& r) {
              const SectionData section{.b = 300, .d = 400, .fy = r(2), .Moment = r(3)};
              return Cells{tensionFactor(section, r(0), r(1))};
          }},
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
