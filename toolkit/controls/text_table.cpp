#include "toolkit/controls/text_table.h"

#include <QAbstractButton>
#include <QFontMetricsF>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QScrollBar>
#include <QTableView>
#include <cmath>

#include "toolkit/controls/text_cells.h"
#include "toolkit/look/shown_text.h"
#include "toolkit/outside/outside.h"

namespace trabeon {

namespace {

constexpr int blanksBetweenCells = 4;
constexpr int margin = 4;  // pixels

constexpr int textPlace = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine;

/// Draws a cell as plain text. The toolkit's own delegate takes three times as long.
class CellDelegate : public QAbstractItemDelegate {
  public:
    using QAbstractItemDelegate::QAbstractItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        const QPalette& palette = option.palette;
        const bool selected = option.state & QStyle::State_Selected;
        if (selected)
            painter->fillRect(option.rect, palette.highlight());
        painter->setPen(palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
        painter->drawText(option.rect, textPlace, index.data().toString());
        if (option.state & QStyle::State_HasFocus)
            painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
    }
    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override { return {}; }
};

/// The titles of all rows, or of all columns, drawn like the cells.
class Titles : public QHeaderView {
  public:
    Titles(Qt::Orientation orientation, QWidget* parent) : QHeaderView(orientation, parent) {
        setSectionsClickable(true);
        setSectionResizeMode(QHeaderView::Fixed);
    }

  protected:
    void paintEvent(QPaintEvent* event) override {
        QHeaderView::paintEvent(event);
        QRect rest = viewport()->rect();
        if (orientation() == Qt::Horizontal)
            rest.setLeft(length() - offset());
        else
            rest.setTop(length() - offset());
        if (rest.isValid())
            QPainter(viewport()).fillRect(rest, palette().base());
    }

    void paintSection(QPainter* painter, const QRect& place, int section) const override {
        painter->fillRect(place, palette().base());
        painter->setPen(palette().color(QPalette::Text));
        const int left = orientation() == Qt::Vertical ? margin : 0;
        painter->drawText(place.adjusted(left, 0, 0, 0), textPlace,
                          model()->headerData(section, orientation(), Qt::DisplayRole).toString());
    }
};

}  // namespace

class TextTable::View : public QTableView {
  public:
    explicit View(QWidget* parent);

    TextCells cells;

    void Fill();
    std::string Selection() const;

  protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void FitToFont();

    QLabel corner_;
};

TextTable::View::View(QWidget* parent) : QTableView(parent) {
    setHorizontalHeader(new Titles(Qt::Horizontal, this));
    setVerticalHeader(new Titles(Qt::Vertical, this));
    setModel(&cells);
    setItemDelegate(new CellDelegate(this));
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setSelectionMode(ContiguousSelection);
    auto* corner = new QHBoxLayout(findChild<QAbstractButton*>());
    corner->setContentsMargins(0, 0, 0, 0);
    corner->addWidget(&corner_);
    corner_.setIndent(margin);
    corner_.setBackgroundRole(QPalette::Base);
    corner_.setAutoFillBackground(true);
    corner_.setAttribute(Qt::WA_TransparentForMouseEvents);
    FitToFont();
}

void TextTable::View::Fill() {
    corner_.setText(cells.Corner());
    FitToFont();
    scrollToTop();
    horizontalScrollBar()->setValue(0);
}

void TextTable::View::FitToFont() {
    const QFontMetricsF metrics(font());
    const auto wide = [&](int characters) {
        return static_cast<int>(
            std::ceil(metrics.horizontalAdvance('0') * (characters + blanksBetweenCells)));
    };
    const int high = static_cast<int>(std::ceil(metrics.height()));
    verticalHeader()->setMinimumSectionSize(high);
    verticalHeader()->setDefaultSectionSize(high);
    verticalHeader()->setFixedWidth(margin + wide(cells.LongestTitle()));
    horizontalHeader()->setDefaultSectionSize(wide(cells.LongestCell()));
    horizontalHeader()->setFixedHeight(high + margin);
}

void TextTable::View::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        FitToFont();
}

void TextTable::View::keyPressEvent(QKeyEvent* event) {
    if (!event->matches(QKeySequence::Copy))
        QTableView::keyPressEvent(event);
    else if (selectionModel()->hasSelection())
        Outside::Current().PutText(Selection());
}

std::string TextTable::View::Selection() const {
    const QItemSelection& selection = selectionModel()->selection();
    return selection.isEmpty() ? std::string() : cells.TextOf(selection.first());
}

TextTable::TextTable(Container& parent) : Control(new View(parent.Canvas())) {
    SetFont("Courier", 9, false);
}

TextTable::View& TextTable::Inner() const {
    return *static_cast<View*>(Widget());
}

std::string TextTable::Text() const {
    return Inner().cells.Text();
}

void TextTable::SetText(const std::string& text) {
    Inner().cells.SetText(text);
    Inner().Fill();
}

void TextTable::SetBackColor(Colour colour) {
    QPalette palette = Inner().palette();
    palette.setColor(QPalette::Base, QColor(colour));
    Inner().setPalette(palette);
}

std::string TextTable::SelectedText() const {
    return Inner().Selection();
}

}  // namespace trabeon
