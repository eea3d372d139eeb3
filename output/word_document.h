// Executes the commands for Word: they build a Document.
#pragma once

#include <utility>

#include "output/document_builder.h"
#include "output/word_processor.h"

namespace trabeon {

class WordDocument : public WordProcessor {
  public:
    void Call(std::string_view member, const Arguments& arguments) override;

    [[nodiscard]] Document& document() { return builder_.document(); }

  private:
    using Handler = void (WordDocument::*)(const Arguments&);
    static Handler handlerOf(std::string_view member);

    void nothing(const Arguments&) {}
    void setPage(std::string_view property, const Value& value);
    void setBold(const Arguments& arguments);
    void setUnderline(const Arguments& arguments);
    void setName(const Arguments& arguments);
    void setSize(const Arguments& arguments);
    void TypeText(const Arguments& arguments);
    void TypeParagraph(const Arguments&);
    void MoveUp(const Arguments& arguments);
    void ConvertToTable(const Arguments& arguments);
    void leaveSelection(const Arguments&);
    void Paste(const Arguments&);
    void selectShape(const Arguments& arguments);
    void IncrementLeft(const Arguments& arguments);

    DocumentBuilder builder_;
    std::size_t selectedLines_ = 0;
    bool tableSelected_ = false;  // the new table, the last block but one
    std::vector<std::pair<std::size_t, std::size_t>> shapes_;  // (block, picture in it), from 0
    std::size_t shape_ = 0;                                    // the selected one, from 1
};

}  // namespace trabeon
