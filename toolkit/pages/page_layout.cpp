#include "toolkit/pages/page_layout.h"

#include <QAbstractTextDocumentLayout>
#include <QImage>
#include <QPainter>
#include <QTextBlock>
#include <QTextDocument>
#include <algorithm>
#include <cmath>

#include "toolkit/look/placement.h"
#include "toolkit/pages/pictures_in_text.h"

namespace trabeon {

namespace {

constexpr int DotsPerMetre = 3780;  // 96 an inch
constexpr double Tolerance = 0.5;   // 1/96 inch: the rounding of the layout

// All pages are laid out for this device, on screen and on paper.
QImage& Device() {
    static QImage device = [] {
        QImage made(1, 1, QImage::Format_RGB32);
        made.setDotsPerMeterX(DotsPerMetre);
        made.setDotsPerMeterY(DotsPerMetre);
        return made;
    }();
    return device;
}

void FitPictures(QTextDocument& text, const QSizeF& area) {
    for (const PictureInText& picture : PicturesOf(text)) {
        const QSizeF fitted = FittedSize(picture.size, area);
        if (fitted != picture.size)
            ResizePicture(text, picture.position, fitted);
    }
}

}  // namespace

QSizeF FittedSize(const QSizeF& picture, const QSizeF& area) {
    const double scale =
        std::min({1.0, area.width() / picture.width(), area.height() / picture.height()});
    return picture * scale;
}

PageLayout::PageLayout(const QTextDocument& text, const QSizeF& area)
    : text_(text.clone()), area_(area / TwipsPerPixel) {
    text_->setUndoRedoEnabled(false);
    text_->setDocumentMargin(0);
    text_->setUseDesignMetrics(true);
    text_->documentLayout()->setPaintDevice(&Device());
    DrawPicturesSmoothly(*text_);
    FitPictures(*text_, area_);
    text_->setTextWidth(area_.width());
    ReadLines();
}

PageLayout::~PageLayout() = default;

void PageLayout::ReadLines() {
    for (QTextBlock block = text_->begin(); block.isValid(); block = block.next()) {
        const double top = text_->documentLayout()->blockBoundingRect(block).top();
        const QTextLayout& layout = *block.layout();
        for (int i = 0; i < layout.lineCount(); ++i) {
            const QTextLine line = layout.lineAt(i);
            lines_.push_back({block.position() + line.textStart(), top + line.y(),
                              top + line.y() + line.height()});
        }
    }
}

int PageLayout::Format(QPainter* painter, int first) const {
    const int length = text_->characterCount() - 1;
    auto line = std::upper_bound(lines_.begin(), lines_.end(), first,
                                 [](int at, const Line& each) { return at < each.start; });
    if (line != lines_.begin())
        --line;
    if (line == lines_.end())
        return length;
    const double top = line->top;
    auto next = line + 1;  // a page has at least one line, else the pages would not end
    while (next != lines_.end() && next->bottom - top <= area_.height() + Tolerance)
        ++next;
    if (painter)
        Draw(*painter, top, (next - 1)->bottom);
    return next == lines_.end() ? length : next->start;
}

void PageLayout::Draw(QPainter& painter, double top, double bottom) const {
    // Half a dot less, else the lines above and below would be drawn too.
    const QRectF lines =
        QRectF(0, top, area_.width(), bottom - top).adjusted(0, Tolerance, 0, -Tolerance);
    painter.save();
    painter.scale(TwipsPerPixel, TwipsPerPixel);
    painter.setClipRect(QRectF(0, 0, area_.width(), bottom - top), Qt::IntersectClip);
    painter.translate(0, -top);
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette.setColor(QPalette::Text, Qt::black);
    context.clip = lines;
    text_->documentLayout()->draw(&painter, context);
    painter.restore();
}

}  // namespace trabeon
