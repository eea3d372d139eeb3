// Small things that the input forms do with their boxes.
#pragma once

#include <initializer_list>
#include <string>

#include "toolkit/controls/label.h"
#include "toolkit/controls/text_box.h"

namespace trabeon {

/// What a description reads until the user types one.
inline constexpr auto noDescription = "None";

/// Selects the text if it is the default one, so that typing replaces it.
void selectIfNone(TextBox& description);

/// Writes generated number text; a value that is not finite leaves the box as it is.
void setNumber(TextBox& box, double value);

/// The longest leading decimal number of what the box holds, 0 if there is none.
[[nodiscard]] double numberIn(const TextBox& box);

/// From now on each of the boxes says what number its text is read as where the text is not wholly
/// one number: "1,200" is "read as 1". An empty box says nothing.
void remarkOnNumbers(std::initializer_list<TextBox*> boxes);

/// The text of the box becomes "0" if it reads as 0.
void zeroIfNone(TextBox& box);

/// A label and the control that it names, one row of a column of inputs.
struct LabelledControl {
    Label& label;
    Control& control;
    int width;  // of the control
};

/// Where a column of inputs stands, in twips: the labels begin at `left`, the controls behind them.
struct InputColumn {
    int left, top, labelWidth, pitch;
};

/// Places the rows one below the other and ties each label to its control.
void placeInputs(const InputColumn& column, std::initializer_list<LabelledControl> rows);

}  // namespace trabeon
