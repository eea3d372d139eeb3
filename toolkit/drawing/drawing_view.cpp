#include "toolkit/drawing/drawing_view.h"

#include <QFrame>
#include <QMouseEvent>
#include <QPainter>

#include "toolkit/drawing/paint_drawing.h"
#include "toolkit/outside/outside.h"
#include "toolkit/outside/picture_file.h"

namespace trabeon {

class DrawingView::Surface : public QFrame {
  public:
    Surface(DrawingView& view, QWidget* parent) : QFrame(parent), view_(view) {
        setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    }

  protected:
    void paintEvent(QPaintEvent* event) override {
        QPainter painter(this);
        painter.setFont(font());
        painter.setClipRect(contentsRect());
        painter.fillRect(contentsRect(), Qt::white);
        painter.translate(contentsRect().topLeft());
        PaintDrawing(painter, view_.Drawn());
        painter.end();
        QFrame::paintEvent(event);
    }

  private:
    DrawingView& view_;
};

DrawingView::DrawingView(Container& parent) : Control(new Surface(*this, parent.Canvas())) {}

double DrawingView::InnerWidth() const {
    return Widget()->contentsRect().width();
}

double DrawingView::InnerHeight() const {
    return Widget()->contentsRect().height();
}

TextMeasure DrawingView::Measure() const {
    return MeasureOf(Widget()->font());
}

void DrawingView::Redraw() {
    drawn_ = false;
    Widget()->update();
}

const Drawing& DrawingView::Drawn() const {
    if (!std::exchange(drawn_, true))
        drawing_ = Draw ? Draw() : Drawing();
    return drawing_;
}

QImage DrawingView::PictureOf(const Drawing& drawing) const {
    const QSize size = Widget()->contentsRect().size().expandedTo({1, 1});
    const double ratio = SharpRatio(size);
    QImage picture(size * ratio, QImage::Format_RGB32);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setFont(Widget()->font());
    PaintDrawing(painter, drawing);
    painter.end();
    SetRatio(picture, ratio);  // set earlier, its dots would make the text larger
    return picture;
}

void DrawingView::CopyToClipboard(const Drawing& drawing) const {
    Outside::Current().PutPicture(PictureOf(drawing));
}

bool DrawingView::OnEvent(QEvent& event) {
    if (event.type() != QEvent::MouseButtonPress || !Click)
        return Control::OnEvent(event);
    const auto& press = static_cast<const QMouseEvent&>(event);
    if (press.button() != Qt::LeftButton)
        return Control::OnEvent(event);
    const QPointF at = press.position() - Widget()->contentsRect().topLeft();
    Click(at.x(), at.y());
    return true;
}

}  // namespace trabeon
