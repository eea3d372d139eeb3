// What every "Add To Report" button does.
#pragma once

#include <functional>

namespace trabeon {

class Button;
struct Context;

/// Puts a picture on the clipboard and pastes it into the report, at its caret.
void addToReport(const Context& context, const std::function<void()>& copyPicture);

/// Readies the button of a form that is being made: it stays disabled, and says why, while no
/// report has taken up its place in the context.
void offerReport(const Context& context, Button& cmdReport);

}  // namespace trabeon
