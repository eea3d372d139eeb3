// Texts on their way to the screen, to paper and to other programs.
#pragma once

#include <QString>
#include <string_view>

namespace trabeon {

// Texts come out of files in any character set: one that is not valid UTF-8 is read as Latin-1.
// Not for paths, which must name the same file afterwards.
QString ShownText(std::string_view text);

}  // namespace trabeon
