#!/usr/bin/env python3
"""A second, simple and slow implementation of the analysis.

    analyse.py IN OUT [--divisions N] [--places P]

It reads Joint.txt, Member.txt, Point.txt and Udl.txt of the folder IN. It writes the files of an analysis
to the folder OUT: Point.txt and Udl.txt in normal form with their copies Point.tmp and Udl.tmp, the
balance table TB.txt, the stations BM.txt and the maxima BMMax.txt. If the beam breaks a rule, it prints
the messages in order, one per line, writes nothing and ends with 1.

It shares no code with the program, so that both can be compared byte by byte. Sums of forces and moments
are doubles. Fixed-end moments of distributed loads are exact fractions, rounded once at the end, because
the closed forms subtract large numbers with a small difference. Number texts use decimal numbers.
"""
import argparse
import math
import os
import re
import sys
from collections import namedtuple
from decimal import ROUND_HALF_UP, Context, Decimal
from fractions import Fraction

Point = namedtuple("Point", "a P")
Udl = namedtuple("Udl", "a b w1 w2")
Beam = namedtuple("Beam", "joints lengths stiffness points udls")  # loads: a list for each member

# ---------------------------------------------------------------- number texts

def number(text):
    """The longest leading decimal number of a text, 0 if there is none."""
    found = re.match(r" *([+-]?(\d+\.?\d*|\.\d+)([eE][+-]?\d+)?)", text)
    return float(found[1]) if found else 0.0


def decimal15(value):
    """The decimal value at 15 significant digits. Ties go away from zero. Zero has no sign."""
    rounded = Context(prec=15, rounding=ROUND_HALF_UP).create_decimal(Decimal(value))
    return rounded if rounded else Decimal(0)


def generated(value):
    """Generated number text: " 3", " 0.386", "-2.5", " 1E+15"."""
    rounded = decimal15(value)
    if not rounded:
        return " 0"
    sign, digits, _ = rounded.as_tuple()
    power = rounded.adjusted()
    digits = "".join(map(str, digits)).rstrip("0")
    if power >= 15 or power < -4:
        mantissa = digits[0] + ("." + digits[1:] if len(digits) > 1 else "")
        text = "%sE%s%02d" % (mantissa, "-" if power < 0 else "+", abs(power))
    elif power < 0:
        text = "0." + "0" * (-power - 1) + digits
    else:
        digits = digits.ljust(power + 1, "0")
        text = digits[:power + 1] + ("." + digits[power + 1:] if len(digits) > power + 1 else "")
    return ("-" if sign else " ") + text


def printed(value):
    return generated(value) + " "


def rounded_form(value, plus=""):
    """Three significant figures, as 1.23E+01. `plus` is the sign of values of 0 or more."""
    value = Context(prec=3, rounding=ROUND_HALF_UP).create_decimal(decimal15(value))
    if not value:
        return plus + "0.00E+00"
    sign, digits, _ = value.as_tuple()
    digits = "".join(map(str, digits)).ljust(3, "0")
    power = value.adjusted()
    return "%s%s.%sE%s%02d" % ("-" if sign else plus, digits[0], digits[1:],
                               "-" if power < 0 else "+", abs(power))


def percent(factor):
    value = (decimal15(factor) * 100).quantize(Decimal("0.00001"), rounding=ROUND_HALF_UP)
    return format(value, "f").rjust(8, "0") + "%"

# ---------------------------------------------------------------- working files

def read_rows(folder, name, width):
    """Rows of `width` text fields. A missing file has no rows."""
    try:
        with open(os.path.join(folder, name), encoding="latin-1", newline="") as file:
            text = file.read().replace("\r\n", "\n")
    except FileNotFoundError:
        return []
    at = 0

    def field():
        nonlocal at
        while text[at:at + 1] == " ":
            at += 1
        if text[at:at + 1] == '"':
            close = text.find('"', at + 1)
            close = len(text) if close < 0 else close
            value = text[at + 1:close]
            at = close + 1
            while text[at:at + 1] == " ":
                at += 1
            if text[at:at + 1] in (",", "\n"):
                at += 1
            return value
        end = at
        while end < len(text) and text[end] not in ",\n":
            end += 1
        value, at = text[at:end].rstrip(" "), end + 1
        return value

    rows = []
    while at < len(text):
        rows.append([field() for _ in range(width)])
    return rows


