// The four types of joints and their names.
#pragma once

#include <array>
#include <string_view>

namespace trabeon {

enum class Joint { unknown = 0, cantilever = 1, pin = 2, continuous = 3, fixed = 4 };

/// The names in the order of the numbers of Joint, from 1. The joints editor offers them in it.
inline constexpr std::array<std::string_view, 4> jointNames{"Cantilever", "Pin Jointed",
                                                            "Continuous", "Fixed"};

/// The name of a type; empty for unknown.
[[nodiscard]] std::string_view nameOf(Joint joint);

/// The type that has exactly this name. This is how the rules read a joint.
[[nodiscard]] Joint jointNamed(std::string_view name);

/// The type whose first three letters these are, capital or small. This is how an analysis reads a
/// joint.
[[nodiscard]] Joint jointOf(std::string_view type);

}  // namespace trabeon
