// Adds the report to the program.
#pragma once

namespace trabeon {

struct Context;

/// Registers the forms of the report and sets `Context::pasteIntoReport`, which the "Add To Report"
/// buttons need.
void registerReport(Context& context);

}  // namespace trabeon
