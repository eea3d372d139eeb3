#include "report/registration.h"

#include "report/frmDocPreview.h"
#include "report/frmReport.h"

namespace trabeon {

void registerReport(Context& context) {
    context.forms.Register<frmReport>(context);
    context.forms.Register<frmDocPreview>(context);
    context.pasteIntoReport = [&context] { context.forms.Get<frmReport>().Add(); };
}

}  // namespace trabeon
