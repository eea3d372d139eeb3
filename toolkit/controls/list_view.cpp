#include "toolkit/controls/list_view.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyledItemDelegate>
#include <QToolTip>
#include <QTreeWidget>

#include "toolkit/look/look.h"
#include "toolkit/look/shown_text.h"
#include "toolkit/outside/outside.h"

namespace trabeon {

class Row : public QTreeWidgetItem {
  public:
    explicit Row(int position) : filePosition(position) {}

    bool operator<(const QTreeWidgetItem& other) const override {
        const int column = treeWidget()->sortColumn();
        return QString::compare(text(column), other.text(column), Qt::CaseInsensitive) < 0;
    }

    const int filePosition;
};

namespace {

constexpr int MarkRole = Qt::UserRole;

// The texts of a row as they are copied.
QString LineOf(const QTreeWidgetItem& row, int columns) {
    QStringList texts;
    for (int column = 0; column < columns; ++column)
        texts << row.text(column).trimmed();  // a blank in front is for the eye
    return texts.join('\t') + '\n';
}

// A little air above and below the text; one that is cut shows whole under the pointer.
class RowDelegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyledItemDelegate::paint(painter, option, index);
        const QString mark = index.data(MarkRole).toString();
        if (mark.isEmpty())
            return;
        const bool selected = option.state & QStyle::State_Selected;
        painter->setFont(FontNamed("Arial", 7.5, true));
        painter->setPen(selected ? option.palette.highlightedText().color()
                                 : QColor(HighlightColour));
        painter->drawText(option.rect.adjusted(0, 0, -6, 0), Qt::AlignRight | Qt::AlignVCenter,
                          mark);
    }

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, 4);
    }

    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override {
        const QString text = index.data().toString();
        const bool cut = sizeHint(option, index).width() > view->visualRect(index).width();
        if (event->type() != QEvent::ToolTip || !cut)
            return QStyledItemDelegate::helpEvent(event, view, option, index);
        QToolTip::showText(event->globalPos(), "<qt>" + text.toHtmlEscaped() + "</qt>", view);
        return true;
    }
};

}  // namespace

class ListView::Tree : public QTreeWidget {
  public:
    Tree(ListView& view, QWidget* parent) : QTreeWidget(parent), owner(view) {
        setRootIsDecorated(false);
        setUniformRowHeights(true);
        setAlternatingRowColors(true);
        setEditTriggers(NoEditTriggers);
        setItemDelegate(new RowDelegate(this));
        header()->setSectionsClickable(true);
        header()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        setTextElideMode(Qt::ElideRight);
        const int lineHigh = fontMetrics().height();
        setIconSize({lineHigh, lineHigh});  // a row with a sign is as high as the others
    }

    ListView& owner;
    bool gridLines = false;

  protected:
    // A press on blank space keeps the selection.
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override {
        return index.isValid() ? QTreeWidget::selectionCommand(index, event)
                               : QItemSelectionModel::NoUpdate;
    }
    void drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                 const QModelIndex& index) const override {
        QTreeWidget::drawRow(painter, option, index);
        if (!gridLines)
            return;
        painter->setPen(QColor(0xd0d7de));
        painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
        for (int column = 0; column < columnCount(); ++column) {
            const int right = columnViewportPosition(column) + columnWidth(column) - 1;
            painter->drawLine(right, option.rect.top(), right, option.rect.bottom());
        }
    }
};

int ListItem::Index() const {
    if (!row_)
        return 0;
    static_cast<ListView::Tree*>(row_->treeWidget())->owner.Settle();
    return row_->treeWidget()->indexOfTopLevelItem(row_) + 1;
}

int ListItem::FilePosition() const {
    return row_ ? row_->filePosition : 0;
}

std::string ListItem::Text() const {
    return SubItems(0);
}

std::string ListItem::SubItems(int n) const {
    return row_ ? row_->text(n).toStdString() : std::string();
}

void ListItem::SetSubItems(int n, const std::string& text) {
    row_->setText(n, ShownText(text));
    static_cast<ListView::Tree*>(row_->treeWidget())->owner.Unsettle();
}

void ListItem::SetForeColor(Colour colour) {
    for (int column = 0; column < row_->treeWidget()->columnCount(); ++column)
        row_->setForeground(column, QColor(colour));
}

void ListItem::SetWarningSign(bool shown) {
    const QStyle& style = *row_->treeWidget()->style();
    row_->setIcon(0, shown ? style.standardIcon(QStyle::SP_MessageBoxWarning) : QIcon());
}

void ListItem::SetMark(const std::string& word) {
    row_->setData(0, MarkRole, QString::fromStdString(word));
}

void ListItem::SetToolTip(const std::string& text) {
    for (int column = 0; column < row_->treeWidget()->columnCount(); ++column)
        row_->setToolTip(column, QString::fromStdString(text));
}

int ListItemsOf::Count() const {
    return view_.Inner().topLevelItemCount();
}

void ListItemsOf::Clear() {
    view_.Inner().clear();
}

ListItem ListItemsOf::Add(const std::string& text) {
    auto* row = new Row(Count() + 1);
    row->setText(0, ShownText(text));
    view_.Inner().addTopLevelItem(row);
    view_.Unsettle();
    return ListItem(row);
}

ListItem ListItemsOf::operator()(int index) const {
    view_.Settle();
    return ListItem(static_cast<Row*>(view_.Inner().topLevelItem(index - 1)));
}

