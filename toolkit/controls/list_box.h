// A list in which several entries can be selected at once. Positions count from 0.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "toolkit/controls/control.h"

namespace trabeon {

class ListBox : public Control {
  public:
    explicit ListBox(Container& parent);

    // The selection became another one, by the user or by code, or the user clicked an entry that
    // was selected already.
    std::function<void()> Click;

    void AddItem(const std::string& text);
    int ListCount() const;
    std::string List(int index) const;
    bool Selected(int index) const;
    // Fires Click before it returns, also if nothing changes.
    void SetSelected(int index, bool selected);
    // The same for the first entries at once, as many as are told: Click is fired once.
    void SetSelection(const std::vector<bool>& selected);

  protected:
    bool OnInnerEvent(QEvent& event) override;

  private:
    void OnSelection();

    bool muted_ = false;
    bool changed_ = false;  // since the mouse went down
};

}  // namespace trabeon
