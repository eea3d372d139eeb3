// The rows of a list, as callers see them.
#include <QStyle>

#include "toolkit/controls/list_tree.h"
#include "toolkit/controls/list_view.h"
#include "toolkit/look/shown_text.h"

namespace trabeon {

namespace {

ListView& ViewOf(const ListRow& row) {
    return static_cast<ListTree*>(row.treeWidget())->owner;
}

}  // namespace

int ListItem::Index() const {
    if (!row_)
        return 0;
    ViewOf(*row_).Update();
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
    ViewOf(*row_).UpdateLater();
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
    row_->setData(0, markRole, QString::fromStdString(word));
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
    auto* row = new ListRow(Count() + 1);
    row->setText(0, ShownText(text));
    view_.Inner().addTopLevelItem(row);
    view_.UpdateLater();
    return ListItem(row);
}

ListItem ListItemsOf::operator()(int index) const {
    view_.Update();
    return ListItem(static_cast<ListRow*>(view_.Inner().topLevelItem(index - 1)));
}

}  // namespace trabeon
