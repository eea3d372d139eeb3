// Builds a document by adding to its end.
#pragma once

#include "output/document.h"

namespace trabeon {

class DocumentBuilder {
  public:
    DocumentBuilder() { document_.blocks.emplace_back(Paragraph{}); }

    TextStyle style;  // of the next text

    /// Adds text to the current paragraph. Starts a new one if this one contains pictures.
    void type(const std::string& text);
    void endParagraph() { document_.blocks.emplace_back(Paragraph{}); }

    /// Adds the clipboard's picture to the pictures of the paragraph, `left` points from its left
    /// edge. Returns false if the clipboard has no picture.
    bool paste(double left);

    /// Starts a table. It replaces the current paragraph if that is empty. Call `endTable` after
    /// it.
    DocumentTable& beginTable(std::size_t columns);
    void endTable() { endParagraph(); }

    /// The paragraph at the end of the document.
    [[nodiscard]] Paragraph& current() { return std::get<Paragraph>(document_.blocks.back()); }
    [[nodiscard]] Document& document() { return document_; }

  private:
    Document document_;
};

/// Appends a run of text. An empty text adds nothing.
void appendText(std::vector<TextRun>& runs, const std::string& text, const TextStyle& style);

}  // namespace trabeon
