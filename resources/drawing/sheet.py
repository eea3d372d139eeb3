"""The sheet that every picture is drawn on.

Shapes are drawn at eight times their size and then reduced, which smooths their edges. Text is drawn
afterwards at its real size, which keeps it sharp. Measures are in pixels of the finished picture, x to
the right and y downward.
"""

from math import atan2, cos, pi, sin
from pathlib import Path

from PIL import Image, ImageDraw, ImageFont

HERE = Path(__file__).resolve().parent.parent
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
    """A white picture of the given size. It is saved as GIF or PNG."""

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
        """Joins the points. Vertical and horizontal pieces are boxes, so that they stay sharp."""
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
        """The head of an arrow with its tip at (x, y). It points in the direction of the angle."""
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
        """A curved arrow around (x, y) between two angles in degrees. Rising angles are clockwise."""
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
        """Draws text at its real size. The anchor is one of Pillow's: lm, mm, rm."""
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