def description(text):
    bare = "," not in text and text == text.strip(" ")
    return text if bare else '"' + text + '"'


def normal_form(rows, members, load_fields, zero_row):
    """The rows with a load, sorted by member, otherwise in file order. A member without a load gets a zero row."""
    loaded = [row for row in rows if any(number(row[k]) != 0 for k in load_fields)]
    normal = []
    for member in range(1, members + 1):
        own = [row for row in loaded if number(row[0]) == member]
        normal += [[generated(member)] + row[1:] for row in own or [[""] + zero_row]]
    return normal


def file_text(rows):
    return "".join(",".join(row[:-1] + [description(row[-1])]) + "\r\n" for row in rows)

# ---------------------------------------------------------------- rules

COLLAPSE = ("You can't have a Cantilever with a Pin Jointed structure. "
            "As the structure would collapse instantly.")


def joint_messages(types):
    total = len(types)
    cantilevers, pins = types.count("Cantilever"), types.count("Pin Jointed")
    messages = []
    if total < 2:
        messages.append("You can't have" + generated(total) + " number of joint!")
    if total == 2:
        if cantilevers == 2:
            messages.append("You can't have a Cantilever structure with no supports!")
        if cantilevers == 1 and pins == 1:
            messages.append(COLLAPSE)
        if "Continuous" in types:
            messages.append("For a structure with only 2 Joints, "
                            "there shouldn't be any Continuous Joint.")
        return messages
    for i, kind in enumerate(types, 1):
        if i == 1 and kind == "Continuous":
            messages.append("You shouldn't start with a Continuous Joint.")
        if i == 2 and kind == "Pin Jointed" and types[0] == "Cantilever":
            messages.append(COLLAPSE)
        if 2 <= i <= total - 1 and kind in ("Fixed", "Cantilever", "Pin Jointed"):
            messages.append("You can't have a Fix Joint, Cantilever Joint or Pin Joint "
                            "in a continuous position of the beam.")
            break
        if i == total and kind == "Continuous":
            messages.append("You can't end with a Continuous Joint")
        if i == total == 3 and types == ["Cantilever", "Continuous", "Cantilever"]:
            messages.append("You can't have a Cantilever-Continuous-Cantilever Structure.")
    return messages


def member_messages(joints, members):
    if members == joints - 1:
        return []
    if joints - 1 > members:
        return ["Please provide more Members as Total Joints are more than Total Members."]
    return [" Please provide more Joints as Total Joints are less than Total Members."]


def undefined_messages(joints, members, points, udls):
    """The messages on input without a defined result."""
    messages = []
    for i, row in enumerate(joints, 1):
        if row[1][:3].lower() not in ("can", "pin", "con", "fix"):
            messages.append("Joint %d: the type is unknown." % i)
    for i, row in enumerate(members, 1):
        for name, text in zip("EIL", row[1:4]):
            if not number(text) > 0:
                messages.append("Member %d: %s is not above 0." % (i, name))
    for i, row in enumerate(udls, 1):
        if number(row[2]) == 0 and (number(row[3]) != 0 or number(row[4]) != 0):
            messages.append("Distributed load %d: the width is 0." % i)
    for what, rows in (("Member", [row[1:4] for row in members]),
                       ("Point load", [row[1:3] for row in points]),
                       ("Distributed load", [row[1:5] for row in udls])):
        for i, row in enumerate(rows, 1):
            if not all(math.isfinite(number(text)) for text in row):
                messages.append("%s %d: a number is too large." % (what, i))
    return messages

# ---------------------------------------------------------------- moment distribution

