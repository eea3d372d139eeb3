// A list of rows under column titles. As in other list views, rows and sub-items count from 1, and
// sort keys count from 0.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "toolkit/controls/control.h"

namespace trabeon {

class ListRow;
class ListTree;
class ListView;

/// A row, or no row: then Index and FilePosition are 0 and the texts empty. Valid until the row is
/// removed.
class ListItem {
  public:
    ListItem() = default;

    explicit operator bool() const { return row_ != nullptr; }
    /// The position at which the row shows.
    [[nodiscard]] int Index() const;
    /// The position at which the row was added: its place in the file. Sorting does not change it.
    [[nodiscard]] int FilePosition() const;
    /// The text of the first column.
    [[nodiscard]] std::string Text() const;
    /// The text of column n + 1.
    [[nodiscard]] std::string SubItems(int n) const;
    void SetSubItems(int n, const std::string& text);
    /// The next four change how the row looks, not its texts.
    void SetForeColor(Colour colour);
    /// A warning sign in front of the first text.
    void SetWarningSign(bool shown);
    /// A word at the right end of the first column.
    void SetMark(const std::string& word);
    /// The tool tip of the whole row.
    void SetToolTip(const std::string& text);

  private:
    friend class ListView;
    friend class ListItemsOf;
    explicit ListItem(ListRow* row) : row_(row) {}

    ListRow* row_ = nullptr;
};

class ListItemsOf {
  public:
    [[nodiscard]] int Count() const;
    void Clear();
    /// Adds a row at the end, or at its place in the order if the list is sorted.
    ListItem Add(const std::string& text);
    /// The row that shows at this position.
    [[nodiscard]] ListItem operator()(int index) const;

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

    /// The user clicked anywhere in the list, or moved to a row by key. Code fires none of these.
    std::function<void()> Click;
    /// A double click on a row, after its Click.
    std::function<void()> DblClick;
    /// A click on the title of a column, which counts from 1.
    std::function<void(int column)> ColumnClick;

    ListItemsOf ListItems{*this};

    /// If the list has rows and none is selected, the first row.
    [[nodiscard]] ListItem SelectedItem() const;
    /// Selects a row and scrolls to it.
    void SetSelectedItem(const ListItem& item);
    void EnsureVisible(const ListItem& item);

    /// While Sorted is on, the rows are sorted as text by the column of the key. When it goes off,
    /// they keep their order.
    void SetSortKey(int column);
    [[nodiscard]] ListSortOrder SortOrder() const { return sortOrder_; }
    void SetSortOrder(ListSortOrder order);
    void SetSorted(bool sorted);

    /// Several rows can be selected. Ctrl+C copies them as lines of text separated by tabs.
    void SetMultiSelect(bool multi);
    /// Whether the copied lines begin with one of the titles.
    void SetCopiesTitles(bool copies) { copiesTitles_ = copies; }
    void SetGridLines(bool shown);
    /// Whether a title wider than its column continues on a second line.
    void SetWrapsTitles(bool wraps);

  protected:
    bool OnEvent(QEvent& event) override;
    bool OnInnerEvent(QEvent& event) override;

  private:
    friend class ListItem;
    friend class ListItemsOf;
    [[nodiscard]] ListTree& Inner() const;
    /// Sorts the rows and selects one if needed: now, or when the handlers have ended.
    void Update() const;
    void UpdateLater();
    void Copy() const;
    bool OnKey(QEvent& event);

    int sortKey_ = 0;
    ListSortOrder sortOrder_ = ListSortOrder::Rising;
    bool sorted_ = false;
    bool copiesTitles_ = false;
    mutable bool upToDate_ = true;
    bool pressed_ = false;
};

}  // namespace trabeon
