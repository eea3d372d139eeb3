// The picture of a beam as numbers. Every letter of the tests is 6 pixels wide and 12 high.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <sstream>

#include "forms/drawing/beam_picture.h"
#include "tests/support/temporary_folder.h"

namespace trabeon::test {
namespace {

TextSize measured(const std::string& text, bool) {
    return {6.0 * static_cast<double>(text.size()), 12};
}

BeamPicture pictureOf(const BeamSketch& sketch, double width = 1000, double height = 340,
                      const BeamPart& selected = {}) {
    return {sketch, {width, height, measured}, selected};
}

/// Equal members of 6 with a support at each joint, all with the same load and sagging by `sag`.
BeamSketch rowOf(std::size_t members, double sag = 0.001) {
    BeamSketch sketch;
    for (std::size_t j = 0; j <= members; ++j) {
        const bool end = j == 0 || j == members;
        sketch.joints.push_back(
            {end ? Joint::pin : Joint::continuous, 6.0 * static_cast<double>(j)});
        sketch.reactions.push_back({end ? 61.7105 : 121.302, 0});
    }
    for (std::size_t i = 0; i < members; ++i) {
        const double x = 6.0 * static_cast<double>(i);
        sketch.bands.push_back({i + 1, x, x + 6, 20, 20});
        sketch.forces.push_back({i + 1, x + 3, 30});
        sketch.deflections.push_back({{{x, 0}, {x + 3, sag}, {x + 6, 0}}, {sag, 3}});
    }
    return sketch;
}

/// A cantilever at the left, a pressed down support, an upward load, loads that overlap none, and
/// a fixed end.
BeamSketch mixed() {
    BeamSketch sketch;
    sketch.joints = {
        {Joint::cantilever, 0}, {Joint::continuous, 2}, {Joint::continuous, 7}, {Joint::fixed, 13}};
    sketch.reactions = {{0, 0}, {102.045, 0}, {-48.75, 0}, {21.5, -31.7144}};
    sketch.bands = {{1, 0, 2, 10, 10}, {2, 3, 6, 0, 30}, {3, 7, 13, -8, 8}};
    sketch.forces = {{1, 0, 40}, {2, 4.5, -20}};
    sketch.deflections = {{{{0, 0.004}, {2, 0}}, {0.004, 0}},
                          {{{2, 0}, {4, -0.001}, {7, 0}}, {-0.001, 2}},
                          {{{7, 0}, {10, 0.0005}, {13, 0}}, {0.0005, 3}}};
    return sketch;
}

std::string described(const DrawnPoint& point) {
    std::ostringstream text;
    text << ' ' << std::round(10 * point.x) / 10 << ' ' << std::round(10 * point.y) / 10;
    return text.str();
}

std::string described(const std::optional<Pen>& pen, const std::optional<Colour>& fill) {
    std::ostringstream text;
    text << std::hex;
    if (pen)
        text << " pen " << pen->colour << '/' << pen->width;
    if (fill)
        text << " fill " << *fill;
    return text.str();
}

/// A line a shape.
std::string described(const Drawing& drawing) {
    std::ostringstream text;
    for (const auto& shape : drawing) {
        if (const auto* path = std::get_if<PathShape>(&shape)) {
            text << (path->fill ? "area" : "line");
            for (const auto& point : path->points)
                text << described(point);
            text << described(path->pen, path->fill);
        } else if (const auto* arc = std::get_if<ArcShape>(&shape)) {
            text << "arc" << described(arc->centre) << " r " << arc->radius << " from "
                 << arc->start << " by " << arc->sweep << described(arc->pen, arc->fill);
        } else {
            const auto& label = std::get<TextShape>(shape);
            text << "text" << described(label.corner) << " \"" << label.text << '"' << std::hex
                 << ' ' << label.colour << std::dec << (label.bold ? " bold" : "");
        }
        text << '\n';
    }
    return text.str();
}

std::vector<TextShape> textsOf(const BeamPicture& picture) {
    std::vector<TextShape> texts;
    for (const auto& shape : picture.drawing())
        if (const auto* text = std::get_if<TextShape>(&shape))
            texts.push_back(*text);
    return texts;
}

std::string wordsOf(const BeamPicture& picture) {
    std::string words;
    for (const auto& text : textsOf(picture))
        words += text.text + "|";
    return words;
}

/// The label's place, for one that is there once.
DrawnPoint placeOf(const BeamPicture& picture, const std::string& label) {
    for (const auto& text : textsOf(picture))
        if (text.text == label)
            return text.corner;
    ADD_FAILURE() << label << " is not among " << wordsOf(picture);
    return {};
}

TEST(BeamPicture, TwoBeamsShapeByShape) {
    for (const auto& [name, picture] :
         {std::pair{"mixed", pictureOf(mixed())},
          {"two-spans-selected", pictureOf(rowOf(2), 640, 200, {BeamPart::Kind::member, 2})}})
        EXPECT_EQ(described(picture.drawing()),
                  TemporaryFolder::readFile(std::string(DRAWINGS) + "/" + name + ".txt"));
}

TEST(BeamPicture, NoLabelComesUponAnotherOrLeavesThePicture) {
    for (const auto& sketch :
         {mixed(), rowOf(1), rowOf(5), rowOf(50), rowOf(50, -2e-5), rowOf(1000)})
        for (const double width : {280.0, 640.0, 1000.0, 1900.0})
            for (const double height : {120.0, 200.0, 340.0, 800.0}) {
                SCOPED_TRACE(std::to_string(sketch.joints.size()) + " joints on " +
                             std::to_string(width) + " x " + std::to_string(height));
                const auto texts = textsOf(pictureOf(sketch, width, height));
                EXPECT_GE(texts.size(), 4u);
                for (std::size_t i = 0; i < texts.size(); ++i) {
                    const auto& [x, y] = texts[i].corner;
                    const double wide = measured(texts[i].text, false).width;
                    EXPECT_TRUE(x >= 0 && y >= 0 && x + wide <= width) << texts[i].text;
                    for (std::size_t k = 0; k < i; ++k) {
                        const auto& other = texts[k];
                        const double otherWide = measured(other.text, false).width;
                        EXPECT_TRUE(x + wide <= other.corner.x || other.corner.x + otherWide <= x ||
                                    std::fabs(y - other.corner.y) >= 12)
                            << texts[i].text << " on " << other.text;
                    }
                }
            }
}

TEST(BeamPicture, LabelsThinOutTheLessImportantFirst) {
    const auto count = [](const BeamPicture& picture, const std::string& label) {
        std::size_t found = 0;
        for (const auto& text : textsOf(picture))
            found += text.text.find(label) != std::string::npos;
        return found;
    };
    const auto few = pictureOf(rowOf(5));
    EXPECT_EQ(count(few, "121.3"), 4u);
    EXPECT_EQ(count(few, "0.001 at 3"), 5u);
    EXPECT_EQ(count(few, "20"), 5u);
    const auto many = pictureOf(rowOf(50));
    EXPECT_EQ(count(many, "121.3"), 49u);  // in two rows
    EXPECT_LT(count(many, "0.001 at 3"), 15u);
    EXPECT_EQ(wordsOf(pictureOf(rowOf(50), 640)).substr(0, 24), "1|2|4|6|8|10|12|14|16|18");
    EXPECT_EQ(wordsOf(many).find("narrow"), std::string::npos);
    EXPECT_EQ(count(pictureOf(rowOf(1000)), "Too narrow for all supports and loads"), 1u);
    // The selected part is shown in any case, in the highlight colour.
    const auto selected = textsOf(pictureOf(rowOf(1000), 640, 200, {BeamPart::Kind::joint, 777}));
    EXPECT_EQ(selected.front().text, "777");
    for (const auto& text : selected)
        EXPECT_EQ(text.colour == HighlightColour, text.bold) << text.text;
    EXPECT_TRUE(std::any_of(selected.begin(), selected.end(),
                            [](const auto& text) { return text.text == "121.3" && text.bold; }));
}

TEST(BeamPicture, HeightsAreToScale) {
    auto sketch = rowOf(2);
    sketch.bands[1].w1 = sketch.bands[1].w2 = 40;
    sketch.forces = {{1, 1, 100}, {1, 2, 50}};
    sketch.deflections[1].points[1].value = sketch.deflections[1].greatest.value = 0.004;
    std::vector<double> bands, arrows, sags;
    double beam = 0;
    for (const auto& shape : pictureOf(sketch).drawing()) {
        const auto* path = std::get_if<PathShape>(&shape);
        if (path == nullptr)
            continue;
        const auto& points = path->points;
        if (path->pen && path->pen->width == 3)
            beam = points.front().y;
        if (points.size() == 4 && path->pen)
            bands.push_back(points[0].y - points[1].y);
        if (path->pen && path->pen->width == 2)
            arrows.push_back(points[1].y - points[0].y + 3.5);  // with half of its head
        if (points.size() == 3 && path->pen && path->pen->width == 1.5)
            sags.push_back(points[1].y - points[0].y);
    }
    EXPECT_GT(beam, 0);
    EXPECT_NEAR(bands.at(1) / bands.at(0), 2, 1e-9);
    EXPECT_NEAR(arrows.at(0) / arrows.at(1), 2, 1e-9);
    EXPECT_NEAR(sags.at(1) / sags.at(0), 4, 1e-9);
}

TEST(BeamPicture, APressFindsTheJointBelowTheBeamAndTheMemberAboveIt) {
    const auto picture = pictureOf(rowOf(5));
    const double below = placeOf(picture, "3").y;
    for (std::size_t j = 0; j <= 5; ++j) {
        const double x = 40 + 920 * static_cast<double>(j) / 5;
        EXPECT_EQ(picture.partAt(x + 5, below), (BeamPart{BeamPart::Kind::joint, j + 1}));
        EXPECT_EQ(picture.partAt(x + 5, 20),
                  j < 5 ? (BeamPart{BeamPart::Kind::member, j + 1}) : BeamPart{});
        EXPECT_EQ(picture.partAt(x + 60, below),
                  j < 5 ? (BeamPart{BeamPart::Kind::member, j + 1}) : BeamPart{});
    }
    EXPECT_EQ(picture.partAt(5, below), BeamPart{});
}

}  // namespace
}  // namespace trabeon::test
