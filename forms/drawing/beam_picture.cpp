#include "forms/drawing/beam_picture.h"

#include <algorithm>
#include <cmath>

#include "forms/drawing/picture_parts.h"
#include "forms/drawing/symbols.h"

namespace trabeon {
namespace {

constexpr auto caption =
    "Deflected shape: the greatest value of each member, at x from its left joint";
constexpr auto tooNarrow = "Too narrow for all supports and loads";
constexpr double edge = 4, gap = 3;
constexpr double arrowHeight = 24;
constexpr double valueWidth = 45;    // of a reaction: closer ones take two rows
constexpr double captionFrom = 220;  // height of a picture with a caption
constexpr double loadsShare = 0.45;  // of the height that is left for loads and deflections
constexpr double jointReach = 12;    // a press this near to a joint means it

bool hasLoads(const BeamSketch& sketch) {
    return !sketch.bands.empty() || !sketch.forces.empty();
}

bool hasDeflections(const BeamSketch& sketch) {
    return std::any_of(sketch.deflections.begin(), sketch.deflections.end(),
                       [](const auto& member) { return member.greatest.value != 0; });
}

bool hasMoments(const BeamSketch& sketch) {
    return std::any_of(sketch.reactions.begin(), sketch.reactions.end(),
                       [](const auto& reaction) { return reaction.moment != 0; });
}

/// From the top: loads, beam, joint numbers, reactions, deflections. What the loads and the
/// deflections get is what the others leave.
PictureRows rowsOf(const BeamSketch& sketch, double scale, double height, double text) {
    const bool crowded = shortestMember(sketch) * scale < valueWidth;
    const double valueRows = hasMoments(sketch) || crowded ? 2 : 1;
    const double reactions = sketch.reactions.empty() ? 0 : gap + arrowHeight + text * valueRows;
    const bool bends = hasDeflections(sketch);
    const double above = hasLoads(sketch) ? edge + text + gap : edge + symbolDepth;
    const double below = symbolDepth + gap + text + reactions + edge;
    const double labels = bends ? 2 * (text + gap) + gap : 0;
    const double captionHeight = bends && height >= captionFrom ? text : 0;
    const double left = std::max(0.0, height - above - below - labels - captionHeight);
    const double loads = !hasLoads(sketch) ? 0 : bends ? loadsShare * left : left;
    PictureRows rows;
    rows.loads = above;
    rows.beam = above + loads;
    rows.numbers = rows.beam + symbolDepth + gap;
    rows.reactions = rows.numbers + text + gap;
    rows.values = rows.reactions + arrowHeight;
    rows.caption = captionHeight > 0 ? height - edge - text : height;
    rows.deflectionsEnd = std::max(rows.beam, height - edge - captionHeight - text - gap);
    rows.deflections = std::max(rows.beam, rows.deflectionsEnd - (left - loads));
    return rows;
}

}  // namespace

BeamPicture::BeamPicture(const BeamSketch& sketch, const PictureSpace& space,
                         const BeamPart& selected) {
    LabelRoom labels(space.width);
    Stage stage{drawing_, labels, space.measure, selected, {}, space.width, space.height};
    stage.left = space.margin;
    stage.scale = std::max(1.0, space.width - 2 * space.margin) / sketch.joints.back().x;
    stage.rows = rowsOf(sketch, stage.scale, space.height, stage.textHeight());
    beamLine_ = stage.rows.beam;
    for (const auto& joint : sketch.joints)
        joints_.push_back(stage.place(joint.x));
    auto leftOut = drawBeamLine(stage, sketch);
    drawReactions(stage, sketch);
    const bool captioned = stage.rows.caption < space.height;
    if (captioned)
        putLabel(stage, caption, {edge, stage.rows.caption}, {BehindColour, false, Align::left});
    if (hasDeflections(sketch))
        drawDeflections(stage, sketch);
    leftOut += drawLoads(stage, sketch);
    if (leftOut > 0)
        putLabel(stage, tooNarrow, {space.width, captioned ? stage.rows.caption : edge},
                 {BehindColour, false, Align::right});
}

BeamPart BeamPicture::partAt(double x, double y) const {
    const auto right = std::upper_bound(joints_.begin(), joints_.end(), x);
    const auto after =
        static_cast<std::size_t>(right - joints_.begin());  // joints to the left of x
    const auto nearer =
        after > 0 && (after == joints_.size() || x - joints_[after - 1] < joints_[after] - x)
            ? after
            : after + 1;
    if (y > beamLine_ && std::fabs(joints_[nearer - 1] - x) <= jointReach)
        return {BeamPart::Kind::joint, nearer};
    if (after == 0 || after == joints_.size())
        return {};
    return {BeamPart::Kind::member, after};
}

}  // namespace trabeon
