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
        sheet.text(x, y, sign, 13, colour=BLUE, bold=True)
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
               [(52, 91, "shear")])
    convention("STop", lambda t: -28 * (1 - 2 * t), "left end drawn upward",
               [(52, 76, "shear")])


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


def main():
    PICTURES.mkdir(exist_ok=True)
    HELP.mkdir(exist_ok=True)
    joint_cantilever()
    joint_pinned()
    joint_continuous()
    joint_fixed()
    conventions()
    icon()


if __name__ == "__main__":
    main()
