#!/usr/bin/env python3
"""Compares the pages of the manual with each other and with the program.

    check_pages.py PAGES PICTURES EXAMPLE_PROJECTS trabeon-batch

Every link must lead to an existing page and place. Every page and the contents must link to each other.
Every picture must exist in the size that the page gives. Pictures and lines of code must fit into the
manual's window. Each calculation on a page must give its result. All other numbers of the two examples
must come from the program or from such a calculation. These marks select the checks:

    data-file="five/BM.txt"       the lines or rows are in this result file, in this order;
                                  data-columns="1 2" selects the fields that the page shows
    class="sum"                   the cells after the first are a chain "calculation = result";
                                  all sides agree to the last digit of the result; <i> is a remark
    data-of="five/BM.txt 2 0 1"   the program has the same result in this cell
"""
import math
import re
import struct
import subprocess
import sys
import tempfile
from html.parser import HTMLParser
from pathlib import Path
from urllib.parse import unquote

PAGES, PICTURES, PROJECTS, BATCH = Path(sys.argv[1]), Path(sys.argv[2]), sys.argv[3], sys.argv[4]
CONTENTS = "Contents and Index.htm"
TOLERANCES = {"0.01", "0.0001", "8110"}  # 8110 is the number of the standard
WIDEST_PICTURE, LONGEST_LINE = 720, 90  # pixels and characters that fit the window of 840 pixels
failures = []


def expect(condition, what):
    if not condition:
        failures.append(what)


class Element:
    def __init__(self, tag, attributes, parent):
        self.tag, self.attributes, self.parts, self.parent = tag, attributes, [], parent

    def all(self, *tags):
        for part in self.parts:
            if isinstance(part, Element):
                if part.tag in tags:
                    yield part
                yield from part.all(*tags)

    def text(self):
        words = "".join(p if isinstance(p, str) else p.text() for p in self.parts)
        return {"sup": f"**({words})", "i": ""}.get(self.tag, words)

    def marked(self, *marks):
        """True if this element or one around it has one of the marks."""
        own = set(self.attributes) | set((self.attributes.get("class") or "").split())
        return bool(own & set(marks)) or (self.parent is not None and self.parent.marked(*marks))


class Page(HTMLParser):
    def __init__(self, path):
        super().__init__()
        self.name = path.name
        self.root = self.here = Element("", {}, None)
        self.feed(path.read_text(encoding="utf-8"))

    def handle_starttag(self, tag, attributes):
        element = Element(tag, dict(attributes), self.here)
        self.here.parts.append(element)
        if tag not in ("img", "br", "meta", "link"):
            self.here = element

    def handle_endtag(self, tag):
        expect(self.here.tag == tag, f"{self.name}: </{tag}> closes <{self.here.tag}>")
        self.here = self.here.parent or self.here

    def handle_data(self, data):
        self.here.parts.append(data)

    def links(self):
        for a in self.root.all("a"):
            if "href" in a.attributes:
                target, _, place = a.attributes["href"].partition("#")
                yield unquote(target) or self.name, place


def picture_size(path):
    head = path.read_bytes()[:24]
    return struct.unpack(">II", head[16:24]) if head[1:4] == b"PNG" else struct.unpack("<HH", head[6:10])


def check_links(pages):
    places = {p.name: {a.attributes.get("name") for a in p.root.all("a")} | {""} for p in pages}
    for page in pages:
        targets = set()
        for target, place in page.links():
            targets.add(target)
            expect(place in places.get(target, ()), f"{page.name}: nothing at {target}#{place}")
        others = {CONTENTS} if page.name != CONTENTS else set(places) - {CONTENTS}
        expect(others <= targets, f"{page.name}: no link to {others - targets}")


def check_widths(pages):
    for page in pages:
        for pre in page.root.all("pre"):
            for line in pre.text().split("\n"):
                expect(len(line) <= LONGEST_LINE, f"{page.name}: too long: {line}")


def check_pictures(pages):
    shown = set()
    for page in pages:
        for img in page.root.all("img"):
            name = unquote(img.attributes["src"])
            path = next((d / name for d in (PAGES, PICTURES) if (d / name).exists()), None)
            expect(path, f"{page.name}: no picture {name}")
            size = (int(img.attributes["width"]), int(img.attributes["height"]))
            expect(path and picture_size(path) == size, f"{page.name}: {name} is not {size}")
            expect(size[0] <= WIDEST_PICTURE, f"{page.name}: {name} is too wide")
            shown.add(name)
    unused = {p.name for p in PAGES.glob("*.png")} - shown
    expect(not unused, f"pictures on no page: {unused}")


# ------------------------------------------------------------------------------- the numbers

LITERAL = re.compile(r"([+-]?\d+(?:\.\d+)?(?:E[+-]\d+)?)(?![\d.]* *[*/(+])")


def formula(text):
    """The text as a Python expression. None if it is not an expression."""
    for sign, code in (("×", "*"), ("−", "-"), ("²", "**2"), ("³", "**3")):
        text = text.replace(sign, code)
    text = re.sub(r"√(\d+)", r"√(\1)", text).replace("√", "sqrt")
    text = re.sub(r"(?<=[\d)]) *(?=\(|sqrt)", " * ", text.strip()).replace("** * ", "**")
    return text if text and not re.search(r"[^\d.+\-*/() ]", text.replace("sqrt", "")) else None


