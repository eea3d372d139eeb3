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

/// Shows a message about the structure.
void Mbox(std::string Msg, const MessageSink& show);

/// Checks the sequence of joint types, which are compared as exact texts; any other text passes.
/// Returns a message for each broken rule, in the order of the joints.
[[nodiscard]] std::vector<std::string> CheckJoint(const std::vector<JointRow>& joints);

/// Checks that there is one member less than joints. Otherwise returns a message.
[[nodiscard]] std::vector<std::string> CheckMember(std::size_t joints, std::size_t members);

}  // namespace trabeon
