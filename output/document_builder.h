// A document that is being typed: all goes to its end.
#pragma once

#include "output/document.h"

namespace trabeon {

class DocumentBuilder {
  public:
    DocumentBuilder() { document_.blocks.emplace_back(Paragraph{}); }

    TextStyle style;  // of what is typed next

    /// Below a picture if one stands in the paragraph.
    void type(const std::string& text);
    void endParagraph() { document_.blocks.emplace_back(Paragraph{}); }

    /// Puts the clipboard's picture beside those of the paragraph; false if it holds none.
    bool paste(double left);

    /// The last paragraph becomes a table, which `endTable` leaves.
    DocumentTable& beginTable(std::size_t columns);
    void endTable() { endParagraph(); }

    /// The paragraph that is typed in.
    [[nodiscard]] Paragraph& current() { return std::get<Paragraph>(document_.blocks.back()); }
    [[nodiscard]] Document& document() { return document_; }

  private:
    Document document_;
};

/// Appends to runs of text; an empty text leaves them alone.
void appendText(std::vector<TextRun>& runs, const std::string& text, const TextStyle& style);

}  // namespace trabeon
