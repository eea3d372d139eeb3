// The position and size of a window or a control, in twips: 1440 an inch, x to the right, y down.
#pragma once

#include <QPointer>

class QWidget;

namespace trabeon {

inline constexpr int TwipsPerPixel = 15;  // at 96 dots an inch

/// Twips as pixels, rounded to the nearest.
[[nodiscard]] int ToPixels(double twips);

enum class WindowState { Normal = 0, Minimized = 1, Maximized = 2 };

class Placement {
  public:
    virtual ~Placement() = default;
    Placement(const Placement&) = delete;
    Placement& operator=(const Placement&) = delete;

    [[nodiscard]] int Left() const;
    [[nodiscard]] int Top() const;
    [[nodiscard]] int Width() const;
    [[nodiscard]] int Height() const;
    void SetLeft(int twips);
    void SetTop(int twips);
    void SetWidth(int twips);
    void SetHeight(int twips);
    /// A width or height below 0 becomes 0.
    void Move(int left, int top, int width, int height);

    [[nodiscard]] QWidget* Widget() const;

  protected:
    Placement();
    explicit Placement(QWidget* widget);
    void SetWidget(QWidget* widget);
    virtual void Resize(int pixelsWide, int pixelsHigh);

  private:
    QPointer<QWidget> widget_;
};

/// The state of a main window, a child window or a dialog.
[[nodiscard]] WindowState StateOf(const QWidget& window);
void SetStateOf(QWidget& window, WindowState state);

/// What controls are placed on: a form, a frame, a picture box.
class Container {
  public:
    [[nodiscard]] virtual QWidget* Canvas() const = 0;

  protected:
    ~Container() = default;
};

}  // namespace trabeon
