"""Parts of a beam: its line, supports, loads and curves."""

from drawing.sheet import BLUE, GREY, INK, PALE, RED, ROSE, SKY, WHITE


def beam(sheet, x1, x2, y, depth=12, broken=""):
    """A beam at height y. `broken` contains L or R for an end that continues outside the picture."""
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
    """A wall with its face at x. The beam is on the right."""
    at = y - half + 4
    while at <= y + half:
        sheet.line([(x, at), (x - 9, at + 8)], 1.2, GREY)
        at += 8
    sheet.line([(x, y - half), (x, y + half)], 3)


def spread(sheet, x1, x2, y, height1, height2=None, colour=RED, pitch=16):
    """A distributed load with its lower edge at y."""
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
    """A small support with its tip at (x, y), as in the program's diagram of the structure."""
    triangle(sheet, x, y, 15 * size, 10 * size)
    if pinned:
        sheet.disc(x, y, 4 * size, RED)


def curve(sheet, function, x1, x2, width=2, colour=BLUE, steps=80):
    points = [(x1 + (x2 - x1) * k / steps, function(k / steps)) for k in range(steps + 1)]
    sheet.line(points, width, colour)


def area(sheet, function, x1, x2, base, steps=120, colour=BLUE, inside=SKY, ends=True):
    """The diagram of a function on 0 to 1. Its values are pixels downward from the base line."""
    points = [(x1 + (x2 - x1) * k / steps, base + function(k / steps)) for k in range(steps + 1)]
    sheet.fill([(x1, base)] + points + [(x2, base)], inside)
    sheet.line(([(x1, base)] if ends else []) + points + ([(x2, base)] if ends else []), 2, colour)
