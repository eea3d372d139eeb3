"""The pictures of the manual, except those of its worked example."""

from math import pi

from drawing.parts import beam, curve, spread, support
from drawing.sheet import BLUE, GREY, INK, PALE, RED, ROSE, SKY, Sheet


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
    for side, left, free, word, root, load in (("left", 40, 40, 70, 210, 96),
                                               ("right", 350, 600, 572, 430, 540)):
        sheet.text(left, 12, f"cantilever at the {side} end", 13, "lm", True)
        beam(sheet, left, left + 250, 66, 8, "R" if side == "left" else "L")
        support(sheet, root, 70)
        sheet.arrow((load, 20), (load, 61), 2.5, RED, 10)
        sheet.dimension(min(free, root), load, 106, "a")
        sheet.dimension(min(free, root), max(free, root), 132, "L")
        for at, top, bottom in ((free, 72, 138), (load, 72, 112), (root, 90, 138)):
            sheet.dashes((at, top), (at, bottom))
        sheet.text(word, 50, "free", 12, colour=GREY)
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


def draw():
    beam_parts()
    loads()
    cantilevers()
    sign_relaxation()
    sign_results()
    data_flow()
    stations()
