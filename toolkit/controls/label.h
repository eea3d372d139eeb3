// A caption on a form. "&" marks the access key of the control that the label names.
#pragma once

#include <string>

#include "toolkit/controls/control.h"

namespace trabeon {

class Label : public Control {
  public:
    Label(Container& parent, const std::string& caption);

    // As it was set, with its "&".
    std::string Caption() const;
    // Keeps the label's place; one that was never given a size fits itself to the caption.
    void SetCaption(const std::string& caption);
    void SetForeColor(Colour colour);
    // A caption that is too long for one line goes on in the next.
    void SetWraps(bool wraps);
    // The access key moves the focus to this control, which also takes the caption as its name for
    // a screen reader. Without it the "&" only stays out of sight.
    void SetBuddy(Control& control);

  protected:
    void Resize(int pixelsWide, int pixelsHigh) override;

  private:
    void ShowCaption();

    std::string caption_;
    bool sized_ = false;
};

}  // namespace trabeon
