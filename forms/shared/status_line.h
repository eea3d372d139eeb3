// The status line of the main window: the latest event and the size of the project.
#pragma once

#include <string>
#include <string_view>

#include "forms/shared/context.h"
#include "forms/shared/keys.h"

namespace trabeon {

class TextBox;

/// Shows an event until the next one.
void say(const Context& context, const std::string& event);

/// Says that closing a window has emptied it. Keeps `restore` for `restoreClosedWindow`.
void offerRestore(Context& context, const std::string& what, std::function<void()> restore);

/// Restores the content of the window that was closed last, if there is one.
void restoreClosedWindow(Context& context);

/// Shows the number of joints and members, the length of the beam, and "Changed" if `dataChanged`
/// is
/// 1. Call it after a change of the rows or of the flag.
void showSummary(const Context& context);

/// The keys that a number box accepts, and where Enter moves the focus.
struct NumberKeys {
    const char* name;  // of the box, for the status line
    std::string_view accepted;
    Control* next = nullptr;
};

/// Lets the box accept only these keys. The status line names a key that it drops.
void acceptNumbers(const Context& context, TextBox& box, const NumberKeys& keys);

/// Drops a key that the box does not accept, and says so in the status line.
void filterKeysAndSay(const Context& context, int& keyAscii, const NumberKeys& keys);

}  // namespace trabeon
