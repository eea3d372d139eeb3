// What the two load editors share: the choice of a member, the list of load rows, the buttons, and
// the sketch of the load that is being typed.
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

    /// Shows the rows that an analysis has put into normal form and written to the file.
    void Refill(const std::vector<Row>& rows) {
        rows_.Unsort();
        rows_.Show(rows);
    }

  protected:
    /// What differs between the two.
    struct Kind {
        const char* caption;
        const char* memberCaption;
        const char* row;  // what the status line calls one
        std::vector<ListColumn> columns;
        int buttonsTop;  // twips: where the row of buttons stands, the list below it
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
        offerReport(context, cmdReport);
    }

    /// Before the form shows: the members to choose from, and the rows.
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

    /// The member that is chosen, from 1; 0 if there is none.
    [[nodiscard]] std::size_t member() const {
        return static_cast<std::size_t>(cboMember.ListIndex() + 1);
    }

    [[nodiscard]] std::string memberText() const {
        return generatedText(cboMember.ListIndex() + 1);
    }

    /// 0 if no member is chosen.
    [[nodiscard]] double chosenLength() const { return memberLength(context_.folder, member()); }

    /// A load needs a member to stand on: without one the focus goes to where it is chosen.
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
