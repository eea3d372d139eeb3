#include "core/store/rows.h"

namespace trabeon {

void appendField(std::string& text, std::string_view field) {
    if (field.find_first_of(",\r\n") != std::string_view::npos)
        appendQuoted(text, field);
    else
        text += field;
}

void appendBare(std::string& text, std::string_view description) {
    const bool blankAtEnd =
        !description.empty() && (description.front() == ' ' || description.back() == ' ');
    if (blankAtEnd)
        appendQuoted(text, description);
    else
        appendField(text, description);
}

void appendQuoted(std::string& text, std::string_view field) {
    if (field.find('"') != std::string_view::npos) {
        text += field;
        return;
    }
    ((text += '"') += field) += '"';
}

}  // namespace trabeon
