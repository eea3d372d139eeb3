// The date and the time of day as the user's desktop shows them.
#pragma once

#include <string>

namespace trabeon {

/// Today in the format "Long Date", for example "Monday, 2 June 2025", in the user's language.
[[nodiscard]] std::string LongDate();
/// Now in the format "h:m:s", without leading zeros, for example "9:5:30".
[[nodiscard]] std::string TimeOfDay();

}  // namespace trabeon
