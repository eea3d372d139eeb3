// Writes the document of a project with the commands of Word. In all functions, `objWord`
// is the word processor, LineCount the number of lines of a table, Column the number of its
// columns, and FN the path of a working file.
#pragma once

#include "output/project_output.h"

namespace trabeon {

/// Sets up the page: Letter in landscape.
void Landscape(WordProcessor& objWord);

void WriteTitle(const std::string& Title, WordProcessor& objWord);

/// Types a bold line, the head of a table.
void TableTitleWrite(const std::string& Title, WordProcessor& objWord);

/// Types the rows of a file. Returns their number plus 1, for the head, in LineCount.
void ReadandOutput(int& LineCount, int Column, const std::filesystem::path& FN,
                   WordProcessor& objWord);

/// Types the Divisions + 2 rows of the first member in the station file as a table. Then it closes
/// the word processor, discards the document and shows a message.
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
    int picture_ = 1;  // number of the next picture
};

}  // namespace trabeon
