// What a page can be drawn on: a picture, or a sheet of the printer. Measures are twips.
#pragma once

#include <QImage>
#include <memory>

class QPainter;

namespace trabeon {

struct TwipsRect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    int Width() const { return right > left ? right - left : 0; }
    int Height() const { return bottom > top ? bottom - top : 0; }
    bool operator==(const TwipsRect&) const = default;
};

class PageCanvas {
  public:
    virtual ~PageCanvas() = default;
    // Its unit is the twip and its origin the corner of the page; null if nothing can be drawn.
    virtual QPainter* Painter() = 0;
};

// A white page, with twice the screen's pixels.
class PictureCanvas : public PageCanvas {
  public:
    PictureCanvas(int width, int height);
    ~PictureCanvas() override;

    QPainter* Painter() override;
    // Ends the drawing. A null image for a page without extent.
    QImage Picture();

  private:
    QImage image_;
    std::unique_ptr<QPainter> painter_;
};

}  // namespace trabeon
