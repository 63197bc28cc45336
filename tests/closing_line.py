#!/usr/bin/env python3
"""Plays all script cases, the project's own and, where they lie beside it, the conformance cases of the modules
that stand, and prints one closing line "N passed, N failed".

A case listed in tests/disputed.txt is played, but doesn't count as failed.
"""
import pathlib
import re
import subprocess
import sys

TESTS = pathlib.Path(__file__).resolve().parent
CONFORMANCE = TESTS.parent.parent / "shared" / "conformance"


def words(path):
    """The first words of the lines of a list file; # starts a comment."""
    text = path.read_text(encoding="utf-8") if path.exists() else ""
    return [line.split()[0] for line in text.splitlines() if line.strip() and not line.startswith("#")]


def play(command):
    output = subprocess.run(command, capture_output=True, text=True, check=False).stdout
    closing = re.findall(r"^(\d+) passed, (\d+) failed$", output, re.MULTILINE)
    if not closing:
        return 0, 1, ["no closing line from " + " ".join(command)], output
    return int(closing[-1][0]), int(closing[-1][1]), re.findall(r"^FAIL (\S+)", output, re.MULTILINE), output


def main():
    program = sys.argv[1]
    runs = [[sys.executable, str(TESTS / "play_cases.py"), program, str(TESTS / "cases")]]
    if (CONFORMANCE / "run").exists():
        runs.append([sys.executable, str(CONFORMANCE / "run"), program, *words(TESTS / "standing_modules.txt")])
    else:
        print("no conformance cases beside this folder")
    disputed = set(words(TESTS / "disputed.txt"))
    passed = failed = 0
    for command in runs:
        right, wrong, names, output = play(command)
        excused = [name for name in names if name in disputed]
        for name in excused:
            print("disputed: " + name)
        if wrong > len(excused):
            print(output)
        passed, failed = passed + right, failed + wrong - len(excused)
    print(f"{passed} passed, {failed} failed")
    return 1 if failed or not passed else 0


if __name__ == "__main__":
    sys.exit(main())
