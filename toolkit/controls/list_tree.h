// The widget of a ListView: it paints rows, marks and grid lines. Only for the sources of ListView.
#pragma once

#include <QTreeWidget>

namespace trabeon {

class ListView;

/// The role of the mark: a word at the right end of a cell.
constexpr int markRole = Qt::UserRole;

class ListRow : public QTreeWidgetItem {
  public:
    explicit ListRow(int position) : filePosition(position) {}

    /// Compares the texts of the column that the list is sorted by, without regard to case.
    bool operator<(const QTreeWidgetItem& other) const override;

    const int filePosition;
};

class ListTree : public QTreeWidget {
  public:
    ListTree(ListView& view, QWidget* parent);

    ListView& owner;
    bool gridLines = false;

  protected:
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;
    void drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                 const QModelIndex& index) const override;
};

}  // namespace trabeon
