#include "toolkit/pages/page_canvas.h"

#include <QPainter>

#include "toolkit/look/placement.h"

namespace trabeon {

namespace {

constexpr double PixelRatio = 2;

}  // namespace

PictureCanvas::PictureCanvas(int width, int height)
    : image_(QSize(ToPixels(width), ToPixels(height)) * PixelRatio, QImage::Format_RGB32) {
    if (image_.isNull())
        return;
    image_.setDevicePixelRatio(PixelRatio);
    image_.fill(Qt::white);
    painter_ = std::make_unique<QPainter>(&image_);
    painter_->scale(1.0 / TwipsPerPixel, 1.0 / TwipsPerPixel);
}

PictureCanvas::~PictureCanvas() = default;

QPainter* PictureCanvas::Painter() {
    return painter_.get();
}

QImage PictureCanvas::Picture() {
    painter_.reset();
    return image_;
}

}  // namespace trabeon
