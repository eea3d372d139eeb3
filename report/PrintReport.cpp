#include "report/PrintReport.h"

#include "toolkit/page_printer.h"
#include "toolkit/rich_text_box.h"

namespace trabeon {

Printed PrintReport(RichTextBox& RTB, int leftMargin, int topMargin, int rightMargin,
                    int bottomMargin) {
    const auto printer = PagePrinter::Open("Trabeon Report");
    if (!printer)
        return Printed::userDrewBack;
    const Paper& sheet = printer->Sheet();
    PageFormat format;
    format.page = {0, 0, sheet.ScaleWidth, sheet.ScaleHeight};
    // The canvas begins where the printer can print: the margins count from the sheet's edge.
    format.drawing = {leftMargin - sheet.OffsetX, topMargin - sheet.OffsetY,
                      sheet.Width - rightMargin - sheet.OffsetX,
                      sheet.Height - bottomMargin - sheet.OffsetY};
    format.first = RTB.FormatRange(printer.get(), format);
    bool printing = true;
    while (printing && format.first < RTB.TextLength()) {
        printing = printer->NewPage();
        format.first = RTB.FormatRange(printer.get(), format);
    }
    RTB.ReleasePages();
    return printer->EndDoc() && printing ? Printed::yes : Printed::failed;
}

}  // namespace trabeon
