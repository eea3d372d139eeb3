#include "forms/shared/add_to_report.h"

#include "forms/shared/context.h"
#include "toolkit/controls/button.h"

namespace trabeon {

void addToReport(const Context& context, const std::function<void()>& copyPicture) {
    copyPicture();
    context.pasteIntoReport();
}

void offerReport(const Context& context, Button& cmdReport) {
    if (context.pasteIntoReport)
        return;
    cmdReport.SetEnabled(false);
    cmdReport.SetToolTipText("The report is not part of this version.");
}

}  // namespace trabeon
