#include "core/text/field_reader.h"

#include <algorithm>

namespace trabeon {

std::string_view FieldReader::next() {
    lineEnded_ = false;
    quoteOpen_ = false;
    passBlanks();
    const bool quoted = at_ < text_.size() && text_[at_] == '"';
    return quoted ? quotedField() : bareField();
}

std::string_view FieldReader::nextLine() {
    const auto start = at_;
    while (at_ < text_.size() && text_[at_] != '\r' && text_[at_] != '\n')
        ++at_;
    const auto line = text_.substr(start, at_ - start);
    passLineEnd();
    return line;
}

std::string_view FieldReader::quotedField() {
    const auto start = at_ + 1;
    const auto end = std::min(text_.find('"', start), text_.size());
    quoteOpen_ = end == text_.size();
    const auto field = text_.substr(start, end - start);
    line_ += static_cast<int>(std::count(field.begin(), field.end(), '\n'));
    at_ = std::min(end + 1, text_.size());
    passBlanks();
    if (at_ < text_.size() && text_[at_] == ',')
        ++at_;
    else
        passLineEnd();
    return field;
}

std::string_view FieldReader::bareField() {
    const auto start = at_;
    while (at_ < text_.size() && text_[at_] != ',' && text_[at_] != '\r' && text_[at_] != '\n')
        ++at_;
    auto field = text_.substr(start, at_ - start);
    field.remove_suffix(field.size() - (field.find_last_not_of(' ') + 1));
    if (at_ < text_.size() && text_[at_] == ',')
        ++at_;
    else
        passLineEnd();
    return field;
}

void FieldReader::passBlanks() {
    while (at_ < text_.size() && text_[at_] == ' ')
        ++at_;
}

void FieldReader::passLineEnd() {
    const bool atEnd = at_ >= text_.size();
    lineEnded_ = atEnd || text_[at_] == '\r' || text_[at_] == '\n';
    if (atEnd || !lineEnded_)
        return;
    at_ += text_.substr(at_, 2) == "\r\n" ? 2 : 1;
    ++line_;
}

}  // namespace trabeon
