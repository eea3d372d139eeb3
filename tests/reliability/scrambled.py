#!/usr/bin/env python3
"""Damages working files at random and gives them to each command of trabeon-batch.

    scrambled.py BUILD [--count N]

A command must do its work, or refuse with a sentence and leave the files unchanged. A seed always makes
the same damage.
"""

import argparse
import pathlib
import random
import subprocess
import sys
import tempfile

HERE = pathlib.Path(__file__).resolve().parent
EXAMPLE = HERE.parent.parent / "examples" / "five-span-with-cantilever.TB"
SCRAPS = [b"", b",", b'"', b"\r\n", b"\n", b"\0", b"\xff", b"-1", b"1E308", b"1E999", b"0", b"nan"]
SCRAPS += [b"9" * 5000, b",,,,,,,,,,,,", b"Fixed", b"Span 3"]
COMMANDS = ["analyse", "design", "tables", "pack"]


def scrambled(text, dice):
    """The text with some of its bytes replaced, removed or doubled."""
    for _ in range(dice.randint(1, 4)):
        begin = dice.randrange(len(text) + 1)
        end = min(len(text), begin + dice.choice([0, 1, 1, 3, 20, 400]))
        text = text[:begin] + dice.choice([*SCRAPS, text[begin:end] * 2]) + text[end:]
    return text


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("build", type=pathlib.Path)
    parser.add_argument("--count", type=int, default=300)
    arguments = parser.parse_args()
    batch = arguments.build / "batch" / "trabeon-batch"

    def run(*words):
        return subprocess.run([batch, *words], capture_output=True, timeout=60, check=False)

    done = {command: 0 for command in COMMANDS}
    with tempfile.TemporaryDirectory() as home:
        folder, project = pathlib.Path(home) / "work", pathlib.Path(home) / "packed.TB"
        run("unpack", EXAMPLE, folder)
        run("analyse", folder)
        whole = {path.name: path.read_bytes() for path in folder.iterdir()}
        for seed in range(arguments.count):
            dice = random.Random(seed)
            for name, text in whole.items():
                (folder / name).write_bytes(text)
            for name in dice.sample(sorted(whole), dice.randint(1, 2)):
                (folder / name).write_bytes(scrambled(whole[name], dice))
            for command in COMMANDS:
                before = {path.name: path.read_bytes() for path in folder.iterdir()}
                result = run(command, folder, *([project] if command == "pack" else []))
                after = {path.name: path.read_bytes() for path in folder.iterdir()}
                refused = result.returncode == 1 and len(result.stderr) > 20
                # With these messages it has still written its files: a section is too small, or the
                # packed table is outdated.
                weak = b"Please Increase" in result.stderr or b"was written" in result.stderr
                if result.returncode != 0 and (not refused or before != after and not weak):
                    print(f"seed {seed}, {command}: {result.returncode} {result.stderr!r}")
                    return 1
                done[command] += result.returncode == 0
    print(f"{arguments.count} scrambles; done:", ", ".join(f"{n} {c}" for c, n in done.items()))
    return 0


if __name__ == "__main__":
    sys.exit(main())
