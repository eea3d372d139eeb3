#include "forms/results/diagram.h"

#include <algorithm>
#include <limits>

#include "core/store/rows.h"
#include "core/text/number_text.h"

namespace trabeon {
namespace {

int pointCountOf(std::size_t count) {
    return static_cast<int>(
        std::min(count, static_cast<std::size_t>(std::numeric_limits<int>::max())));
}

/// The number alone, or both where the members that meet are no neighbours.
std::string labelOf(const CurveJoint& joint) {
    if (joint.left == 0 || joint.right == 0 || joint.left == joint.right)
        return std::to_string(std::max(joint.left, joint.right));
    return std::to_string(joint.left) + ", " + std::to_string(joint.right);
}

}  // namespace

const DiagramKind momentDiagram{"Bending Moment vs. Span", "Bending moment",
                                &StationRow::moment,       &frmOptions::lblMOption,
                                "Sagging drawn upward",    "Sagging drawn downward"};

const DiagramKind shearDiagram{"Shear vs. Span",
                               "Shear force",
                               &StationRow::shear,
                               &frmOptions::lblSOption,
                               "Upward reactions step down",
                               "Upward reactions step up"};

Diagram::Diagram(Context& context, const char* caption, const DiagramKind& kind, const char* xTitle,
                 const char* reportCaption)
    : Form(caption),
      cmdReport(*this, reportCaption),
      chart(*this, {kind.title, xTitle, kind.value}),
      context_(context),
      kind_(kind) {
    cmdPlot.SetWidth(900);
    cmdReport.SetWidth(1425);
    cmdPlot.Click = [this] { cmdPlot_Click(); };
    cmdReport.Click = [this] { cmdReport_Click(); };
    if (context.pasteIntoReport)
        return;
    cmdReport.SetEnabled(false);
    cmdReport.SetToolTipText("The report is not part of this version.");
}

std::vector<std::string> Diagram::memberItems(const char* blanks) const {
    std::vector<std::string> items;
    const auto members = readRows<MemberRow>(context_.folder).size();
    for (std::size_t k = 1; k <= members; ++k)
        items.push_back(std::string("Member") + blanks + generatedText(static_cast<double>(k)));
    return items;
}

std::string Diagram::stations() const {
    return readWhole(context_.folder / working_file::stations);
}

std::size_t Diagram::rowsPerMember() const {
    return stationRowsOf(optionsInTheBackground(context_).Settings().Divisions);
}

void Diagram::draw(const DiagramCurve& curve, std::size_t count,
                   const std::function<void(std::size_t)>& pointDone) {
    const bool isA = (optionsInTheBackground(context_).*kind_.option).Caption() == "Option A";
    const double sign = isA ? 1 : -1;
    chart.SetPointCount(pointCountOf(count));
    chart.SetPointIndex(1);  // empties the chart, in case the file has not one row to draw
    chart.SetValueFactor(sign);
    chart.SetMarks(marksOf(curve));
    const char* side = isA ? kind_.sideA : kind_.sideB;
    chart.SetNote(curve.whole ? side : "Incomplete: analyse again");
    std::size_t done = 0;
    for (const auto& [x, value] : curve.points) {
        chart.SetAutoAdvance(false);
        chart.SetPointCount(pointCountOf(count));
        chart.SetPointIndex(pointCountOf(++done));
        chart.SetPointValue(sign * value);
        chart.SetPointX(x);
        chart.SetDrawAction(DrawActions::Redraw);
        if (pointDone)
            pointDone(done);
    }
}

std::vector<GraphMark> Diagram::marksOf(const DiagramCurve& curve) const {
    std::vector<GraphMark> marks;
    for (const auto& joint : curve.joints)
        marks.push_back({joint.x, (marks.empty() ? "Joint " : "") + labelOf(joint)});
    return marks;
}

void Diagram::cmdReport_Click() {
    chart.SetDrawAction(DrawActions::CopyToClipboard);
    context_.pasteIntoReport();
}

}  // namespace trabeon
