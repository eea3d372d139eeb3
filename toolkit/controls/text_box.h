// A box for one line of text.
#pragma once

#include <functional>
#include <string>

#include "toolkit/controls/control.h"

namespace trabeon {

class TextBox : public Control {
  public:
    explicit TextBox(Container& parent, const std::string& text = "");

    /// The user or the code changed the text.
    std::function<void()> Change;
    /// A remark on a new text, or empty. While there is a remark, the box is tinted and its tool
    /// tip ends with the remark.
    std::function<std::string(const std::string& text)> Remark;

    /// The text in UTF-8. While the box shows the text that it was given, the same bytes as that
    /// text.
    [[nodiscard]] std::string Text() const;
    /// Fires Change if the text differs.
    void SetText(const std::string& text);

    /// The selection, in characters from 0. The selection that a GotFocus handler makes stays when
    /// the focus came by a click.
    [[nodiscard]] int SelStart() const;
    [[nodiscard]] int SelLength() const;
    /// Selects nothing.
    void SetSelStart(int start);
    void SetSelLength(int length);
    void SelectAll();

    /// Keeps double quotes and line ends out, typed or pasted, because the text becomes a field of
    /// a file.
    void SetKeepsToField(bool keeps);
    /// The user can read and copy the text but not change it.
    void SetLocked(bool locked);

  protected:
    bool OnEvent(QEvent& event) override;

  private:
    bool OnMouse(QEvent& event);
    void ShowRemark();

    std::string given_;
    bool entering_ = false;  // the current click brought the focus
    std::string remark_;
    bool dragging_ = false;  // that click was dropped, and so are its moves
};

}  // namespace trabeon
