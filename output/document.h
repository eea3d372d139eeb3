// A document in memory: paragraphs, tables and pictures. All measures are in points.
#pragma once

#include <string>
#include <variant>
#include <vector>

namespace trabeon {

struct TextStyle {
    bool bold = false;
    bool underline = false;
    std::string face = "Times New Roman";
    double points = 10;
};

struct TextRun {
    std::string text;
    TextStyle style;
};

struct DocumentPicture {
    std::string png;
    double width, height;
    double left = 0;  // wanted place from the paragraph's left edge
};

/// Either text or pictures side by side.
struct Paragraph {
    std::vector<TextRun> runs;
    std::vector<DocumentPicture> pictures;
};

using Cell = std::vector<TextRun>;

struct DocumentTable {
    std::size_t columns = 0;
    std::vector<std::vector<Cell>> rows;
    bool headed = false;  // repeats the first row at the top of each page
};

using Block = std::variant<Paragraph, DocumentTable>;

struct PageSetup {
    double width = 792, height = 612;  // Letter in landscape
    double top = 89.85827, bottom = 89.85827, left = 72, right = 72;
};

struct Document {
    PageSetup page;
    std::vector<Block> blocks;
};

}  // namespace trabeon
