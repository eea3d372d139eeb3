#include "toolkit/controls/list_box.h"

#include <QEvent>
#include <QListWidget>
#include <QStyle>
#include <QStyledItemDelegate>
#include <algorithm>

#include "toolkit/look/shown_text.h"

namespace trabeon {

namespace {

QListWidget& Inner(const Control& control) {
    return *static_cast<QListWidget*>(control.Widget());
}

// Entries are as wide as the list and differ in the number at their end. If a text does not fit,
// the part in front of the number is shortened. The tool tip shows the whole text.
class EntryDelegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        return {0, QStyledItemDelegate::sizeHint(option, index).height()};
    }

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        const int margins = 2 * (option->widget->style()->pixelMetric(QStyle::PM_FocusFrameHMargin,
                                                                      option, option->widget) +
                                 1);
        const int room = option->rect.width() - margins;
        const QString whole = option->text;
        const auto number = whole.lastIndexOf(' ') + 1;
        for (auto kept = number - 1; kept > 0 && Wide(*option) > room; --kept)
            option->text = whole.left(kept).trimmed() + ". " + whole.mid(number);
        if (Wide(*option) > room)
            option->text = whole.mid(number);
    }

  private:
    static int Wide(const QStyleOptionViewItem& option) {
        return option.fontMetrics.horizontalAdvance(option.text);
    }
};

// A click on blank space keeps the selection.
class Entries : public QListWidget {
  public:
    using QListWidget::QListWidget;

  protected:
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override {
        return index.isValid() ? QListWidget::selectionCommand(index, event)
                               : QItemSelectionModel::NoUpdate;
    }
};

}  // namespace

ListBox::ListBox(Container& parent) : Control(new Entries(parent.Canvas())) {
    QListWidget& list = Inner(*this);
    list.setSelectionMode(QAbstractItemView::ExtendedSelection);
    list.setUniformItemSizes(true);
    list.setItemDelegate(new EntryDelegate(&list));
    list.setTextElideMode(Qt::ElideLeft);
    list.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    Watch(list.viewport());
    QObject::connect(&list, &QListWidget::itemSelectionChanged, [this] { OnSelection(); });
    QObject::connect(&list, &QListWidget::itemClicked, [this] {
        if (!changed_)
            OnSelection();
    });
}

void ListBox::OnSelection() {
    changed_ = true;
    if (!muted_ && Click)
        Click();
}

bool ListBox::OnInnerEvent(QEvent& event) {
    if (event.type() == QEvent::MouseButtonPress)
        changed_ = false;
    return false;
}

void ListBox::AddItem(const std::string& text) {
    auto* item = new QListWidgetItem(ShownText(text), &Inner(*this));
    item->setToolTip(item->text());
}

int ListBox::ListCount() const {
    return Inner(*this).count();
}

std::string ListBox::List(int index) const {
    const QListWidgetItem* item = Inner(*this).item(index);
    return item ? item->text().toStdString() : std::string();
}

bool ListBox::Selected(int index) const {
    const QListWidgetItem* item = Inner(*this).item(index);
    return item && item->isSelected();
}

void ListBox::SetSelected(int index, bool selected) {
    QListWidgetItem* item = Inner(*this).item(index);
    if (!item)
        return;
    muted_ = true;
    item->setSelected(selected);
    muted_ = false;
    OnSelection();
}

// Neighbours are one range, because the selection searches its ranges for each entry.
void ListBox::SetSelection(const std::vector<bool>& selected) {
    const QAbstractItemModel& entries = *Inner(*this).model();
    const int count = std::min(ListCount(), static_cast<int>(selected.size()));
    QItemSelection on;
    for (int i = 0, end = 0; i < count; i = end) {
        for (end = i + 1; end < count && selected[std::size_t(end)] == selected[std::size_t(i)];)
            ++end;
        if (selected[std::size_t(i)])
            on.select(entries.index(i, 0), entries.index(end - 1, 0));
    }
    muted_ = true;
    Inner(*this).selectionModel()->select(on, QItemSelectionModel::ClearAndSelect);
    muted_ = false;
    OnSelection();
}

}  // namespace trabeon
