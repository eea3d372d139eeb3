#include "report/PrintReport.h"

#include "report/pages.h"
#include "toolkit/pages/printer.h"
#include "toolkit/pages/rich_text_box.h"
#include "toolkit/windows/wait_cursor.h"

namespace trabeon {
namespace {

Refusal printRefusal(const std::string& file) {
    if (file.empty())
        return {"The report could not be printed. Check the printer, then try again."};
    return {"The report could not be printed to \"" + file +
            "\". Choose another file, then try again."};
}

}  // namespace

Outcome<PrintEnd> PrintReport(RichTextBox& RTB, int leftMargin, int topMargin, int rightMargin,
                              int bottomMargin) {
    const auto printer = Printer::Open("Trabeon Report");
    if (!printer)
        return PrintEnd::cancelled;
    const WaitCursor wait;
    const Paper& sheet = printer->Sheet();
    PageFormat format;
    format.page = {0, 0, sheet.ScaleWidth, sheet.ScaleHeight};
    // The canvas starts at the printable area, but the margins count from the edge of the sheet.
    format.drawing = {leftMargin - sheet.OffsetX, topMargin - sheet.OffsetY,
                      sheet.Width - rightMargin - sheet.OffsetX,
                      sheet.Height - bottomMargin - sheet.OffsetY};
    bool printing = true;
    const auto pages = splitIntoPages(RTB.TextLength(), [&](int first) {
        printing = printer->NewPage();
        format.first = first;
        return printing ? RTB.FormatRange(printer.get(), format) : first;
    });
    RTB.ReleasePages();
    if (!printer->EndDoc() || !printing)
        return printRefusal(printer->File());
    if (!pages.whole)
        return Refusal{"The print ends with page " + std::to_string(pages.starts.size()) +
                       ", because the rest could not be laid out. Cut the rest out of the report, "
                       "then print again."};
    return PrintEnd::printed;
}

}  // namespace trabeon
