// The files in which pictures go to the word processor.
#pragma once

#include <filesystem>
#include <string_view>

#include "core/outcome.h"

namespace trabeon {

/// The first of "Picture 1.rtf", "Picture 2.rtf" ... in the folder that does not exist. A picture
/// that was sent before may still be open in the word processor.
[[nodiscard]] std::filesystem::path freePicturePath(const std::filesystem::path& folder);

/// Says that another program reads this file only for now. It becomes read-only, so that what the
/// user makes of it is saved under another name.
void lendPicture(const std::filesystem::path& path);

/// Removes lent pictures that were written more than an hour ago: the other program has read them
/// long since. Other files stay, and so does what cannot be removed.
void removeLentPictures(const std::filesystem::path& folder);

}  // namespace trabeon
