#!/usr/bin/env python3
"""Kills the programs at every step of their jobs, fills their disk, and counts the failures.

    survival.py BUILD [--points N] [--jobs NAME ...]

BUILD is a build folder. A step of a job is a file opened, half written, closed, renamed or removed. For
each step, or for N steps spread evenly, the job runs again: it is killed at this step, ended by a signal
there, or has a full disk from there. These rules must hold:

  - Every file is complete: absent, old, or as in some state of a job without a fault.
  - Files that change together are all old or all new after the next start.
  - After a kill the same command does its work, or the program starts again and "Recovered.TB" contains
    every row of the killed run.
  - A sentence reports the full disk and names the file.

Prints a table. The exit code is 1 if a rule was broken.
"""

import argparse
import os
import pathlib
import shutil
import signal
import subprocess
import sys
import tempfile

HERE = pathlib.Path(__file__).resolve().parent
EXAMPLES = HERE.parent.parent / "examples"
SMALL, LARGE = EXAMPLES / "two-span-floor-beam.TB", EXAMPLES / "five-span-with-cantilever.TB"
INPUTS = {"Joint.txt": 3, "Member.txt": 5, "Point.txt": 4, "Udl.txt": 6, "BeamDim.txt": 10}
TIMEOUT = 60


class Broken(Exception):
    """A rule was broken."""


def files(folder):
    """All working files and projects of a folder, without the temporary files of a killed run."""
    return {
        path.name: path.read_bytes()
        for path in folder.iterdir()
        if path.suffix in (".txt", ".tmp", ".TB")
    }


def finished(folder):
    """The same files after the next start, which finishes an incomplete set of files."""
    found, unfinished = files(folder), folder / "Unfinished.set"
    for name in unfinished.read_text().split() if unfinished.exists() else []:
        fresh = folder / name
        if fresh.exists():
            found[name[: -len(".0123456789abcdef.new")]] = fresh.read_bytes()
    return found


def rows(text, width):
    """The rows of a file, split as the field reader does."""
    fields, at = [], 0
    while at < len(text):
        while text[at : at + 1] == b" ":
            at += 1
        if text[at : at + 1] == b'"':
            end = text.index(b'"', at + 1)
            fields.append(text[at + 1 : end])
            at = end + 1
        else:
            end = min(i for i in (text.find(b",", at), text.find(b"\r", at), len(text)) if i >= 0)
            fields.append(text[at:end].rstrip(b" "))
            at = end
        at += 2 if text[at : at + 2] == b"\r\n" else 1
    if len(fields) % width:
        raise Broken("half a row")
    return [tuple(fields[i : i + width]) for i in range(0, len(fields), width)]


class Programs:
    def __init__(self, build):
        self.batch = build / "batch" / "trabeon-batch"
        self.window = build / "tests" / "reliability" / "window_job"
        self.report = build / "output" / "trabeon-report"
        self.faults = build / "tests" / "reliability" / "libfaults.so"

    def environment(self, folder, kind="", at=0, record=""):
        environment = dict(
            os.environ,
            QT_QPA_PLATFORM="offscreen",
            ASAN_OPTIONS="verify_asan_link_order=0:detect_leaks=0",
        )
        if kind:
            environment.update(
                LD_PRELOAD=str(self.faults),
                FAULT_FOLDER=str(folder),
                FAULT_KIND=kind,
                FAULT_AT=str(at),
                FAULT_RECORD=str(record),
            )
        return environment

    def run(self, command, folder, *fault):
        return subprocess.run(
            [str(word) for word in command],
            env=self.environment(folder, *fault),
            capture_output=True,
            timeout=TIMEOUT,
            check=False,
        )


class Job:
    """A job in a folder, and the checks after a fault."""

    faults = "killed", "terminated", "filled"

    def __init__(self, programs):
        self.programs = programs

    def run(self, folder, *fault):
        return self.programs.run(self.command(folder), folder, *fault)


