// Drawings on a form and in a picture.
#include "tests/toolkit/controls_fixture.h"
#include "toolkit/drawing/drawing_view.h"

namespace trabeon {
namespace {

const Drawing areaAndText{
    PathShape{{{10, 10}, {60, 10}, {60, 30}, {10, 30}}, std::nullopt, 0xff0000},
    PathShape{{{0, 50}, {90, 50}}, Pen{0x0000ff, 3}},
    ArcShape{{80, 20}, 8, 0, 360, std::nullopt, 0x00ff00},
    TextShape{{20, 60}, "HHHH", 0x000000, true}};

QRect darkIn(const QImage& picture) {
    QRect dark;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            if (qGray(picture.pixel(x, y)) < 40 && qBlue(picture.pixel(x, y)) < 60 &&
                qRed(picture.pixel(x, y)) < 60)
                dark |= QRect(x, y, 1, 1);
    return dark;
}

TEST_F(ControlsTest, ADrawingIsThereOnTheFormAndSharpInAPicture) {
    DrawingView view(Bench());
    view.SetFont("Arial", 9, false);
    view.Move(0, 0, 1800, 1500);
    int made = 0;
    view.Draw = [&] { return ++made, areaAndText; };
    view.Redraw();
    view.Redraw();
    const QImage face = Face(view);
    EXPECT_EQ(made, 1);  // when it is looked at
    const int border = (face.width() - int(view.InnerWidth())) / 2;
    EXPECT_EQ(face.pixelColor(border + 20, border + 20), QColor(0xff0000));
    EXPECT_EQ(face.pixelColor(border + 45, border + 50), QColor(0x0000ff));
    EXPECT_EQ(face.pixelColor(border + 80, border + 20), QColor(0x00ff00));
    EXPECT_EQ(face.pixelColor(border + 5, border + 5), QColor(Qt::white));
    const QImage picture = view.PictureOf(areaAndText);
    EXPECT_EQ(picture.width(), 4 * view.InnerWidth());
    EXPECT_EQ(picture.pixelColor(4 * 20, 4 * 20), QColor(0xff0000));
    const auto size = view.Measure()("HHHH", true);
    const QRect text = darkIn(picture);
    EXPECT_NEAR(text.left() / 4.0, 20, 2);
    EXPECT_NEAR(text.width() / 4.0, size.width, 3);
    EXPECT_GE(text.top() / 4.0, 60);
    EXPECT_LE(text.bottom() / 4.0, 60 + size.height);
    view.Redraw();
    EXPECT_EQ((view.CopyToClipboard(view.Drawn()), outside.clipboardPicture), picture);
    EXPECT_EQ(made, 2);
}

TEST_F(ControlsTest, APressOnADrawingIsToldFromTheCornerInsideItsBorder) {
    DrawingView view(Bench());
    view.Move(0, 0, 1800, 1500);
    QPointF at;
    view.Click = [&](double x, double y) { at = {x, y}; };
    Click(view, {30, 20});
    const double border = (120 - view.InnerWidth()) / 2;
    EXPECT_EQ(at, QPointF(30 - border, 20 - border));
    QTest::mouseClick(view.Widget(), Qt::RightButton, {}, {50, 50});
    EXPECT_EQ(at, QPointF(30 - border, 20 - border));
}

}  // namespace
}  // namespace trabeon
