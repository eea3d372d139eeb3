#include "toolkit/controls/picture_view.h"

#include <QImage>
#include <QPainter>
#include <QWidget>

namespace trabeon {

namespace {

class StillPicture : public QWidget {
  public:
    explicit StillPicture(QWidget* parent) : QWidget(parent) { setFocusPolicy(Qt::ClickFocus); }

    QImage picture;

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(rect(), Qt::white);
        if (picture.isNull())
            return;
        // Scaled once, to the pixels of the screen.
        const QImage fitted = picture.scaled(size() * devicePixelRatioF(), Qt::KeepAspectRatio,
                                             Qt::SmoothTransformation);
        const QSizeF shown = QSizeF(fitted.size()) / devicePixelRatioF();
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(
            QRectF(QPointF((width() - shown.width()) / 2.0, (height() - shown.height()) / 2.0),
                   shown),
            fitted);
    }
};

StillPicture& Inner(const Control& control) {
    return *static_cast<StillPicture*>(control.Widget());
}

}  // namespace

PictureView::PictureView(Container& parent) : Control(new StillPicture(parent.Canvas())) {}

void PictureView::Navigate(const std::string& path) {
    // Full colour, because a picture with a palette cannot be scaled smoothly.
    Inner(*this).picture =
        QImage(QString::fromStdString(path)).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    Inner(*this).update();
}

bool PictureView::HasPicture() const {
    return !Inner(*this).picture.isNull();
}

}  // namespace trabeon
