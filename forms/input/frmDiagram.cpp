#include "forms/input/frmDiagram.h"

#include <algorithm>

#include "forms/input/beam_drawing.h"
#include "forms/shared/add_to_report.h"

namespace trabeon {

frmDiagram::frmDiagram(Context& context) : Form("Joints and Members Diagram"), context_(context) {
    picContBeam.SetBorder(false);
    picContBeam.SetFont("Times New Roman", 8.25, true);
    picContBeam.SetAccessibleName("Joints and members of the beam");
    cmdReport.Move(0, 0, 1215, 375);
    cmdReport.Click = [this] { cmdReport_Click(); };
}

void frmDiagram::Form_Load() {
    SetScaleSize(6690, 4485);
}

void frmDiagram::Form_Resize() {
    picContBeam.Cls();
    const int W = ScaleWidth();
    const int H = std::max(0, ScaleHeight() - 500);
    picContBeam.Move(0, 0, W, H);
    cmdReport.Move(0, H + 100, cmdReport.Width(), cmdReport.Height());
    const auto members = readRows<MemberRow>(context_.folder);
    drawBeam(picContBeam, W, H, readRows<JointRow>(context_.folder), members);
    printMembers(picContBeam, members);
}

void frmDiagram::cmdReport_Click() {
    addToReport(context_, [this] { picContBeam.CopyToClipboard(); });
    Unload();
}

}  // namespace trabeon
