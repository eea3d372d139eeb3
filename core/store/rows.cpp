#include "core/store/rows.h"

#include <algorithm>

namespace trabeon {
namespace {

bool endsAField(char c) {
    return c == ',' || c == '\r' || c == '\n';
}

}  // namespace

void appendLine(std::string& text, std::string_view line) {
    (text += line) += "\r\n";
}

void appendField(std::string& text, std::string_view field) {
    if (std::any_of(field.begin(), field.end(), endsAField))
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
