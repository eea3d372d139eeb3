// The work of every "Add To Report" button.
#pragma once

#include <functional>

namespace trabeon {

struct Context;

/// Calls `copyPicture`, which puts a picture on the clipboard, and pastes it into the report.
void addToReport(const Context& context, const std::function<void()>& copyPicture);

}  // namespace trabeon
