// What every control of a form has: a place, a font, the focus and the keys.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "toolkit/look/colour.h"
#include "toolkit/look/placement.h"

class QEvent;
class QKeyEvent;
class QString;

namespace trabeon {

class Control : public Placement {
  public:
    ~Control() override;

    /// The control got the focus by key, mouse or code. Does not fire when the focus only returns
    /// with the window, from a popup or from the menu bar.
    std::function<void()> GotFocus;
    /// A character key, before the control gets it: 13 Enter, 8 Backspace, otherwise the code of
    /// the character. Set it to 0 to drop the key, or to another code to replace it.
    std::function<void(int& keyAscii)> KeyPress;

    [[nodiscard]] bool Enabled() const;
    void SetEnabled(bool enabled);
    [[nodiscard]] bool Visible() const;
    void SetVisible(bool visible);
    /// Fires GotFocus, unless the control already has the focus or its window is not active.
    void SetFocus();
    [[nodiscard]] bool HasFocus() const;
    /// If the system does not have the font, a font with the same widths is used.
    void SetFont(const std::string& name, double points, bool bold);
    void SetAccessibleName(const std::string& name);
    void SetToolTipText(const std::string& text);

  protected:
    /// Owns the widget from now on.
    explicit Control(QWidget* widget);
    /// Gets each event of the widget first. True: the widget does not get it.
    virtual bool OnEvent(QEvent& event);
    /// Sends the events of another widget to OnInnerEvent, for example of the widget inside a
    /// scrolling control.
    void Watch(QWidget* inner);
    virtual bool OnInnerEvent(QEvent& event);

  private:
    class EventFilter;
    bool OnKey(QKeyEvent& event);
    bool Drops(const QString& characters);

    std::unique_ptr<EventFilter> filter_;
    bool focused_ = false;  // also while the window is not active
};

}  // namespace trabeon
