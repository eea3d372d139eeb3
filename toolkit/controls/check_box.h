// A box that is ticked or not.
#pragma once

#include <string>

#include "toolkit/controls/control.h"

namespace trabeon {

class CheckBox : public Control {
  public:
    CheckBox(Container& parent, const std::string& caption, bool ticked = false);

    [[nodiscard]] bool Value() const;
    void SetValue(bool ticked);
};

}  // namespace trabeon
