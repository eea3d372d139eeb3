#include "forms/design/frmBeamDesign.h"

#include <algorithm>
#include <array>

#include "core/design/design_results.h"
#include "core/design/notes.h"
#include "core/text/number_text.h"

namespace trabeon {
namespace {

constexpr Colour darkRed = 0xA61B1B;

/// True if the section failed a check, or if the design has no result for it.
bool needsAttention(const DesignRow& row) {
    constexpr std::array notes{note::shearFailed, note::deflectionFailed, note::noData,
                               note::manualCalculation};
    return std::any_of(notes.begin(), notes.end(),
                       [&](auto words) { return note::contains(row.DefNote, words); });
}

}  // namespace

frmBeamDesign::frmBeamDesign(Context& context) : Form("Beam Design"), context_(context) {
    ListView1.SetFont("Arial Narrow", 8.25, false);
    ListView1.SetWrapsTitles(true);
    ListView1.SetMultiSelect(true);
    ListView1.SetAccessibleName("Design of the sections");
    SetTabOrder({&ListView1});
}

void frmBeamDesign::Form_Load() {
    Move(0, 300, 9630, 5040);
}

void frmBeamDesign::Form_Resize() {
    ListView1.Move(0, 0, ScaleWidth(), ScaleHeight() - remark.Height());
    remark.Place(ScaleWidth(), ScaleHeight());
}

void frmBeamDesign::AddtoListbox() {
    ListView1.ListItems.Clear();
    for (const auto& row : readRows<DesignRow>(context_.folder)) {
        auto item = ListView1.ListItems.Add(generatedText(leadingNumber(row.Member)));
        for (std::size_t n = 1; n < DesignRow::fields.size(); ++n)
            item.SetSubItems(static_cast<int>(n), row.*DesignRow::fields[n]);
        if (needsAttention(row)) {
            item.SetForeColor(darkRed);
            item.SetWarningSign(true);
        }
    }
    remark.Say(designRemark(context_));
    Form_Resize();
}

}  // namespace trabeon
