#include "forms/results/single_span_diagram.h"

namespace trabeon {

SingleSpanDiagram::SingleSpanDiagram(Context& context, const char* caption, const DiagramKind& kind,
                                     const char* valueTable)
    : Diagram(context, caption, kind, "Distance along the member", "Add To Repor&t"),
      valueTable_(valueTable) {
    cboMember.SetWidth(1650);
    cboMember.SetAccessibleName("Member");
    cboMember.Click = [this] { cmdPlot_Click(); };
    SetTabOrder({&cboMember, &cmdPlot, &cmdReport});
}

void SingleSpanDiagram::Form_Load() {
    Move(0, 0, 4300, 2500);
    for (const auto& item : memberItems(""))
        cboMember.AddItem(item);
}

void SingleSpanDiagram::Form_Resize() {
    chart.Move(0, 0, ScaleWidth(), ScaleHeight() - 500);
    const int top = chart.Height() + 30;
    cmdPlot.Move(0, top, cmdPlot.Width(), cmdPlot.Height());
    cmdReport.Move(cmdPlot.Width() + 50, top, cmdReport.Width(), cmdReport.Height());
    cboMember.Move(cmdReport.Left() + 1500, cmdReport.Top(), cboMember.Width(), cboMember.Height());
}

void SingleSpanDiagram::cmdPlot_Click() {
    openValueTable();
    const auto member = static_cast<std::size_t>(cboMember.ListIndex() + 1);
    if (member == 0)
        return;
    draw(spanOf(member), rowsPerMember());
}

void SingleSpanDiagram::Empty() {
    cboMember.SetListIndex(-1);
    chart.SetPointCount(0);
    chart.SetNote("");
    openValueTable();
}

std::string SingleSpanDiagram::subject() const {
    return cboMember.Text() + ". ";
}

void SingleSpanDiagram::openValueTable() {
    tablePlace_.reset();
    if (const auto* former = context().forms.PlaceOf(valueTable_))
        tablePlace_ = {former->Left(), former->Top()};
    context().forms.Unload(valueTable_);
    context().forms.ShowWithoutFocus(valueTable_);
}

}  // namespace trabeon
