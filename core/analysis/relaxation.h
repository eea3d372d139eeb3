// Moment distribution by Hardy Cross: balance and carry-over until the last balance is negligible.
#pragma once

#include <functional>
#include <span>
#include <string_view>
#include <vector>

#include "core/analysis/beam.h"

namespace trabeon {

/// One row of the balance table: a label of five characters, and one cell for each member end.
struct TableRow {
    enum class Cells { joints, factors, moments };

    std::string_view label;
    Cells kind = Cells::moments;
    std::span<const double> cells;
};

/// Takes the table row by row. The cells of a row are valid during the call only.
using TableSink = std::function<void(const TableRow&)>;

/// The share of a joint's unbalance that the left and the right end of member i take. It depends
/// only on stiffness; element 0 is not used. The two factors at a continuous joint add up to 1. At
/// the joint next to a cantilever, the member on the other side takes all.
struct DistributionFactors {
    std::vector<double> DFLeft, DFRight;
};

[[nodiscard]] DistributionFactors distributionFactors(const Beam& beam);

/// A balance row is negligible if no element is larger than this, in the moment unit of the input.
/// The last factor allows for rounding errors of a moment of 0.01, so that they do not add a cycle
/// to the table.
inline constexpr double balanceTolerance = 0.01 * (1 + 1e-12);

/// Gives the rows "JOINT", "D.Fac", "F.E.M", "Bal..", then "C.Ovr" and "Bal.." in turn, and
/// "Final". Returns Final by member end; element 0 is not used. Calls `settled` when the last
/// balance is negligible, before the row "Final". Refuses moments that do not converge because
/// their numbers are beyond a double.
[[nodiscard]] Outcome<std::vector<double>> relax(const Beam& beam, const std::vector<double>& FEM,
                                                 const TableSink& row,
                                                 const std::function<void()>& settled);

}  // namespace trabeon
