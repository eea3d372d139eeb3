#include "forms/shared/add_to_report.h"

#include "forms/shared/context.h"

namespace trabeon {

void addToReport(const Context& context, const std::function<void()>& copyPicture) {
    copyPicture();
    context.pasteIntoReport();
}

}  // namespace trabeon
