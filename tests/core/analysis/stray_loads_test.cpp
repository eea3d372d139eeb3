#include "core/analysis/stray_loads.h"

#include "tests/core/analysis/beams.h"
#include "tests/support/table.h"

namespace trabeon {
namespace {

TEST(StrayLoads, AreNamedFromTheirThresholdOn) {
    test::expectTables(
        TABLES "/analysis/stray_loads.csv",
        {{"stray", [](const test::Row& row) {
              std::string found;
              for (const auto& load : strayLoads(beamOf("pin 6 continuous 0.3 pin", row[0])))
                  found += (found.empty() ? "" : "/") + std::string(load.kind) + ' ' +
                           std::to_string(load.row) + " on " + std::to_string(load.member) + ": " +
                           load.what;
              return std::vector<test::Cell>{found};
          }}});
}

}  // namespace
}  // namespace trabeon
