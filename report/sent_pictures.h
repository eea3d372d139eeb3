// The files that pass pictures to the word processor.
#pragma once

#include <filesystem>
#include <string_view>

#include "core/outcome.h"

namespace trabeon {

/// The first path of "Picture 1.rtf", "Picture 2.rtf" ... in the folder that does not exist. An
/// earlier picture may still be open in the word processor.
[[nodiscard]] std::filesystem::path freePicturePath(const std::filesystem::path& folder);

/// Makes the file read-only and so marks it as lent to another program. The user then saves changes
/// under another name.
void lendPicture(const std::filesystem::path& path);

/// Removes lent pictures that are older than an hour, because the other program has read them by
/// then. Other files stay. Ignores errors.
void removeLentPictures(const std::filesystem::path& folder);

}  // namespace trabeon
