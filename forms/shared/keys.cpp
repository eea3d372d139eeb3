#include "forms/shared/keys.h"

#include "toolkit/controls/control.h"

namespace trabeon {

void filterKeys(int& keyAscii, std::string_view accepted) {
    const bool isCharacter = keyAscii > 0 && keyAscii < 128;
    const bool passes = isCharacter && accepted.find(static_cast<char>(keyAscii)) != accepted.npos;
    if (!passes && keyAscii != backspaceKey)
        keyAscii = 0;
}

void filterKeys(int& keyAscii, std::string_view accepted, Control& next) {
    if (keyAscii == enterKey)
        next.SetFocus();
    filterKeys(keyAscii, accepted);
}

}  // namespace trabeon
