// Reads row files field by field.
#pragma once

#include <cstddef>
#include <string_view>

namespace trabeon {

/// Walks over the whole text of a file. Fields are separated by commas; the end of a line (CR LF,
/// LF or CR) ends a field too. Blanks around a field without quotes are dropped. A field in double
/// quotes ends at the next double quote and keeps everything inside.
class FieldReader {
  public:
    /// The text must outlive the reader and the fields that it gives.
    explicit FieldReader(std::string_view text) : text_(text) {}

    /// Ask this between rows.
    [[nodiscard]] bool atEnd() const { return at_ >= text_.size(); }

    /// The next field; empty text at the end of the file.
    std::string_view next();

    /// The next whole line, without its line end; used where a file is read by lines.
    std::string_view nextLine();

    /// Whether the field read last was the last one of its line.
    [[nodiscard]] bool lineEnded() const { return lineEnded_; }

    /// Whether the field read last began with a double quote that is not closed.
    [[nodiscard]] bool quoteOpen() const { return quoteOpen_; }

    /// The line, counting from 1, on which the next field or line begins.
    [[nodiscard]] int line() const { return line_; }

  private:
    std::string_view quotedField();
    std::string_view bareField();
    void passBlanks();
    void passLineEnd();

    std::string_view text_;
    std::size_t at_ = 0;
    int line_ = 1;
    bool lineEnded_ = false;
    bool quoteOpen_ = false;
};

}  // namespace trabeon
