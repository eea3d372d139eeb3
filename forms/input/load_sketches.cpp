#include "forms/input/load_sketches.h"

#include <algorithm>
#include <cmath>

#include "core/text/number_text.h"

namespace trabeon {
namespace {

// Twips.
constexpr double memberLeft = 100;
constexpr double memberRight = 3035;
constexpr double memberY = 700;
constexpr double memberWide = memberRight - memberLeft;
constexpr double hatchPitch = memberWide / 100;
constexpr double greatestHeight = 600;
constexpr double pictureRight = 3135;
// A limit for coordinates, in twips, far outside every picture. Larger values cannot be painted.
constexpr double farOut = 1e9;

const std::string gap(8, ' ');

bool scales(const SketchedMember& member) {
    return member.L > 0 && std::isfinite(member.L);
}

bool canBeDrawn(double x) {
    return std::abs(x) <= farOut;
}

void drawMember(PictureBox& picture) {
    picture.Line(memberLeft, memberY, memberRight, memberY);
    picture.PrintLine();
}

void printMember(PictureBox& picture, const SketchedMember& member) {
    picture.PrintLine("L = " + printForm(member.L) + gap + "Member " + printForm(member.number));
}

/// A distributed load in the picture, in twips.
struct Trapezoid {
    double X1, X2;  // left and right end
    double h1, h2;  // height at each end
};

double heightAt(const Trapezoid& load, double x) {
    const double width = load.X2 - load.X1;
    if (load.h1 >= load.h2)
        return (load.h1 - load.h2) * (load.X2 - x) / width + load.h2;
    return (load.h2 - load.h1) * (x - load.X1) / width + load.h1;
}

/// Draws a vertical line at every hundredth of the member's length, inside the picture.
void hatch(PictureBox& picture, const Trapezoid& load) {
    const double roundingDust = 1e-6;
    const double last = std::min(load.X2, pictureRight) + roundingDust;
    const double hidden = std::ceil(std::max(0.0, -load.X1) / hatchPitch);
    for (double line = hidden; load.X1 + line * hatchPitch <= last; ++line) {
        const double x = load.X1 + line * hatchPitch;
        picture.Line(x, memberY, x, memberY - heightAt(load, x), QBColor(1));
    }
}

}  // namespace

void sketchPointLoad(PictureBox& picture, const SketchedMember& member, const PointTexts& load) {
    picture.Cls();
    const double X = memberLeft + leadingNumber(load.a) * (memberWide / member.L);
    if (!scales(member) || !canBeDrawn(X))
        return;
    picture.Line(X, memberY, X, 100);
    picture.Line(X, memberY, X - 100, 600);
    picture.Line(X, memberY, X + 100, 600);
    drawMember(picture);
    picture.PrintLine("a = " + load.a + gap + "P = " + load.P);
    printMember(picture, member);
}

void sketchUdl(PictureBox& picture, const SketchedMember& member, const UdlTexts& load) {
    picture.Cls();
    const double W1 = std::abs(leadingNumber(load.w1));
    const double W2 = std::abs(leadingNumber(load.w2));
    const double greatest = std::max(W1, W2);
    const double S = memberWide / member.L;
    const double H = greatest > 0 ? greatestHeight / greatest : 0;
    const double X1 = memberLeft + leadingNumber(load.a) * S;
    const Trapezoid shape{X1, X1 + leadingNumber(load.b) * S, W1 * H, W2 * H};
    if (!scales(member) || !canBeDrawn(shape.X1) || !canBeDrawn(shape.X2) ||
        !std::isfinite(greatest))
        return;
    hatch(picture, shape);
    picture.Line(shape.X1, memberY, shape.X1, memberY - shape.h1);
    picture.Line(shape.X2, memberY, shape.X2, memberY - shape.h2);
    picture.Line(shape.X1, memberY - shape.h1, shape.X2, memberY - shape.h2);
    drawMember(picture);
    picture.PrintLine("a = " + load.a + gap + "b = " + load.b + gap);
    picture.PrintLine("w1 = " + load.w1 + gap + "w2 = " + load.w2 + gap);
    printMember(picture, member);
}

}  // namespace trabeon