class BatchJob(Job):
    """A command of trabeon-batch on a folder with an older project and its results."""

    def __init__(self, programs, name, *words):
        super().__init__(programs)
        self.name, self.words = name, words

    def prepare(self, folder):
        batch = self.programs.batch
        for command in ("unpack", SMALL, folder), ("analyse", folder):
            self.programs.run([batch, *command], folder)
        shutil.copy(SMALL, folder / "Job.TB")
        if self.name not in ("unpack", "run", "design", "pack"):  # these refuse rows changed by hand
            with open(folder / "Udl.txt", "ab") as loads:
                loads.write(b' 2,1,2,5,7,"one more"\r\n')
        self.begin = files(folder)

    def command(self, folder):
        words = [str(word).replace("DIR", str(folder)) for word in self.words]
        return [self.programs.batch, *words]

    def checkAfterKill(self, folder, before, final):
        """Its files changed together, and the same command works when it is given again."""
        if self.name in ("unpack", "analyse") and before not in (self.begin, final):
            raise Broken("some files are old and some are new")
        if self.programs.run(self.command(folder), folder).returncode != 0:
            raise Broken("the command is refused after the kill")
        if files(folder) != final:
            raise Broken("the command has another outcome after the kill")

    def checkFullDisk(self, folder, result, left, allowed):
        if result.returncode != 1:
            raise Broken(f"ended with {result.returncode}")
        check_whole(left, allowed)
        check_reported(folder, result.stderr)


class ReportJob(Job):
    """trabeon-report. After a signal it must remove its temporary folder."""

    name, faults = "report", ("terminated",)

    def prepare(self, folder):
        shutil.copy(SMALL, folder / "Example.TB")

    def command(self, folder):
        words = [folder / "Example.TB", "--kinds", "joints", "--out", folder / "beam.docx"]
        own = f"TMPDIR={folder}", f"XDG_RUNTIME_DIR={folder.parent}"
        return ["env", *own, self.programs.report, *words]

    def checkAfterKill(self, folder, before, final):
        if left := {path.name for path in folder.iterdir()} - {"Example.TB", "beam.docx"}:
            raise Broken(f"{left} left in the folder")


class WindowJob(Job):
    """The program's own windows: open, analyse, edit, save, analyse, design, save, New, Exit."""

    name = "window"

    def prepare(self, folder):
        shutil.copy(SMALL, folder / "Example.TB")

    def command(self, folder):
        return [self.programs.window, folder]

    def checkAfterKill(self, folder, before, final):
        """The program starts again and recovers the rows of the killed run."""
        had = {name: before.get(name, b"") for name in INPUTS}
        wanted = {name: rows(text, INPUTS[name]) for name, text in had.items()}
        self.startAgain(folder)
        if not any(wanted.values()) or "Joint.txt" not in before:
            return
        with tempfile.TemporaryDirectory() as opened:
            unpack = [self.programs.batch, "unpack", folder / "Recovered.TB", opened]
            if self.programs.run(unpack, folder).returncode != 0:
                raise Broken("Recovered.TB does not open")
            found = files(pathlib.Path(opened))
        if {name: rows(found[name], INPUTS[name]) for name in INPUTS} != wanted:
            raise Broken("Recovered.TB has other rows than the killed run")

    def startAgain(self, folder):
        result = self.programs.run([self.programs.window, folder, "start"], folder)
        if result.returncode != 0 or result.stdout:
            raise Broken(f"the next start says {result.stdout!r}")

    def checkFullDisk(self, folder, result, left, allowed):
        """Rows that could not be added may be missing, but each row is complete."""
        for name, width in INPUTS.items():
            rows(left.get(name, b""), width)
        if result.returncode not in (0, 1):
            raise Broken(f"ended with {result.returncode}")
        if result.returncode == 1 or b"flag 1" in result.stdout:
            check_reported(folder, result.stdout)


def check_reported(folder, said):
    sentences = b"could not be written", b"cannot write there", b"does not confirm"
    if not any(sentence in said for sentence in sentences):
        raise Broken(f"no sentence reports the full disk: {said!r}")
    if str(folder).encode() not in said:
        raise Broken(f"the sentence names no file: {said!r}")


def check_whole(found, allowed):
    for name, text in found.items():
        if name not in allowed:
            raise Broken(f"{name} should not be there")
        if text not in allowed[name]:
            raise Broken(f"{name} is neither old nor new: {text[-60:]!r}")
    for name in allowed.keys() - found.keys():
        if None not in allowed[name]:
            raise Broken(f"{name} is gone")


def check_flushed(calls):
    """A saved project is flushed to the disk before it is renamed, and its folder afterwards. Working files
    are not flushed."""
    for at, call in enumerate(calls):
        what, name = call.split(" ", 1)
        if what == "rename" and name.endswith(".TB"):
            before = [c.split()[0] for c in calls[:at] if c.split(" ", 1)[1].startswith(name + ".")]
            if before[-2:] != ["flush", "close"] or calls[at + 1].split()[0] != "flush":
                raise Broken(f"{name} might not survive a power cut: {before}, {calls[at:at + 2]}")
        elif what == "flush" and (".txt." in name or ".tmp." in name):
            raise Broken(f"{name} waits for the disk")


