// The printer: pages of text in a fixed-width face, placed in millimetres from the paper's corner.
#pragma once

#include <memory>
#include <string>

#include "toolkit/pages/print_file.h"

class QPainter;
class QPrinter;

namespace trabeon {

enum class Orientation { Portrait = 1, Landscape = 2 };

class Printer {
  public:
    // Of the face's size, in points; its lines take 0.4 mm a point.
    static constexpr double FontSize = 8;

    // The default printer; it gets all pages only at EndDoc. Null if the user drew back.
    static std::unique_ptr<Printer> Open(const std::string& documentName);
    ~Printer();
    Printer(const Printer&) = delete;
    Printer& operator=(const Printer&) = delete;

    // Begins a page, the first one too.
    void NewPage(Orientation orientation);
    // x and y of the text's top left corner, in millimetres. A text too long for the sheet, with
    // the same margin on the right, is printed in a smaller size.
    void Print(double x, double y, const std::string& text);
    // Whether the printer took the document.
    [[nodiscard]] bool EndDoc();
    // The file that is printed to; empty with a real printer.
    [[nodiscard]] std::string File() const { return file_.Path(); }

  private:
    explicit Printer(std::unique_ptr<QPrinter> printer);

    std::unique_ptr<QPrinter> printer_;
    PrintFile file_;
    std::unique_ptr<QPainter> painter_;
    bool failed_ = false;
};

}  // namespace trabeon
