// Where a window or a control stands: twips, 1440 to the inch, x to the right and y downward.
#pragma once

#include <QPointer>

class QWidget;

namespace trabeon {

inline constexpr int TwipsPerPixel = 15;  // at 96 dots an inch

// Twips as pixels, rounded to the nearest.
int ToPixels(double twips);

enum class WindowState { Normal = 0, Minimized = 1, Maximized = 2 };

class Placement {
  public:
    virtual ~Placement() = default;
    Placement(const Placement&) = delete;
    Placement& operator=(const Placement&) = delete;

    int Left() const;
    int Top() const;
    int Width() const;
    int Height() const;
    void SetLeft(int twips);
    void SetTop(int twips);
    void SetWidth(int twips);
    void SetHeight(int twips);
    // A width or height below 0 becomes 0.
    void Move(int left, int top, int width, int height);

    QWidget* Widget() const;

  protected:
    Placement();
    explicit Placement(QWidget* widget);
    void SetWidget(QWidget* widget);
    virtual void Resize(int pixelsWide, int pixelsHigh);

  private:
    QPointer<QWidget> widget_;
};

// Of a window, whatever kind it is.
WindowState StateOf(const QWidget& window);
void SetStateOf(QWidget& window, WindowState state);

// What controls stand on: a form, a frame, a picture box.
class Container {
  public:
    virtual QWidget* Canvas() const = 0;

  protected:
    ~Container() = default;
};

}  // namespace trabeon
