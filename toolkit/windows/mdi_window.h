// The program's one top-level window: a menu bar above a desktop for the child windows.
#pragma once

#include <functional>
#include <string>

#include "toolkit/look/placement.h"
#include "toolkit/windows/menu.h"

class QMdiArea;

namespace trabeon {

class MdiWindow : public Placement {
  public:
    explicit MdiWindow(const std::string& caption);
    ~MdiWindow() override;

    // The user closes the window, or Close does: QueryUnload first, then Unload. Either may set
    // cancel, and the window stays; the second is run only if the first did not.
    std::function<void(bool& cancel)> QueryUnload;
    std::function<void(bool& cancel)> Unload;

    // The caption proper: the title bar may show a maximised child's beside it.
    std::string Caption() const;
    void SetCaption(const std::string& caption);
    // The desktop's size, in twips.
    int ScaleWidth() const;
    int ScaleHeight() const;
    static int ScreenWidth();
    static int ScreenHeight();

    // A key of the window that is in no menu. A control with the focus that knows it comes first.
    void AddKey(const std::string& key, std::function<void()> pressed);
    Menu AddMenu(const std::string& caption);
    // A menu of the child windows in sight; choosing one brings it to the front.
    Menu AddWindowList(const std::string& caption);

    // Puts the child windows back into the order, the places and the states that they have now, the
    // front one in front; also those that were unloaded and loaded again meanwhile.
    std::function<void()> KeptWindows() const;

    // The line below the desktop: the latest event at the left, a summary at the right.
    void SetEvent(const std::string& text);
    std::string Event() const;
    void SetSummary(const std::string& text);
    std::string Summary() const;

    WindowState State() const;
    // Waits until the desktop has given the window its new size.
    void SetState(WindowState state);
    void Show();
    void Close();

    // Where the child windows stand.
    QMdiArea& Area() const;

  private:
    class Window;
    Window& Inner() const;

    std::string caption_;
};

}  // namespace trabeon
