// Writes the document of a project with the commands of Lotus Word Pro. `Type` types text with keys
// such as "[tab]" in it. Parameters are as in word_output.h.
#pragma once

#include "output/project_output.h"

namespace trabeon {

void LotusWriteTitle(const std::string& Title, WordProcessor& objWord);

/// Types a bold line.
void LotusTableTitleWrite(const std::string& Title, WordProcessor& objWord);

/// Types a file as a table. Returns the number of its lines in LineCount.
void LotusReadandOutput(int& LineCount, int Column, const std::filesystem::path& FN,
                        WordProcessor& objWord);

/// Types the station file as one table per member: a heading, the column titles, Divisions + 2
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
