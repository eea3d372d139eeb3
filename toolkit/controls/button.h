// A push button. Space and Enter press it. One too narrow for a letter shows no caption.
#pragma once

#include <functional>
#include <string>

#include "toolkit/controls/control.h"

namespace trabeon {

class Button : public Control {
  public:
    // 1215 by 375 twips, wider if the caption asks for it.
    Button(Container& parent, const std::string& caption);

    std::function<void()> Click;

    std::string Caption() const;
    void SetCaption(const std::string& caption);
    // Presses it, if it is enabled.
    void Press();

  protected:
    bool OnEvent(QEvent& event) override;
};

}  // namespace trabeon
