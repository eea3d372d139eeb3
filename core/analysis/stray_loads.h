// Loads that do not lie on their member. The analysis takes them as entered; users want to know.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "core/analysis/analysis.h"

namespace trabeon {

/// Row and member count from 1; the row is its place in the file before the analysis.
struct StrayLoad {
    std::string_view kind;  // "point load" or "distributed load"
    std::size_t row = 0;
    std::size_t member = 0;
    std::string what;  // is wrong: "a is 7, beyond the member's end at 6"
};

/// The point loads with a < 0 or a > L, then the distributed loads with a < 0, a + b > L or b < 0,
/// each in file order. A load that ends at most 1e-12 L beyond L counts as ending at L. Loads of 0,
/// loads that name no member, and loads with a number that the analysis refuses are left out.
[[nodiscard]] std::vector<StrayLoad> strayLoads(const BeamRows& rows);

/// The same for loads in normal form. A row is its place in that form.
[[nodiscard]] std::vector<StrayLoad> strayLoads(const LoadedBeam& loaded);

/// One sentence for the user who got an analysis all the same.
[[nodiscard]] std::string sentenceOf(const StrayLoad& load);

/// Refuses what follows from a load that is not on its member: reactions, extremes, deflections.
/// Names the first row.
[[nodiscard]] Objection objectionTo(const std::vector<StrayLoad>& stray);

}  // namespace trabeon
