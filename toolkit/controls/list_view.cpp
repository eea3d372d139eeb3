#include "toolkit/controls/list_view.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>

#include "toolkit/controls/list_tree.h"
#include "toolkit/look/shown_text.h"
#include "toolkit/outside/outside.h"

namespace trabeon {

namespace {

/// The texts of a row as they are copied.
QString LineOf(const QTreeWidgetItem& row, int columns) {
    QStringList texts;
    for (int column = 0; column < columns; ++column)
        texts << row.text(column).trimmed();  // leading blanks are for the screen only
    return texts.join('\t') + '\n';
}

}  // namespace

ListView::ListView(Container& parent, const std::vector<ListColumn>& columns)
    : Control(new ListTree(*this, parent.Canvas())) {
    QStringList titles;
    for (const ListColumn& column : columns)
        titles << ShownText(column.title);
    ListTree& tree = Inner();
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

ListTree& ListView::Inner() const {
    return *static_cast<ListTree*>(Widget());
}

ListItem ListView::SelectedItem() const {
    Update();
    const QList<QTreeWidgetItem*> selected = Inner().selectedItems();
    QTreeWidgetItem* current = Inner().currentItem();
    if (!selected.isEmpty() && !selected.contains(current))
        current = selected.first();
    return ListItem(static_cast<ListRow*>(current));
}

void ListView::SetSelectedItem(const ListItem& item) {
    Update();
    Inner().setCurrentItem(item.row_);
    if (item.row_)
        Inner().scrollToItem(item.row_);
}

void ListView::EnsureVisible(const ListItem& item) {
    Update();
    if (item.row_)
        Inner().scrollToItem(item.row_);
}

void ListView::SetSortKey(int column) {
    sortKey_ = column;
    UpdateLater();
}

void ListView::SetSortOrder(ListSortOrder order) {
    sortOrder_ = order;
    UpdateLater();
}

void ListView::SetSorted(bool sorted) {
    Update();  // with the order until now
    sorted_ = sorted;
    UpdateLater();
}

// Sorting after each text of each row would make a long list slow to fill. So the list waits until
// a caller reads it or the screen shows it.
void ListView::UpdateLater() {
    if (!upToDate_)
        return;
    upToDate_ = false;
    QMetaObject::invokeMethod(
        &Inner(), [this] { Update(); }, Qt::QueuedConnection);
}

void ListView::Update() const {
    if (upToDate_)
        return;
    upToDate_ = true;
    ListTree& tree = Inner();
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
    const ListTree& tree = Inner();
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