def fixed_end_moments_of_udl(load, length):
    """The integrals of w x (L - x)^2 / L^2 and w x^2 (L - x) / L^2 over the load, as fractions."""
    a, b, w1, w2 = map(Fraction, load)
    L, e = Fraction(length), a + b

    def G(x): return L**2 * x**2 / 2 - 2 * L * x**3 / 3 + x**4 / 4
    def P5(x): return L**2 * x**3 / 3 - L * x**4 / 2 + x**5 / 5
    def J(x): return L * x**3 / 3 - x**4 / 4
    def Q(x): return L * x**4 / 4 - x**5 / 5

    if w1 <= w2:
        s = (w2 - w1) / b
        left = s * ((P5(e) - a * G(e)) - (P5(a) - a * G(a))) + w1 * (G(e) - G(a))
        right = s * ((Q(e) - a * J(e)) - (Q(a) - a * J(a))) + w1 * (J(e) - J(a))
    else:
        s = (w1 - w2) / b
        left = s * ((e * G(e) - P5(e)) - (e * G(a) - P5(a))) + w2 * (G(e) - G(a))
        right = s * ((e * J(e) - Q(e)) - (e * J(a) - Q(a))) + w2 * (J(e) - J(a))
    return float(left / L**2), float(right / L**2)


def fixed_end_moments(beam):
    """The fixed-end moment of each member end. Index 0 is unused. Clockwise is positive."""
    n = len(beam.lengths)
    terms = [[0.0] for _ in range(2 * n + 2)]
    for m in range(1, n + 1):
        L = beam.lengths[m - 1]
        free_left = m == 1 and beam.joints[0] == "can"
        free_right = m == n and beam.joints[-1] == "can"
        for load in beam.udls[m - 1]:
            a, b, w1, w2 = load
            small, third = (w1, 2 * b / 3) if w1 <= w2 else (w2, b / 3)
            triangle = abs(w2 - w1) * b / 2
            if free_left:
                terms[2 * m].append(small * b * (L - a - b / 2) + triangle * (L - a - third))
            elif free_right:
                terms[2 * m - 1].append(-(small * b * (a + b / 2) + triangle * (a + third)))
            else:
                left, right = fixed_end_moments_of_udl(load, L)
                terms[2 * m - 1].append(-left)
                terms[2 * m].append(right)
    for m in range(1, n + 1):
        L = beam.lengths[m - 1]
        free_left = m == 1 and beam.joints[0] == "can"
        free_right = m == n and beam.joints[-1] == "can"
        for a, P in beam.points[m - 1]:
            c = L - a
            if free_left:
                terms[2 * m].append(P * (L - a))
            elif free_right:
                terms[2 * m - 1].append(-(P * a))
            else:
                terms[2 * m - 1].append(-(P * a * c * c / (L * L)))
                terms[2 * m].append(P * a * a * c / (L * L))
    return [total(sum(end), end) for end in terms]


def distribution_factors(beam):
    """The distribution factor of each member end. Index 0 is unused."""
    n = len(beam.lengths)
    K = [0.0] + beam.stiffness + [0.0]
    left, right = [0.0] * (n + 2), [0.0] * (n + 2)
    for i in range(2, n + 1):
        left[i] = K[i] / (K[i] + K[i - 1])
    for i in range(1, n):
        right[i] = K[i] / (K[i] + K[i + 1])
    left[1] = 1.0 if beam.joints[0] == "pin" else 0.0
    right[n] = 1.0 if beam.joints[-1] == "pin" else 0.0
    if n > 1 and beam.joints[0] == "can":
        right[1], left[2] = 0.0, 1.0
    if n > 1 and beam.joints[-1] == "can":
        left[n], right[n - 1] = 0.0, 1.0
    return left, right


