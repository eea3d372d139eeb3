// What makes a line of joints and members fit for moment distribution.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/store/rows.h"

namespace trabeon {

/// What a message is about: a broken rule of the structure, or the reason why there is no result.
enum class MessageKind { structure, refusal };

/// One sentence for the user. The window that shows it chooses title and buttons.
struct Message {
    std::string text;
    MessageKind kind = MessageKind::refusal;
};

/// Shows messages, in the order in which they come.
using MessageSink = std::function<void(const Message&)>;

/// Shows a message about the structure, then sets Shown to true: a message shown is an error.
void Mbox(std::string Msg, bool& Shown, const MessageSink& show);

/// Checks the sequence of joint types, which are compared as exact texts; any other text passes.
/// Shows a message for each broken rule, and then sets JointError to true.
void CheckJoint(const std::vector<JointRow>& joints, bool& JointError, const MessageSink& show);

/// Checks that there is one member less than joints. Otherwise shows a message, and sets
/// MemberError to true.
void CheckMember(std::size_t joints, std::size_t members, bool& MemberError,
                 const MessageSink& show);

}  // namespace trabeon
