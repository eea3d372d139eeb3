// What makes a line of joints and members fit for moment distribution.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/store/rows.h"

namespace trabeon {

/// A message box as a calculation asks for it: the text, the buttons and mark as a style number
/// (48: one OK button and an exclamation mark), and the window's title.
struct Message {
    std::string text;
    int style = 48;
    std::string title;
};

/// Shows messages, in the order in which they come.
using MessageSink = std::function<void(const Message&)>;

/// Shows the message, then sets Shown to true: a message shown is an error reported.
void Mbox(std::string Msg, int Style, std::string Title, bool& Shown, const MessageSink& show);

/// Judges the sequence of joint types, compared as exact texts; a text outside the four passes.
/// Shows a message for each rule that fails and sets JointError to true; leaves it alone otherwise.
void CheckJoint(const std::vector<JointRow>& joints, bool& JointError, const MessageSink& show);

/// Judges the count of members: one less than the joints. As CheckJoint, with MemberError.
void CheckMember(std::size_t joints, std::size_t members, bool& MemberError,
                 const MessageSink& show);

}  // namespace trabeon
