// A box for one line of text.
#pragma once

#include <functional>
#include <string>

#include "toolkit/controls/control.h"

namespace trabeon {

class TextBox : public Control {
  public:
    explicit TextBox(Container& parent, const std::string& text = "");

    // The text became another one, by the user or by code.
    std::function<void()> Change;
    // What is to be said about a new text; empty if nothing is. The box is tinted while there is
    // something, and shows it under the pointer, after the tip that the box has anyway.
    std::function<std::string(const std::string& text)> Remark;

    // While the box shows the text that it was given, the very bytes of that text; else UTF-8.
    std::string Text() const;
    // Fires Change if the text is another one.
    void SetText(const std::string& text);

    // The selection, in characters from 0. What a GotFocus handler selects stays selected when
    // the focus came by a click.
    int SelStart() const;
    int SelLength() const;
    void SetSelStart(int start);  // and nothing selected
    void SetSelLength(int length);
    void SelectAll();

    // Keeps double quotes and line ends out, typed or pasted: the text ends in a field of a file.
    void SetKeepsToField(bool keeps);
    // The text can be read and copied only.
    void SetLocked(bool locked);

  protected:
    bool OnEvent(QEvent& event) override;

  private:
    bool OnMouse(QEvent& event);
    void ShowRemark();

    std::string given_;
    bool entering_ = false;  // the focus comes by the click that is under way
    std::string remark_;
    bool dragging_ = false;  // that click was swallowed, its moves are as well
};

}  // namespace trabeon
