// The main window: a menu bar above an area for the child windows, and a status line.
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

    /// The window is to be closed, by the user or by Close. QueryUnload runs first, then Unload.
    /// Either may set cancel: then the window stays open, and nothing more runs.
    std::function<void(bool& cancel)> QueryUnload;
    std::function<void(bool& cancel)> Unload;

    /// The caption of the main window. The title bar may also show the caption of a maximised
    /// child.
    [[nodiscard]] std::string Caption() const;
    void SetCaption(const std::string& caption);
    /// The size of the area for child windows, in twips.
    [[nodiscard]] int ScaleWidth() const;
    [[nodiscard]] int ScaleHeight() const;
    /// The size of the screen without its panels, in twips.
    [[nodiscard]] static int ScreenWidth();
    [[nodiscard]] static int ScreenHeight();

    /// Adds a key that is in no menu. A control with the focus that uses the key itself gets it
    /// first.
    void AddKey(const std::string& key, std::function<void()> pressed);
    [[nodiscard]] Menu AddMenu(const std::string& caption);
    /// Adds a menu of the visible child windows. An entry brings its window to the front.
    Menu AddWindowList(const std::string& caption);

    /// A function that gives the child windows back the order, places and states that they have
    /// now, even if they were unloaded and loaded again meanwhile.
    [[nodiscard]] std::function<void()> KeptWindows() const;

    /// The status line: the latest event on the left, a summary on the right.
    void SetEvent(const std::string& text);
    [[nodiscard]] std::string Event() const;
    void SetSummary(const std::string& text);
    [[nodiscard]] std::string Summary() const;

    [[nodiscard]] WindowState State() const;
    /// Waits until the window has its new size.
    void SetState(WindowState state);
    void Show();
    void Close();

    /// The area of the child windows.
    [[nodiscard]] QMdiArea& Area() const;

  private:
    class Window;
    Window& Inner() const;

    std::string caption_;
};

}  // namespace trabeon
