// The beam as entered: a line to scale with a symbol for each joint, and a table of the members.
#pragma once

#include <string_view>
#include <vector>

#include "core/store/rows.h"
#include "toolkit/controls/picture_box.h"

namespace trabeon {

/// One joint symbol at (x, y); a text that is none of the four types draws nothing.
void DrawJoint(PictureBox& picture, std::string_view JType, double x, double y);

/// The beam line and its joints on a picture of this size in twips, 400 above its bottom edge. The
/// lengths are to scale but for the first, which begins at 100. Without a length to scale by
/// nothing is drawn; joints end where their rows do.
void drawBeam(PictureBox& picture, double width, double height, const std::vector<JointRow>& joints,
              const std::vector<MemberRow>& members);

/// E, I and L of each member from the top of the picture on, two members to a line.
void printMembers(PictureBox& picture, const std::vector<MemberRow>& members);

}  // namespace trabeon
