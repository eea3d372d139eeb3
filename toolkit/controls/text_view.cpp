#include "toolkit/controls/text_view.h"

#include <QAbstractScrollArea>
#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <cmath>

#include "toolkit/look/shown_text.h"
#include "toolkit/outside/outside.h"

namespace trabeon {

namespace {

struct Place {
    int line = 0;
    int column = 0;

    bool operator<(const Place& other) const {
        return line != other.line ? line < other.line : column < other.column;
    }
};

constexpr int Margin = 4;  // pixels

}  // namespace

class TextView::View : public QAbstractScrollArea {
  public:
    explicit View(QWidget* parent) : QAbstractScrollArea(parent) {
        setFocusPolicy(Qt::StrongFocus);
        viewport()->setCursor(Qt::IBeamCursor);
        viewport()->setBackgroundRole(QPalette::Base);
        Measure();
    }

    std::string text;

    void Fill();
    QString Selection() const;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent*) override { SetRanges(); }
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void scrollContentsBy(int, int) override { viewport()->update(); }

  private:
    void Measure();
    void SetRanges();
    Place PlaceAt(const QPointF& point) const;
    void PaintLine(QPainter& painter, int line, double y) const;
    bool MoveByKey(int key);
    double CellLeft(int column) const {
        return Margin + (column - horizontalScrollBar()->value()) * cellWide_;
    }

    QStringList lines_;
    int longest_ = 0;
    double cellWide_ = 1;
    double cellHigh_ = 1;
    Place anchor_;
    Place caret_;
};

void TextView::View::Measure() {
    const QFontMetricsF metrics(font());
    cellWide_ = metrics.horizontalAdvance('0');
    cellHigh_ = std::ceil(metrics.height());
}

void TextView::View::Fill() {
    lines_ = ShownText(text).remove('\r').split('\n');
    longest_ = 0;
    for (const QString& line : lines_)
        longest_ = std::max(longest_, static_cast<int>(line.size()));
    anchor_ = caret_ = Place();
    SetRanges();
    horizontalScrollBar()->setValue(0);
    verticalScrollBar()->setValue(0);
    viewport()->update();
}

// The bars count characters and lines.
void TextView::View::SetRanges() {
    const int columns =
        std::max(1, static_cast<int>((viewport()->width() - 2 * Margin) / cellWide_));
    const int rows = std::max(1, static_cast<int>((viewport()->height() - 2 * Margin) / cellHigh_));
    horizontalScrollBar()->setRange(0, std::max(0, longest_ - columns));
    horizontalScrollBar()->setPageStep(columns);
    horizontalScrollBar()->setSingleStep(4);
    verticalScrollBar()->setRange(0, std::max(0, static_cast<int>(lines_.size()) - rows));
    verticalScrollBar()->setPageStep(rows);
}

void TextView::View::changeEvent(QEvent* event) {
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        Measure();
        SetRanges();
    }
}

void TextView::View::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    painter.fillRect(event->rect(), palette().brush(QPalette::Base));
    painter.setFont(font());
    double y = Margin;
    for (int line = verticalScrollBar()->value(); line < lines_.size(); ++line, y += cellHigh_) {
        if (y > viewport()->height())
            break;
        PaintLine(painter, line, y);
    }
}

void TextView::View::PaintLine(QPainter& painter, int line, double y) const {
    const QString& shown = lines_.at(line);
    const int first = horizontalScrollBar()->value();
    const int count = static_cast<int>(viewport()->width() / cellWide_) + 2;
    const double baseline = y + QFontMetricsF(font()).ascent();
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(QPointF(CellLeft(first), baseline), shown.mid(first, count));
    const Place from = std::min(anchor_, caret_);
    const Place to = std::max(anchor_, caret_);
    if (line < from.line || line > to.line || !(from < to))
        return;
    const int start = line == from.line ? from.column : 0;
    const int end = line == to.line ? to.column : static_cast<int>(shown.size()) + 1;
    const QRectF chosen(CellLeft(start), y, (end - start) * cellWide_, cellHigh_);
    painter.save();
    painter.setClipRect(chosen);
    painter.fillRect(chosen, palette().highlight());
    painter.setPen(palette().color(QPalette::HighlightedText));
    painter.drawText(QPointF(CellLeft(first), baseline), shown.mid(first, count));
    painter.restore();
}

