#include "forms/shared/messages.h"

#include "toolkit/outside/outside.h"

namespace trabeon {

void warn(const std::string& sentence) {
    Outside::Current().MsgBox(sentence, 48, "Trabeon");
}

}  // namespace trabeon
