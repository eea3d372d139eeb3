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

    /// The user or the code changed the selection, or the user clicked a selected entry.
    std::function<void()> Click;

    void AddItem(const std::string& text);
    [[nodiscard]] int ListCount() const;
    [[nodiscard]] std::string List(int index) const;
    [[nodiscard]] bool Selected(int index) const;
    /// Fires Click before it returns, even if nothing changes.
    void SetSelected(int index, bool selected);
    /// Selects element i of `selected` for entry i, and no others. Fires Click once.
    void SetSelection(const std::vector<bool>& selected);

  protected:
    bool OnInnerEvent(QEvent& event) override;

  private:
    void OnSelection();

    bool muted_ = false;
    bool changed_ = false;  // since the mouse went down
};

}  // namespace trabeon
