// Executes the commands for Lotus Word Pro: they build a Document.
#pragma once

#include "output/document_builder.h"
#include "output/word_processor.h"

namespace trabeon {

class LotusDocument : public WordProcessor {
  public:
    void Call(std::string_view member, const Arguments& arguments) override;

    [[nodiscard]] Document& document() { return builder_.document(); }

  private:
    void Type(std::string_view text);
    void typeText(const std::string& text);
    void press(std::string_view key);
    void CreateTable(int columns, int rows);
    void Undo();
    void Paste();
    void tab();
    void enter();
    void leaveTable();

    [[nodiscard]] DocumentTable& table() {
        return std::get<DocumentTable>(builder_.document().blocks.back());
    }

    DocumentBuilder builder_;
    bool inTable_ = false;
    std::size_t row_ = 0, column_ = 0;  // of the current cell
    bool rowAdded_ = false;             // by the last tab
    int tabsAfterPicture_ = 0;
    int linesBesidePicture_ = 0;  // from the cursor to the picture's lower edge
};

}  // namespace trabeon
