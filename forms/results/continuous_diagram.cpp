#include "forms/results/continuous_diagram.h"

#include <algorithm>

#include "core/store/rows.h"

namespace trabeon {

ContinuousDiagram::ContinuousDiagram(Context& context, const char* caption, const DiagramKind& kind,
                                     const char* reportCaption)
    : Diagram(context, caption, kind, "Distance along the members selected", reportCaption) {
    for (auto* button : {&cmdPlot, &cmdReport})
        button->SetHeight(300);
    List1.SetFont("Arial", 8, false);
    List1.SetAccessibleName("Members");
    progress.SetAccessibleName("Progress of the plot");
    List1.Click = [this] { cmdPlot_Click(); };
    SetTabOrder({&List1, &cmdPlot, &cmdReport});
}

void ContinuousDiagram::Form_Load() {
    Move(0, 0, 8600, 5000);
    for (const auto& item : memberItems(" "))
        List1.AddItem(item);
}

void ContinuousDiagram::Form_Resize() {
    const int width = std::max(0, ScaleWidth() - 1000);
    const int height = std::max(0, ScaleHeight() - 350);
    List1.Move(width, 0, ScaleWidth() - width, height);
    chart.Move(0, 0, width, List1.Height());
    const int top = List1.Height() + 30;
    cmdPlot.Move(0, top, cmdPlot.Width(), cmdPlot.Height());
    cmdReport.Move(cmdPlot.Width() + 50, top, cmdReport.Width(), cmdReport.Height());
    progress.Move(cmdReport.Width() + cmdPlot.Width() + 100, List1.Height() + 50, width - 1500,
                  progress.Height());
}

void ContinuousDiagram::cmdPlot_Click() {
    progress.SetValue(0);
    const auto onTheBeam = readRows<MemberRow>(context().folder).size();
    auto members = selectedMembers();
    if (members.empty())
        return;
    const auto count = rowsPerMember() * members.size();
    const auto gone = std::upper_bound(members.begin(), members.end(), onTheBeam);
    const bool allThere = gone == members.end();
    members.erase(gone, members.end());
    auto curve = beamOf(members);
    curve.whole = curve.whole && allThere;
    draw(curve, count, [&](std::size_t done) {
        progress.SetValue(100.0 * static_cast<double>(done) / static_cast<double>(count));
    });
}

std::vector<std::size_t> ContinuousDiagram::selectedMembers() const {
    std::vector<std::size_t> members;
    for (int i = 0; i < List1.ListCount(); ++i)
        if (List1.Selected(i))
            members.push_back(static_cast<std::size_t>(i) + 1);
    return members;
}

}  // namespace trabeon
