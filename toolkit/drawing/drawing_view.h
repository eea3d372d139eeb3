// Shows a drawing on a form.
#pragma once

#include <QImage>

#include "toolkit/controls/control.h"
#include "toolkit/drawing/shapes.h"

namespace trabeon {

class DrawingView : public Control {
  public:
    explicit DrawingView(Container& parent);

    /// The left button was pressed at this place, in pixels from the corner inside the border.
    std::function<void(double x, double y)> Click;

    /// The size inside the border, in pixels.
    double InnerWidth() const;
    double InnerHeight() const;
    TextMeasure Measure() const;

    /// Makes the drawing for the present size. It runs when somebody looks, and then not again
    /// before the next Redraw.
    std::function<Drawing()> Draw;
    void Redraw();
    const Drawing& Drawn() const;

    /// A drawing made for the size of this view, on white and sharp on paper.
    QImage PictureOf(const Drawing& drawing) const;
    void CopyToClipboard(const Drawing& drawing) const;

  protected:
    bool OnEvent(QEvent& event) override;

  private:
    class Surface;

    mutable Drawing drawing_;
    mutable bool drawn_ = false;
};

}  // namespace trabeon
