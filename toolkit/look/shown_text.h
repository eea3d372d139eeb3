// Texts for the screen, for paper and for other programs.
#pragma once

#include <QString>
#include <string_view>

namespace trabeon {

/// The text as the toolkit needs it. Files can have any character set: a text that is not valid
/// UTF-8 is read as Latin-1. Not for paths, because their bytes must not change.
[[nodiscard]] QString ShownText(std::string_view text);

}  // namespace trabeon
