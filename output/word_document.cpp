#include "output/word_document.h"

#include <algorithm>
#include <array>
#include <cassert>

#include "core/text/number_text.h"

namespace trabeon {
namespace {

constexpr std::string_view pageSetup = "ActiveDocument.PageSetup.";

const std::string& textIn(const Arguments& arguments) {
    return std::get<std::string>(arguments.at(0).value);
}

double numberIn(const Value& value) {
    if (const auto* whole = std::get_if<int>(&value))
        return *whole;
    return std::get<double>(value);
}

std::size_t countIn(const Arguments& arguments, std::string_view name) {
    for (const auto& argument : arguments)
        if (argument.name == name)
            return static_cast<std::size_t>(std::max(0, std::get<int>(argument.value)));
    return 0;
}

/// Splits a line at its commas into cells. The last cell contains the rest of the line.
std::vector<Cell> cellsOf(const Paragraph& line, std::size_t columns) {
    std::vector<Cell> cells(1);
    for (const auto& [text, style] : line.runs) {
        std::string rest = text;
        for (auto comma = rest.find(','); comma != std::string::npos && cells.size() < columns;
             comma = rest.find(',')) {
            appendText(cells.back(), rest.substr(0, comma), style);
            cells.emplace_back();
            rest.erase(0, comma + 1);
        }
        appendText(cells.back(), rest, style);
    }
    cells.resize(columns);
    return cells;
}

}  // namespace

WordDocument::Handler WordDocument::handlerOf(std::string_view member) {
    using W = WordDocument;
    static constexpr std::array<std::pair<std::string_view, Handler>, 20> handlers{{
        {"Visible", &W::nothing},
        {"Documents.Add", &W::nothing},
        {"Selection.TypeText", &W::TypeText},
        {"Selection.TypeParagraph", &W::TypeParagraph},
        {"Selection.Font.Bold", &W::setBold},
        {"Selection.Font.Underline", &W::setUnderline},
        {"Selection.Font.Name", &W::setName},
        {"Selection.Font.Size", &W::setSize},
        {"Selection.MoveUp", &W::MoveUp},
        {"Selection.MoveDown", &W::leaveSelection},
        {"Selection.EndKey", &W::leaveSelection},
        {"Selection.ConvertToTable", &W::ConvertToTable},
        {"Selection.Cells.HeightRule", &W::nothing},
        {"Selection.Cells.AutoFit", &W::nothing},
        {"Selection.Rows.Alignment", &W::nothing},
        {"Selection.Rows.AllowBreakAcrossPages", &W::nothing},
        {"Selection.Paste", &W::Paste},
        {"ActiveDocument.Shapes.Select", &W::selectShape},
        {"Selection.ShapeRange.IncrementLeft", &W::IncrementLeft},
        {"Application.Quit", &W::nothing},
    }};
    const auto* found = std::find_if(handlers.begin(), handlers.end(),
                                     [&](const auto& each) { return each.first == member; });
    assert(found != handlers.end() && "Word has this member");
    return found->second;
}

void WordDocument::Call(std::string_view member, const Arguments& arguments) {
    if (member.starts_with(pageSetup))
        setPage(member.substr(pageSetup.size()), arguments.at(0).value);
    else
        (this->*handlerOf(member))(arguments);
}

void WordDocument::setPage(std::string_view property, const Value& value) {
    PageSetup& page = document().page;
    const std::pair<std::string_view, double&> measures[] = {
        {"PageWidth", page.width},     {"PageHeight", page.height}, {"TopMargin", page.top},
        {"BottomMargin", page.bottom}, {"LeftMargin", page.left},   {"RightMargin", page.right}};
    for (const auto& [name, measure] : measures)
        if (property == name)
            measure = numberIn(value);
}

void WordDocument::setBold(const Arguments& arguments) {
    builder_.style.bold = std::get<bool>(arguments.at(0).value);
}

void WordDocument::setUnderline(const Arguments& arguments) {
    builder_.style.underline = std::get<int>(arguments.at(0).value) != 0;
}

void WordDocument::setName(const Arguments& arguments) {
    builder_.style.face = textIn(arguments);
}

void WordDocument::setSize(const Arguments& arguments) {
    const double points = numberIn(arguments.at(0).value);
    if (!tableSelected_) {
        builder_.style.points = points;
        return;
    }
    auto& blocks = document().blocks;
    for (auto& row : std::get<DocumentTable>(blocks.at(blocks.size() - 2)).rows)
        for (auto& cell : row)
            for (auto& run : cell)
                run.style.points = points;
}

void WordDocument::TypeText(const Arguments& arguments) {
    builder_.type(textIn(arguments));
}

void WordDocument::TypeParagraph(const Arguments&) {
    builder_.endParagraph();
}

void WordDocument::MoveUp(const Arguments& arguments) {
    selectedLines_ = std::min(countIn(arguments, "Count"), document().blocks.size() - 1);
}

void WordDocument::ConvertToTable(const Arguments& arguments) {
    const auto columns = countIn(arguments, "NumColumns");
    auto& blocks = document().blocks;
    if (selectedLines_ == 0 || columns == 0)
        return;
    DocumentTable table{columns, {}, true};
    const auto end = blocks.end() - 1;
    const auto first = end - static_cast<std::ptrdiff_t>(selectedLines_);
    for (auto line = first; line != end; ++line)
        table.rows.push_back(cellsOf(std::get<Paragraph>(*line), columns));
    *first = std::move(table);
    blocks.erase(first + 1, end);
    tableSelected_ = true;
}

void WordDocument::leaveSelection(const Arguments&) {
    selectedLines_ = 0;
    tableSelected_ = false;
    shape_ = 0;
}

void WordDocument::Paste(const Arguments&) {
    if (builder_.paste(0))
        shapes_.emplace_back(document().blocks.size() - 1, builder_.current().pictures.size() - 1);
}

void WordDocument::selectShape(const Arguments& arguments) {
    constexpr std::string_view named = "Picture";
    shape_ = static_cast<std::size_t>(leadingNumber(textIn(arguments).substr(named.size())));
}

void WordDocument::IncrementLeft(const Arguments& arguments) {
    if (shape_ == 0 || shape_ > shapes_.size())
        return;  // the clipboard had no picture
    const auto [block, picture] = shapes_[shape_ - 1];
    std::get<Paragraph>(document().blocks[block]).pictures[picture].left +=
        numberIn(arguments.at(0).value);
}

}  // namespace trabeon
