// Word: the words in which it is told a document. `objWord` is the word processor; LineCount and
// Column count the lines and the fields of a table; FN names a file of the working folder.
#pragma once

#include "output/project_output.h"

namespace trabeon {

/// Sets the page up: Letter in landscape.
void Landscape(WordProcessor& objWord);

void WriteTitle(const std::string& Title, WordProcessor& objWord);

/// A bold line for the head of a table.
void TableTitleWrite(const std::string& Title, WordProcessor& objWord);

/// Types a file's rows; LineCount comes back as their number and 1 for the head.
void ReadandOutput(int& LineCount, int Column, const std::filesystem::path& FN,
                   WordProcessor& objWord);

/// Types the first member's block of the station file, Divisions + 2 rows, as a table; then the
/// word processor closes with all that was typed, and the user is told.
void ReadandOutput2(int& LineCount, int Column, const std::filesystem::path& FN, int Divisions,
                    WordProcessor& objWord);

/// Turns the last LineCount lines into a table.
void Table(int Column, int LineCount, WordProcessor& objWord);

class WordOutput : public OutputWriter {
  public:
    WordOutput(const OutputSource& source, WordProcessor& objWord)
        : source_(source), objWord_(objWord) {}

    void begin() override;
    void title(const std::string& text) override;
    void table(const FileTable& file) override;
    void balanceTable(int Column) override;
    bool values() override;
    void beginDiagrams() override;
    void memberTitle(const std::string& text) override;
    void pasteMoment() override;
    void pasteShear() override;
    void pasteContinuous() override;

  private:
    const OutputSource& source_;
    WordProcessor& objWord_;
    int picture_ = 1;  // the number of the picture that is pasted next
};

}  // namespace trabeon
