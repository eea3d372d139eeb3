#include "forms/results/diagram.h"

#include <algorithm>
#include <limits>

#include "core/store/rows.h"
#include "core/text/number_text.h"
#include "forms/settings/remark.h"
#include "forms/shared/add_to_report.h"
#include "forms/shared/status_line.h"

namespace trabeon {
namespace {

int pointCountOf(std::size_t count) {
    return static_cast<int>(
        std::min(count, static_cast<std::size_t>(std::numeric_limits<int>::max())));
}

/// The joint's number. Two numbers if the members that meet are not neighbours in the beam.
std::string labelOf(const CurveJoint& joint) {
    if (joint.left == 0 || joint.right == 0 || joint.left == joint.right)
        return std::to_string(std::max(joint.left, joint.right));
    return std::to_string(joint.left) + ", " + std::to_string(joint.right);
}

std::string readOutOf(const CurvePoint& point, const char* symbol) {
    return "member " + std::to_string(point.member) + ", row " + std::to_string(point.row) +
           ": x = " + bareNumber(point.distance) + ", " + symbol + " = " + bareNumber(point.value);
}

}  // namespace

const DiagramKind momentDiagram{
    "Bending Moment vs. Span", "Bending moment",        "M",
    &StationRow::moment,       &frmOptions::lblMOption, "Sagging drawn upward",
    "Sagging drawn downward"};

const DiagramKind shearDiagram{
    "Shear vs. Span",          "Shear force",           "V",
    &StationRow::shear,        &frmOptions::lblSOption, "Upward reactions step down",
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
}

std::vector<std::string> Diagram::memberItems(const char* blanks) const {
    std::vector<std::string> items;
    const auto members = readRows<MemberRow>(context_.folder).size();
    for (std::size_t k = 1; k <= members; ++k)
        items.push_back(std::string("Member") + blanks + generatedText(k));
    return items;
}

std::size_t Diagram::rowsPerMember() const {
    return stationRowsOf(context_.forms.InTheBackground<frmOptions>().Settings().Divisions);
}

DiagramCurve Diagram::spanOf(std::size_t member) const {
    const auto stations = readWhole(context_.folder / working_file::stations);
    const auto maxima = readWhole(context_.folder / working_file::maxima);
    return spanCurve({stations, maxima}, rowsPerMember(), kind_.field, member);
}

DiagramCurve Diagram::beamOf(const std::vector<std::size_t>& members) const {
    const auto stations = readWhole(context_.folder / working_file::stations);
    const auto maxima = readWhole(context_.folder / working_file::maxima);
    return beamCurve({stations, maxima}, rowsPerMember(), kind_.field, members);
}

void Diagram::draw(const DiagramCurve& curve, std::size_t count,
                   const std::function<void(std::size_t)>& pointDone) {
    const bool isA =
        (context_.forms.InTheBackground<frmOptions>().*kind_.option).Caption() == "Option A";
    const double sign = isA ? 1 : -1;
    chart.SetPointCount(pointCountOf(count));
    chart.SetPointIndex(1);  // empties the chart, in case the file has no rows
    chart.SetValueFactor(sign);
    chart.SetMarks(marksOf(curve));
    chart.SetExtremes(pointCountOf(curve.greatest + 1), pointCountOf(curve.least + 1));
    chart.SetPointText([points = curve.points, symbol = kind_.symbol](int index) {
        return readOutOf(points[static_cast<std::size_t>(index - 1)], symbol);
    });
    const char* side = isA ? kind_.sideA : kind_.sideB;
    const auto remark = stationsRemark(context_);
    if (remark.empty()) {
        chart.SetNote(subject() + (curve.whole ? side : "Incomplete: analyse again"));
    } else {
        chart.SetWarning(remark);
        say(context_, remark);
    }
    std::size_t done = 0;
    for (const auto& point : curve.points) {
        chart.SetPointCount(pointCountOf(count));
        chart.SetPointIndex(pointCountOf(++done));
        chart.SetPointValue(sign * point.value);
        chart.SetPointX(point.x);
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
    if (const auto remark = stationsRemark(context_); !remark.empty() && chart.PointCount() > 0)
        chart.SetWarning(remark);  // the rows may have changed since the plot
    addToReport(context_, [this] { chart.SetDrawAction(DrawActions::CopyToClipboard); });
}

}  // namespace trabeon
