#include "forms/design/frmBeamDimensions.h"

#include "core/design/design.h"
#include "core/design/shear.h"
#include "core/store/member_length.h"
#include "forms/design/frmBeamDesign.h"
#include "forms/settings/frmMisc.h"
#include "forms/settings/frmOptions.h"
#include "forms/shared/keys.h"
#include "forms/shared/member_choice.h"
#include "toolkit/windows/wait_cursor.h"

namespace trabeon {
namespace {

constexpr int margin = 120;
constexpr int listTop = 2400;
constexpr double maxLinkStrength = 460;

std::size_t sectionsOf(double divisions) {
    return static_cast<std::size_t>(divisions) + 2;
}

/// A value that is not finite gives "0".
std::string lengthText(double value) {
    return std::isfinite(value) ? bareNumber(value) : "0";
}

}  // namespace

frmBeamDimensions::frmBeamDimensions(Context& context)
    : Form("Beam Dimensions"),
      context_(context),
      rows_(context, ListView1, cmdRemove, nullptr, {"Member ", Numbering::asRead, "Section"}) {
    placeControls();
    wireBoxes();
    ListView1.SetAccessibleName("Sections");
    ListView1.ColumnClick = nullptr;  // the list keeps the order of the members
    cmdRemove.SetEnabled(false);
    optUniform_Click();
    rows_.RowShown = [this](ListItem item, const BeamDimensionRow& row) { rowShown(item, row); };

    optUniform.Click = [this] { optUniform_Click(); };
    optVary.Click = [this] { optVary_Click(); };
    cmdAdd.Click = [this] { cmdAdd_Click(); };
    cmdRemove.Click = [this] { cmdRemove_Click(); };
    Command1.Click = [this] { Command1_Click(); };
    cmdDesign.Click = [this] { cmdDesign_Click(); };
    SetTabOrder({&cboMember, &optUniform, &optVary, &cboSection, &txtBreadth, &txtDepth,
                 &txtEffDepth, &txtfcu, &txtfy, &txtYM, &txtfyv, &cmdAdd, &cmdRemove, &Command1,
                 &cmdDesign, &ListView1});
}

void frmBeamDimensions::placeControls() {
    placeInputs({margin, 120, 840, 405}, {{lblMember, cboMember, 1800}});
    Frame1.Move(margin, 555, 2640, 1245);
    optUniform.Move(120, 90, 2400, 300);
    optVary.Move(120, 420, 2400, 300);
    placeInputs({120, 795, 840, 405}, {{lblSection, cboSection, 1560}});
    placeInputs({3000, 120, 900, 420}, {{lblbreadth, txtBreadth, 1320},
                                        {lbldepth, txtDepth, 1320},
                                        {lbleffectivedepth, txtEffDepth, 1320},
                                        {lblfcu, txtfcu, 1320}});
    placeInputs({5460, 120, 540, 420},
                {{lblfy, txtfy, 1620}, {lblYM, txtYM, 1620}, {lblfyv, txtfyv, 1620}});
    int left = margin;
    for (auto [button, width] :
         {std::pair{&cmdAdd, 900}, {&cmdRemove, 960}, {&Command1, 1095}, {&cmdDesign, 900}}) {
        button->Move(left, 1920, width, 375);
        left += width + 60;
    }
    Label1.Move(left + 30, 1980, 3375, 255);
    SetSmallestScaleSize(7560, listTop + 1200);
}

void frmBeamDimensions::wireBoxes() {
    const std::array<std::pair<TextBox*, const char*>, 7> boxes{
        {{&txtBreadth, "Breadth b, mm"},
         {&txtDepth, "Overall depth d, mm"},
         {&txtEffDepth, "Effective depth d', mm"},
         {&txtfcu, "Concrete strength fcu, N/mm2"},
         {&txtfy, "Strength of the main steel fy, N/mm2"},
         {&txtYM, "Modulus of the steel E, N/mm2"},
         {&txtfyv, "Strength of the links fyv, N/mm2"}}};
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        const auto [box, meaning] = boxes[i];
        Control* next = i + 1 < boxes.size() ? static_cast<Control*>(boxes[i + 1].first) : &cmdAdd;
        box->SetKeepsToField(true);
        box->SetAccessibleName(meaning);
        box->SetToolTipText(meaning);
        box->GotFocus = [box = box] { box->SelectAll(); };
        box->KeyPress = [next](int& keyAscii) {
            if (keyAscii == enterKey)
                next->SetFocus();
        };
    }
    remarkOnNumbers({&txtBreadth, &txtDepth, &txtEffDepth, &txtfcu, &txtfy, &txtYM, &txtfyv});
    txtfyv.Change = [this] { txtfyv_Change(); };
}

void frmBeamDimensions::Form_Load() {
    Move(0, 0, 8000, 5000);
    rows_.Fill();
    sortList();
    fillMembers(context_, cboMember);
    const double Divisions = divisions();
    if (checkDivisions(Divisions))
        return;
    for (std::size_t section = 1; section <= sectionsOf(Divisions); ++section)
        cboSection.AddItem(std::to_string(section));
}

