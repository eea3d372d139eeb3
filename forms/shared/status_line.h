// The status line of the main window: what just happened, and what the project holds.
#pragma once

#include <string>
#include <string_view>

#include "forms/shared/context.h"
#include "forms/shared/keys.h"

namespace trabeon {

class TextBox;

/// Shows the latest event, until the next one.
void say(const Context& context, const std::string& event);

/// Tells that closing a window has emptied it, and keeps what brings its content back.
void sayEmptied(Context& context, const std::string& what, std::function<void()> bringBack);

/// Brings back the content of the window that was closed last, if any.
void bringBackClosed(Context& context);

/// Shows the number of joints and members, the length of the beam, and "Changed" while the flag is
/// 1. To be called when rows or the flag have changed.
void showSummary(const Context& context);

/// Which keys a number box takes, and where Enter moves the focus.
struct NumberKeys {
    const char* name;  // of the box, for the status line
    std::string_view passing;
    Control* next = nullptr;
};

/// Gives a box its keys. A key that is dropped is named in the status line.
void takeNumbers(const Context& context, TextBox& box, const NumberKeys& keys);

/// Drops a key that the box does not take, and says so.
void keepKeysAndSay(const Context& context, int& keyAscii, const NumberKeys& keys);

}  // namespace trabeon
