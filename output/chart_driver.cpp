#include "output/chart_driver.h"

#include "forms/results/frmContinuousS.h"
#include "forms/results/frmContinuousTB.h"
#include "forms/results/frmMoment1.h"
#include "forms/results/frmShear1.h"
#include "forms/shared/context.h"
#include "toolkit/windows/mdi_window.h"

namespace trabeon {
namespace {

std::vector<bool> selectionOf(const ListBox& list) {
    std::vector<bool> selected;
    selected.reserve(static_cast<std::size_t>(list.ListCount()));
    for (int i = 0; i < list.ListCount(); ++i)
        selected.push_back(list.Selected(i));
    return selected;
}

}  // namespace

ChartDriver::ChartDriver(Context& context)
    : context_(context), restores_{context.forms.Window().KeptWindows()} {}

ChartDriver::~ChartDriver() {
    for (auto restore = restores_.rbegin(); restore != restores_.rend(); ++restore)
        (*restore)();
}

/// Shows and returns the form. The destructor unloads it if it was not loaded before.
template <class Form>
Form& ChartDriver::take() {
    Forms& forms = context_.forms;
    if (!forms.IsLoaded(Form::Name))
        restores_.emplace_back([&forms] { forms.Unload(Form::Name); });
    forms.Show(Form::Name);
    return forms.Get<Form>();
}

template <class Form>
void ChartDriver::takeSingleSpan() {
    Forms& forms = context_.forms;
    const bool wasLoaded = forms.IsLoaded(Form::Name);
    auto& form = take<Form>();
    if (!wasLoaded)
        return;
    restores_.emplace_back([&form, member = form.cboMember.ListIndex()] {
        if (member < 0)
            form.Empty();
        else
            form.cboMember.SetListIndex(member);
    });
}

int ChartDriver::ShowSingleSpan() {
    for (const auto* table : {"frmBMData", "frmSData"})
        if (!context_.forms.IsLoaded(table))
            restores_.emplace_back([this, table] { context_.forms.Unload(table); });
    takeSingleSpan<frmMoment1>();
    takeSingleSpan<frmShear1>();
    return context_.forms.Get<frmMoment1>().cboMember.ListCount();
}

void ChartDriver::CopyMoment(int member) {
    auto& form = context_.forms.Get<frmMoment1>();
    form.cboMember.SetListIndex(member);
    form.GraphMoment1.SetDrawAction(DrawActions::CopyToClipboard);
}

void ChartDriver::CopyShear(int member) {
    auto& form = context_.forms.Get<frmShear1>();
    form.cboMember.SetListIndex(member);
    form.GraphShear1.SetDrawAction(DrawActions::CopyToClipboard);
}

template <class Form>
void ChartDriver::selectAll() {
    const bool wasLoaded = context_.forms.IsLoaded(Form::Name);
    auto& list = take<Form>().List1;
    if (wasLoaded)
        restores_.emplace_back([&list, former = selectionOf(list)] { list.SetSelection(former); });
    list.SetSelection(std::vector<bool>(static_cast<std::size_t>(list.ListCount()), true));
}

void ChartDriver::PlotContinuous() {
    frame_ = context_.forms.Window().State();
    context_.forms.Window().SetState(WindowState::Maximized);
    selectAll<frmContinuousTB>();
    selectAll<frmContinuousS>();
}

void ChartDriver::CopyContinuousMoment() {
    auto& form = context_.forms.Get<frmContinuousTB>();
    form.SetState(WindowState::Maximized);
    form.GraphCMoment.SetDrawAction(DrawActions::CopyToClipboard);
}

void ChartDriver::CopyContinuousShear() {
    auto& form = context_.forms.Get<frmContinuousS>();
    form.SetState(WindowState::Maximized);
    form.GraphCshear.SetDrawAction(DrawActions::CopyToClipboard);
}

void ChartDriver::RestoreWindows() {
    context_.forms.Window().SetState(frame_);
    context_.forms.Get<frmContinuousTB>().SetState(WindowState::Normal);
    context_.forms.Get<frmContinuousS>().SetState(WindowState::Normal);
}

}  // namespace trabeon
