// What the row editors share: a list that shows a row file in its order, Add behind the selected
// row, Remove, sorting for the eyes only, and when cmdRemove can be pressed.
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

/// A row shows in the list as a noun and its first field as a number, then its other fields in file
/// order.
template <class Row>
class RowEditor {
  public:
    /// What differs between the editors.
    struct Kind {
        std::string noun;     // "Joint ", in front of the number
        Numbering numbering;  // of the rows that a Remove leaves
        std::string row;      // "Point load", what the status line calls a row
    };

    /// Takes over the events of the list. `description` is the box that goes back to "None" with
    /// each Add and Remove; null if the rows have none.
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

    /// A row of the file was added to the list, to be coloured and the like.
    std::function<void(ListItem item, const Row& row)> RowShown;

    /// Shows the rows of the file.
    void Fill() { Show(readRows<Row>(context_.folder)); }

    /// Shows these rows, which stand in the file.
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

    /// The list shows the file's order again; the next click on a title sorts rising.
    void Unsort() {
        list_.SetSortOrder(ListSortOrder::Falling);
        list_.SetSorted(false);
    }

    /// The number that a row added now gets where rows are numbered.
    [[nodiscard]] std::string NextNumber() const {
        return generatedText(list_.ListItems.Count() + 1);
    }

    /// Puts the row behind the selected one and then selects the last. False if it could not be
    /// written: the user was told, and the rows stand as they did.
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

    /// Takes the selected row away, without a question.
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

    /// Joints and members have numbers of their own; loads and sections have that of their member.
    [[nodiscard]] bool isNumbered() const { return kind_.numbering == Numbering::fromOne; }

    /// What the status line calls a row that is added: "Joint 4", or "Point load".
    [[nodiscard]] std::string nameOf(const Row& row) const {
        return isNumbered() ? kind_.row + shownNumber(row.*Row::fields.front()) : kind_.row;
    }

    /// What it calls the selected row, at a position of the file from 1: "Joint 3", or "row 3".
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

    /// A number field as generated number text. One too large for a number, in a file that was
    /// edited by hand, shows as it stands.
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
