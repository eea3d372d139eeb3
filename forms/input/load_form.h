// The base class of the two load editors: the list of members, the list of load rows, the buttons
// and the sketch of the load in the boxes.
#pragma once

#include "core/store/member_length.h"
#include "forms/shared/add_to_report.h"
#include "forms/shared/member_choice.h"
#include "forms/shared/row_editor.h"
#include "toolkit/controls/combo_box.h"
#include "toolkit/controls/picture_box.h"
#include "toolkit/windows/form.h"

namespace trabeon {

template <class Row>
class LoadForm : public Form {
  public:
    Label lblMember;
    ComboBox cboMember{*this};
    Button cmdAdd{*this, "&Add >"};
    Button cmdRemove{*this, "< &Remove"};
    Button cmdReport{*this, "Add To Repor&t"};
    ListView ListView1;

    /// Shows the rows in normal form that an analysis has written to the file.
    void Refill(const std::vector<Row>& rows) {
        rows_.Unsort();
        rows_.Show(rows);
    }

  protected:
    /// The differences between the two editors.
    struct Kind {
        const char* caption;
        const char* memberCaption;
        const char* row;  // name of a row in the status line
        std::vector<ListColumn> columns;
        int buttonsTop;  // twips; the list is below the buttons
    };

    LoadForm(Context& context, const Kind& kind, PictureBox& sketch, TextBox& description)
        : Form(kind.caption),
          lblMember(*this, kind.memberCaption),
          ListView1(*this, kind.columns),
          context_(context),
          rows_(context, ListView1, cmdRemove, &description,
                {"Member ", Numbering::asRead, kind.row}),
          sketch_(sketch),
          description_(description),
          listTop_(kind.buttonsTop + 495) {
        int left = margin;
        for (Button* button : {&cmdAdd, &cmdRemove, &cmdReport}) {
            button->Move(left, kind.buttonsTop, 1575, 375);
            left += 1695;
        }
        ListView1.SetAccessibleName("Loads");
        cmdRemove.Click = [this] { cmdRemove_Click(); };
        cmdReport.Click = [this] { cmdReport_Click(); };
    }

    /// Fills the two lists with the members and the load rows.
    void FillFromFiles() {
        fillMembers(context_, cboMember);
        if (cboMember.ListCount() > 0)
            cboMember.SetListIndex(0);
        rows_.Fill();
        rows_.SelectLast();
    }

    void Form_Resize() override {
        ListView1.Move(margin, listTop_, ScaleWidth() - 2 * margin,
                       ScaleHeight() - listTop_ - margin);
    }

    /// The number of the selected member, from 1. 0 if none is selected.
    [[nodiscard]] std::size_t member() const {
        return static_cast<std::size_t>(cboMember.ListIndex() + 1);
    }

    [[nodiscard]] std::string memberText() const {
        return generatedText(cboMember.ListIndex() + 1);
    }

    /// The length of the selected member. 0 if none is selected.
    [[nodiscard]] double chosenLength() const { return memberLength(context_.folder, member()); }

    /// True if no member is selected. Then it also moves the focus to the list of members.
    [[nodiscard]] bool lacksMember() {
        if (member() > 0)
            return false;
        say(context_, "No load added: there is no member to choose. Add members first");
        cboMember.SetFocus();
        return true;
    }

    void cmdRemove_Click() { rows_.Remove(); }

    void cmdReport_Click() {
        addToReport(context_, [this] { sketch_.CopyToClipboard(); });
        sketch_.Cls();
    }

    void description_GotFocus() {
        selectIfNone(description_);
        cmdRemove.SetEnabled(false);
    }

    static constexpr int margin = 120;

    Context& context_;
    RowEditor<Row> rows_;

  private:
    PictureBox& sketch_;
    TextBox& description_;
    int listTop_;
};

}  // namespace trabeon
