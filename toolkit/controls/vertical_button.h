// A button for a narrow place: its caption runs from top to bottom.
#pragma once

#include <string>

#include "toolkit/controls/button.h"

namespace trabeon {

class VerticalButton : public Button {
  public:
    /// 345 twips wide, and as high as its caption needs.
    VerticalButton(Container& parent, const std::string& caption);

  protected:
    bool OnEvent(QEvent& event) override;

  private:
    void Paint();
};

}  // namespace trabeon
