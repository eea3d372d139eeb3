#include "output/frmPrintOptions.h"

#include "core/analysis/result_state.h"
#include "core/text/readable.h"
#include "forms/main/frmTitle.h"
#include "forms/settings/frmOptions.h"
#include "forms/settings/remark.h"
#include "forms/shared/messages.h"
#include "output/chart_driver.h"
#include "output/lotus_document.h"
#include "output/lotus_output.h"
#include "output/print_pages.h"
#include "output/save_document.h"
#include "output/word_document.h"
#include "output/word_output.h"
#include "toolkit/outside/clock.h"
#include "toolkit/pages/printer.h"
#include "toolkit/windows/wait_cursor.h"

namespace trabeon {
namespace {

constexpr int width = 5400;

bool print(const std::vector<PrintedPage>& pages, Printer& printer) {
    for (const auto& page : pages) {
        printer.SetOrientation(page.landscape ? Orientation::Landscape : Orientation::Portrait);
        if (!printer.NewPage())
            return false;
        for (const auto& [x, y, text] : page.lines)
            printer.Print(x, y, text);
    }
    return printer.EndDoc();
}

}  // namespace

frmPrintOptions::frmPrintOptions(Context& context)
    : Form("Printing Options", FormBorder::FixedToolWindow), context_(context) {
    int top = 120;
    for (auto* box : {&chkJoint, &chkMember, &chkLoad, &chkTB, &chkBMSV, &chkBMSDBY, &chkCBMS,
                      &chkBeamDim, &chkDesign}) {
        box->Move(180, top, width - 360, 285);
        top += 345;
    }
    Frame1.Move(180, top + 135, 1740, 1155);
    Frame1.SetAccessibleName("Pages of the Trabeon results");
    optLand.Move(150, 210, 1500, 315);
    optPot.Move(150, 630, 1500, 315);
    for (auto* button : {&cmdPrint, &cmdWord, &cmdLotus}) {
        button->Move(2070, top + 135, width - 2070 - 180, 345);
        top += 405;
    }
    cmdPrint.Click = [this] { cmdPrint_Click(); };
    cmdWord.Click = [this] { cmdWord_Click(); };
    cmdLotus.Click = [this] { cmdLotus_Click(); };
    SetTabOrder({&chkJoint, &chkMember, &chkLoad, &chkTB, &chkBMSV, &chkBMSDBY, &chkCBMS,
                 &chkBeamDim, &chkDesign, &optLand, &optPot, &cmdPrint, &cmdWord, &cmdLotus});
}

void frmPrintOptions::Form_Load() {
    SetWidth(width + 120);  // plus the border
    SetHeight(5200);
}

OutputKinds frmPrintOptions::Kinds() const {
    return {chkJoint.Value(), chkMember.Value(),  chkLoad.Value(),
            chkTB.Value(),    chkBMSV.Value(),    chkBMSDBY.Value(),
            chkCBMS.Value(),  chkBeamDim.Value(), chkDesign.Value()};
}

ProjectTitle frmPrintOptions::title() {
    return context_.forms.Get<frmTitle>().Title();
}

/// Only for an outdated balance table. A table from the project file has no record and no remark.
std::string frmPrintOptions::tableRemark() const {
    const auto state = tableState(context_.folder);
    return state == ResultState::outdated ? std::string(analyseAgain) : "";
}

void frmPrintOptions::cmdPrint_Click() {
    const auto [project, designer, beamName] = title();
    const PrintSource source{printHeadingLine(project, designer, LongDate(), TimeOfDay()),
                             readRows<JointRow>(context_.folder),
                             readRows<MemberRow>(context_.folder),
                             readRows<PointRow>(context_.folder),
                             readRows<UdlRow>(context_.folder),
                             readWhole(context_.folder / working_file::balanceTable),
                             tableRemark()};
    const auto printer = Printer::Open(project);
    if (!printer)
        return;
    const WaitCursor wait;
    if (!print(printedPages(source, Kinds(), optLand.Value()), *printer))
        warn("\"" + excerpt(project) + "\" could not be printed" +
             (printer->File().empty() ? ". Check the printer"
                                      : " to \"" + printer->File() + "\". Choose another file") +
             ", then print again.");
}

void frmPrintOptions::cmdWord_Click() {
    output<WordOutput, WordDocument>();
}

void frmPrintOptions::cmdLotus_Click() {
    output<LotusOutput, LotusDocument>();
}

template <class Output, class Processor>
void frmPrintOptions::output() {
    Processor objWord;
    const auto end = [&] {
        const WaitCursor wait;
        ChartDriver charts(context_);
        if (!context_.forms.IsLoaded(frmTitle::Name))
            context_.forms.Get<frmTitle>().Hide();
        const OutputSource source{
            context_.folder,
            title(),
            static_cast<int>(context_.forms.InTheBackground<frmOptions>().Settings().Divisions),
            charts,
            {tableRemark(), stationsRemark(context_), designRemark(context_)}};
        Output writer(source, objWord);
        return writeProject(source, Kinds(), writer);
    }();
    if (!end)
        warn(end.refusal().sentence);
    else if (*end == Extent::whole)
        saveAndOpen(objWord.document());
}

}  // namespace trabeon
