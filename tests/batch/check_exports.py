#!/usr/bin/env python3
"""Reads the exports of a project with Python's own readers and calculates them again.

    check_exports.py PROGRAM PROJECT

Both formats must have the same cells. With the end moments of the exported relaxation, exact
fractions give the moments, shears, rotations and deflections of every station by Macaulay's
brackets, the reactions, and the extremes: their values, and that the shear or the rotation changes
its sign there.
"""
import csv
import io
import json
import subprocess
import sys
from fractions import Fraction

PROGRAM, PROJECT = sys.argv[1:]
TABLES = "relaxation members reactions stations design".split()
failures = []


def expect(condition, what):
    if not condition:
        failures.append(what)


def close(what, got, exact, size=0):
    """`size` is the size of what the value is a difference of."""
    expect(abs(Fraction(got) - exact) <= 1e-9 * abs(exact) + 1e-12 * abs(size), f"{what}: {got}, not {float(exact)}")


def exported(table, *options):
    words = [PROGRAM, "export", PROJECT, table, *options]
    return subprocess.run(words, check=True, capture_output=True).stdout.decode("utf-8")


def rows_of(table):
    """The rows as dictionaries; numbers as numbers."""
    text = exported(table)
    expect(text.count("\r\n") == text.count("\n"), f"{table}: CR LF")
    heading, *rows = csv.reader(io.StringIO(text, newline=""), strict=True)
    data = json.loads(exported(table, "--format", "json"))
    expect(list(data) == ["project", "designer", "beam", "table", "columns", "rows"], f"{table}: keys")
    expect((data["table"], data["columns"]) == (table, heading), f"{table}: columns")
    expect(len(data["rows"]) == len(rows), f"{table}: rows")
    for cells, values in zip(rows, data["rows"]):
        for cell, value in zip(cells, values, strict=True):
            same = cell == value if isinstance(value, str) else float(cell) == value
            expect(same and cell != "-0" and not cell.endswith(".0"), f"{table}: {cell} and {value}")
    return [dict(zip(heading, values)) for values in data["rows"]]


class Member:
    """Moments, shears and integrals of a member in exact fractions, from its left end."""

    def __init__(self, L, EI, left, right, points, udls):
        self.L, self.EI, self.left, self.points, self.udls = L, EI, left, points, udls
        about = sum(P * (L - a) for a, P in points) + sum(
            b * ((w1 + w2) * (L - a) / 2 - b * (w1 + 2 * w2) / 6) for a, b, w1, w2 in udls)
        self.reaction = (right - left + about) / L
        self.turn = self.force(3, L) / (EI * L)  # so that the right end does not move

    def force(self, order, x):
        """The integral of the moment, `order` - 1 times; order 0 is its slope."""
        factor = [1, 1, 2, 6, 24, 120]
        power = lambda d, n: d ** n / Fraction(factor[n]) if d > 0 else Fraction(0)
        value = (self.left * power(x, order - 1) if order > 1 else self.left if order else 0)
        value += self.reaction * (power(x, order) if order else 1)
        for a, P in self.points:
            value -= P * power(x - a, order) if order else P * (x > a)
        for a, b, w1, w2 in self.udls:
            slope = (w2 - w1) / b
            value -= w1 * power(x - a, order + 1) + slope * power(x - a, order + 2)
            value += w2 * power(x - a - b, order + 1) + slope * power(x - a - b, order + 2)
        return value

    def moment(self, x): return self.force(1, x)
    def shear(self, x): return -self.force(0, x)
    def rotation(self, x): return self.turn - self.force(2, x) / self.EI
    def deflection(self, x): return self.turn * x - self.force(3, x) / self.EI


def members_of(final, lengths):
    number = lambda text: Fraction(float(text))  # as the program reads it
    lines = open(PROJECT, newline="").read().split("\r\n")
    heads = [i for i, line in enumerate(lines) if line.startswith(("MEMBERS", "LOADING", "TRABEON"))]
    rows, points, udls = ([next(csv.reader([line])) for line in lines[a + 1:b]] for a, b in zip(heads, heads[1:]))
    members = []
    for i, row in enumerate(rows, 1):
        own = lambda loads, count: [tuple(map(number, load[1:count])) for load in loads if int(load[0]) == i]
        expect(float(number(row[3])) == lengths[i - 1], f"length of member {i}")
        members.append(Member(number(row[3]), number(row[1]) * number(row[2]), *final[i - 1],
                              own(points, 3), own(udls, 5)))
    return members


def check(tables):
    last = tables["relaxation"][-1]["row"]
    ends = [Fraction(row["value"]) for row in tables["relaxation"] if row["row"] == last]
    final = [(left, -right) for left, right in zip(ends[::2], ends[1::2])]
    members = members_of(final, [row["length"] for row in tables["members"]])
    members[-1].turn = members[-2].rotation(members[-2].L)  # the last one is a cantilever
    load = sum(sum(P for _, P in m.points) + sum(b * (w1 + w2) / 2 for _, b, w1, w2 in m.udls) for m in members)
    for row in tables["stations"]:
        m, x = members[row["member"] - 1], Fraction(row["x"])
        where = f"member {row['member']} at {row['x']}"
        x = min(x, m.L)
        close(where + " M", row["M"], m.moment(x), load * m.L)
        close(where + " V", row["V"], m.shear(x), load)
        close(where + " rotation", row["rotation"], m.rotation(x), load * m.L ** 2 / m.EI)
        close(where + " deflection", row["deflection"], m.deflection(x), load * m.L ** 3 / m.EI)
    for row, m in zip(tables["members"], members, strict=True):
        near = lambda slope, x: slope(max(x - m.L / 10**7, 0)) * slope(min(x + m.L / 10**7, m.L)) <= 0
        for value, place, curve, slope in (("M_max", "x_M_max", m.moment, m.shear),
                                           ("M_min", "x_M_min", m.moment, m.shear),
                                           ("deflection_max", "x_deflection_max", m.deflection, m.rotation)):
            x = Fraction(row[place])
            close(f"member {row['member']} {value}", row[value], curve(x), load * m.L ** (1 if slope == m.shear else 3) / (1 if slope == m.shear else m.EI))
            expect(x in (0, m.L) or near(slope, x), f"member {row['member']}: {place}")
    for j, row in enumerate(tables["reactions"]):
        left = members[j - 1].shear(members[j - 1].L) if j > 0 else 0
        right = -members[j].shear(Fraction(0)) if j < len(members) else 0
        close(f"reaction {j + 1}", row["reaction"], left + right if row["type"] != "Cantilever" else 0, load)
    close("sum", sum(Fraction(row["reaction"]) for row in tables["reactions"]), load, load)


tables = {table: rows_of(table) for table in TABLES}
check(tables)
print("\n".join(failures) or f"{sum(map(len, tables.values()))} rows hold.")
sys.exit(bool(failures))
