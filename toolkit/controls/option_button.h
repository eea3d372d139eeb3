// One of the choices of a form or a frame: choosing one leaves the others on it.
#pragma once

#include <functional>
#include <string>

#include "toolkit/controls/control.h"

namespace trabeon {

class OptionButton : public Control {
  public:
    OptionButton(Container& parent, const std::string& caption, bool chosen = false);

    // This option became the chosen one, by the user or by code.
    std::function<void()> Click;

    bool Value() const;
    // Fires Click if the option was not the chosen one.
    void Choose();
};

}  // namespace trabeon