ListView::ListView(Container& parent, const std::vector<ListColumn>& columns)
    : Control(new Tree(*this, parent.Canvas())) {
    QStringList titles;
    for (const ListColumn& column : columns)
        titles << ShownText(column.title);
    Tree& tree = Inner();
    tree.setColumnCount(static_cast<int>(columns.size()));
    tree.setHeaderLabels(titles);
    for (int i = 0; i < titles.size(); ++i) {
        const ListColumn& column = columns[static_cast<std::size_t>(i)];
        tree.setColumnWidth(i, ToPixels(column.width));
        tree.headerItem()->setToolTip(i, QString::fromStdString(column.toolTip));
    }
    Watch(tree.viewport());
    QObject::connect(tree.header(), &QHeaderView::sectionClicked, [this](int section) {
        if (ColumnClick)
            ColumnClick(section + 1);
    });
}

ListView::Tree& ListView::Inner() const {
    return *static_cast<Tree*>(Widget());
}

ListItem ListView::SelectedItem() const {
    Settle();
    const QList<QTreeWidgetItem*> selected = Inner().selectedItems();
    QTreeWidgetItem* current = Inner().currentItem();
    if (!selected.isEmpty() && !selected.contains(current))
        current = selected.first();
    return ListItem(static_cast<Row*>(current));
}

void ListView::SetSelectedItem(const ListItem& item) {
    Settle();
    Inner().setCurrentItem(item.row_);
    if (item.row_)
        Inner().scrollToItem(item.row_);
}

void ListView::EnsureVisible(const ListItem& item) {
    Settle();
    if (item.row_)
        Inner().scrollToItem(item.row_);
}

void ListView::SetSortKey(int column) {
    sortKey_ = column;
    Unsettle();
}

void ListView::SetSortOrder(ListSortOrder order) {
    sortOrder_ = order;
    Unsettle();
}

void ListView::SetSorted(bool sorted) {
    Settle();  // with the order that was told so far
    sorted_ = sorted;
    Unsettle();
}

// Sorting after each text of each row would make a long list slow to fill, so it waits until
// somebody looks: a caller that reads, or the screen.
void ListView::Unsettle() {
    if (!settled_)
        return;
    settled_ = false;
    QMetaObject::invokeMethod(
        &Inner(), [this] { Settle(); }, Qt::QueuedConnection);
}

void ListView::Settle() const {
    if (settled_)
        return;
    settled_ = true;
    Tree& tree = Inner();
    const Qt::SortOrder order =
        sortOrder_ == ListSortOrder::Rising ? Qt::AscendingOrder : Qt::DescendingOrder;
    tree.header()->setSortIndicatorShown(sorted_);
    if (sorted_) {
        tree.header()->setSortIndicator(sortKey_, order);
        tree.sortItems(sortKey_, order);
    }
    if (tree.topLevelItemCount() > 0 && tree.selectedItems().isEmpty())
        tree.setCurrentItem(tree.topLevelItem(0));
}

void ListView::SetMultiSelect(bool multi) {
    Inner().setSelectionMode(multi ? QAbstractItemView::ExtendedSelection
                                   : QAbstractItemView::SingleSelection);
}

void ListView::SetGridLines(bool shown) {
    Inner().gridLines = shown;
}

void ListView::SetWrapsTitles(bool wraps) {
    constexpr Qt::Alignment place = Qt::AlignLeft | Qt::AlignVCenter;
    QHeaderView& header = *Inner().header();
    header.setDefaultAlignment(wraps ? place | Qt::Alignment(int(Qt::TextWordWrap)) : place);
    header.setMinimumHeight(wraps ? 2 * header.fontMetrics().lineSpacing() + 8 : 0);
}

void ListView::Copy() const {
    const Tree& tree = Inner();
    QStringList lines;
    for (int i = 0; i < tree.topLevelItemCount(); ++i)
        if (const QTreeWidgetItem& row = *tree.topLevelItem(i); row.isSelected())
            lines << LineOf(row, tree.columnCount());
    if (!lines.isEmpty() && copiesTitles_)
        lines.prepend(LineOf(*tree.headerItem(), tree.columnCount()));
    if (!lines.isEmpty())
        Outside::Current().PutText(lines.join("").toStdString());
}

bool ListView::OnEvent(QEvent& event) {
    return (event.type() == QEvent::KeyPress && OnKey(event)) || Control::OnEvent(event);
}

bool ListView::OnKey(QEvent& event) {
    auto& press = static_cast<QKeyEvent&>(event);
    if (press.matches(QKeySequence::Copy)) {
        Copy();
        return true;
    }
    switch (press.key()) {
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_Home:
        case Qt::Key_End:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
        case Qt::Key_Space:
            static_cast<QObject&>(Inner()).event(&event);
            if (Click)
                Click();
            return true;
        default:
            return false;
    }
}

bool ListView::OnInnerEvent(QEvent& event) {
    if (event.type() == QEvent::MouseButtonPress) {
        pressed_ = static_cast<QMouseEvent&>(event).button() == Qt::LeftButton;
    } else if (event.type() == QEvent::MouseButtonRelease && std::exchange(pressed_, false)) {
        if (Click)
            Click();
    } else if (event.type() == QEvent::MouseButtonDblClick) {
        const QPoint at = static_cast<QMouseEvent&>(event).pos();
        if (Inner().indexAt(at).isValid() && DblClick)
            DblClick();
        return true;  // the row may be gone
    }
    return false;
}

}  // namespace trabeon
