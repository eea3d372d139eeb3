// The list of the program's forms. A new form gets its line here.
#pragma once

#include "forms/shared/context.h"

namespace trabeon {

/// Registers every form but those of the report and of the print, and sets `Context::refillLoads` and
/// `Context::rowsChanged`.
void registerForms(Context& context);

}  // namespace trabeon
