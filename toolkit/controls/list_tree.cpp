#include "toolkit/controls/list_tree.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QToolTip>

#include "toolkit/look/look.h"

namespace trabeon {

namespace {

/// Leaves some space above and below the text. The tool tip of a text that is cut off is the whole
/// text.
class RowDelegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyledItemDelegate::paint(painter, option, index);
        const QString mark = index.data(markRole).toString();
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

bool ListRow::operator<(const QTreeWidgetItem& other) const {
    const int column = treeWidget()->sortColumn();
    return QString::compare(text(column), other.text(column), Qt::CaseInsensitive) < 0;
}

ListTree::ListTree(ListView& view, QWidget* parent) : QTreeWidget(parent), owner(view) {
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    setEditTriggers(NoEditTriggers);
    setItemDelegate(new RowDelegate(this));
    header()->setSectionsClickable(true);
    header()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    setTextElideMode(Qt::ElideRight);
    const int lineHigh = fontMetrics().height();
    setIconSize({lineHigh, lineHigh});  // a row with a warning sign is as high as the others
}

// A click on blank space keeps the selection.
QItemSelectionModel::SelectionFlags ListTree::selectionCommand(const QModelIndex& index,
                                                               const QEvent* event) const {
    return index.isValid() ? QTreeWidget::selectionCommand(index, event)
                           : QItemSelectionModel::NoUpdate;
}

void ListTree::drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                       const QModelIndex& index) const {
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

}  // namespace trabeon
