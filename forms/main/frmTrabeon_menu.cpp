// The menu tree of the main window.
#include "forms/main/frmTrabeon.h"

namespace trabeon {

void frmTrabeon::addMenus() {
    addFileMenu();
    addStructureMenu();
    addDiagramMenu();
    addOtherMenus();
    context_.mnuContinuous.SetEnabled(false);
    context_.mnuSingle.SetEnabled(false);
}

/// Adds a menu entry that shows a form.
MenuEntry frmTrabeon::addShow(Menu menu, const char* caption, const char* form, const char* key) {
    return menu.Add(caption, key, [this, form] {
        if (forms_.IsRegistered(form))
            forms_.Show(form);
    });
}

void frmTrabeon::addFileMenu() {
    auto mnuFile = window_.AddMenu("&File");
    mnuFile.Add("&New", "Ctrl+N", [this] { mnuNew_Click(); });
    mnuFile.Add("&Open", "Ctrl+O", [this] { mnuOpen_Click(); });
    mnuFile.AddSeparator();
    mnuFile.Add("&Save", "Ctrl+S", [this] { mnuSave_Click(); });
    mnuFile.Add("Save &As", "", [this] { mnuSaveAs_Click(); });
    mnuFile.AddSeparator();
    addShow(mnuFile, "&Print...", "frmPrintOptions", "Ctrl+P");
    mnuFile.AddSeparator();
    mnuFile.Add("E&xit", "", [this] { mnuExit_Click(); });
}

void frmTrabeon::addStructureMenu() {
    auto mnuStructure = window_.AddMenu("&Structure");
    addShow(mnuStructure, "&Title", "frmTitle");
    mnuStructure.AddSeparator();
    addShow(mnuStructure, "&Joints...", "frmJoints");
    mnuStructure.AddSeparator();
    addShow(mnuStructure, "&Members...", "frmMembers");
    mnuStructure.AddSeparator();
    auto mnuLoading = mnuStructure.AddMenu("&Loading");
    addShow(mnuLoading, "&Point Load...", "frmPoint");
    addShow(mnuLoading, "&Uniformly Distributed Load...", "frmUDL");
    mnuStructure.AddSeparator();
    addShow(mnuStructure, "&Analyse...", "frmAnalysis");
}

void frmTrabeon::addDiagramMenu() {
    auto mnuDiagram = window_.AddMenu("&Diagram");
    auto mnuContinuous = mnuDiagram.AddMenu("&Continuous Beam Diagram");
    addShow(mnuContinuous, "&Bending Moment Diagram...", "frmContinuousTB");
    addShow(mnuContinuous, "&Shear Force Diagram...", "frmContinuousS");
    mnuDiagram.AddSeparator();
    auto mnuSingle = mnuDiagram.AddMenu("&Single Span Diagram");
    addShow(mnuSingle, "&Bending Moment Diagram...", "frmMoment1");
    addShow(mnuSingle, "&Shear Force Diagram...", "frmShear1");
    mnuDiagram.AddSeparator();
    addShow(mnuDiagram, "Plotting &Options...", "frmOptions");
    context_.mnuContinuous = mnuContinuous.Entry();
    context_.mnuSingle = mnuSingle.Entry();
}

void frmTrabeon::addOtherMenus() {
    auto mnuDesignMenu = window_.AddMenu("&Design");
    addShow(mnuDesignMenu, "Beam &Dimensions...", "frmBeamDimensions");
    addShow(mnuDesignMenu, "&Miscellaneous Properties...", "frmMisc");
    addShow(mnuDesignMenu, "&Design Beam...", "frmBeamDesign");
    auto mnuTools = window_.AddMenu("&Tools");
    addShow(mnuTools, "&Table of Steel Reinforcement Areas", "frmSteelArea");
    addShow(mnuTools, "Table of &Shear Resistance For Links", "frmShearResistance");
    auto mnuReport = window_.AddMenu("&Report");
    addShow(mnuReport, "&View Report...", "frmReport");
    auto mnuCheck = window_.AddMenu("&Check");
    addShow(mnuCheck, "Reactions and &Deflections...", "frmReactions");
    window_.AddWindowList("&Window");
    auto mnuHelp = window_.AddMenu("&Help");
    mnuHelp.Add("&Contents and Index", "F1", [this] { openPage("Contents and Index.htm"); });
    mnuHelp.Add("&Example", "", [this] { openPage("Example1.htm"); });
}

}  // namespace trabeon
