// Lotus Word Pro: the words in which it is told a document, the twin of Word's. Text is keyed in
// through `Type`, with commands such as "[tab]" in it.
#pragma once

#include "output/project_output.h"

namespace trabeon {

void LotusWriteTitle(const std::string& Title, WordProcessor& objWord);

/// A bold line.
void LotusTableTitleWrite(const std::string& Title, WordProcessor& objWord);

/// A file as a table; LineCount comes back as the number of its lines.
void LotusReadandOutput(int& LineCount, int Column, const std::filesystem::path& FN,
                        WordProcessor& objWord);

/// The station file as a table a member, each of a heading, the column titles and Divisions + 2
/// rows.
void LotusReadandOutput2(int& LineCount, int Column, const std::filesystem::path& FN, int Divisions,
                         WordProcessor& objWord);

class LotusOutput : public OutputWriter {
  public:
    LotusOutput(const OutputSource& source, WordProcessor& objWord)
        : source_(source), objWord_(objWord) {}

    void begin() override;
    void title(const std::string& text) override;
    void table(const FileTable& file) override;
    void balanceTable(int Column) override;
    bool values() override;
    void memberTitle(const std::string& text) override;
    void pasteMoment() override;
    void pasteShear() override;
    void pasteContinuous() override;

  private:
    void paste(const char* key, int times);

    const OutputSource& source_;
    WordProcessor& objWord_;
};

}  // namespace trabeon
