// The list of the program's forms. Each form has a line here.
#pragma once

#include "forms/shared/context.h"

namespace trabeon {

/// Registers all forms except those of `report` and `output`. Sets `Context::refillLoads` and
/// `Context::rowsChanged`.
void registerForms(Context& context);

}  // namespace trabeon
