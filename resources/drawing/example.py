"""The manual's worked example: two spans of 6 m, 12 kN/m, M = 27 x - 6 x x in span 1."""

from math import pi

from drawing.parts import spread, support
from drawing.sheet import BLUE, GREY, INK, PALE, RED, SKY, Sheet


def example_moment(x):
    return 27 * x - 6 * x * x if x <= 6 else -54 + 45 * (x - 6) - 6 * (x - 6) ** 2


def example_shear(x, right_of_support=False):
    second = x > 6 or (x == 6 and right_of_support)
    return 12 * (x - 6) - 45 if second else 12 * x - 27


def example_x(x):
    return 60 + 520 * x / 12


def example_supports(sheet, y):
    for x in (0, 6, 12):
        support(sheet, example_x(x), y, x != 6)


def example_beam():
    sheet = Sheet(640, 160)
    spread(sheet, example_x(0), example_x(12), 62, 26, pitch=20)
    sheet.text(example_x(6), 18, "12 kN/m", 14, bold=True, colour=RED)
    sheet.line([(example_x(0), 65), (example_x(12), 65)], 5)
    example_supports(sheet, 67)
    for k, words in enumerate(("joint 1", "joint 2", "joint 3")):
        sheet.text(example_x(6 * k), 96, words, 13, bold=True)
    for k in (0, 1):
        sheet.text(example_x(3 + 6 * k), 84, f"member {k + 1}", 13, colour=BLUE, bold=True)
        sheet.dimension(example_x(6 * k), example_x(6 * k + 6), 128, "6 m", size=13)
    sheet.save_png("example-beam")


def example_panel(sheet, top, title, points, factor, lift, values):
    """One diagram of the example. `factor` is 1 for option A and -1 for option B. Values are (x, value,
    text, dx, dy, anchor)."""
    base = top + (96 if factor * lift < 0 else 84)
    big = [(example_x(x), base - factor * lift * v) for x, v in points]
    sheet.fill([(example_x(0), base)] + big + [(example_x(12), base)], SKY)
    sheet.line(big, 2, BLUE)
    sheet.line([(example_x(0) - 16, base), (example_x(12) + 16, base)], 2)
    for x in (0, 6, 12):
        sheet.line([(example_x(x), base - 4), (example_x(x), base + 4)], 1.5)
    sheet.text(20, top + 12, title, 14, "lm", True)
    for x, value, words, dx, dy, anchor in values:
        y = base - factor * lift * value
        sheet.disc(example_x(x), y, 3, BLUE)
        sheet.text(example_x(x) + dx, y + dy, words, 13, anchor, colour=INK)


def example_diagrams():
    points = [(12 * k / 240, example_moment(12 * k / 240)) for k in range(241)]
    sheet = Sheet(640, 372)
    for top, title, factor in ((0, "Option B: sagging drawn downward", -1),
                               (186, "Option A: sagging drawn upward", 1)):
        below = 13 if factor < 0 else -13
        values = [(2.25, 30.375, "30.4 at 2.25", 0, below, "mm"),
                  (9.75, 30.375, "30.4 at 3.75 of span 2", 0, below, "mm"),
                  (6, -54, "54 hogging", 10, 0, "lm")]
        example_panel(sheet, top, title, points, factor, 1.3, values)
    sheet.save_png("bmd-two-span")

    points = [(0, 0), (0, -27), (6, 45), (6, -45), (12, 27), (12, 0)]
    sheet = Sheet(640, 372)
    for top, title, factor in ((0, "Option B: left end drawn upward", -1),
                               (186, "Option A: left end drawn downward", 1)):
        values = [(0, -27, "27", 8, -8 * -factor, "lm"), (6, 45, "45", 8, 0, "lm"),
                  (6, -45, "45", -8, 0, "rm"), (12, 27, "27", -8, -8 * factor, "rm")]
        example_panel(sheet, top, title, points, factor, 1.5, values)
    sheet.save_png("sfd-two-span")


def section(sheet, x, title, top_bars, bottom_bars, words):
    """A section of 225 x 400 mm at 0.5 pixels per mm. Bars are (count, size)."""
    scale, top = 0.5, 40
    width, depth = 225 * scale, 400 * scale
    sheet.text(x + width / 2, 16, title, 14, bold=True)
    sheet.box(x, top, x + width, top + depth, INK)
    sheet.box(x + 2, top + 2, x + width - 2, top + depth - 2, PALE)
    cover, link = 25 * scale, 10 * scale
    inset = cover + link / 2
    sheet.line([(x + inset, top + inset), (x + width - inset, top + inset),
                (x + width - inset, top + depth - inset), (x + inset, top + depth - inset),
                (x + inset, top + inset - 1)], 2.5, BLUE)
    for (count, size), y, face in ((top_bars, top + 47.5 * scale, "top"),
                                   (bottom_bars, top + depth - 47.5 * scale, "bottom")):
        radius = size * scale / 2
        first = x + cover + link + radius
        last = x + width - cover - link - radius
        for k in range(count):
            sheet.disc(first + (last - first) * k / (count - 1), y, max(radius, 3), RED)
        sheet.line([(x + width + 4, y), (x + width + 20, y)], 1, GREY)
        sheet.text(x + width + 25, y, f"{count}Y{size} {face}", 13, "lm")
    sheet.text(x + width + 25, top + depth / 2, words, 13, "lm", colour=BLUE)
    sheet.dimension(x, x + width, top + depth + 14, "225")


def example_sections():
    sheet = Sheet(640, 278)
    section(sheet, 50, "over the support", (2, 20), (2, 12), "1R6-136")
    section(sheet, 360, "in the span, at the maximum", (2, 12), (2, 16), "1R6-136")
    sheet.line([(34, 40), (34, 240)], 1, GREY)
    for y, angle in ((40, -pi / 2), (240, pi / 2)):
        sheet.line([(30, y), (38, y)], 1, GREY)
        sheet.head(34, y, angle, 6, GREY)
    sheet.text(18, 140, "400", 12, colour=GREY)
    sheet.save_png("example-sections")


def draw():
    example_beam()
    example_diagrams()
    example_sections()
