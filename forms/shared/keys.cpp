#include "forms/shared/keys.h"

#include "toolkit/controls/control.h"

namespace trabeon {

void keepKeys(int& keyAscii, std::string_view passing) {
    const bool isCharacter = keyAscii > 0 && keyAscii < 128;
    const bool passes = isCharacter && passing.find(static_cast<char>(keyAscii)) != passing.npos;
    if (!passes && keyAscii != backspaceKey)
        keyAscii = 0;
}

void keepKeys(int& keyAscii, std::string_view passing, Control& next) {
    if (keyAscii == enterKey)
        next.SetFocus();
    keepKeys(keyAscii, passing);
}

}  // namespace trabeon
