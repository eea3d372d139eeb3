// The work of every "Add To Report" button.
#pragma once

#include <functional>

namespace trabeon {

class Button;
struct Context;

/// Calls `copyPicture`, which puts a picture on the clipboard, and pastes it into the report.
void addToReport(const Context& context, const std::function<void()>& copyPicture);

/// Prepares the button of a new form. The button is disabled, with a reason, if
/// `Context::pasteIntoReport` is empty.
void prepareReportButton(const Context& context, Button& cmdReport);

}  // namespace trabeon
