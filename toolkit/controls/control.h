// What every control of a form has: a place, a font, the focus and the keys that reach it.
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

    // The focus came to the control by key, mouse or code; not when it merely comes back with the
    // window, from a popup or from the menu bar.
    std::function<void()> GotFocus;
    // A character key, before the control sees it: 13 Enter, 8 Backspace, else the character's
    // code. Set it to 0 to drop the key, or to another code to replace it.
    std::function<void(int& keyAscii)> KeyPress;

    bool Enabled() const;
    void SetEnabled(bool enabled);
    bool Visible() const;
    void SetVisible(bool visible);
    // Fires GotFocus, unless the control has the focus or its window is not the active one.
    void SetFocus();
    bool HasFocus() const;
    // A font that the system lacks is replaced by one of the same measure.
    void SetFont(const std::string& name, double points, bool bold);
    void SetAccessibleName(const std::string& name);
    void SetToolTipText(const std::string& text);

  protected:
    // Takes the widget over.
    explicit Control(QWidget* widget);
    // Sees each event of the widget first; true swallows it.
    virtual bool OnEvent(QEvent& event);
    // The same for a further widget, as the inner one of a scrolling control.
    void Watch(QWidget* inner);
    virtual bool OnInnerEvent(QEvent& event);

  private:
    class Tap;
    bool OnKey(QKeyEvent& event);
    bool Drops(const QString& characters);

    std::unique_ptr<Tap> tap_;
    bool focused_ = false;  // also while the window is not the active one
};

}  // namespace trabeon
