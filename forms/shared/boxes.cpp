#include "forms/shared/boxes.h"

#include <cmath>

#include "core/text/number_text.h"

namespace trabeon {
namespace {

constexpr int controlHeight = 345;
constexpr int labelHeight = 255;

}  // namespace

void selectIfNone(TextBox& description) {
    if (description.Text() != noDescription)
        return;
    description.SetSelStart(0);
    description.SetSelLength(4);
}

void setNumber(TextBox& box, double value) {
    if (std::isfinite(value))
        box.SetText(generatedText(value));
}

double numberIn(const TextBox& box) {
    return leadingNumber(box.Text());
}

void remarkOnNumbers(std::initializer_list<TextBox*> boxes) {
    for (TextBox* box : boxes)
        box->Remark = [](const std::string& text) -> std::string {
            const double number = leadingNumber(text);
            if (text.empty() || numberOfWholeText(text) || !std::isfinite(number))
                return {};
            return "read as " + bareNumber(number);
        };
}

void zeroIfNone(TextBox& box) {
    if (numberIn(box) == 0)
        box.SetText("0");
}

void placeInputs(const InputColumn& column, std::initializer_list<LabelledControl> rows) {
    int top = column.top;
    for (const auto& [label, control, width] : rows) {
        label.Move(column.left, top + (controlHeight - labelHeight) / 2, column.labelWidth,
                   labelHeight);
        label.SetBuddy(control);
        control.Move(column.left + column.labelWidth, top, width, controlHeight);
        top += column.pitch;
    }
}

}  // namespace trabeon