def relax(beam):
    """The rows of the balance table and the final end moments by member end."""
    n = len(beam.lengths)
    end_count = 2 * n
    fem = fixed_end_moments(beam)
    left, right = distribution_factors(beam)
    final = fem[:]
    table = [("JOINT", ["%09d" % joint for i in range(1, n + 1) for joint in (i, i + 1)]),
             ("D.Fac", [percent(f) for i in range(1, n + 1) for f in (left[i], right[i])])]

    def write(label, row):
        table.append((label, [rounded_form(row[k], "+") for k in range(1, end_count + 1)]))

    def add(row):
        for k in range(1, end_count + 1):
            final[k] += row[k]

    def balance(row, first_factor, last_factor):
        new = [0.0] * (end_count + 2)
        for i in range(1, n):
            unbalance = total(row[2 * i] + row[2 * i + 1], (row[2 * i], row[2 * i + 1]))
            new[2 * i] = -unbalance * right[i]
            new[2 * i + 1] = -unbalance * left[i + 1]
        new[1] = -row[1] * first_factor
        new[end_count] = -row[end_count] * last_factor
        return new

    write("F.E.M", fem)
    row = balance(fem, float(beam.joints[0] == "pin"), float(beam.joints[-1] == "pin"))
    write("Bal..", row)
    add(row)
    while True:
        carried = [0.0] * (end_count + 2)
        for i in range(1, n + 1):
            carried[2 * i - 1], carried[2 * i] = 0.5 * row[2 * i], 0.5 * row[2 * i - 1]
        write("C.Ovr", carried)
        add(carried)
        row = balance(carried, left[1], right[n])
        write("Bal..", row)
        add(row)
        limit = 0.01 * (1 + 1e-12)  # a moment that is 0.01 on paper counts as 0.01
        if all(-limit <= row[k] <= limit for k in range(1, end_count + 1)):
            break
    write("Final", final)
    return table, final


def table_text(table):
    return "\r\n".join(label + "".join("     " + cell for cell in cells) + "     "
                       for label, cells in table)

# ---------------------------------------------------------------- stations

def total(sum_as_built, terms):
    """The sum. It is 0 if it is below 1e-12 of its largest term, because then it is a rounding error."""
    return 0.0 if abs(sum_as_built) < 1e-12 * max(map(abs, terms)) else sum_as_built


def moment_and_shear(beam, final, i, x):
    """At x of span i: the sagging moment, and the downward load on the left minus the left reaction."""
    L = beam.lengths[i - 1]
    near = 1e-12 * L
    built_in = beam.joints[i - 1] == "can" and beam.joints[i] == "fix"
    udl_moment = udl_shear = point_moment = point_shear = 0.0
    moments, shears = [0.0], [0.0]  # the terms
    MA, MB = -final[2 * i - 1], final[2 * i]
    for a, b, w1, w2 in beam.udls[i - 1]:
        small, third = (w1, 2 * b / 3) if w1 <= w2 else (w2, b / 3)
        triangle = abs(w2 - w1) * b / 2
        RA, shares = 0.0, []
        if not built_in:
            RA = ((MA - MB) + small * b * (L - a - b / 2) + triangle * (L - a - third)) / L
            shares = [MA / L, MB / L, small * b * (L - a - b / 2) / L,
                      triangle * (L - a - third) / L]
        moments += [share * x for share in shares] + [MA]
        shears += shares
        if x <= a + near:
            udl_moment += RA * x - MA
            udl_shear += -RA
        elif x <= a + b + near:
            w = w1 + (w2 - w1) * (x - a) / b
            load_moment = (w + 2 * w1) * (x - a) ** 2 / 6
            load = (w + w1) * (x - a) / 2
            udl_moment += RA * x - MA - load_moment
            udl_shear += load - RA
            moments.append(load_moment)
            shears.append(load)
        else:
            rectangle_moment = small * b * (x - a - b / 2)
            triangle_moment = triangle * (x - a - third)
            load = (w1 + w2) * b / 2
            udl_moment += RA * x - MA - rectangle_moment - triangle_moment
            udl_shear += load - RA
            moments += [rectangle_moment, triangle_moment]
            shears.append(load)
        MA = MB = 0.0
    for a, P in beam.points[i - 1]:
        RA = 0.0 if built_in else P * (L - a) / L
        moments.append(RA * x)
        shears.append(RA)
        if x <= a + near:
            point_moment += x * RA
            point_shear += -RA
        else:
            point_moment += RA * x - P * (x - a)
            point_shear += P - RA
            moments.append(P * (x - a))
            shears.append(P)
    return total(udl_moment + point_moment, moments), total(udl_shear + point_shear, shears)


def sign(text):
    value = Decimal(text)
    return (value > 0) - (value < 0)


