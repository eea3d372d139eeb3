// A caption on a form. "&" marks the access key of the control that the label names.
#pragma once

#include <string>

#include "toolkit/controls/control.h"

namespace trabeon {

class Label : public Control {
  public:
    Label(Container& parent, const std::string& caption);

    /// As it was set, with its "&".
    [[nodiscard]] std::string Caption() const;
    /// Keeps the place of the label. A label without a set size takes the size of the caption.
    void SetCaption(const std::string& caption);
    void SetForeColor(Colour colour);
    /// Whether a caption that is too long for one line continues on the next line.
    void SetWraps(bool wraps);
    /// The access key of the caption moves the focus to this control, and the caption becomes the
    /// name of the control for a screen reader. A label without a buddy only hides the "&".
    void SetBuddy(Control& control);

  protected:
    void Resize(int pixelsWide, int pixelsHigh) override;

  private:
    void ShowCaption();

    std::string caption_;
    bool sized_ = false;
};

}  // namespace trabeon
