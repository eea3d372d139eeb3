// The printer as pages to draw on. What is drawn on a page goes out when the next one begins.
#pragma once

#include <memory>
#include <string>

#include "toolkit/outside/paper.h"
#include "toolkit/pages/page_canvas.h"
#include "toolkit/pages/print_file.h"

class QPrinter;

namespace trabeon {

class PagePrinter : public PageCanvas {
  public:
    // The user's printer, or the file that stands in for it. Null if the user drew back.
    static std::unique_ptr<PagePrinter> Open(const std::string& documentName);
    ~PagePrinter() override;

    const Paper& Sheet() const { return sheet_; }
    // Its origin is the corner of the area that can be printed on.
    QPainter* Painter() override;
    // False: the printer takes no more.
    [[nodiscard]] bool NewPage();
    // False: nothing came out, or not all.
    [[nodiscard]] bool EndDoc();
    // The file that is printed to; empty with a real printer.
    [[nodiscard]] std::string File() const { return file_.Path(); }

  private:
    explicit PagePrinter(std::unique_ptr<QPrinter> printer);

    std::unique_ptr<QPrinter> printer_;
    PrintFile file_;
    std::unique_ptr<QPainter> painter_;
    Paper sheet_;
};

// The paper of a printer as it is set.
Paper PaperOf(const QPrinter& printer);

}  // namespace trabeon
