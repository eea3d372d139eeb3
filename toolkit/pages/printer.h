// The printer: pages to draw on, and lines of text at places in millimetres.
#pragma once

#include <memory>
#include <string>

#include "toolkit/outside/paper.h"
#include "toolkit/pages/page_canvas.h"
#include "toolkit/pages/print_file.h"

class QPrinter;

namespace trabeon {

enum class Orientation { Portrait = 1, Landscape = 2 };

/// After a failure every further page and line is left out, and EndDoc answers false.
class Printer : public PageCanvas {
  public:
    /// The size of the fixed-width font of Print, in points.
    static constexpr double FontSize = 8;

    /// The user's default printer, or a PDF file if there is none. Null if the user cancels.
    [[nodiscard]] static std::unique_ptr<Printer> Open(const std::string& documentName);
    ~Printer() override;

    [[nodiscard]] const Paper& Sheet() const { return sheet_; }
    /// The shape of the pages that begin from now on. At first it is the printer's own.
    void SetOrientation(Orientation orientation);
    /// Begins a page, also the first one. False: the printer takes no more.
    [[nodiscard]] bool NewPage();
    /// Its unit is the twip and its origin the corner of the printable area. Null before the first
    /// page, and after a failure.
    [[nodiscard]] QPainter* Painter() override;
    /// Prints one line. x and y are the top left corner of the text in millimetres from the corner
    /// of the sheet. A text that is too long for the sheet, with x also as the right margin, is
    /// printed in a smaller size.
    void Print(double x, double y, const std::string& text);
    /// Ends the print. False: the printer did not take all of it.
    [[nodiscard]] bool EndDoc();
    /// The file that is printed to; empty with a real printer.
    [[nodiscard]] std::string File() const { return file_.Path(); }

  private:
    explicit Printer(std::unique_ptr<QPrinter> printer);

    std::unique_ptr<QPrinter> printer_;
    PrintFile file_;
    std::unique_ptr<QPainter> painter_;
    Paper sheet_;
    bool failed_ = false;
};

/// The paper of a printer in its present orientation.
[[nodiscard]] Paper PaperOf(const QPrinter& printer);

}  // namespace trabeon
