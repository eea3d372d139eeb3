// Adds the report to the program.
#pragma once

namespace trabeon {

struct Context;

/// Registers the forms of the report and sets `Context::pasteIntoReport`. Call it before the first
/// form is loaded: the "Add To Report" buttons of earlier forms would stay disabled.
void takeUpReport(Context& context);

}  // namespace trabeon