class Trial:
    """One job. It runs many times from the same start."""

    def __init__(self, job, home):
        self.job, self.folder = job, home / "folder"
        self.begin, record = home / "begin", home / "record"
        self.begin.mkdir(parents=True)
        record.mkdir()
        job.prepare(self.begin)
        result = self.run("record", record=record)
        if result.returncode != 0:
            raise Broken(f"the job does not work: {result.stdout!r} {result.stderr!r}")
        self.steps = int(record.with_suffix(".steps").read_text())
        check_flushed(record.with_suffix(".calls").read_text().splitlines())
        self.final = files(self.folder)
        before = files(self.begin)
        states = [before, self.final]
        states += [{path.name.split("-", 1)[1]: path.read_bytes()} for path in record.iterdir()]
        names = set().union(*states)
        self.allowed = {name: {state[name] for state in states if name in state} for name in names}
        for name in names:
            if name not in before or name not in self.final:
                self.allowed[name].add(None)

    def run(self, kind, at=0, record=""):
        shutil.rmtree(self.folder, ignore_errors=True)
        shutil.copytree(self.begin, self.folder)
        return self.job.run(self.folder, kind, at, record)

    def killed(self, at):
        """False if the job ended before that step."""
        result = self.run("kill", at)
        if result.returncode == 0:
            return False
        if result.returncode != -signal.SIGKILL:
            raise Broken(f"ended with {result.returncode}")
        check_whole(files(self.folder), self.allowed)
        found = finished(self.folder)
        check_whole(found, self.allowed)
        self.job.checkAfterKill(self.folder, found, self.final)
        return True

    def terminated(self, at):
        """Like killed(), but with a signal that the process can handle: it must leave no temporary file."""
        result = self.run("term", at)
        if result.returncode == 0:
            return False
        if result.returncode != -signal.SIGTERM:
            raise Broken(f"ended with {result.returncode}")
        left = [path.name for path in self.folder.iterdir() if path.suffix in (".new", ".set")]
        if left:
            raise Broken(f"{left} left in the folder")
        found = files(self.folder)
        check_whole(found, self.allowed)
        self.job.checkAfterKill(self.folder, found, self.final)
        return True

    def filled(self, at):
        """False if the job needed no more space."""
        result = self.run("full", at)
        found = files(self.folder)
        if result.returncode == 0 and found == self.final:
            return False
        self.job.checkFullDisk(self.folder, result, found, self.allowed)
        return True


def chosen(steps, points):
    if points <= 0 or points >= steps:
        return range(1, steps + 1)
    return sorted({1 + round(i * (steps - 1) / (points - 1)) for i in range(points)})


def judge(trial, points):
    counts, broken = [0, 0, 0], []
    for at in chosen(trial.steps, points):
        for which, name in enumerate(Job.faults):
            if name not in trial.job.faults:
                continue
            act = getattr(trial, name)
            try:
                counts[which] += act(at)
            except (Broken, subprocess.TimeoutExpired) as what:
                broken.append(f"{trial.job.name}, {name} at step {at}: {what}")
    return trial.steps, counts, broken


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("build", type=pathlib.Path)
    parser.add_argument("--points", type=int, default=0, help="steps of each job; 0: every one")
    parser.add_argument("--jobs", nargs="*", help="names of the jobs to do")
    arguments = parser.parse_args()
    programs = Programs(arguments.build.resolve())
    jobs = [
        BatchJob(programs, "unpack", "unpack", LARGE, "DIR"),
        BatchJob(programs, "analyse", "analyse", "DIR"),
        BatchJob(programs, "design", "design", "DIR"),
        BatchJob(programs, "tables", "tables", "DIR"),
        BatchJob(programs, "pack", "pack", "DIR", "DIR/Job.TB"),
        BatchJob(programs, "run", "run", LARGE, "--out", "DIR"),
        ReportJob(programs),
        WindowJob(programs),
    ]
    failed = False
    print(f"{'job':10}{'steps':>8}{'killed':>8}{'ended':>8}{'full':>8}{'broken':>8}")
    for job in jobs:
        if arguments.jobs and job.name not in arguments.jobs:
            continue
        with tempfile.TemporaryDirectory() as home:
            steps, counts, broken = judge(Trial(job, pathlib.Path(home)), arguments.points)
        line = "".join(f"{count:8}" for count in (steps, *counts, len(broken)))
        print(f"{job.name:10}{line}", flush=True)
        print("".join(f"  {line}\n" for line in broken), end="")
        failed = failed or bool(broken) or not any(counts)
    return int(failed)


if __name__ == "__main__":
    sys.exit(main())
