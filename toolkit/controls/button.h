// A push button. Space and Enter press it. A button too narrow for a letter shows no caption.
#pragma once

#include <functional>
#include <string>

#include "toolkit/controls/control.h"

namespace trabeon {

class Button : public Control {
  public:
    /// 1215 by 375 twips, or wider if the caption needs it. "&" marks the access key.
    Button(Container& parent, const std::string& caption);

    std::function<void()> Click;

    [[nodiscard]] std::string Caption() const;
    void SetCaption(const std::string& caption);
    /// Presses the button if it is enabled.
    void Press();

  protected:
    bool OnEvent(QEvent& event) override;
};

}  // namespace trabeon
