// Moment distribution by Hardy Cross: balance and carry-over until the last balance is negligible.
#pragma once

#include <functional>
#include <span>
#include <string_view>
#include <vector>

#include "core/analysis/beam.h"

namespace trabeon {

/// One row of the balance table: a label of five characters and a cell for each member end in
/// order.
struct TableRow {
    enum class Cells { joints, factors, moments };

    std::string_view label;
    Cells kind = Cells::moments;
    std::span<const double> cells;
};

/// Takes the table row by row; a row's cells live no longer than the call.
using TableSink = std::function<void(const TableRow&)>;

/// Shares of the unbalance at the left and right end of member i, by stiffness alone; element 0 is
/// not used. The two at a continuous joint add up to 1; next to a cantilever the far member takes
/// all.
struct DistributionFactors {
    std::vector<double> DFLeft, DFRight;
};

[[nodiscard]] DistributionFactors distributionFactors(const Beam& beam);

/// A balance whose elements all lie in the closed range of this size is negligible: absolute, in
/// the moment unit of the input. The last factor lets a moment that is 0.01 on paper count as 0.01
/// whatever its last bits, so the table doesn't grow by a cycle with them.
inline constexpr double balanceTolerance = 0.01 * (1 + 1e-12);

/// Gives the rows "JOINT", "D.Fac", "F.E.M", "Bal..", then "C.Ovr" and "Bal.." by turns, and
/// "Final"; returns Final by member end, element 0 not used. `settled` is called when the last
/// balance is negligible, before the row "Final". Refuses moments that do not settle: numbers
/// beyond a double.
[[nodiscard]] Outcome<std::vector<double>> relax(const Beam& beam, const std::vector<double>& FEM,
                                                 const TableSink& row,
                                                 const std::function<void()>& settled);

}  // namespace trabeon
