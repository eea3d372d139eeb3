// A text of lines and pictures, laid out for pages of one size. Only for the toolkit's own sources;
// forms use RichTextBox::FormatRange.
#pragma once

#include <QSizeF>
#include <memory>
#include <vector>

class QPainter;
class QTextDocument;

namespace trabeon {

class PageLayout {
  public:
    /// `area` is the size of the text on a page, in twips. A larger picture is made to fit it.
    PageLayout(const QTextDocument& text, const QSizeF& area);
    ~PageLayout();

    /// Draws the page that begins at position `first`, at the origin of a painter with the twip as
    /// its unit. A null painter only measures. Returns the position at which the next page begins,
    /// or the length of the text if there is none.
    [[nodiscard]] int Format(QPainter* painter, int first) const;

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

/// The size of a picture on a page with this area: its own size, or the largest that fits.
[[nodiscard]] QSizeF FittedSize(const QSizeF& picture, const QSizeF& area);

}  // namespace trabeon
