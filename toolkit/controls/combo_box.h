// A drop-down list; the wheel chooses only while the list is open. Positions count from 0; -1 is
// nothing chosen.
#pragma once

#include <functional>
#include <string>

#include "toolkit/controls/control.h"

namespace trabeon {

class ComboBox : public Control {
  public:
    explicit ComboBox(Container& parent);

    // An entry was chosen, by the user or through SetListIndex, also the one that stood already.
    std::function<void()> Click;

    void AddItem(const std::string& text);  // chooses nothing
    int ListCount() const;
    std::string List(int index) const;
    int ListIndex() const;
    // Fires Click before it returns, unless the index is -1 or past the list, which both choose
    // nothing.
    void SetListIndex(int index);
    std::string Text() const;
    // Shows the entry of that text; changes nothing if there is none. Fires nothing.
    void SetText(const std::string& text);

  protected:
    bool OnEvent(QEvent& event) override;
};

}  // namespace trabeon
