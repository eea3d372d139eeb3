#!/usr/bin/env python3
"""Compares the result files of every golden case with those of analyse.py.

Usage: check_cases.py CASES [TRABEON_BATCH]. With the program it also compares the files of a few hundred
random beams.
"""
import os
import random
import subprocess
import sys
import tempfile

import analyse


def read(path):
    with open(path, encoding="latin-1", newline="") as file:
        return file.read()


def arguments(case):
    path = os.path.join(case, "in", "arguments")
    words = read(path).split() if os.path.exists(path) else []
    settings = dict(zip(words[::2], map(int, words[1::2])))
    return settings.get("--divisions", 10), settings.get("--places", 3)


def wrong_files(case):
    messages, files = analyse.analyse(os.path.join(case, "in"), *arguments(case))
    out = os.path.join(case, "out")
    return messages + [name for name in os.listdir(out) if read(os.path.join(out, name)) != files.get(name)]


def write_random_beam(folder, source):
    spans = source.randint(1, 6)
    ends = [source.choice(["Fixed", "Pin Jointed"]) for _ in range(2)]
    joints = [ends[0]] + ["Continuous"] * (spans - 1) + [ends[1]]
    texts = {
        "Joint.txt": [f"{i},{joint},None" for i, joint in enumerate(joints, 1)],
        "Member.txt": [f"{i},200,{source.randint(1, 9)},{source.choice([4, 5, 6.5, 8])},None"
                       for i in range(1, spans + 1)],
        "Point.txt": [f"{source.randint(1, spans)},{source.randint(0, 3)},{source.randint(3, 97)},P"],
        "Udl.txt": [f"{source.randint(1, spans)},{source.choice([0, 0.3, 1])},{source.choice([1.7, 3])},"
                    f"{source.randint(0, 23)},{source.randint(1, 29)},w" for _ in range(4)],
    }
    for name, rows in texts.items():
        with open(os.path.join(folder, name), "w", encoding="latin-1", newline="") as file:
            file.write("".join(row + "\r\n" for row in rows))


def beams_that_differ(program, count):
    """The beams with a file in which more than one line differs. One may, by a tie in the last digit."""
    source = random.Random(8110)
    different = []
    for number in range(count):
        with tempfile.TemporaryDirectory() as folder:
            write_random_beam(folder, source)
            _, files = analyse.analyse(folder, 10, 3)
            subprocess.run([program, "analyse", folder], check=True)
            for name, text in files.items():
                ours, theirs = text.split("\r\n"), read(os.path.join(folder, name)).split("\r\n")
                if len(ours) != len(theirs) or sum(map(str.__ne__, ours, theirs)) > 1:
                    different.append(f"beam {number}: {name}")
    return different


def main():
    cases = sys.argv[1]
    wrong = [f"{case}: {name}" for case in sorted(os.listdir(cases))
             for name in wrong_files(os.path.join(cases, case))]
    if len(sys.argv) > 2:
        wrong += beams_that_differ(sys.argv[2], 200)
    print("\n".join(wrong) or "All result files agree.")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
