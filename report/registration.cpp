#include "report/registration.h"

#include "report/frmDocPreview.h"
#include "report/frmReport.h"
#include "report/sent_pictures.h"

namespace trabeon {

void takeUpReport(Context& context) {
    removeLentPictures(context.folder);
    context.forms.Register<frmReport>(context);
    context.forms.Register<frmDocPreview>(context);
    context.pasteIntoReport = [&context] { context.forms.Get<frmReport>().Add(); };
}

}  // namespace trabeon
