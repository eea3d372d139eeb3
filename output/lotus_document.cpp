#include "output/lotus_document.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <cmath>

namespace trabeon {
namespace {

constexpr double tabStop = 36;  // points
constexpr double lineSpacing = 1.2;

constexpr std::array<std::string_view, 7> keys{"[Enter]", "[tab]",   "[Esc]",       "[Down]",
                                               "[right]", "[enter]", "[shiftRight]"};

/// The key at the start of a text. Empty if there is none.
std::string_view keyAt(std::string_view text) {
    for (const auto key : keys)
        if (text.starts_with(key))
            return key;
    return {};
}

template <class T>
const T& valueAt(const Arguments& arguments, std::size_t i) {
    return std::get<T>(arguments.at(i).value);
}

}  // namespace

void LotusDocument::Call(std::string_view member, const Arguments& arguments) {
    TextStyle& style = builder_.style;
    if (member == "Type")
        Type(valueAt<std::string>(arguments, 0));
    else if (member == "Bold")
        style.bold = !style.bold;
    else if (member == "Underline")
        style.underline = !style.underline;
    else if (member == "Text.Font.FontName")
        style.face = valueAt<std::string>(arguments, 0);
    else if (member == "Text.Font.Size")
        style.points = valueAt<int>(arguments, 0);
    else if (member == "CreateTable")
        CreateTable(valueAt<int>(arguments, 2), valueAt<int>(arguments, 3));
    else if (member == "Undo")
        Undo();
    else if (member == "Paste")
        Paste();
    else
        assert((member == "Visible" || member == "NewDocument" ||
                member == "Page.Layout.RightPage.LandscapeMode") &&
               "Word Pro has this member");
}

void LotusDocument::Type(std::string_view text) {
    while (!text.empty()) {
        if (const auto key = keyAt(text); !key.empty()) {
            press(key);
            text.remove_prefix(key.size());
            continue;
        }
        const auto end = std::min(text.find('[', 1), text.size());
        typeText(std::string(text.substr(0, end)));
        text.remove_prefix(end);
    }
}

void LotusDocument::typeText(const std::string& text) {
    rowAdded_ = false;
    if (inTable_) {
        appendText(table().rows[row_][column_], text, builder_.style);
        return;
    }
    tabsAfterPicture_ = linesBesidePicture_ = 0;
    builder_.type(text);
}

void LotusDocument::press(std::string_view key) {
    if (key == "[tab]")
        tab();
    else if (key == "[Enter]" || key == "[enter]")
        enter();
    else if (key == "[Down]" || key == "[right]")
        leaveTable();
}

/// Without rows or columns it makes no table.
void LotusDocument::CreateTable(int columns, int rows) {
    if (columns <= 0 || rows <= 0)
        return;
    DocumentTable& made = builder_.beginTable(static_cast<std::size_t>(columns));
    made.rows.assign(static_cast<std::size_t>(rows), std::vector<Cell>(made.columns));
    inTable_ = true;
    row_ = column_ = 0;
}

/// A tab in the last cell of a table adds a row. Undo removes this row and nothing else.
void LotusDocument::Undo() {
    if (!inTable_ || !rowAdded_)
        return;
    table().rows.pop_back();
    --row_;
    rowAdded_ = false;
}

/// Pastes the picture beside the one before it if tabs came after that one, otherwise below it.
void LotusDocument::Paste() {
    if (tabsAfterPicture_ == 0 && !builder_.current().pictures.empty()) {
        builder_.endParagraph();
        linesBesidePicture_ = 0;
    }
    if (builder_.paste(tabsAfterPicture_ * tabStop)) {
        const double line = builder_.style.points * lineSpacing;
        const int lines =
            static_cast<int>(std::ceil(builder_.current().pictures.back().height / line));
        linesBesidePicture_ = std::max(linesBesidePicture_, lines);
    }
    tabsAfterPicture_ = 0;
}

void LotusDocument::tab() {
    if (!inTable_) {
        ++tabsAfterPicture_;
        return;
    }
    if (++column_ < table().columns)
        return;
    column_ = 0;
    rowAdded_ = ++row_ == table().rows.size();
    if (rowAdded_)
        table().rows.emplace_back(table().columns);
}

/// Beside a picture, the cursor first moves down to the lower edge of the picture.
void LotusDocument::enter() {
    tabsAfterPicture_ = 0;
    if (linesBesidePicture_ > 1) {
        --linesBesidePicture_;
        return;
    }
    linesBesidePicture_ = 0;
    builder_.endParagraph();
}

void LotusDocument::leaveTable() {
    if (inTable_)
        builder_.endTable();
    inTable_ = false;
}

}  // namespace trabeon