def last_unit(literal):
    digits, _, power = literal.partition("E")
    return 10.0 ** (int(power or 0) - len(digits.partition(".")[2]))


def check_sum(where, text):
    """Checks a chain "calculation = result". Returns the text of the result."""
    result = None
    for piece in text.split(";"):
        *sides, last = [s.strip() for s in piece.split("=")]
        result = LITERAL.match(last.replace("−", "-"))
        values = [eval(f, {"sqrt": math.sqrt}) for f in map(formula, sides) if f]
        if not result or not values:
            failures.append(f"{where}: no sum: {piece}")
            continue
        result = result[1]
        for value in values:
            expect(abs(value - float(result)) <= 0.5001 * last_unit(result),
                   f"{where}: {piece.strip()}: it is {value}")
    return result


class Results:
    """The results of the program for the projects: rows of fields by "project/file"."""

    def __init__(self, folder):
        self.rows, self.texts = {}, {}
        for project in PROJECTS.split(","):
            name, file, *options = project.split(":")
            out = Path(folder) / name
            self.texts[name] = self.run("run", file, "--out", out)
            self.run("unpack", file, out)
            self.run("analyse", out)
            self.run("design", out, *options)
            for table in ("members", "reactions"):
                rows = self.run("export", file, table).splitlines()
                self.rows[f"{name}/{table}"] = [self.fields(row) for row in rows if row]
            for path in out.glob("*.txt"):
                text = path.read_text()
                self.texts[name] += text
                self.rows[f"{name}/{path.name}"] = [row for row in map(self.fields, text.split("\n"))
                                                   if row]

    @staticmethod
    def run(*words):
        return subprocess.run([BATCH, *map(str, words)], check=True, capture_output=True,
                              text=True).stdout

    @staticmethod
    def fields(line):
        parts = line.split(",") if "," in line else line.split()
        return [" ".join(p.strip(' "').split()) for p in parts]

    def cell(self, address):
        """The cell at an address: row and member end in TB.txt; member, x and column in BM.txt and
        DResult.txt; first column and place in the row in an exported table."""
        file, *keys = address.split()
        at, block = int(keys.pop()), 0
        for row in self.rows[file]:
            block += row[0] == "Span"
            found = row[:2] if file.endswith(("BM.txt", "DResult.txt")) else row[:1]
            if file.endswith("BM.txt"):
                found = [str(block), row[0]]
            if found == keys:
                return row[at]
        raise KeyError(address)


def check_cell(where, result, address, results):
    cell = LITERAL.match(results.cell(address))[1]
    difference = float(result) - float(cell)
    if "DResult" in address and "." not in cell:  # cut to a whole number
        expect(0 <= difference < 1, f"{where}: {result}, but {address} is {cell}")
    else:
        unit = max(last_unit(result), last_unit(cell))
        expect(abs(difference) <= 0.5001 * unit, f"{where}: {result}, but {address} is {cell}")


def check_rows(where, element, results):
    columns = element.attributes.get("data-columns")
    if element.tag == "table":
        shown = [[td.text().strip() for td in tr.all("td")] for tr in element.all("tr")]
    else:
        shown = [results.fields(line) for line in element.text().strip().split("\n")]
    shown = [[" ".join(cell.split()) for cell in row] for row in shown if row]
    rows = iter(results.rows[element.attributes["data-file"]])
    for row in shown:
        picked = (found if columns is None else
                  [found[int(c) - 1] for c in columns.split() if int(c) <= len(found)]
                  for found in rows)
        expect(row in picked, f"{where}: no row {row}")


def check_sums(page, results):
    """Checks the calculations of a page. Returns all numbers in them."""
    known = set()
    for row in page.root.all("tr", "p"):
        if row.attributes.get("class") == "sum":
            cells = [c.text() for c in row.all("td")][1:] or [row.text()]
            result = check_sum(page.name, " = ".join(cells))
            if "data-of" in row.attributes and result:
                check_cell(page.name, result, row.attributes["data-of"], results)
            known |= set(re.findall(r"\d+(?:\.\d+)?", row.text()))
    return known


def check_numbers(page, known):
    for element in page.root.all("td", "p", "li", "pre"):
        if not element.marked("sum", "data-file") and element.tag != "table":
            own = "".join(p if isinstance(p, str) else p.text() for p in element.parts)
            for number in re.findall(r"\d+\.\d+(?:E[+-]\d+)?|\d{3,}", own):
                expect(number in known, f"{page.name}: where is {number} from? {own.strip()[:60]}")


def check_page(page, results):
    for element in page.root.all("table", "pre"):
        if "data-file" in element.attributes:
            check_rows(page.name, element, results)
    known = check_sums(page, results)
    if page.name.startswith("Example"):
        project = "two" if page.name == "Example1.htm" else "five"
        program = re.findall(r"\d+(?:\.\d+)?(?:E[+-]\d+)?", results.texts[project])
        check_numbers(page, known | TOLERANCES | set(program))


def main():
    pages = [Page(path) for path in sorted(PAGES.glob("*.htm"))]
    check_links(pages)
    check_widths(pages)
    check_pictures(pages)
    with tempfile.TemporaryDirectory() as folder:
        results = Results(folder)
        for page in pages:
            check_page(page, results)
    print("\n".join(failures) or f"{len(pages)} pages checked.")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
