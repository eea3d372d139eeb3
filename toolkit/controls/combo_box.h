// A drop-down list. The wheel chooses an entry only while the list is open. Positions count from 0;
// -1 means that no entry is chosen.
#pragma once

#include <functional>
#include <string>

#include "toolkit/controls/control.h"

namespace trabeon {

class ComboBox : public Control {
  public:
    explicit ComboBox(Container& parent);

    /// The user or SetListIndex chose an entry, possibly the same one as before.
    std::function<void()> Click;

    /// Adds an entry without choosing it.
    void AddItem(const std::string& text);
    [[nodiscard]] int ListCount() const;
    [[nodiscard]] std::string List(int index) const;
    [[nodiscard]] int ListIndex() const;
    /// Chooses an entry and fires Click before it returns. An index outside the list chooses no
    /// entry and fires nothing.
    void SetListIndex(int index);
    [[nodiscard]] std::string Text() const;
    /// Chooses the entry with this text, if there is one. Fires nothing.
    void SetText(const std::string& text);

  protected:
    bool OnEvent(QEvent& event) override;
};

}  // namespace trabeon
