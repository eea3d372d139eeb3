#include "output/lotus_output.h"

#include "core/store/working_files.h"
#include "output/row_typing.h"

namespace trabeon {
namespace {

constexpr int tabsBeside = 6;    // tabs from a picture to the place beside it
constexpr int entersBelow = 10;  // from a pair of pictures to the line below it
constexpr int entersBelowContinuous = 25;

void type(WordProcessor& objWord, const std::string& text) {
    objWord.Call("Type", {{"", text}});
}

/// Types a field in pieces that end at each "[". So a field such as "[tab]" is not a command.
void typeField(const std::string& field, WordProcessor& objWord) {
    std::size_t from = 0;
    do {
        const auto end = std::min(field.find('[', from), field.size() - 1) + 1;
        type(objWord, field.substr(from, end - from));
        from = end;
    } while (from < field.size());
}

/// Types a row with its first field in bold. `isBold` says that bold is already on.
void typeRow(const RowFields& row, bool isBold, WordProcessor& objWord) {
    for (std::size_t i = 0; i < row.size(); ++i) {
        if (i == 0 && !isBold)
            objWord.Call("Bold");
        typeField(row[i], objWord);
        if (i == 0)
            objWord.Call("Bold");
        type(objWord, "[tab]");
    }
}

void CreateTable(int Column, int LineCount, WordProcessor& objWord) {
    objWord.Call("CreateTable",
                 {{"", false}, {"", "Default Table"}, {"", Column}, {"", LineCount}});
}

int linesOf(std::string_view text) {
    int lines = 0;
    for (FieldReader reader(text); !reader.atEnd(); ++lines)
        reader.nextLine();
    return lines;
}

void valuesTable(FieldReader& reader, int& LineCount, int Column, int Divisions,
                 WordProcessor& objWord) {
    CreateTable(Column, Divisions + 2, objWord);
    objWord.Call("Bold");
    type(objWord, std::string(reader.next()) + "[tab][tab][tab]");
    objWord.Call("Bold");
    for (const auto* head : {"x[tab]", "M[tab]", "S[tab]"}) {
        objWord.Call("Bold");
        type(objWord, head);
    }
    for (int row = 1; row <= Divisions + 2 && !reader.atEnd(); ++row) {
        ++LineCount;
        typeRow(nextRow(reader, Column), row == 1, objWord);  // the column titles leave bold on
    }
    objWord.Call("Undo");
    type(objWord, "[right][enter][enter]");
}

}  // namespace

void LotusWriteTitle(const std::string& Title, WordProcessor& objWord) {
    objWord.Call("Underline");
    objWord.Set("Text.Font.FontName", "Arial Black");
    typeField(Title, objWord);
    objWord.Call("Underline");
    type(objWord, "[Enter][Enter]");
    objWord.Set("Text.Font.FontName", "Times New Roman");
}

void LotusTableTitleWrite(const std::string& Title, WordProcessor& objWord) {
    objWord.Call("Bold");
    type(objWord, Title);
    type(objWord, "[Enter]");
    objWord.Call("Bold");
}

void LotusReadandOutput(int& LineCount, int Column, const std::filesystem::path& FN,
                        WordProcessor& objWord) {
    const auto text = readWhole(FN);
    LineCount = linesOf(text);
    CreateTable(Column, LineCount, objWord);
    for (FieldReader reader(text); !reader.atEnd();)
        typeRow(nextRow(reader, Column), false, objWord);
    type(objWord, "[shiftRight][shiftRight]");
    objWord.Call("Undo");
    type(objWord, "[Down][Enter]");
    type(objWord, "[Enter][Enter]");
}

void LotusReadandOutput2(int& LineCount, int Column, const std::filesystem::path& FN, int Divisions,
                         WordProcessor& objWord) {
    LineCount = 2;
    const auto text = readWhole(FN);
    for (FieldReader reader(text); !reader.atEnd();)
        valuesTable(reader, LineCount, Column, Divisions, objWord);
}

void LotusOutput::begin() {
    objWord_.Set("Visible", true);
    objWord_.Call("NewDocument",
                  {{"", ""}, {"", ""}, {"", "default.mwp"}, {"", ""}, {"", ""}, {"", ""}});
    objWord_.Set("Page.Layout.RightPage.LandscapeMode", true);
    objWord_.Set("Text.Font.Size", 10);
}

void LotusOutput::title(const std::string& text) {
    LotusWriteTitle(text, objWord_);
}

void LotusOutput::table(const FileTable& file) {
    int LineCount = 0;
    LotusReadandOutput(LineCount, file.Column, source_.folder / file.FN, objWord_);
}

void LotusOutput::balanceTable(int Column) {
    int LineCount = 0;
    LotusReadandOutput(LineCount, Column, source_.folder / balanceTableScratch, objWord_);
}

bool LotusOutput::values() {
    int LineCount = 0;
    LotusReadandOutput2(LineCount, 3, source_.folder / working_file::stations, source_.Divisions,
                        objWord_);
    return true;
}

void LotusOutput::memberTitle(const std::string& text) {
    LotusTableTitleWrite(text, objWord_);
}

void LotusOutput::pasteMoment() {
    paste("[tab]", tabsBeside);
}

void LotusOutput::pasteShear() {
    paste("[Enter]", entersBelow);
}

void LotusOutput::pasteContinuous() {
    paste("[Enter]", entersBelowContinuous);
}

void LotusOutput::paste(const char* key, int times) {
    objWord_.Call("Paste");
    type(objWord_, "[Esc]");
    for (int i = 0; i < times; ++i)
        type(objWord_, key);
}

}  // namespace trabeon