void frmBeamDimensions::Form_Resize() {
    ListView1.Move(margin, listTop, ScaleWidth() - 2 * margin, ScaleHeight() - listTop - margin);
}

double frmBeamDimensions::divisions() const {
    return context_.forms.InTheBackground<frmOptions>().Settings().Divisions;
}

/// The design uses the first row of a section. Later rows of the same section are grey.
void frmBeamDimensions::rowShown(ListItem item, const BeamDimensionRow& row) {
    constexpr Colour grey = 0x8a8a8a;
    if (item.FilePosition() == 1)
        sectionsShown_.clear();
    if (sectionsShown_.insert({leadingNumber(row.Member), leadingNumber(row.Section)}).second)
        return;
    item.SetForeColor(grey);
    item.SetToolTip("Not used: the design takes the first row of this member and section.");
}

void frmBeamDimensions::scrollTo(const BeamDimensionRow& row) {
    for (int i = ListView1.ListItems.Count(); i >= 1; --i) {
        const auto item = ListView1.ListItems(i);
        if (item.Text() == "Member " + row.Member && item.SubItems(1) == row.Section &&
            item.SubItems(2) == row.b) {
            ListView1.EnsureVisible(item);
            return;
        }
    }
}

void frmBeamDimensions::sortList() {
    ListView1.SetSortKey(0);
    ListView1.SetSortOrder(ListSortOrder::Rising);
    ListView1.SetSorted(true);
}

void frmBeamDimensions::cmdAdd_Click() {
    const double Divisions = divisions();
    if (const auto objection = checkDivisions(Divisions)) {
        warn(objection->sentence);
        return;
    }
    if (optVary.Value() && cboSection.ListCount() == 0) {  // invalid at Form_Load
        cboSection.SetFocus();
        return;
    }
    const double length =
        memberLength(context_.folder, static_cast<std::size_t>(cboMember.ListIndex() + 1));
    const auto section = static_cast<std::size_t>(cboSection.ListIndex() + 1);
    if (optVary.Value())
        Adding({section, section}, length);
    else
        Adding({1, sectionsOf(Divisions)}, length);
}

/// Adds the sections after the selected row and selects the last row of the file.
void frmBeamDimensions::Adding(const SectionRange& SelectedSection, double MemLen) {
    cmdRemove.SetEnabled(false);
    const auto position = static_cast<std::size_t>(ListView1.SelectedItem().FilePosition());
    std::optional<BeamExtent> order;
    if (optVary.Value())
        order = BeamExtent{static_cast<std::size_t>(cboMember.ListCount()),
                           static_cast<std::size_t>(cboSection.ListCount())};
    const BeamDimensionRow row{generatedText(cboMember.ListIndex() + 1),
                               "",
                               txtBreadth.Text(),
                               txtDepth.Text(),
                               txtEffDepth.Text(),
                               txtfcu.Text(),
                               txtfy.Text(),
                               txtYM.Text(),
                               txtfyv.Text(),
                               lengthText(MemLen)};
    auto lastAdded = row;
    lastAdded.Section = std::to_string(SelectedSection.last);
    if (const auto status = addDimensions(context_.folder, position, row, SelectedSection, order);
        status.failed())
        warn(status.refusal().sentence);
    ListView1.SetSorted(false);  // SelectLast needs the file order
    rows_.Fill();
    rows_.SelectLast();
    sortList();
    ListView1.SetSelectedItem(ListView1.SelectedItem());  // scrolls to it in the sorted list
    if (order)
        scrollTo(lastAdded);
}

void frmBeamDimensions::cmdRemove_Click() {
    rows_.Remove();
}

void frmBeamDimensions::Command1_Click() {
    if (const auto status = replaceFile(context_.folder / BeamDimensionRow::file, {});
        status.failed()) {
        warn(status.refusal().sentence);
        return;
    }
    MurderFile(context_.folder / BeamDimensionRow::scratch);
    ListView1.ListItems.Clear();
    cmdRemove.SetEnabled(false);
}

void frmBeamDimensions::cmdDesign_Click() {
    const auto properties = context_.forms.InTheBackground<frmMisc>().Properties();
    const double Divisions = divisions();
    context_.forms.Unload(frmBeamDesign::Name);
    auto& results = context_.forms.Get<frmBeamDesign>();
    const WaitCursor wait;
    const auto design = designFolder(context_.folder, Divisions, properties);
    if (!design) {
        warn(design.refusal().sentence);
        return;
    }
    if (design->ShearFailed)
        results.SetCaption(std::string(shearFailureSentence));
    results.AddtoListbox();
}

void frmBeamDimensions::optUniform_Click() {
    lblSection.SetEnabled(false);
    cboSection.SetEnabled(false);
}

void frmBeamDimensions::optVary_Click() {
    lblSection.SetEnabled(true);
    cboSection.SetEnabled(true);
}

void frmBeamDimensions::txtfyv_Change() {
    if (numberIn(txtfyv) > maxLinkStrength)
        txtfyv.SetText("460");
}

}  // namespace trabeon
