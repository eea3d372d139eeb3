// A border with a title around controls. Their places count from its corner.
#pragma once

#include <string>

#include "toolkit/controls/control.h"

namespace trabeon {

class Frame : public Control, public Container {
  public:
    explicit Frame(Container& parent, const std::string& caption = "");

    QWidget* Canvas() const override;
};

}  // namespace trabeon
