// A message box with an OK button, an exclamation mark and the title "Trabeon".
#pragma once

#include <string>

namespace trabeon {

void warn(const std::string& sentence);

}  // namespace trabeon
