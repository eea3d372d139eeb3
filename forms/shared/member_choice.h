// The boxes in which the user chooses a member.
#pragma once

#include "forms/shared/context.h"

namespace trabeon {

class ComboBox;

/// Adds "Member 1", "Member 2", ... for the members in the working folder.
void fillMembers(const Context& context, ComboBox& choice);

}  // namespace trabeon
