#!/usr/bin/env python3
"""Draws every picture of the program and of its manual.

Needs Pillow (Debian: python3-pil) and the Liberation fonts (Debian: fonts-liberation).
Run it from anywhere; it writes pictures/*.gif, pictures/trabeon.* and help/*.png beside itself.

Shapes are drawn at eight times their size and reduced, which smooths their edges; words are set
afterwards at their real size, which keeps them crisp. Measures are in pixels of the finished
picture, x to the right and y downward.
"""

from math import atan2, cos, pi, sin
from pathlib import Path

from PIL import Image, ImageDraw, ImageFont

HERE = Path(__file__).resolve().parent
PICTURES = HERE / "pictures"
HELP = HERE / "help"

SCALE = 8

WHITE = (255, 255, 255)
INK = (38, 44, 52)
GREY = (122, 132, 144)
PALE = (226, 230, 235)
BLUE = (10, 100, 173)
SKY = (214, 230, 244)
RED = (180, 50, 38)
ROSE = (248, 226, 222)


def font(size, bold=False):
    style = "Bold" if bold else "Regular"
    return ImageFont.truetype(f"LiberationSans-{style}.ttf", size)


class Sheet:
    """A white picture of the given size that is drawn on and then saved as GIF or PNG."""

    def __init__(self, width, height, background=WHITE):
        self.size = (width, height)
        self.image = Image.new("RGB", (width * SCALE, height * SCALE), background)
        self.draw = ImageDraw.Draw(self.image)
        self.words = []

    @staticmethod
    def _big(points):
        return [(round(x * SCALE), round(y * SCALE)) for x, y in points]

    def fill(self, points, colour):
        self.draw.polygon(self._big(points), fill=colour)

    def box(self, x1, y1, x2, y2, colour):
        big = self._big([(min(x1, x2), min(y1, y2)), (max(x1, x2), max(y1, y2))])
        self.draw.rectangle([big[0], (big[1][0] - 1, big[1][1] - 1)], fill=colour)

    def disc(self, x, y, radius, colour):
        self.draw.ellipse(self._big([(x - radius, y - radius), (x + radius, y + radius)]),
                          fill=colour)

    def ring(self, x, y, radius, width, colour, inside=WHITE):
        self.disc(x, y, radius, colour)
        self.disc(x, y, radius - width, inside)

    def line(self, points, width=1.5, colour=INK):
        """Joins the points; upright and level pieces are boxes, so they stay sharp."""
        for (x1, y1), (x2, y2) in zip(points, points[1:]):
            half = width / 2
            if abs(x1 - x2) < 1e-9:
                self.box(x1 - half, y1, x1 + half, y2, colour)
            elif abs(y1 - y2) < 1e-9:
                self.box(x1, y1 - half, x2, y1 + half, colour)
            else:
                angle = atan2(y2 - y1, x2 - x1)
                dx, dy = half * sin(angle), half * cos(angle)
                self.fill([(x1 - dx, y1 + dy), (x1 + dx, y1 - dy),
                           (x2 + dx, y2 - dy), (x2 - dx, y2 + dy)], colour)
        for x, y in points[1:-1]:
            self.disc(x, y, width / 2, colour)

    def dashes(self, start, end, width=1, colour=GREY, dash=4, gap=3):
        (x1, y1), (x2, y2) = start, end
        length = ((x2 - x1) ** 2 + (y2 - y1) ** 2) ** 0.5
        at = 0.0
        while at < length:
            to = min(at + dash, length)
            self.line([(x1 + (x2 - x1) * at / length, y1 + (y2 - y1) * at / length),
                       (x1 + (x2 - x1) * to / length, y1 + (y2 - y1) * to / length)],
                      width, colour)
            at += dash + gap

    def head(self, x, y, angle, size=7, colour=INK):
        """An arrow's head with its tip at (x, y), pointing along the angle."""
        points = [(x, y)]
        for side in (-1, 1):
            points.append((x - size * cos(angle) + side * size * 0.42 * sin(angle),
                           y - size * sin(angle) - side * size * 0.42 * cos(angle)))
        self.fill(points, colour)

    def arrow(self, start, end, width=1.5, colour=INK, size=7):
        (x1, y1), (x2, y2) = start, end
        angle = atan2(y2 - y1, x2 - x1)
        self.line([start, (x2 - 0.8 * size * cos(angle), y2 - 0.8 * size * sin(angle))],
                  width, colour)
        self.head(x2, y2, angle, size, colour)

    def turn(self, x, y, radius, start, end, width=2, colour=BLUE, size=8):
        """A curved arrow about (x, y) from one angle to the other, in degrees; rising is clockwise."""
        steps = 40
        sense = 1 if end > start else -1
        last = end - sense * size / radius * 40
        points = []
        for k in range(steps + 1):
            t = (start + (last - start) * k / steps) * pi / 180
            points.append((x + radius * cos(t), y + radius * sin(t)))
        self.line(points, width, colour)
        t = end * pi / 180
        self.head(x + radius * cos(t), y + radius * sin(t), t + sense * (pi / 2 - 0.2), size, colour)

    def text(self, x, y, words, size=13, anchor="mm", bold=False, colour=INK):
        """Sets words at their real size; the anchor is Pillow's: lm, mm, rm."""
        self.words.append((x, y, words, size, anchor, bold, colour))

    def dimension(self, x1, x2, y, words, colour=GREY, size=12):
        self.line([(x1, y), (x2, y)], 1, colour)
        for x, angle in ((x1, pi), (x2, 0)):
            self.line([(x, y - 4), (x, y + 4)], 1, colour)
            self.head(x, y, angle, 6, colour)
        self.text((x1 + x2) / 2, y + 9, words, size, colour=colour)

    def finished(self):
        small = self.image.resize(self.size, Image.Resampling.BOX)
        draw = ImageDraw.Draw(small)
        for x, y, words, size, anchor, bold, colour in self.words:
            draw.text((round(x), round(y)), words, font=font(size, bold), fill=colour,
                      anchor=anchor)
        return small

    def save_gif(self, name):
        palette = self.finished().quantize(64, Image.Quantize.MEDIANCUT, kmeans=2,
                                           dither=Image.Dither.NONE)
        colours = palette.getpalette()
        corner = palette.getpixel((0, 0)) * 3
        colours[corner:corner + 3] = WHITE
        palette.putpalette(colours)
        palette.save(PICTURES / f"{name}.gif", optimize=True)

    def save_png(self, name):
        self.finished().quantize(128, Image.Quantize.MEDIANCUT, kmeans=1,
                                 dither=Image.Dither.NONE).save(HELP / f"{name}.png", optimize=True)


