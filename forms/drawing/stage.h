// A picture in the making: where its parts go, the shapes so far and the room for labels. Measures
// are pixels, y downward.
#pragma once

#include <string>

#include "forms/drawing/label_room.h"
#include "toolkit/drawing/shapes.h"

namespace trabeon {

/// A joint or a member of the beam, from 1.
struct BeamPart {
    enum class Kind { none, joint, member };
    Kind kind = Kind::none;
    std::size_t number = 0;

    [[nodiscard]] bool isJoint(std::size_t joint) const {
        return kind == Kind::joint && number == joint;
    }
    [[nodiscard]] bool isMember(std::size_t member) const {
        return kind == Kind::member && number == member;
    }
    bool operator==(const BeamPart&) const = default;
};

/// The heights at which the parts of a picture begin or are.
struct PictureRows {
    double loads = 0;        // top of the highest load
    double beam = 0;         // the beam's line
    double numbers = 0;      // joint numbers
    double reactions = 0;    // arrows
    double values = 0;       // of reactions
    double deflections = 0;  // top and bottom of the deflected shape
    double deflectionsEnd = 0;
    double caption = 0;
};

struct Stage {
    Drawing& drawing;
    LabelRoom& labels;
    const TextMeasure& measure;
    BeamPart selected;
    PictureRows rows;
    double width = 0, height = 0;
    double left = 0, scale = 1;  // the beam's left end, and pixels for one unit of length

    [[nodiscard]] double place(double x) const { return left + scale * x; }
    [[nodiscard]] double textHeight() const { return measure("0", false).height; }
};

namespace ink {
inline constexpr Colour beam = 0x1a1a1a;
inline constexpr Colour load = 0x5a6b7b;
inline constexpr Colour loadFill = 0xe3e9ef;
inline constexpr Colour selectedFill = 0xcfe1f2;
inline constexpr Colour deflection = 0x37474f;
}  // namespace ink

/// Which side of its place a label is on.
enum class Align { left, middle, right };

struct LabelStyle {
    Colour colour = ink::beam;
    bool bold = false;
    Align align = Align::middle;
};

/// From where to where a label reaches that is put at x, moved inward at the picture's edges.
struct LabelSpan {
    double left = 0, right = 0;
};
[[nodiscard]] LabelSpan spanOf(const Stage& stage, const std::string& text, double x,
                               const LabelStyle& style);

/// Puts a label at x with its top at y. False if there is no room in the picture: then it
/// is left out.
bool putLabel(const Stage& stage, const std::string& text, const DrawnPoint& at,
              const LabelStyle& style);

/// The value as a picture shows it.
[[nodiscard]] std::string shownInPicture(double value);

}  // namespace trabeon