Place TextView::View::PlaceAt(const QPointF& point) const {
    const int row = static_cast<int>(std::floor((point.y() - Margin) / cellHigh_));
    const int line = std::clamp(verticalScrollBar()->value() + row, 0,
                                std::max(0, static_cast<int>(lines_.size()) - 1));
    const auto cell = static_cast<int>(std::lround((point.x() - Margin) / cellWide_));
    const int size = line < lines_.size() ? static_cast<int>(lines_.at(line).size()) : 0;
    return {line, std::clamp(horizontalScrollBar()->value() + cell, 0, size)};
}

void TextView::View::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    caret_ = PlaceAt(event->position());
    if (!(event->modifiers() & Qt::ShiftModifier))
        anchor_ = caret_;
    viewport()->update();
}

void TextView::View::mouseMoveEvent(QMouseEvent* event) {
    if (!(event->buttons() & Qt::LeftButton))
        return;
    caret_ = PlaceAt(event->position());
    // Follow the mouse past the edge, by what is hidden there.
    if (event->position().x() > viewport()->width())
        horizontalScrollBar()->triggerAction(QScrollBar::SliderSingleStepAdd);
    else if (event->position().x() < 0)
        horizontalScrollBar()->triggerAction(QScrollBar::SliderSingleStepSub);
    if (event->position().y() > viewport()->height())
        verticalScrollBar()->triggerAction(QScrollBar::SliderSingleStepAdd);
    else if (event->position().y() < 0)
        verticalScrollBar()->triggerAction(QScrollBar::SliderSingleStepSub);
    viewport()->update();
}

QString TextView::View::Selection() const {
    const Place from = std::min(anchor_, caret_);
    const Place to = std::max(anchor_, caret_);
    QStringList parts;
    for (int line = from.line; line <= to.line && line < lines_.size(); ++line) {
        const int start = line == from.line ? from.column : 0;
        const int end = line == to.line ? to.column : static_cast<int>(lines_.at(line).size());
        parts << lines_.at(line).mid(start, end - start);
    }
    return parts.join('\n');
}

void TextView::View::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        if (anchor_ < caret_ || caret_ < anchor_)
            Outside::Current().PutText(Selection().toStdString());
    } else if (event->matches(QKeySequence::SelectAll)) {
        const int last = static_cast<int>(lines_.size()) - 1;
        anchor_ = Place();
        caret_ = {std::max(0, last), last < 0 ? 0 : static_cast<int>(lines_.at(last).size())};
        viewport()->update();
    } else if (!MoveByKey(event->key())) {
        QAbstractScrollArea::keyPressEvent(event);
    }
}

bool TextView::View::MoveByKey(int key) {
    switch (key) {
        case Qt::Key_Home:
            horizontalScrollBar()->setValue(0);
            return true;
        case Qt::Key_End:
            horizontalScrollBar()->setValue(horizontalScrollBar()->maximum());
            return true;
        default:
            return false;  // arrows and pages are the bars' own
    }
}

TextView::TextView(Container& parent) : Control(new View(parent.Canvas())) {
    SetFont("Courier", 9, false);
}

TextView::View& TextView::Inner() const {
    return *static_cast<View*>(Widget());
}

std::string TextView::Text() const {
    return Inner().text;
}

void TextView::SetText(const std::string& text) {
    Inner().text = text;
    Inner().Fill();
}

void TextView::SetBackColor(Colour colour) {
    QPalette palette = Inner().palette();
    palette.setColor(QPalette::Base, QColor(colour));
    Inner().setPalette(palette);
}

std::string TextView::SelectedText() const {
    return Inner().Selection().toStdString();
}

}  // namespace trabeon
