// A text of lines and pictures, laid out for pages of one size. Toolkit inside; forms speak to the
// page service of RichTextBox.
#pragma once

#include <QSizeF>
#include <memory>
#include <vector>

class QPainter;
class QTextDocument;

namespace trabeon {

class PageLayout {
  public:
    // The area that a page gives to the text, in twips. A picture that is larger is made to fit.
    PageLayout(const QTextDocument& text, const QSizeF& area);
    ~PageLayout();

    // Draws the page that begins at a position, from the painter's origin on, in twips; a null
    // painter only measures. Gives the position at which the next page begins, the text's length
    // if there is none.
    int Format(QPainter* painter, int first) const;

  private:
    struct Line {
        int start;
        double top;  // 1/96 inch
        double bottom;
    };

    void ReadLines();
    void Draw(QPainter& painter, double top, double bottom) const;

    std::unique_ptr<QTextDocument> text_;
    QSizeF area_;  // 1/96 inch
    std::vector<Line> lines_;
};

// The size that a picture has on a page with such an area: its own, or the largest that fits.
QSizeF FittedSize(const QSizeF& picture, const QSizeF& area);

}  // namespace trabeon