# Parts of a beam

def beam(sheet, x1, x2, y, depth=12, broken=""):
    """A beam about the level y; `broken` holds L or R for an end that goes on beyond the picture."""
    top, bottom = y - depth / 2, y + depth / 2
    sheet.box(x1, top, x2, bottom, PALE)
    sheet.line([(x1, top), (x2, top)], 2)
    sheet.line([(x1, bottom), (x2, bottom)], 2)
    for end, x in (("L", x1), ("R", x2)):
        if end in broken:
            sheet.line([(x, top - 7), (x, y - 5), (x - 5, y - 2), (x + 5, y + 2), (x, y + 5),
                        (x, bottom + 7)], 1.5)
        else:
            sheet.line([(x, top - 1), (x, bottom + 1)], 2)


def ground(sheet, x, y, half=22, colour=INK):
    sheet.line([(x - half, y), (x + half, y)], 2, colour)
    at = x - half + 5
    while at <= x + half:
        sheet.line([(at, y + 1), (at - 6, y + 8)], 1.2, GREY)
        at += 6.5


def triangle(sheet, x, y, height=20, half=13, inside=WHITE):
    sheet.fill([(x, y), (x - half, y + height), (x + half, y + height)], INK)
    sheet.fill([(x, y + 4.4), (x - half + 3.4, y + height - 2), (x + half - 3.4, y + height - 2)],
               inside)


