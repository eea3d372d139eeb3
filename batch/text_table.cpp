#include "batch/text_table.h"

namespace trabeon {

std::string padded(std::string_view text, std::size_t width) {
    return std::string(width > text.size() ? width - text.size() : 1, ' ') + std::string(text);
}

std::string labelled(std::string_view text) {
    return std::string(text) +
           std::string(labelWidth > text.size() ? labelWidth - text.size() : 1, ' ');
}

std::string tableLine(std::string_view label, std::initializer_list<std::string_view> cells,
                      std::size_t width) {
    std::string line = labelled(label);
    for (const auto cell : cells)
        line += padded(cell, width);
    return line + '\n';
}

}  // namespace trabeon
