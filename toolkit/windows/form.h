// A window of the program: a child of the main window, or a dialog outside it. Its controls are its
// members, and its constructor sets the handlers.
#pragma once

#include <functional>
#include <initializer_list>
#include <memory>
#include <string>
#include <utility>

#include "toolkit/look/placement.h"
#include "toolkit/windows/menu.h"

class QSize;

namespace trabeon {

class Control;
class Forms;
class MdiWindow;

enum class FormBorder {
    Sizable,
    FixedToolWindow,    // no minimise, no maximise, no sizing
    SizableToolWindow,  // no minimise, no maximise
    FixedDialog         // outside the main window, which gets no input while the dialog shows
};

class Form : public Placement, public Container {
  public:
    explicit Form(const std::string& caption, FormBorder border = FormBorder::Sizable);
    ~Form() override;

    [[nodiscard]] std::string Caption() const;
    void SetCaption(const std::string& caption);

    /// The size inside the border and below the menu, in twips.
    [[nodiscard]] int ScaleWidth() const;
    [[nodiscard]] int ScaleHeight() const;
    void SetScaleSize(int width, int height);
    /// The user cannot make the inside smaller than this.
    void SetSmallestScaleSize(int width, int height);

    /// Brings the form to the front. A dialog returns when it is hidden or unloaded.
    void Show();
    /// Hides the form, which stays loaded. Called in Form_Load, it keeps the form from coming up.
    void Hide();
    [[nodiscard]] bool Visible() const;
    [[nodiscard]] WindowState State() const;
    /// Maximised, a child fills the inside of the main window.
    void SetState(WindowState state);
    /// Removes the form from the registry at once. A handler of the form may call this; it runs to
    /// its end.
    void Unload();

    [[nodiscard]] QWidget* Canvas() const override;

  protected:
    /// Runs once, when the form is used first.
    virtual void Form_Load() {}
    /// Runs before the form first shows, and then at each change of its inner size.
    virtual void Form_Resize() {}

    /// Runs before the form is unloaded by the close box or a key that does the same.
    virtual void ClosedByUser() {}

    /// The first of them has the focus each time the form comes up.
    void SetTabOrder(std::initializer_list<const Control*> controls);
    [[nodiscard]] Menu AddMenu(const std::string& caption);

    void Resize(int pixelsWide, int pixelsHigh) override;

  private:
    friend class Forms;
    class Body;
    class ChildFrame;
    class DialogFrame;

    /// `unload` removes the form from its registry.
    void Load(std::function<void()> unload, MdiWindow& window);
    void Resized();
    void ShowDialog();
    /// Hides the form for good.
    void Retire();

    FormBorder border_;
    Body* body_;
    MdiWindow* window_ = nullptr;
    std::function<void()> unload_;  // empty while the form is in no registry
    std::function<void()> endDialog_;
    std::pair<int, int> wantedInside_;  // twips, until the form first shows
    const Control* first_ = nullptr;
    bool loaded_ = false;
    bool hidden_ = false;
};

}  // namespace trabeon
