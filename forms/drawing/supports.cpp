// The beam's line, its supports, and what they give to it.
#include <algorithm>
#include <cmath>
#include <limits>

#include "core/text/number_text.h"
#include "forms/drawing/picture_parts.h"
#include "forms/drawing/symbols.h"

namespace trabeon {
namespace {

constexpr double beamWidth = 3, selectedBeamWidth = 5;
constexpr double leastSymbolScale = 0.5, leastBetweenSymbols = 5, leastBetweenArrows = 7;
constexpr double betweenNumbers = 4;

double placeOf(const Stage& stage, const BeamSketch& sketch, std::size_t joint) {
    return stage.place(sketch.joints[joint - 1].x);
}

int outwardOf(const BeamSketch& sketch, std::size_t joint) {
    return joint == 1 ? -1 : joint == sketch.joints.size() ? 1 : 0;
}

Colour colourOf(const Stage& stage, std::size_t joint) {
    return stage.selected.isJoint(joint) ? HighlightColour : ink::beam;
}

/// Small where the joints are close together.
double symbolScale(const Stage& stage, const BeamSketch& sketch) {
    return std::clamp(shortestMember(sketch) * stage.scale / symbolWidth, leastSymbolScale, 1.0);
}

std::size_t drawSupports(const Stage& stage, const BeamSketch& sketch) {
    const double scale = symbolScale(stage, sketch);
    double last = -std::numeric_limits<double>::infinity();
    std::size_t leftOut = 0;
    for (std::size_t joint = 1; joint <= sketch.joints.size(); ++joint) {
        const double x = placeOf(stage, sketch, joint);
        const bool fits = x - last >= leastBetweenSymbols || stage.selected.isJoint(joint);
        if (!fits) {
            ++leftOut;
            continue;
        }
        last = x;
        addSupport(stage.drawing, sketch.joints[joint - 1].type, {x, stage.rows.beam},
                   {scale, outwardOf(sketch, joint), colourOf(stage, joint)});
    }
    return leftOut;
}

/// Every 2nd, 5th, 10th, ... joint is shown, so that no number comes upon the next.
bool isShown(std::size_t joint, std::size_t step) {
    return joint == 1 || joint % step == 0;
}

bool numbersFit(const Stage& stage, const BeamSketch& sketch, std::size_t step) {
    double end = -std::numeric_limits<double>::infinity();
    for (std::size_t joint = 1; joint <= sketch.joints.size(); ++joint) {
        if (!isShown(joint, step))
            continue;
        const double half = stage.measure(std::to_string(joint), true).width / 2;
        const double x = placeOf(stage, sketch, joint);
        if (x - half < end + betweenNumbers)
            return false;
        end = x + half;
    }
    return true;
}

std::size_t numberStep(const Stage& stage, const BeamSketch& sketch) {
    for (std::size_t decade = 1; decade < sketch.joints.size(); decade *= 10)
        for (const std::size_t step : {decade, 2 * decade, 5 * decade})
            if (numbersFit(stage, sketch, step))
                return step;
    return sketch.joints.size();
}

void drawNumbers(const Stage& stage, const BeamSketch& sketch) {
    const auto put = [&](std::size_t joint) {
        putLabel(stage, std::to_string(joint), {placeOf(stage, sketch, joint), stage.rows.numbers},
                 {colourOf(stage, joint), stage.selected.isJoint(joint), Align::middle});
    };
    if (stage.selected.kind == BeamPart::Kind::joint)
        put(stage.selected.number);
    const auto step = numberStep(stage, sketch);
    for (std::size_t joint = 1; joint <= sketch.joints.size(); ++joint)
        if (isShown(joint, step) && !stage.selected.isJoint(joint))
            put(joint);
}

/// The selected joint, then the joints that are held down, then the others from left to right.
std::vector<std::size_t> byImportance(const Stage& stage, const BeamSketch& sketch) {
    std::vector<std::size_t> joints(sketch.joints.size());
    for (std::size_t k = 0; k < joints.size(); ++k)
        joints[k] = k + 1;
    const auto rank = [&](std::size_t joint) {
        if (stage.selected.isJoint(joint))
            return 0;
        return sketch.reactions[joint - 1].force < 0 ? 1 : 2;
    };
    std::stable_sort(joints.begin(), joints.end(),
                     [&](std::size_t a, std::size_t b) { return rank(a) < rank(b); });
    return joints;
}

void drawForce(const Stage& stage, std::size_t joint, double x, double force) {
    const double top = stage.rows.reactions, bottom = stage.rows.values;
    const Box room{x - leastBetweenArrows / 2, top, x + leastBetweenArrows / 2, bottom};
    if (force == 0 || !stage.labels.isFree(room))
        return;
    stage.labels.take(room);
    const Pen pen{colourOf(stage, joint), stage.selected.isJoint(joint) ? 2.0 : 1.5};
    addArrow(stage.drawing, {x, force > 0 ? bottom : top}, {x, force > 0 ? top : bottom}, pen);
}

}  // namespace

std::size_t drawBeamLine(const Stage& stage, const BeamSketch& sketch) {
    const auto leftOut = drawSupports(stage, sketch);
    const auto line = [&](std::size_t from, std::size_t to, const Pen& pen) {
        stage.drawing.push_back(PathShape{{{placeOf(stage, sketch, from), stage.rows.beam},
                                           {placeOf(stage, sketch, to), stage.rows.beam}},
                                          pen});
    };
    line(1, sketch.joints.size(), {ink::beam, beamWidth});
    if (stage.selected.kind == BeamPart::Kind::member)
        line(stage.selected.number, stage.selected.number + 1,
             {HighlightColour, selectedBeamWidth});
    drawNumbers(stage, sketch);
    return leftOut;
}

void drawReactions(const Stage& stage, const BeamSketch& sketch) {
    if (sketch.reactions.empty())
        return;
    for (const auto joint : byImportance(stage, sketch)) {
        if (sketch.joints[joint - 1].type == Joint::cantilever)
            continue;
        const double x = placeOf(stage, sketch, joint);
        const auto& [force, moment] = sketch.reactions[joint - 1];
        const LabelStyle style{colourOf(stage, joint), stage.selected.isJoint(joint),
                               Align::middle};
        drawForce(stage, joint, x, force);
        const auto value = shownInPicture(std::fabs(force));
        const double secondRow = stage.rows.values + stage.textHeight();
        if (!putLabel(stage, value, {x, stage.rows.values}, style))
            putLabel(stage, value, {x, secondRow}, style);
        if (moment == 0)
            continue;
        addMomentArrow(stage.drawing, {x, stage.rows.beam}, outwardOf(sketch, joint), moment,
                       {style.colour, 1.5});
        putLabel(stage, "M " + shownInPicture(std::fabs(moment)), {x, secondRow}, style);
    }
}

}  // namespace trabeon
