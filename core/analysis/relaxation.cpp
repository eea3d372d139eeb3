#include "core/analysis/relaxation.h"

#include "core/analysis/settled_sum.h"

#include <algorithm>
#include <cmath>

namespace trabeon {
namespace {

/// A cycle at least halves the sum of all balances, and the largest double is 2^1024.
constexpr int maxCycles = 1200;

using Row = std::vector<double>;

bool isPin(Joint joint) {
    return joint == Joint::pin;
}

/// The unbalance at each inner joint, shared by the members on its two sides.
void balanceJoints(const Row& from, const DistributionFactors& factors, std::size_t members,
                   Row& to) {
    for (std::size_t i = 1; i < members; ++i) {
        SettledSum unbalance;
        unbalance.add(from[2 * i]);
        unbalance.add(from[2 * i + 1]);
        to[2 * i] = -unbalance.value() * factors.DFRight[i];
        to[2 * i + 1] = -unbalance.value() * factors.DFLeft[i + 1];
    }
}

void carryOver(const Row& from, std::size_t members, Row& to) {
    for (std::size_t i = 1; i <= members; ++i) {
        to[2 * i - 1] = 0.5 * from[2 * i];
        to[2 * i] = 0.5 * from[2 * i - 1];
    }
}

void add(const Row& row, Row& Final) {
    for (std::size_t k = 1; k < Final.size(); ++k)
        Final[k] += row[k];
}

bool negligible(const Row& row, std::size_t ends) {
    return std::all_of(row.begin() + 1, row.begin() + 1 + static_cast<std::ptrdiff_t>(ends),
                       [](double moment) { return std::fabs(moment) <= balanceTolerance; });
}

bool isFinite(const Row& row) {
    return std::all_of(row.begin(), row.end(), [](double moment) { return std::isfinite(moment); });
}

Refusal notConverged() {
    return {"The relaxation does not end: a load or a stiffness is too large. Use other units."};
}

void giveHeading(const Beam& beam, const DistributionFactors& factors, const TableSink& row) {
    Row cells(beam.EndCount);
    for (std::size_t i = 1; i <= beam.members(); ++i) {
        cells[2 * i - 2] = static_cast<double>(i);
        cells[2 * i - 1] = static_cast<double>(i + 1);
    }
    row({"JOINT", TableRow::Cells::joints, cells});
    for (std::size_t i = 1; i <= beam.members(); ++i) {
        cells[2 * i - 2] = factors.DFLeft[i];
        cells[2 * i - 1] = factors.DFRight[i];
    }
    row({"D.Fac", TableRow::Cells::factors, cells});
}

}  // namespace

DistributionFactors distributionFactors(const Beam& beam) {
    const auto n = beam.members();
    const auto& K = beam.Stiffness;
    DistributionFactors factors{Row(n + 1, 0), Row(n + 1, 0)};
    auto& [DFLeft, DFRight] = factors;
    for (std::size_t i = 2; i <= n; ++i)
        DFLeft[i] = K[i] / (K[i] + K[i - 1]);
    for (std::size_t i = 1; i < n; ++i)
        DFRight[i] = K[i] / (K[i] + K[i + 1]);
    DFLeft[1] = isPin(beam.SupportType[1]) ? 1 : 0;
    DFRight[n] = isPin(beam.SupportType[beam.Supports]) ? 1 : 0;
    if (n > 1 && beam.leftCantilever()) {
        DFRight[1] = 0;
        DFLeft[2] = 1;
    }
    if (n > 1 && beam.rightCantilever()) {
        DFRight[n - 1] = 1;
        DFLeft[n] = 0;
    }
    return factors;
}

Outcome<std::vector<double>> relax(const Beam& beam, const std::vector<double>& FEM,
                                   const TableSink& row, const std::function<void()>& settled) {
    const auto n = beam.members();
    const auto ends = beam.EndCount;
    const auto factors = distributionFactors(beam);
    const auto give = [&](std::string_view label, const Row& moments) {
        row({label, TableRow::Cells::moments, std::span(moments).subspan(1, ends)});
    };
    giveHeading(beam, factors, row);
    give("F.E.M", FEM);

    Row Final(FEM.begin(), FEM.begin() + 1 + static_cast<std::ptrdiff_t>(ends));
    Row BalRow(ends + 1, 0);
    Row NextRow(ends + 1, 0);
    balanceJoints(FEM, factors, n, BalRow);
    BalRow[1] = isPin(beam.SupportType[1]) ? -FEM[1] : 0;
    BalRow[ends] = isPin(beam.SupportType[beam.Supports]) ? -FEM[ends] : 0;
    if (!isFinite(BalRow))
        return notConverged();
    give("Bal..", BalRow);
    add(BalRow, Final);
    for (int cycle = 0; cycle == 0 || !negligible(BalRow, ends); ++cycle) {
        if (cycle == maxCycles)
            return notConverged();
        carryOver(BalRow, n, NextRow);
        give("C.Ovr", NextRow);
        add(NextRow, Final);
        balanceJoints(NextRow, factors, n, BalRow);
        BalRow[1] = -NextRow[1] * factors.DFLeft[1];
        BalRow[ends] = -NextRow[ends] * factors.DFRight[n];
        if (!isFinite(BalRow))
            return notConverged();
        give("Bal..", BalRow);
        add(BalRow, Final);
    }
    if (!isFinite(Final))
        return notConverged();
    settled();
    give("Final", Final);
    return Final;
}

}  // namespace trabeon
