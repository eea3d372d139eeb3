// The tables of `export`: from a project to the rows of one table.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "batch/messages.h"
#include "batch/table_text.h"
#include "core/analysis/analysis.h"
#include "core/design/misc_properties.h"

namespace trabeon {

/// What a table is made with.
struct ExportSettings {
    Format format = Format::csv;
    AnalysisSettings analysis;
    MiscProperties misc;
};

/// A project file, and its name for the column "project"; empty if there is no such column.
struct ExportedFile {
    std::string path, name;
};

struct ExportTable {
    std::string_view name;
    std::vector<std::string_view> columns;
    /// Adds the rows of a project, or refuses it before the first row.
    Status (*addRows)(TableRows& rows, const Project& project, const ExportSettings& settings,
                      std::vector<std::string>& warnings);
};

[[nodiscard]] const std::vector<ExportTable>& exportTables();

/// Takes the rows of a table. `begin` comes once, before the first of them.
struct RowsTaker {
    std::function<void(const ProjectTitle&)> begin;
    TableRows::Take rows;
};

/// Calculates a table from a project file, in memory; the answer has no output. Refuses a project
/// that cannot be read or analysed. All tables but the relaxation also refuse a load that leaves
/// its member. A project that is refused has no rows.
[[nodiscard]] Answer exportTable(const ExportTable& table, const ExportedFile& file,
                                 const ExportSettings& settings, const RowsTaker& taker);

}  // namespace trabeon
