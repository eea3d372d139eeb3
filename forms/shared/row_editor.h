// Common parts of the row editors: a list of the rows of a file, Add after the selected row,
// Remove, and cmdRemove's enabled state. A click on a column title sorts the list but not the file.
#pragma once

#include <cmath>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "core/store/row_editing.h"
#include "forms/shared/boxes.h"
#include "forms/shared/context.h"
#include "forms/shared/messages.h"
#include "forms/shared/status_line.h"
#include "toolkit/controls/button.h"
#include "toolkit/controls/list_view.h"

namespace trabeon {

/// The list shows a row as a noun and the number in its first field, then the other fields in file
/// order.
template <class Row>
class RowEditor {
  public:
    /// The differences between the editors.
    struct Kind {
        std::string noun;     // before the number: "Joint "
        Numbering numbering;  // of the rows after a Remove
        std::string row;      // the name of a row in the status line: "Point load"
    };

    /// Handles the events of the list. Each Add and Remove puts "None" into `description`. It is
    /// null if the rows have no description.
    RowEditor(Context& context, ListView& list, Button& cmdRemove, TextBox* description, Kind kind)
        : context_(context),
          list_(list),
          cmdRemove_(cmdRemove),
          description_(description),
          kind_(std::move(kind)) {
        list_.Click = [this] { ListView1_Click(); };
        list_.DblClick = [this] { ListView1_DblClick(); };
        list_.ColumnClick = [this](int column) { ListView1_ColumnClick(column); };
    }

    /// Called for each row that the list shows, for example to colour it.
    std::function<void(ListItem item, const Row& row)> RowShown;

    /// Shows the rows of the file.
    void Fill() { Show(readRows<Row>(context_.folder)); }

    /// Shows these rows. They must be the rows of the file.
    void Show(const std::vector<Row>& rows) {
        list_.ListItems.Clear();
        for (const auto& row : rows) {
            auto item = list_.ListItems.Add(kind_.noun + shownNumber(row.*Row::fields.front()));
            for (std::size_t n = 1; n < Row::fields.size(); ++n)
                item.SetSubItems(static_cast<int>(n), row.*Row::fields[n]);
            if (RowShown)
                RowShown(item, row);
        }
    }

    void SelectLast() {
        if (hasRows())
            list_.SetSelectedItem(list_.ListItems(list_.ListItems.Count()));
    }

    /// Shows the file order again. The next click on a column title sorts in rising order.
    void Unsort() {
        list_.SetSortOrder(ListSortOrder::Falling);
        list_.SetSorted(false);
    }

    /// The number of the next row, for rows that are numbered.
    [[nodiscard]] std::string NextNumber() const {
        return generatedText(list_.ListItems.Count() + 1);
    }

    /// Adds the row after the selected one and selects the last row. Returns false if the file
    /// could not be written: a message has given the reason and the rows are unchanged.
    bool Add(const Row& row) {
        Unsort();
        cmdRemove_.SetEnabled(false);
        const auto position = static_cast<std::size_t>(list_.SelectedItem().FilePosition());
        const auto after = hasRows() ? " added after " + nameOf(position) : " added";
        if (!written(addRow(context_.folder, position, row)))
            return false;
        say(context_, nameOf(row) + after);
        Fill();
        resetDescription();
        SelectLast();
        return true;
    }

    /// Removes the selected row without a question.
    void Remove() {
        const auto position = static_cast<std::size_t>(list_.SelectedItem().FilePosition());
        const auto name = hasRows() ? nameOf(position) : "";
        if (hasRows() && written(removeRow<Row>(context_.folder, position, kind_.numbering))) {
            say(context_, (isNumbered() ? "" : kind_.row + ", ") + name + " removed");
            resetDescription();
            Fill();
            SelectLast();
        }
        cmdRemove_.SetEnabled(false);
    }

  private:
    void ListView1_Click() {
        if (hasRows())
            cmdRemove_.SetEnabled(true);
    }

    void ListView1_DblClick() {
        if (!hasRows())
            return;
        Remove();
        cmdRemove_.SetEnabled(hasRows());
    }

    void ListView1_ColumnClick(int column) {
        cmdRemove_.SetEnabled(true);
        list_.SetSortKey(column - 1);
        list_.SetSortOrder(list_.SortOrder() == ListSortOrder::Falling ? ListSortOrder::Rising
                                                                       : ListSortOrder::Falling);
        list_.SetSorted(true);
    }

    /// Joints and members have numbers. Loads and sections have the number of their member.
    [[nodiscard]] bool isNumbered() const { return kind_.numbering == Numbering::fromOne; }

    /// The name of a new row in the status line: "Joint 4" or "Point load".
    [[nodiscard]] std::string nameOf(const Row& row) const {
        return isNumbered() ? kind_.row + shownNumber(row.*Row::fields.front()) : kind_.row;
    }

    /// The name of the selected row in the status line: "Joint 3", or "row 3" with its position in
    /// the file, from 1.
    [[nodiscard]] std::string nameOf(std::size_t position) const {
        return isNumbered() ? kind_.row + list_.SelectedItem().Text().substr(kind_.noun.size())
                            : "row " + std::to_string(position);
    }

    [[nodiscard]] bool hasRows() const { return list_.ListItems.Count() > 0; }

    [[nodiscard]] bool written(const Status& status) {
        if (status.failed()) {
            warn(status.refusal().sentence);
            return false;
        }
        context_.dataChanged = 1;
        showSummary(context_);
        if (context_.rowsChanged)
            context_.rowsChanged();
        return true;
    }

    void resetDescription() {
        if (!description_)
            return;
        description_->SetText(noDescription);
        if (description_->HasFocus())
            selectIfNone(*description_);
    }

    /// A number field as generated number text. A file edited by hand can contain a number that is
    /// too large; it is shown as in the file.
    [[nodiscard]] static std::string shownNumber(const std::string& field) {
        const double number = leadingNumber(field);
        return std::isfinite(number) ? generatedText(number) : ' ' + field;
    }

    Context& context_;
    ListView& list_;
    Button& cmdRemove_;
    TextBox* description_;
    Kind kind_;
};

}  // namespace trabeon
