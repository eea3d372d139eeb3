#include "forms/settings/remark.h"

#include <algorithm>

#include "core/design/design.h"
#include "core/store/folder_record.h"
#include "forms/settings/frmMisc.h"
#include "forms/settings/frmOptions.h"

namespace trabeon {
namespace {

constexpr Colour darkRed = 0xA61B1B;
constexpr int stripHeight = 480;  // two lines

}  // namespace

std::string stationsRemark(Context& context) {
    const double Divisions = context.forms.InTheBackground<frmOptions>().Settings().Divisions;
    auto& kept = context.stationsRemark;
    const auto files = stationsFingerprint(filesState(context.folder), Divisions);
    if (kept.files != files)
        kept = {files, std::string(remarkOn(stationsState(context.folder, Divisions)))};
    return kept.text;
}

std::string designRemark(Context& context) {
    const double Divisions = context.forms.InTheBackground<frmOptions>().Settings().Divisions;
    const auto properties = context.forms.InTheBackground<frmMisc>().Properties();
    return std::string(remarkOnDesign(context.folder, Divisions, properties));
}

RemarkStrip::RemarkStrip(Container& parent) : lblRemark(parent, "") {
    lblRemark.SetForeColor(darkRed);
    lblRemark.SetWraps(true);
    lblRemark.SetVisible(false);
}

void RemarkStrip::Say(const std::string& remark) {
    lblRemark.SetCaption(remark);
    lblRemark.SetVisible(!remark.empty());
}

int RemarkStrip::Height() const {
    return lblRemark.Caption().empty() ? 0 : stripHeight;
}

void RemarkStrip::Place(int width, int height) {
    lblRemark.Move(60, std::max(0, height - stripHeight + 30), std::max(0, width - 120),
                   stripHeight - 60);
}

}  // namespace trabeon