def maximum(stations, length, correct_to, evaluate):
    """x, moment and shear of the maximum. `stations` and `evaluate` return rounded texts."""
    moment, shear = start_moment, start_shear = evaluate(0.0)
    left_x, _, left_shear = stations[0]
    running = sign(left_shear)
    for x, _, station_shear in stations:
        if sign(station_shear) == running:
            left_x, left_shear = x, station_shear
            continue
        right_x = x
        while sign(shear) != 0 and right_x - left_x > correct_to:
            middle = (left_x + right_x) / 2
            if middle in (left_x, right_x):
                break
            moment, shear = evaluate(middle)
            if sign(shear) == sign(left_shear):
                left_x, left_shear = middle, shear
            else:
                right_x = middle
        return left_x, moment, shear
    moment, shear = evaluate(length)
    if abs(Decimal(moment)) >= abs(Decimal(start_moment)):
        return length, moment, shear
    return 0.0, start_moment, start_shear


def station_files(beam, final, divisions, places):
    """The text of the stations with the maximum of each span, and the text of the maxima."""
    spans, maxima = "", ""
    for i, length in enumerate(beam.lengths, 1):
        def evaluate(x):
            return tuple(map(rounded_form, moment_and_shear(beam, final, i, x)))

        positions = [k * (length / divisions) for k in range(divisions)] + [length]
        stations = [(x, *evaluate(x)) for x in positions]
        x_max, moment, shear = maximum(stations, length, 1 / 10 ** (places + 1), evaluate)
        maxima += "Span #%s\r\n%s,%s,%s\r\n" % (printed(i), printed(x_max), moment, shear)
        place = next(k for k, x in enumerate(positions) if x_max <= x)
        stations.insert(place, (x_max, moment, shear))
        spans += "Span%s\r\n" % printed(i)
        spans += "".join("%s,%s,%s\r\n" % (rounded_form(x), m, v) for x, m, v in stations)
    return spans, maxima

# ---------------------------------------------------------------- the whole

def analyse(folder, divisions, places):
    """The messages, and the texts of the result files by name. With a message there are no files."""
    joints = read_rows(folder, "Joint.txt", 3)
    members = read_rows(folder, "Member.txt", 5)
    messages = joint_messages([row[1] for row in joints])
    messages += member_messages(len(joints), len(members))
    if messages:
        return messages, {}
    points = normal_form(read_rows(folder, "Point.txt", 4), len(members), [2],
                         ["1", "0", "Zero Load"])
    udls = normal_form(read_rows(folder, "Udl.txt", 6), len(members), [3, 4],
                       ["0", "1", "0", "0", "Zero Load"])
    messages = undefined_messages(joints, members, points, udls)
    if messages:
        return messages, {}

    def loads_of(kind, rows, member):
        return [kind(*map(number, row[1:-1])) for row in rows if number(row[0]) == member]

    numbers = range(1, len(members) + 1)
    beam = Beam(joints=[row[1][:3].lower() for row in joints],
                lengths=[number(row[3]) for row in members],
                stiffness=[number(row[1]) * number(row[2]) / number(row[3]) for row in members],
                points=[loads_of(Point, points, m) for m in numbers],
                udls=[loads_of(Udl, udls, m) for m in numbers])
    table, final = relax(beam)
    spans, maxima = station_files(beam, final, divisions, places)
    return [], {"Point.txt": file_text(points), "Point.tmp": file_text(points),
                "Udl.txt": file_text(udls), "Udl.tmp": file_text(udls),
                "TB.txt": table_text(table), "BM.txt": spans, "BMMax.txt": maxima}


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("source")
    parser.add_argument("target")
    parser.add_argument("--divisions", type=int, default=10)
    parser.add_argument("--places", type=int, default=3)
    given = parser.parse_args()
    messages, files = analyse(given.source, given.divisions, given.places)
    for message in messages:
        print(message)
    if messages:
        return 1
    os.makedirs(given.target, exist_ok=True)
    for name, text in files.items():
        with open(os.path.join(given.target, name), "w", encoding="latin-1", newline="") as file:
            file.write(text)
    return 0


if __name__ == "__main__":
    sys.exit(main())
