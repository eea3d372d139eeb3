// The date and time of day as the user's desktop shows them.
#pragma once

#include <string>

namespace trabeon {

// Today in the named format "Long Date": as "Monday, 2 June 2025", in the user's language.
std::string LongDate();
// Now by the mask "h:m:s": no zero in front, as "9:5:30".
std::string TimeOfDay();

}  // namespace trabeon