def wall(sheet, x, y, half=34):
    """A wall whose face stands at x, the beam on its right."""
    at = y - half + 4
    while at <= y + half:
        sheet.line([(x, at), (x - 9, at + 8)], 1.2, GREY)
        at += 8
    sheet.line([(x, y - half), (x, y + half)], 3)


def spread(sheet, x1, x2, y, height1, height2=None, colour=RED, pitch=16):
    """A distributed load that stands on the level y."""
    height2 = height1 if height2 is None else height2
    sheet.fill([(x1, y), (x1, y - height1), (x2, y - height2), (x2, y)], ROSE)
    sheet.line([(x1, y - height1), (x2, y - height2)], 1.5, colour)
    count = max(1, round((x2 - x1) / pitch))
    for k in range(count + 1):
        x = x1 + (x2 - x1) * k / count
        height = height1 + (height2 - height1) * k / count
        if height > 8:
            sheet.arrow((x, y - height), (x, y), 1.2, colour, 6)
        elif height > 1:
            sheet.line([(x, y - height), (x, y)], 1.2, colour)


def support(sheet, x, y, pinned=False, size=1.0):
    """A small support with its tip at (x, y), as the diagram of the program draws it."""
    triangle(sheet, x, y, 15 * size, 10 * size)
    if pinned:
        sheet.disc(x, y, 4 * size, RED)


def curve(sheet, function, x1, x2, width=2, colour=BLUE, steps=80):
    points = [(x1 + (x2 - x1) * k / steps, function(k / steps)) for k in range(steps + 1)]
    sheet.line(points, width, colour)


def area(sheet, function, x1, x2, base, steps=120, colour=BLUE, inside=SKY, ends=True):
    """The diagram of a function of 0 to 1, in pixels downward from the base line."""
    points = [(x1 + (x2 - x1) * k / steps, base + function(k / steps)) for k in range(steps + 1)]
    sheet.fill([(x1, base)] + points + [(x2, base)], inside)
    sheet.line(([(x1, base)] if ends else []) + points + ([(x2, base)] if ends else []), 2, colour)


# The four joint types

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


# The icon: a beam over two spans with its moment diagram

ICON_ROUND = 44
ICON_BEAM = (28, 92, 228, 112)
ICON_SUPPORTS = ((44, 112), (128, 112), (212, 112))
ICON_ARROWS = (44, 86, 128, 170, 212)


def icon_curve(steps=24):
    """The moment of two equal spans under a uniform load, sagging downward."""
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


# The pictures of the manual

def beam_parts():
    sheet = Sheet(640, 172)
    x = (50, 230, 410, 590)
    y = 62
    for k in range(3):
        middle = (x[k] + x[k + 1]) / 2
        sheet.text(middle, y - 40, f"member {k + 1}", 14, bold=True, colour=BLUE)
        sheet.line([(x[k] + 6, y - 26), (x[k + 1] - 6, y - 26)], 1, BLUE)
        sheet.head(x[k] + 6, y - 26, pi, 6, BLUE)
        sheet.head(x[k + 1] - 6, y - 26, 0, 6, BLUE)
        for end, at in ((2 * k + 1, x[k] + 24), (2 * k + 2, x[k + 1] - 24)):
            sheet.ring(at, y, 11, 1.4, RED)
            sheet.text(at, y, str(end), 13, colour=RED)
    sheet.line([(x[0], y), (x[0] + 13, y)], 4)
    for k in range(3):
        sheet.line([(x[k] + 35, y), (x[k + 1] - 35, y)], 4)
        if k:
            sheet.line([(x[k] - 13, y), (x[k] + 13, y)], 4)
    sheet.line([(x[3] - 13, y), (x[3], y)], 4)
    support(sheet, x[0], y + 2, True)
    support(sheet, x[1], y + 2)
    support(sheet, x[2], y + 2)
    at = y - 22
    while at < y + 24:
        sheet.line([(x[3] + 2, at), (x[3] + 10, at - 7)], 1.2, GREY)
        at += 7
    sheet.line([(x[3], y - 26), (x[3], y + 26)], 3)
    names = ("Pin Jointed", "Continuous", "Continuous", "Fixed")
    for k in range(4):
        sheet.text(x[k], y + 46, f"joint {k + 1}", 14, bold=True)
        sheet.text(x[k], y + 64, names[k], 12, colour=GREY)
    sheet.text(320, 158, "circled: member ends 1 to 6, one column of the table each", 13, colour=RED)
    sheet.save_png("beam-parts")


