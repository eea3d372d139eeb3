// What every "Add To Report" button does.
#pragma once

#include <functional>

namespace trabeon {

struct Context;

/// Puts a picture on the clipboard and pastes it into the report, at its caret.
void addToReport(const Context& context, const std::function<void()>& copyPicture);

}  // namespace trabeon
