#include "forms/check/frmReactions.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "core/analysis/settled_sum.h"
#include "core/text/number_text.h"
#include "forms/shared/add_to_report.h"
#include "toolkit/windows/mdi_window.h"

namespace trabeon {
namespace {

constexpr int wide = 15000, high = 9300, leastWide = 9300, leastHigh = 5700;
constexpr int frameWide = 120, frameHigh = 420;  // what the frame of a window takes
constexpr int margin = 60;
constexpr int bottomStrip = 495;
constexpr double pictureShare = 0.58, jointsShare = 0.36;
constexpr int leastPicture = 2900;
constexpr int figures = 6;

std::string shown(double value) {
    return significantText(value, figures);
}

void addRow(ListView& list, const std::vector<std::string>& texts) {
    auto row = list.ListItems.Add(texts.front());
    for (std::size_t n = 1; n < texts.size(); ++n)
        row.SetSubItems(static_cast<int>(n), texts[n]);
}

void readyList(ListView& list, const char* name) {
    list.SetFont("Arial Narrow", 8.25, false);
    list.SetMultiSelect(true);
    list.SetCopiesTitles(true);
    list.SetAccessibleName(name);
}

std::size_t rowOf(const ListView& list) {
    return static_cast<std::size_t>(list.SelectedItem().FilePosition());
}

std::vector<std::string> memberTexts(const MemberResponse& member, std::size_t number) {
    const auto last = member.pieces().size();
    const auto left = member.atBreakpoint(0, Side::after);
    const auto right = member.atBreakpoint(last, Side::before);
    const auto moment = extremesOf(member, Quantity::moment);
    const auto deflection = greatestDeflection(member);
    const double ratio = member.length() / std::fabs(deflection.value);
    return {std::to_string(number),   shown(left.moment),
            shown(right.moment),      shown(left.shear),
            shown(right.shear),       shown(moment.greatest.value),
            shown(moment.greatest.x), shown(moment.least.value),
            shown(moment.least.x),    shown(deflection.value),
            shown(deflection.x),      std::isfinite(ratio) ? shown(ratio) : ""};
}

}  // namespace

frmReactions::frmReactions(Context& context)
    : Form("Reactions and Deflections"),
      lblUnits(*this,
               "Deflections are in the unit of length, and rotations in radians, if E I has the "
               "unit of load times length squared."),
      context_(context) {
    picBeam.SetFont("Arial", 8.25, false);
    picBeam.SetAccessibleName("Beam with its loads, reactions and deflections");
    picBeam.Draw = [this] { return answer_ ? pictureOf(selected_).drawing() : Drawing(); };
    picBeam.Click = [this](double x, double y) { picBeam_Click(x, y); };
    lblRefusal.SetWraps(true);
    lblUnits.SetWraps(true);
    readyList(lvwJoints, "Joints");
    readyList(lvwMembers, "Members");
    lvwJoints.Click = [this] { highlight({BeamPart::Kind::joint, rowOf(lvwJoints)}); };
    lvwMembers.Click = [this] { highlight({BeamPart::Kind::member, rowOf(lvwMembers)}); };
    cmdReport.Click = [this] { cmdReport_Click(); };
    SetTabOrder({&lvwJoints, &lvwMembers, &cmdReport});
}

void frmReactions::Form_Load() {
    const auto& window = context_.forms.Window();
    Move(0, 0, std::clamp(window.ScaleWidth(), leastWide + frameWide, wide + frameWide),
         std::clamp(window.ScaleHeight(), leastHigh + frameHigh, high + frameHigh));
    SetSmallestScaleSize(leastWide, leastHigh);
    Refresh();
}

void frmReactions::Form_Resize() {
    const int width = std::max(0, ScaleWidth() - 2 * margin);
    const int height = std::max(0, ScaleHeight() - bottomStrip);
    const int picture =
        std::min(height, std::max(leastPicture, static_cast<int>(pictureShare * height)));
    picBeam.Move(margin, margin, width, answer_ ? picture - margin : 0);
    lblRefusal.Move(4 * margin, margin, width - 6 * margin, answer_ ? 0 : picture - margin);
    const int top = picture + margin, listHeight = height - top;
    const int joints = static_cast<int>(jointsShare * width);
    lvwJoints.Move(margin, top, joints, listHeight);
    lvwMembers.Move(2 * margin + joints, top, width - joints - margin, listHeight);
    cmdReport.Move(margin, height + margin, cmdReport.Width(), cmdReport.Height());
    const int right = 4 * margin + cmdReport.Width();
    lblUnits.Move(right, height + margin, std::max(0, width - right), cmdReport.Height());
    picBeam.Redraw();
}

void frmReactions::Refresh() {
    auto answer = answerOf(context_.folder);
    answer_.reset();
    if (answer)
        answer_ = std::move(*answer);
    else
        lblRefusal.SetCaption(answer.refusal().sentence);
    sketch_ = answer_ ? sketchOf(answer_->relaxed.beam, answer_->response) : BeamSketch();
    cmdReport.SetEnabled(answer_.has_value());
    fillJoints();
    fillMembers();
    choose(selected_.kind == BeamPart::Kind::none ? BeamPart{BeamPart::Kind::joint, 1} : selected_);
    Form_Resize();
}

void frmReactions::fillJoints() {
    lvwJoints.ListItems.Clear();
    if (!answer_)
        return;
    SettledSum reactions;
    for (std::size_t j = 0; j < answer_->response.joints.size(); ++j) {
        const auto& joint = answer_->response.joints[j];
        addRow(lvwJoints, {std::to_string(j + 1), answer_->jointTypes[j], shown(joint.x),
                           shown(joint.reaction), shown(joint.moment), shown(joint.rotation)});
        reactions.add(joint.reaction);
    }
    addRow(lvwJoints, {"Sum", "Loads " + shown(totalLoad(answer_->relaxed.loaded())), "",
                       shown(reactions.value())});
}

void frmReactions::fillMembers() {
    lvwMembers.ListItems.Clear();
    if (!answer_)
        return;
    const auto& members = answer_->response.members;
    for (std::size_t i = 0; i < members.size(); ++i)
        addRow(lvwMembers, memberTexts(members[i], i + 1));
}

BeamPicture frmReactions::pictureOf(const BeamPart& selected) const {
    return {sketch_, {picBeam.InnerWidth(), picBeam.InnerHeight(), picBeam.Measure()}, selected};
}

/// Shows a part in the picture. The row of the sum, and what a shorter beam has no more, are no
/// part.
void frmReactions::highlight(const BeamPart& part) {
    const bool isJoint = part.kind == BeamPart::Kind::joint;
    const auto count = isJoint ? sketch_.joints.size() : sketch_.deflections.size();
    selected_ = part.number >= 1 && part.number <= count ? part : BeamPart();
    picBeam.Redraw();
}

/// The same, and selects its row.
ListView& frmReactions::choose(const BeamPart& part) {
    highlight(part);
    auto& list = part.kind == BeamPart::Kind::member ? lvwMembers : lvwJoints;
    if (selected_.kind != BeamPart::Kind::none)
        list.SetSelectedItem(list.ListItems(static_cast<int>(part.number)));
    return list;
}

void frmReactions::picBeam_Click(double x, double y) {
    if (!answer_)
        return;
    const auto part = pictureOf(selected_).partAt(x, y);
    if (part.kind != BeamPart::Kind::none)
        choose(part).SetFocus();
}

void frmReactions::cmdReport_Click() {
    addToReport(context_, [this] { picBeam.CopyToClipboard(pictureOf({}).drawing()); });
}

}  // namespace trabeon
