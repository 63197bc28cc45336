#!/usr/bin/env python3
"""Plays script cases against vantore-script and compares transcripts and files.

    play_cases.py PROGRAM CASES [NAME ...]

A case is a folder MODULE/NAME with script.txt and, as it needs them, io/, install/, expect/transcript.txt and
expect/files/. A line of these that ends in <any> stands for every line that begins as it does. Prints the
differences and, last, a line "N passed, N failed".
"""
import difflib
import pathlib
import shutil
import subprocess
import sys
import tempfile

TIME_LIMIT = 300  # seconds for one case
ANY = b"<any>"


def named(folder, name):
    """The file of that name, whatever the case of its letters."""
    return next((f for f in folder.iterdir() if f.name.lower() == name.lower()), None)


def filled_in(want, got):
    """The expected text with its <any> as they came."""
    expected, made = want.split(b"\n"), got.split(b"\n")
    for i, (line, other) in enumerate(zip(expected, made)):
        end = b"\r" if line.endswith(b"\r") else b""
        if line.endswith(ANY + end) and other.startswith(line[: -len(ANY + end)]) and other.endswith(end):
            expected[i] = other
    return b"\n".join(expected)


def difference(want, got, name):
    want = filled_in(want, got)
    if want == got:
        return []
    a, b = (text.decode("utf-8", "replace").splitlines() for text in (want, got))
    return list(difflib.unified_diff(a, b, "expected " + name, "got " + name, lineterm="", n=1))[:30] or [
        "line ends differ in " + name
    ]


def play(program, case, work):
    io, install = work / "io", program.parent
    if (case / "io").is_dir():
        shutil.copytree(case / "io", io)
    else:
        io.mkdir()
    command = [str(program), "--io", str(io)]
    if (case / "install").is_dir():
        install = work / "install"
        shutil.copytree(case / "install", install)
        command += ["--install", str(install)]
    run = subprocess.run(command + [str(case / "script.txt")], capture_output=True, timeout=TIME_LIMIT, cwd=work, check=False)
    faults = []
    if run.returncode != 0:
        faults.append(f"exit status {run.returncode}: {run.stderr.decode('utf-8', 'replace').strip()}")
    got = run.stdout.replace(f"{io}/".encode(), b"<io>").replace(str(install).encode(), b"<install>")
    expected = case / "expect" / "transcript.txt"
    if expected.exists():
        faults += difference(expected.read_bytes(), got, "transcript")
    files = case / "expect" / "files"
    for want in sorted(files.iterdir()) if files.is_dir() else []:
        made = named(io, want.name)
        faults += ["missing file " + want.name] if made is None else difference(
            want.read_bytes(), made.read_bytes(), want.name)
    return faults


def main():
    program, cases, names = pathlib.Path(sys.argv[1]).resolve(), pathlib.Path(sys.argv[2]), sys.argv[3:]
    passed = failed = 0
    for script in sorted(cases.glob("*/*/script.txt")):
        case = script.parent
        name = case.relative_to(cases).as_posix()
        if names and name not in names and name.split("/")[0] not in names:
            continue
        with tempfile.TemporaryDirectory(prefix="vantore-case-") as work:
            faults = play(program, case.resolve(), pathlib.Path(work))
        passed, failed = passed + (not faults), failed + bool(faults)
        if faults:
            print("FAIL " + name, *("    " + line for line in faults), sep="\n")
    print(f"{passed} passed, {failed} failed")
    return 1 if failed or not passed else 0


if __name__ == "__main__":
    sys.exit(main())
