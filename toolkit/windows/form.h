// A window of the program: a child of the frame, or a dialog outside it. Controls are its members,
// made on `*this`; handlers are set in its constructor.
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
    FixedDialog         // stands outside the frame and holds the program's input while it shows
};

class Form : public Placement, public Container {
  public:
    explicit Form(const std::string& caption, FormBorder border = FormBorder::Sizable);
    ~Form() override;

    std::string Caption() const;
    void SetCaption(const std::string& caption);

    // The size inside the border and below the menu, in twips.
    int ScaleWidth() const;
    int ScaleHeight() const;
    void SetScaleSize(int width, int height);
    // The user cannot make the inside smaller than this.
    void SetSmallestScaleSize(int width, int height);

    // Brings the form to the front. For a dialog it returns when the form is hidden or unloaded.
    void Show();
    // The form stays loaded and keeps what its controls hold. In Form_Load: it will not come up.
    void Hide();
    bool Visible() const;
    WindowState State() const;
    // A child fills the frame's inside, or goes back to its own size.
    void SetState(WindowState state);
    // Takes the form out of the registry at once; safe in its own handlers, which run to their end.
    void Unload();

    QWidget* Canvas() const override;

  protected:
    // Runs once, when the form is first touched.
    virtual void Form_Load() {}
    // Runs before the form first shows and at each change of its inner size from then on.
    virtual void Form_Resize() {}

    // Runs before the user's close box, or a key that does the same, unloads the form.
    virtual void ClosedByUser() {}

    // The first of them has the focus each time the form comes up.
    void SetTabOrder(std::initializer_list<const Control*> controls);
    Menu AddMenu(const std::string& caption);

    void Resize(int pixelsWide, int pixelsHigh) override;

  private:
    friend class Forms;
    class Body;
    class ChildFrame;
    class DialogFrame;

    // `unload` takes the form out of its registry.
    void Load(std::function<void()> unload, MdiWindow& window);
    void Resized();
    void ShowDialog();
    // Out of sight for good.
    void Retire();

    FormBorder border_;
    Body* body_;
    MdiWindow* window_ = nullptr;
    std::function<void()> unload_;  // empty before and behind the form's time in a registry
    std::function<void()> endDialog_;
    std::pair<int, int> wantedInside_;  // twips, until the form first shows
    const Control* first_ = nullptr;
    bool loaded_ = false;
    bool hidden_ = false;
};

}  // namespace trabeon
