// What a page can be drawn on: a picture, or a sheet of the printer. All sizes are in twips.
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

    [[nodiscard]] int Width() const { return right > left ? right - left : 0; }
    [[nodiscard]] int Height() const { return bottom > top ? bottom - top : 0; }
    bool operator==(const TwipsRect&) const = default;
};

class PageCanvas {
  public:
    virtual ~PageCanvas() = default;
    /// A painter with the twip as its unit and its origin at the corner of the page. Null if
    /// nothing can be drawn.
    [[nodiscard]] virtual QPainter* Painter() = 0;
};

/// A white page, with two pixels for each pixel of the screen.
class PictureCanvas : public PageCanvas {
  public:
    PictureCanvas(int width, int height);
    ~PictureCanvas() override;

    [[nodiscard]] QPainter* Painter() override;
    /// Ends the drawing. A null image for an empty page.
    [[nodiscard]] QImage Picture();

  private:
    QImage image_;
    std::unique_ptr<QPainter> painter_;
};

}  // namespace trabeon
