"""The pictures in the windows: the joint types, the sign options and the icon."""

from PIL import Image, ImageDraw

from drawing.parts import area, beam, curve, ground, spread, support, triangle, wall
from drawing.sheet import BLUE, PICTURES, RED, SCALE, SKY, Sheet, WHITE


# The joint types

def joint_cantilever():
    sheet = Sheet(240, 120)
    beam(sheet, 10, 216, 50, broken="L")
    triangle(sheet, 78, 56)
    ground(sheet, 78, 77)
    sheet.arrow((216, 12), (216, 43), 2, RED, 9)
    curve(sheet, lambda t: 50 + 30 * t * t * (3 - t) / 2, 78, 216)
    sheet.text(164, 102, "free end", 16)
    sheet.dashes((216, 60), (216, 112))
    sheet.save_gif("Cantilever")


def joint_pinned():
    sheet = Sheet(240, 120)
    beam(sheet, 24, 230, 46, broken="R")
    triangle(sheet, 40, 52, 26, 16)
    ground(sheet, 40, 79, 26)
    sheet.ring(40, 46, 7, 2.4, RED)
    curve(sheet, lambda t: 46 + 36 * (t - t ** 3 * 0.34) if t else 46, 47, 230)
    sheet.text(150, 102, "pinned end", 16)
    sheet.save_gif("Pin Jointed")


def joint_continuous():
    sheet = Sheet(240, 120)
    beam(sheet, 10, 230, 46, broken="LR")
    triangle(sheet, 120, 52, 26, 16)
    ground(sheet, 120, 79, 26)
    curve(sheet, lambda t: 46 + 28 * (1 - (1 - t) ** 2 * (1 + 0.6 * t)) * t ** 0.6, 120, 230)
    curve(sheet, lambda t: 46 + 28 * (1 - (1 - t) ** 2 * (1 + 0.6 * t)) * t ** 0.6, 120, 10)
    sheet.text(120, 104, "beam runs through", 16)
    sheet.save_gif("Continuous")


def joint_fixed():
    sheet = Sheet(240, 120)
    beam(sheet, 30, 230, 46, broken="R")
    wall(sheet, 30, 46, 38)
    curve(sheet, lambda t: 46 + 30 * t * t * (3 - 2 * t), 32, 230)
    sheet.text(140, 102, "fixed end", 16)
    sheet.save_gif("Fixed")


# The sign options

def convention(name, shape, words, inside_words):
    sheet = Sheet(240, 140)
    left, right = 30, 210
    spread(sheet, left, right, 28, 20, pitch=20)
    beam(sheet, left, right, 33, 8)
    support(sheet, left + 1, 37, size=0.8)
    support(sheet, right - 1, 37, size=0.8)
    base = 83
    area(sheet, shape, left, right, base)
    sheet.line([(left - 12, base), (right + 12, base)], 2)
    for x, y, sign in inside_words:
        sheet.text(x, y, sign, 12, colour=BLUE, bold=True)
    sheet.text(120, 127, words, 17)
    sheet.save_gif(name)


def conventions():
    sag = 30

    def upward(t):
        return -4 * sag * t * (1 - t)

    def downward(t):
        return 4 * sag * t * (1 - t)

    convention("BMTop", upward, "sagging drawn upward", [(120, 69, "sagging")])
    convention("BMBot", downward, "sagging drawn downward", [(120, 97, "sagging")])
    convention("SBot", lambda t: 28 * (1 - 2 * t), "left end drawn downward",
               [(49, 91, "shear")])
    convention("STop", lambda t: -28 * (1 - 2 * t), "left end drawn upward",
               [(49, 75, "shear")])


# The icon: a beam of two spans with its moment diagram

ICON_ROUND = 44
ICON_BEAM = (28, 92, 228, 112)
ICON_SUPPORTS = ((44, 112), (128, 112), (212, 112))
ICON_ARROWS = (44, 86, 128, 170, 212)


def icon_curve(steps=24):
    """The moment of two equal spans under a uniform load. Sagging is downward."""
    points = []
    for span in (0, 1):
        for k in range(steps + 1):
            t = k / steps
            moment = 3 * t - 4 * t * t if span == 0 else -1 + 5 * t - 4 * t * t
            points.append((44 + 84 * (span + t), 190 + 42 * moment))
    return points


def icon():
    svg = ['<svg xmlns="http://www.w3.org/2000/svg" width="256" height="256" viewBox="0 0 256 256">',
           "<title>Trabeon</title>"]
    sheet = Sheet(256, 256)

    def colour(rgb):
        return "#%02x%02x%02x" % rgb

    def polygon(points, rgb):
        sheet.fill(points, rgb)
        text = " ".join(f"{x:.2f},{y:.2f}" for x, y in points)
        svg.append(f'<polygon points="{text}" fill="{colour(rgb)}"/>')

    def rounded(x1, y1, x2, y2, radius, rgb):
        big = [round(v * SCALE) for v in (x1, y1, x2, y2)]
        sheet.draw.rounded_rectangle(big, radius * SCALE, fill=rgb)
        svg.append(f'<rect x="{x1}" y="{y1}" width="{x2 - x1}" height="{y2 - y1}" '
                   f'rx="{radius}" fill="{colour(rgb)}"/>')

    rounded(8, 8, 248, 248, ICON_ROUND, BLUE)
    for x in ICON_ARROWS:
        polygon([(x - 4, 40), (x + 4, 40), (x + 4, 66), (x + 12, 66), (x, 84), (x - 12, 66),
                 (x - 4, 66)], SKY)
    rounded(*ICON_BEAM, 3, WHITE)
    for x, y in ICON_SUPPORTS:
        polygon([(x, y - 2), (x - 17, y + 28), (x + 17, y + 28)], WHITE)
    points = icon_curve()
    polygon([(44, 190)] + points + [(212, 190)], (126, 178, 222))
    path = " ".join(f"{x:.2f},{y:.2f}" for x, y in points)
    sheet.line(points, 7, WHITE)
    sheet.line([(36, 190), (220, 190)], 4, WHITE)
    svg.append(f'<polyline points="{path}" fill="none" stroke="{colour(WHITE)}" stroke-width="7" '
               'stroke-linejoin="round"/>')
    svg.append(f'<rect x="36" y="188" width="184" height="4" fill="{colour(WHITE)}"/>')
    svg.append("</svg>")
    (PICTURES / "trabeon.svg").write_text("\n".join(svg) + "\n")

    outline = Image.new("L", sheet.image.size, 0)
    ImageDraw.Draw(outline).rounded_rectangle([v * SCALE for v in (8, 8, 248, 248)],
                                              ICON_ROUND * SCALE, fill=255)
    sheet.image.putalpha(outline)
    sheet.image.resize((256, 256), Image.Resampling.BOX).save(PICTURES / "trabeon.png",
                                                              optimize=True)

def draw():
    joint_cantilever()
    joint_pinned()
    joint_continuous()
    joint_fixed()
    conventions()
    icon()
