// A list of rows under column titles. Rows, columns and sub-items count as the callers of a list
// view count: rows and sub-items from 1, sort keys from 0.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "toolkit/controls/control.h"

namespace trabeon {

class ListView;
class Row;

// A row, or none: then Index and FilePosition are 0 and the texts empty. Good until the row goes.
class ListItem {
  public:
    ListItem() = default;

    explicit operator bool() const { return row_ != nullptr; }
    // The position at which the row shows.
    int Index() const;
    // The position in which it was added, which no sorting changes: the row's place in the file.
    int FilePosition() const;
    std::string Text() const;
    // The text of column n + 1.
    std::string SubItems(int n) const;
    void SetSubItems(int n, const std::string& text);
    // How the row looks; none of these changes its texts.
    void SetForeColor(Colour colour);
    void SetWarningSign(bool shown);           // in front of the first text
    void SetMark(const std::string& word);     // at the right end of the first column
    void SetToolTip(const std::string& text);  // of the whole row

  private:
    friend class ListView;
    friend class ListItemsOf;
    explicit ListItem(Row* row) : row_(row) {}

    Row* row_ = nullptr;
};

class ListItemsOf {
  public:
    int Count() const;
    void Clear();
    // Behind all others, or at its place in the order if the list is sorted.
    ListItem Add(const std::string& text);
    ListItem operator()(int index) const;  // by the position at which the row shows

  private:
    friend class ListView;
    explicit ListItemsOf(ListView& view) : view_(view) {}

    ListView& view_;
};

struct ListColumn {
    std::string title;
    int width;                 // twips
    std::string toolTip = {};  // of the title
};

enum class ListSortOrder { Rising = 0, Falling = 1 };

class ListView : public Control {
  public:
    ListView(Container& parent, const std::vector<ListColumn>& columns);

    // A click anywhere in the list, or a row chosen by key. Nothing here is fired by code.
    std::function<void()> Click;
    std::function<void()> DblClick;               // on a row, after its Click
    std::function<void(int column)> ColumnClick;  // the title's Index, from 1

    ListItemsOf ListItems{*this};

    // While the list has rows and none is selected it is the first one.
    ListItem SelectedItem() const;
    void SetSelectedItem(const ListItem& item);  // and brings it into sight
    void EnsureVisible(const ListItem& item);

    // Rows show sorted as text by the column of the key while Sorted is on; when it goes off they
    // stay in the order they have.
    void SetSortKey(int column);
    ListSortOrder SortOrder() const { return sortOrder_; }
    void SetSortOrder(ListSortOrder order);
    void SetSorted(bool sorted);

    // Several rows can be selected, to be copied with Ctrl+C as lines of tab-separated text.
    void SetMultiSelect(bool multi);
    // What is copied begins with a line of the titles.
    void SetCopiesTitles(bool copies) { copiesTitles_ = copies; }
    void SetGridLines(bool shown);
    // A title wider than its column goes on in a second line.
    void SetWrapsTitles(bool wraps);

  protected:
    bool OnEvent(QEvent& event) override;
    bool OnInnerEvent(QEvent& event) override;

  private:
    friend class ListItem;
    friend class ListItemsOf;
    class Tree;
    Tree& Inner() const;
    void Unsettle();
    void Settle() const;
    void Copy() const;
    bool OnKey(QEvent& event);

    int sortKey_ = 0;
    ListSortOrder sortOrder_ = ListSortOrder::Rising;
    bool sorted_ = false;
    bool copiesTitles_ = false;
    mutable bool settled_ = true;
    bool pressed_ = false;
};

}  // namespace trabeon
