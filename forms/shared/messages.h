// The program's own message box: one OK button, an exclamation mark, the title "Trabeon".
#pragma once

#include <string>

namespace trabeon {

void warn(const std::string& sentence);

}  // namespace trabeon