def loads():
    sheet = Sheet(640, 190)
    for left, right in ((40, 290), (350, 600)):
        sheet.line([(left, 86), (right, 86)], 4)
        support(sheet, left, 88)
        support(sheet, right, 88)
        sheet.dimension(left, right, 158, "L")
    sheet.arrow((190, 26), (190, 82), 2.5, RED, 10)
    sheet.text(203, 36, "P", 15, "lm", True, RED)
    sheet.dashes((190, 90), (190, 130))
    sheet.dimension(40, 190, 120, "a")
    sheet.text(40, 12, "point load", 13, "lm", True)
    spread(sheet, 410, 550, 83, 26, 50, pitch=14)
    sheet.text(404, 62, "w1", 14, "rm", True, RED)
    sheet.text(557, 40, "w2", 14, "lm", True, RED)
    for at in (410, 550):
        sheet.dashes((at, 90), (at, 130))
    sheet.dimension(350, 410, 120, "a")
    sheet.dimension(410, 550, 120, "b")
    sheet.text(350, 12, "distributed load", 13, "lm", True)
    sheet.save_png("loads")


def cantilevers():
    sheet = Sheet(640, 150)
    sheet.text(40, 12, "cantilever at the left end", 13, "lm", True)
    beam(sheet, 40, 290, 66, 8, "R")
    support(sheet, 210, 70)
    sheet.arrow((96, 20), (96, 61), 2.5, RED, 10)
    sheet.dimension(40, 96, 106, "a")
    sheet.dimension(40, 210, 132, "L")
    sheet.dashes((40, 72), (40, 138))
    sheet.dashes((96, 72), (96, 112))
    sheet.dashes((210, 90), (210, 138))
    sheet.text(70, 50, "free", 12, colour=GREY)
    sheet.text(350, 12, "cantilever at the right end", 13, "lm", True)
    beam(sheet, 350, 600, 66, 8, "L")
    support(sheet, 430, 70)
    sheet.arrow((540, 20), (540, 61), 2.5, RED, 10)
    sheet.dimension(430, 540, 106, "a")
    sheet.dimension(430, 600, 132, "L")
    sheet.dashes((430, 90), (430, 138))
    sheet.dashes((540, 72), (540, 112))
    sheet.dashes((600, 72), (600, 138))
    sheet.text(572, 50, "free", 12, colour=GREY)
    sheet.save_png("cantilevers")


def sign_relaxation():
    sheet = Sheet(640, 150)
    sheet.text(20, 12, "in the balance table", 13, "lm", True)
    left, right, y = 120, 400, 78
    spread(sheet, left, right, y - 5, 24, pitch=20)
    sheet.line([(left, y), (right, y)], 5)
    sheet.turn(left, y, 32, 110, 250, 2.4)
    sheet.turn(right, y, 32, -70, 70, 2.4)
    sheet.text(70, y, "+ M", 16, "rm", True, BLUE)
    sheet.text(450, y, "+ M", 16, "lm", True, BLUE)
    sheet.text((left + right) / 2, y + 26, "+ load: downward", 13, colour=RED)
    sheet.text(495, y - 10, "clockwise on the", 13, "lm")
    sheet.text(495, y + 8, "member end: positive", 13, "lm")
    sheet.text((left + right) / 2, 132,
               "a downward load gives a negative left end and a positive right end", 12, "mm",
               colour=GREY)
    sheet.save_png("sign-relaxation")


