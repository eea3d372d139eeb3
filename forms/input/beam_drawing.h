// Draws the beam as entered: a line to scale, a symbol for each joint, a table of the members.
#pragma once

#include <string_view>
#include <vector>

#include "core/store/rows.h"
#include "toolkit/controls/picture_box.h"

namespace trabeon {

/// Draws one joint symbol at (x, y) in twips. A text that is not a joint type draws nothing.
void DrawJoint(PictureBox& picture, std::string_view JType, double x, double y);

/// Draws the beam line and its joints on a picture of this size in twips, 400 above the bottom
/// edge. The lengths are to scale. The first member looks shorter, because the line begins at x =
/// 100. Draws nothing if the total length is not above 0 or not finite.
void drawBeam(PictureBox& picture, double width, double height, const std::vector<JointRow>& joints,
              const std::vector<MemberRow>& members);

/// Prints E, I and L of each member from the top of the picture, two members per line.
void printMembers(PictureBox& picture, const std::vector<MemberRow>& members);

}  // namespace trabeon
