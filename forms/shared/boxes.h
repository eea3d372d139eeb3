// Functions for the text boxes of input forms.
#pragma once

#include <initializer_list>
#include <string>

#include "toolkit/controls/label.h"
#include "toolkit/controls/text_box.h"

namespace trabeon {

/// The description until the user types one.
inline constexpr auto noDescription = "None";

/// Selects the text if it is the default, so that typing replaces it.
void selectIfNone(TextBox& description);

/// Shows the value as generated number text. A value that is not finite changes nothing.
void setNumber(TextBox& box, double value);

/// The longest leading decimal number in the box. 0 if there is none.
[[nodiscard]] double numberIn(const TextBox& box);

/// From now on, each box shows the number it is read as if its whole text is not one number:
/// "1,200" is "read as 1". An empty box shows nothing.
void remarkOnNumbers(std::initializer_list<TextBox*> boxes);

/// Replaces the text by "0" if the number in it is 0.
void zeroIfNone(TextBox& box);

/// A label and its control: one row of a column of inputs.
struct LabelledControl {
    Label& label;
    Control& control;
    int width;  // of the control, in twips
};

/// The place of a column of inputs, in twips. Labels begin at `left`, controls after `labelWidth`.
struct InputColumn {
    int left, top, labelWidth, pitch;
};

/// Places the rows one below the other. Each label names its control.
void placeInputs(const InputColumn& column, std::initializer_list<LabelledControl> rows);

}  // namespace trabeon
