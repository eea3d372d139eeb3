#include "core/rules/joint_types.h"

#include <algorithm>
#include <cctype>

namespace trabeon {
namespace {

constexpr std::size_t lettersThatCount = 3;

bool sameLetter(char a, char b) {
    const auto lowered = [](char c) { return std::tolower(static_cast<unsigned char>(c)); };
    return lowered(a) == lowered(b);
}

template <class Matches>
Joint firstJoint(const Matches& matches) {
    const auto found = std::find_if(jointNames.begin(), jointNames.end(), matches);
    const bool none = found == jointNames.end();
    return none ? Joint::unknown : static_cast<Joint>(found - jointNames.begin() + 1);
}

}  // namespace

std::string_view nameOf(Joint joint) {
    return joint == Joint::unknown ? "" : jointNames[static_cast<std::size_t>(joint) - 1];
}

Joint jointNamed(std::string_view name) {
    return firstJoint([&](std::string_view own) { return own == name; });
}

Joint jointOf(std::string_view type) {
    const auto letters = type.substr(0, lettersThatCount);
    return firstJoint([&](std::string_view own) {
        return std::equal(letters.begin(), letters.end(), own.begin(),
                          own.begin() + lettersThatCount, sameLetter);
    });
}

}  // namespace trabeon
