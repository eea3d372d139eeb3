#include "forms/main/registration.h"

#include "core/analysis/analysis.h"
#include "forms/check/frmReactions.h"
#include "forms/design/frmBeamDesign.h"
#include "forms/design/frmBeamDimensions.h"
#include "forms/design/frmShearResistance.h"
#include "forms/design/frmSteelArea.h"
#include "forms/input/frmDiagram.h"
#include "forms/input/frmJoints.h"
#include "forms/input/frmMembers.h"
#include "forms/input/frmPoint.h"
#include "forms/input/frmUDL.h"
#include "forms/main/frmTitle.h"
#include "forms/results/frmAnalysis.h"
#include "forms/results/frmBMData.h"
#include "forms/results/frmContinuousS.h"
#include "forms/results/frmContinuousTB.h"
#include "forms/results/frmMoment1.h"
#include "forms/results/frmSData.h"
#include "forms/results/frmShear1.h"
#include "forms/settings/frmMisc.h"
#include "forms/settings/frmOptions.h"

namespace trabeon {
namespace {

/// Fills the lists of the two load editors with the rows in normal form. Hides both windows.
void refillLoads(Forms& forms, const Analysis& analysis) {
    auto& point = forms.Get<frmPoint>();
    auto& udl = forms.Get<frmUDL>();
    point.Refill(analysis.points.rows);
    udl.Refill(analysis.udls.rows);
    udl.Hide();
    point.Hide();
}

}  // namespace

void registerForms(Context& context) {
    context.forms.Register<frmTitle>(context);
    context.forms.Register<frmJoints>(context);
    context.forms.Register<frmMembers>(context);
    context.forms.Register<frmPoint>(context);
    context.forms.Register<frmUDL>(context);
    context.forms.Register<frmDiagram>(context);
    context.forms.Register<frmAnalysis>(context);
    context.forms.Register<frmOptions>(context);
    context.forms.Register<frmMoment1>(context);
    context.forms.Register<frmShear1>(context);
    context.forms.Register<frmContinuousTB>(context);
    context.forms.Register<frmContinuousS>(context);
    context.forms.Register<frmBMData>(context);
    context.forms.Register<frmSData>(context);
    context.forms.Register<frmBeamDimensions>(context);
    context.forms.Register<frmMisc>(context);
    context.forms.Register<frmBeamDesign>(context);
    context.forms.Register<frmSteelArea>(context);
    context.forms.Register<frmShearResistance>(context);
    context.forms.Register<frmReactions>(context);
    context.rowsChanged = [&forms = context.forms] {
        if (auto* reactions = forms.Loaded<frmReactions>())
            reactions->Refresh();
    };
    context.refillLoads = [&forms = context.forms](const Analysis& analysis) {
        refillLoads(forms, analysis);
    };
}

}  // namespace trabeon
