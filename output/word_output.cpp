#include "output/word_output.h"

#include "core/store/working_files.h"
#include "core/text/number_text.h"
#include "output/row_typing.h"
#include "toolkit/outside/outside.h"

namespace trabeon {
namespace {

constexpr int byLine = 5;
constexpr int toTheEnd = 6;
constexpr double shiftStep = 7.2;  // points
constexpr int shiftSteps = 30;

constexpr auto stopped =
    "The Word For Windows Program Was Automatically and Purposely Exitted Due To The Programmer's "
    "Preference in Using Lotus. However, if you would like to use Word For Windows For Your "
    "Printing Purposes, Please Email The Programmer.";

void typeText(WordProcessor& objWord, const std::string& text) {
    objWord.Call("Selection.TypeText", {{"Text", text}});
}

void typeRow(const RowFields& row, WordProcessor& objWord) {
    for (std::size_t i = 0; i < row.size(); ++i) {
        if (i == 0)
            objWord.Set("Selection.Font.Bold", true);
        typeText(objWord, (i == 0 ? "" : ",") + row[i]);
        if (i == 0)
            objWord.Set("Selection.Font.Bold", false);
    }
    objWord.Call("Selection.TypeParagraph");
}

void formatTable(WordProcessor& objWord) {
    objWord.Set("Selection.Cells.HeightRule", 0);
    objWord.Set("Selection.Rows.Alignment", 0);
    objWord.Set("Selection.Rows.AllowBreakAcrossPages", true);
    objWord.Call("Selection.Cells.AutoFit");
    objWord.Set("Selection.Font.Size", 7);
}

}  // namespace

void Landscape(WordProcessor& objWord) {
    const Arguments page{{"LineNumbering.Active", false},
                         {"Orientation", 1},
                         {"TopMargin", 89.85827},
                         {"BottomMargin", 89.85827},
                         {"LeftMargin", 72},
                         {"RightMargin", 72},
                         {"Gutter", 0},
                         {"HeaderDistance", 36},
                         {"FooterDistance", 36},
                         {"PageWidth", 792},
                         {"PageHeight", 612},
                         {"FirstPageTray", 0},
                         {"OtherPagesTray", 0},
                         {"SectionStart", 2},
                         {"OddAndEvenPagesHeaderFooter", false},
                         {"DifferentFirstPageHeaderFooter", false},
                         {"VerticalAlignment", 0},
                         {"SuppressEndnotes", false},
                         {"MirrorMargins", false}};
    for (const auto& [name, value] : page)
        objWord.Set("ActiveDocument.PageSetup." + std::string(name), value);
}

void WriteTitle(const std::string& Title, WordProcessor& objWord) {
    objWord.Set("Selection.Font.Underline", 1);
    objWord.Set("Selection.Font.Name", "Arial Black");
    typeText(objWord, Title);
    objWord.Set("Selection.Font.Underline", 0);
    objWord.Call("Selection.TypeParagraph");
    objWord.Call("Selection.TypeParagraph");
    objWord.Set("Selection.Font.Name", "Times New Roman");
}

void TableTitleWrite(const std::string& Title, WordProcessor& objWord) {
    objWord.Set("Selection.Font.Bold", true);
    typeText(objWord, Title);
    objWord.Call("Selection.TypeParagraph");
    objWord.Set("Selection.Font.Bold", false);
}

void ReadandOutput(int& LineCount, int Column, const std::filesystem::path& FN,
                   WordProcessor& objWord) {
    LineCount = 1;
    const auto text = readWhole(FN);
    for (FieldReader reader(text); !reader.atEnd();) {
        ++LineCount;
        typeRow(nextRow(reader, Column), objWord);
    }
}

void ReadandOutput2(int& LineCount, int Column, const std::filesystem::path& FN, int Divisions,
                    WordProcessor& objWord) {
    const auto text = readWhole(FN);
    if (FieldReader reader(text); !reader.atEnd()) {
        LineCount = 2;
        TableTitleWrite(std::string(reader.next()) + ", , ", objWord);
        TableTitleWrite("x,M,S", objWord);
        for (int i = 1; i <= Divisions + 2 && !reader.atEnd(); ++i) {
            ++LineCount;
            typeRow(nextRow(reader, Column), objWord);
        }
        Table(3, LineCount, objWord);
    }
    objWord.Call("Application.Quit");
    Outside::Current().MsgBox(stopped, 3, "Use Lotus");
}

void Table(int Column, int LineCount, WordProcessor& objWord) {
    objWord.Call("Selection.MoveUp", {{"Unit", byLine}, {"Count", LineCount}, {"Extend", 1}});
    objWord.Call("Selection.ConvertToTable", {{"Separator", 2},
                                              {"NumColumns", Column},
                                              {"NumRows", LineCount},
                                              {"Format", 0},
                                              {"ApplyBorders", true},
                                              {"ApplyShading", true},
                                              {"ApplyFont", true},
                                              {"ApplyColor", true},
                                              {"ApplyHeadingRows", true},
                                              {"ApplyLastRow", false},
                                              {"ApplyFirstColumn", true},
                                              {"ApplyLastColumn", false},
                                              {"AutoFit", false}});
    formatTable(objWord);
    objWord.Call("Selection.MoveDown", {{"Unit", byLine}, {"Count", 2}});
    objWord.Call("Selection.TypeParagraph");
}

void WordOutput::begin() {
    objWord_.Set("Visible", true);
    objWord_.Call("Documents.Add");
    Landscape(objWord_);
}

void WordOutput::title(const std::string& text) {
    WriteTitle(text, objWord_);
}

void WordOutput::table(const FileTable& file) {
    TableTitleWrite(file.columnTitles, objWord_);
    int LineCount = 0;
    ReadandOutput(LineCount, file.Column, source_.folder / file.FN, objWord_);
    Table(file.Column, LineCount, objWord_);
}

void WordOutput::balanceTable(int Column) {
    int LineCount = 0;
    ReadandOutput(LineCount, Column, source_.folder / balanceTableScratch, objWord_);
    Table(Column, LineCount - 1, objWord_);
}

bool WordOutput::values() {
    int LineCount = 0;
    ReadandOutput2(LineCount, 3, source_.folder / working_file::stations, source_.Divisions,
                   objWord_);
    return false;
}

void WordOutput::beginDiagrams() {
    picture_ = 1;
}

void WordOutput::memberTitle(const std::string& text) {
    TableTitleWrite(text, objWord_);
    objWord_.Call("Selection.TypeParagraph");
}

void WordOutput::pasteMoment() {
    objWord_.Call("Selection.Paste");
    ++picture_;
}

/// Word pastes the picture on top of the one before it. The steps then move it beside that one.
void WordOutput::pasteShear() {
    objWord_.Call("Selection.Paste");
    objWord_.Call("ActiveDocument.Shapes.Select", {{"", "Picture" + generatedText(picture_)}});
    for (int step = 0; step < shiftSteps; ++step)
        objWord_.Call("Selection.ShapeRange.IncrementLeft", {{"", shiftStep}});
    objWord_.Call("Selection.EndKey", {{"Unit", toTheEnd}});
    ++picture_;
}

void WordOutput::pasteContinuous() {
    objWord_.Call("Selection.Paste");
    objWord_.Call("Selection.TypeParagraph");
}

}  // namespace trabeon
