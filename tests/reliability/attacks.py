#!/usr/bin/env python3
"""Replaces files of the programs by obstacles and counts the failures.

    attacks.py BUILD [EVERY]

For each command it replaces each file that the command reads or writes by a folder, a pipe, a device, a
link to nothing or a write-protected file. A forged "Unfinished.set" also asks for a link to another
user's file in its place. These rules must hold:

  - The command ends with 0, or with 1 and a sentence that names the file.
  - The other user's file and the obstacle are unchanged.
  - No temporary file is left.

Prints a table. The exit code is 1 if a rule was broken. Makes devices only if the system allows it. With
EVERY it tries only every EVERYth attack.
"""

import itertools
import os
import pathlib
import re
import shutil
import stat
import subprocess
import sys
import tempfile

EXAMPLES = pathlib.Path(__file__).resolve().parent.parent.parent / "examples"
SMALL, LARGE = EXAMPLES / "two-span-floor-beam.TB", EXAMPLES / "five-span-with-cantilever.TB"
HANGS = 60  # seconds
TEMPORARY = re.compile(r"\.[0-9a-f]{16}\.new$")


def device(minor):
    return lambda path: os.mknod(path, stat.S_IFCHR | 0o666, os.makedev(1, minor))


OBSTACLES = {
    "a folder": lambda path: path.mkdir(),
    "a pipe": os.mkfifo,
    "a device without end": device(5),
    "a device that swallows": device(3),
    "a link to nothing": lambda path: path.symlink_to("nowhere"),
    "a link to itself": lambda path: path.symlink_to(path.name),
}
PROTECTED = "write-protected"


def run(words):
    return subprocess.run(
        [str(word) for word in words],
        capture_output=True,
        timeout=HANGS,
        check=False,
        env=dict(os.environ, ASAN_OPTIONS="detect_leaks=0"),
    )


class Command:
    def __init__(self, name, program, *words):
        self.name, self.program, self.words = name, program, words

    def run(self, folder):
        return run([self.program, *(str(word).replace("DIR", str(folder)) for word in self.words)])


def contents(folder):
    return {path.name: path.read_bytes() for path in folder.iterdir() if path.is_file()}


def prepare(batch, folder):
    for command in ("unpack", SMALL, folder), ("analyse", folder), ("design", folder), ("tables", folder):
        if run([batch, *command]).returncode != 0:
            raise SystemExit(f"{command[0]} does not work")
    shutil.copy(SMALL, folder / "Job.TB")


def attacked(command, begin, folder, name, obstacle):
    """The rule that was broken. Empty if none was, None if the obstacle could not be made."""
    shutil.rmtree(folder, ignore_errors=True)
    shutil.copytree(begin, folder)
    target, victim = folder / name, folder / "victim"
    victim.write_bytes(b"somebody's")
    planted = f"{name}.{'0' * 16}.new"  # the forged set asks to rename this link to the file's name
    os.symlink(victim, folder / planted)
    (folder / "Unfinished.set").write_text(planted + "\n")
    try:
        if obstacle == PROTECTED:
            target.touch()
            target.chmod(0o444)
        else:
            target.unlink(missing_ok=True)
            OBSTACLES[obstacle](target)
    except PermissionError:
        return None
    kind = target.lstat().st_mode
    try:
        result = command.run(folder)
    except subprocess.TimeoutExpired:
        return "hangs"
    if result.returncode not in (0, 1):
        return f"ended with {result.returncode}: {result.stderr!r}"
    if result.returncode == 1 and name.encode() not in result.stderr:
        return f"does not name the file: {result.stderr!r}"
    if victim.read_bytes() != b"somebody's":
        return "somebody else's file was overwritten"
    if not os.path.lexists(target) or target.lstat().st_mode != kind:
        return "the obstacle was replaced"
    left = [path.name for path in folder.iterdir() if TEMPORARY.search(path.name) and path.name != planted]
    return f"left {left}" if left else ""


def main():
    build, every = pathlib.Path(sys.argv[1]).resolve(), int([*sys.argv, 1][2])
    batch = build / "batch" / "trabeon-batch"
    report = build / "output" / "trabeon-report"
    commands = [
        Command("unpack", batch, "unpack", LARGE, "DIR"),
        Command("analyse", batch, "analyse", "DIR", "--divisions", "20"),
        Command("design", batch, "design", "DIR", "--cover", "30"),
        Command("tables", batch, "tables", "DIR"),
        Command("pack", batch, "pack", "DIR", "DIR/Job.TB", "--title", "Another"),
        Command("run", batch, "run", "DIR/Job.TB", "--out", "DIR"),
        Command("report", report, "DIR/Job.TB", "--kinds", "joints", "--out", "DIR/beam.docx"),
    ]
    tried, broken = 0, []
    with tempfile.TemporaryDirectory() as home:
        begin, folder = pathlib.Path(home) / "begin", pathlib.Path(home) / "folder"
        prepare(batch, begin)
        print(f"{'command':10}{'attacks':>8}{'broken':>8}")
        for command in commands:
            count, wrong = 0, []
            names, obstacles = [*sorted(contents(begin)), "beam.docx"], [*OBSTACLES, PROTECTED]
            for name, obstacle in list(itertools.product(names, obstacles))[::every]:
                outcome = attacked(command, begin, folder, name, obstacle)
                count += outcome is not None
                if outcome:
                    wrong.append(f"  {command.name}, {name} is {obstacle}: {outcome}")
            print(f"{command.name:10}{count:8}{len(wrong):8}", *wrong, sep="\n" if wrong else "", flush=True)
            tried += count
            broken += wrong
    print(f"{tried} attacks, {len(broken)} broken")
    return int(bool(broken) or tried == 0)


if __name__ == "__main__":
    sys.exit(main())