def sign_results():
    sheet = Sheet(640, 190)
    sheet.text(20, 12, "in the stations, the value tables and the design", 13, "lm", True)

    def bent(x1, x2, y, rise, words, colour):
        middle = (x1 + x2) / 2

        def shape(t):
            return y - rise + rise * 4 * t * (1 - t) * 1.0

        for shift in (-5, 5):
            curve(sheet, lambda t, s=shift: shape(t) + s, x1, x2, 2, INK)
        for end in (x1, x2):
            sheet.line([(end, shape(0) - 6), (end, shape(0) + 6)], 2)
        at = shape(0)
        if rise > 0:
            sheet.turn(x1, at, 22, 110, 250, 2.2, colour)
            sheet.turn(x2, at, 22, 70, -70, 2.2, colour)
        else:
            sheet.turn(x1, at, 22, 250, 110, 2.2, colour)
            sheet.turn(x2, at, 22, -70, 70, 2.2, colour)
        sheet.text(middle, 104, words, 13, colour=colour, bold=True)

    bent(50, 190, 72, 16, "sagging: positive", BLUE)
    bent(260, 400, 56, -16, "hogging: negative", RED)
    sheet.text(120, 122, "tension below", 12, colour=GREY)
    sheet.text(330, 122, "tension above", 12, colour=GREY)

    left, right, y = 470, 610, 62
    spread(sheet, left, 560, y - 4, 20, pitch=18)
    sheet.box(left, y - 4, 560, y + 4, PALE)
    sheet.line([(left, y - 4), (560, y - 4)], 2)
    sheet.line([(left, y + 4), (560, y + 4)], 2)
    sheet.dashes((560, y - 34), (560, y + 34), 1.2, INK)
    sheet.text(576, y, "section", 12, "lm", colour=GREY)
    sheet.arrow((left, y + 36), (left, y + 8), 2.2, BLUE, 9)
    sheet.text(left + 10, y + 27, "R", 14, "lm", True, BLUE)
    sheet.text((left + 600) / 2, 112, "shear = load left of the", 13, bold=True)
    sheet.text((left + 600) / 2, 129, "section minus R", 13, bold=True)
    sheet.text(320, 162, "The shear is negative at the left end of a loaded span and positive at "
               "its right end;", 13, colour=GREY)
    sheet.text(320, 179, "the moment has its peak where the shear is zero.", 13, colour=GREY)
    sheet.save_png("sign-results")


