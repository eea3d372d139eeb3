#include "forms/input/beam_drawing.h"

#include <algorithm>
#include <cmath>

#include "core/rules/joint_types.h"
#include "core/text/number_masks.h"
#include "core/text/number_text.h"

namespace trabeon {
namespace {

// Twips.
constexpr double beamLeft = 100;
constexpr double beamAboveBottom = 400;
// A heading prints two tabs where a row prints one. So there are extra stops between the columns.
// Only a heading reaches them, because a number is wider than the gap before them.
const std::vector<double> tabStops{500,  1000, 1250, 1700, 2000, 2500,
                                   3100, 3600, 4050, 4350, 4800, 5100};

void drawWall(PictureBox& picture, double x, double y) {
    picture.Line(x, y, x, y - 300);
    picture.Line(x, y, x, y + 300);
    for (int step = -300; step <= 300; step += 50)
        picture.Line(x - 50, y + step - 20, x + 50, y + step + 20);
}

void drawTriangle(PictureBox& picture, double x, double y) {
    picture.Line(x, y, x - 50, y + 150);
    picture.Line(x, y, x + 50, y + 150);
    picture.Line(x - 50, y + 150, x + 50, y + 150);
}

void drawDisc(PictureBox& picture, double x, double y) {
    for (int half = 2; half <= 100; ++half)
        picture.Circle(x, y, half / 2.0, QBColor(4));
}

/// A value that is not finite is shown as in the file.
std::string masked(const std::string& field) {
    const double value = leadingNumber(field);
    return std::isfinite(value) ? threeFigures(value) : field;
}

std::string numberShown(const std::string& field) {
    const double number = leadingNumber(field);
    return std::isfinite(number) ? printForm(number) : field;
}

}  // namespace

void DrawJoint(PictureBox& picture, std::string_view JType, double x, double y) {
    const auto joint = jointNamed(JType);
    if (joint == Joint::fixed)
        drawWall(picture, x, y);
    if (joint == Joint::continuous || joint == Joint::pin)
        drawTriangle(picture, x, y);
    if (joint == Joint::pin)
        drawDisc(picture, x, y);
}

void drawBeam(PictureBox& picture, double width, double height, const std::vector<JointRow>& joints,
              const std::vector<MemberRow>& members) {
    double T = 0;
    for (const auto& member : members)
        T += leadingNumber(member.L);
    if (!(T > 0) || !std::isfinite(T))
        return;
    const double S = (width - 200) / T;
    const double y = height - beamAboveBottom;
    picture.Line(beamLeft, y, T * S, y);
    if (joints.empty())
        return;
    DrawJoint(picture, joints.front().type, beamLeft, y);
    double C = 0;
    for (std::size_t i = 0; i < std::min(members.size(), joints.size() - 1); ++i) {
        C += leadingNumber(members[i].L);
        DrawJoint(picture, joints[i + 1].type, C * S, y);
    }
}

void printMembers(PictureBox& picture, const std::vector<MemberRow>& members) {
    picture.TabStops = tabStops;
    picture.CurrentX = 0;
    picture.CurrentY = 100;
    picture.PrintLine("Member    E\t\t    I\t\t    L\t          Member\t    E\t\t    I\t\t    L");
    for (std::size_t i = 0; i < members.size(); ++i) {
        const auto& [number, E, I, L, description] = members[i];
        picture.Print(numberShown(number) + '\t' + masked(E) + '\t' + masked(I) + '\t' + masked(L) +
                      '\t');
        if (i % 2 == 1)
            picture.PrintLine();
    }
}

}  // namespace trabeon