def data_flow():
    sheet = Sheet(640, 250)

    def block(x, y, width, height, title, lines, colour=BLUE, inside=SKY):
        sheet.box(x, y, x + width, y + height, colour)
        sheet.box(x + 1.5, y + 1.5, x + width - 1.5, y + height - 1.5, inside)
        sheet.text(x + width / 2, y + 15, title, 13, bold=True, colour=colour)
        for k, words in enumerate(lines):
            sheet.text(x + width / 2, y + 34 + 17 * k, words, 12)

    block(14, 14, 150, 112, "Input windows", ("Joints", "Members", "Point Load", "Distributed Load"))
    block(245, 14, 150, 112, "Working files", ("Joint.txt  Member.txt", "Point.txt  Udl.txt",
                                              "TB.txt  BM.txt", "BeamDim.txt"), INK, PALE)
    block(476, 14, 150, 112, "Result windows", ("balance table", "diagrams", "value tables",
                                               "beam design"))
    block(245, 184, 150, 52, "Analyse, Design", ("the calculations",), RED, ROSE)
    block(14, 184, 150, 52, "Project file", ("one file, *.TB",), INK, PALE)
    sheet.arrow((168, 56), (241, 56), 2, INK, 9)
    sheet.text(204, 43, "Add", 12)
    sheet.text(204, 70, "Remove", 12)
    sheet.arrow((399, 62), (472, 62), 2, INK, 9)
    sheet.text(435, 49, "on opening", 12)
    sheet.arrow((305, 130), (305, 180), 2, INK, 9)
    sheet.arrow((335, 180), (335, 130), 2, INK, 9)
    sheet.text(344, 155, "results", 12, "lm")
    sheet.text(297, 155, "input", 12, "rm")
    sheet.line([(241, 112), (204, 112), (204, 200)], 2)
    sheet.arrow((204, 200), (168, 200), 2, INK, 9)
    sheet.text(196, 155, "Save", 12, "rm")
    sheet.line([(164, 222), (222, 222), (222, 122)], 2)
    sheet.arrow((222, 122), (241, 122), 2, INK, 9)
    sheet.text(229, 155, "Open", 12, "lm")
    sheet.save_png("data-flow")


def stations():
    """The search for the maximum in the first span of the worked example."""
    sheet = Sheet(640, 216)
    left, right, base, lift = 60, 580, 96, 1.45

    def at(x):
        return left + (right - left) * x / 6

    def shear(x):
        return 12 * x - 27

    def y(x):
        return base - lift * shear(x)

    sheet.fill([(at(0), base), (at(0), y(0)), (at(2.25), base)], SKY)
    sheet.fill([(at(2.25), base), (at(6), y(6)), (at(6), base)], SKY)
    sheet.box(at(1.8), 56, at(2.4), 136, ROSE)
    sheet.line([(at(0), y(0)), (at(6), y(6))], 2, BLUE)
    sheet.line([(at(0), base), (at(6), base)], 2)
    for k in range(11):
        x = 0.6 * k
        sheet.line([(at(x), base - 5), (at(x), base + 5)], 1.2)
        sheet.disc(at(x), y(x), 3.4, BLUE)
        enclosing = k in (3, 4)
        sheet.text(at(x), base + (18 if k > 3 else -16), f"{x:.1f}", 12, bold=enclosing,
                   colour=INK if enclosing else GREY)
    for x, colour in ((2.1, RED), (2.25, RED)):
        sheet.disc(at(x), y(x), 3.4, colour)
    sheet.dashes((at(2.1), y(2.1)), (at(2.1), 166), 1, RED)
    sheet.dashes((at(2.25), y(2.25)), (at(2.25), 182), 1, RED)
    sheet.text(at(2.1) - 5, 166, "first midpoint 2.1: the position kept", 12, "rm", colour=RED)
    sheet.text(at(2.25) + 5, 182, "second midpoint 2.25: shear 0, its moment is kept", 12, "lm",
               colour=RED)
    sheet.text(at(0), 14, "shear along span 1, with its eleven stations", 13, "lm", True)
    sheet.text(at(2.1), 204, "the stations 1.8 and 2.4 enclose the first change of sign", 12,
               colour=GREY)
    sheet.save_png("stations")


# The worked example: two spans of 6 m, 12 kN/m, M = 27 x - 6 x x in span 1

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
    """One diagram of the example: `factor` is that of the option, values are (x, value, text)."""
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
    """A section of 225 x 400 mm, half a pixel to the millimetre, bars as (count, size)."""
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


def manual():
    beam_parts()
    loads()
    cantilevers()
    sign_relaxation()
    sign_results()
    data_flow()
    stations()
    example_beam()
    example_diagrams()
    example_sections()


def main():
    PICTURES.mkdir(exist_ok=True)
    HELP.mkdir(exist_ok=True)
    joint_cantilever()
    joint_pinned()
    joint_continuous()
    joint_fixed()
    conventions()
    icon()
    manual()


if __name__ == "__main__":
    main()
