#!/usr/bin/env python3
"""Compares MIP.EXE with the plain cbc program on published problems.

    mip_vs_cbc.py MIP.EXE PROBLEM.json ...

Prints the seconds that cbc takes and those of MIP.EXE's search, and beside them the seconds and nodes of the proof in
exact arithmetic, which cbc doesn't give. Skipped where there is no cbc.
"""
import json
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "tests" / "solvers" / "MIP"))
from published_optimum import figure, temporary_lines  # noqa: E402

RUNS = 3  # the quickest counts


def linear_program(problem):
    """The problem as cbc reads it."""
    def terms(pairs):
        return " ".join("%+.15g %s" % (factor, name) for name, factor in pairs if factor) or "0 " + first

    first = problem["variables"][0]["name"]
    yield "Maximize" if problem["sense"] == "max" else "Minimize"
    yield " obj: " + terms((v["name"], v["obj"]) for v in problem["variables"])
    yield "Subject To"
    for c in problem["constraints"]:
        yield f" {c['name']}: {terms(c['coef'].items())} {c['op']} {c['rhs']:.15g}"
    yield "Bounds"
    for v in problem["variables"]:
        yield f" {v['lb']:.15g} <= {v['name']} <= " + ("+inf" if v["ub"] is None else f"{v['ub']:.15g}")
    yield "General"
    yield " " + " ".join(v["name"] for v in problem["variables"] if v["type"] != "continuous")
    yield "End"


def quickest(run):
    """The least of what some runs give; of tuples, the one that begins with the least."""
    return min(run() for _ in range(RUNS))


def cbc_seconds(command):
    start = time.perf_counter()
    subprocess.run(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=True)
    return time.perf_counter() - start


def mip_figures(program, work):
    """Seconds of the search, seconds and nodes of the proof, and the status."""
    subprocess.run([program], env=dict(os.environ, VANTORE_IO=f"{work}/"), check=True)
    lines = work.joinpath("OUTPUT.Dat").read_text(encoding="utf-8").splitlines()
    labels = "Seconds of the search", "Seconds of the proof", "Nodes of the proof"
    return (*(figure(lines, label) for label in labels), lines[0].removeprefix("STATUS: "))


def main():
    cbc = shutil.which("cbc")
    if cbc is None:
        print("There is no cbc program to compare with.")
        return 0
    print("%-10s %8s %10s %8s %12s  %s" % ("problem", "cbc, s", "search, s", "proof, s", "proof nodes", "status"))
    for path in sys.argv[2:]:
        problem = json.loads(pathlib.Path(path).read_text(encoding="utf-8"))
        with tempfile.TemporaryDirectory(prefix="vantore-bench-") as folder:
            work = pathlib.Path(folder)
            work.joinpath("TEMP.DAT").write_text("\r\n".join(temporary_lines(problem)) + "\r\n", newline="")
            work.joinpath("problem.lp").write_text("\n".join(linear_program(problem)) + "\n", encoding="utf-8")
            plain = quickest(lambda: cbc_seconds([cbc, str(work / "problem.lp"), "-solve", "-quit"]))
            ours = quickest(lambda: mip_figures(sys.argv[1], work))
        print("%-10s %8.2f %10.2f %8.2f %12d  %s" % (problem["name"], plain, *ours))
    return 0


if __name__ == "__main__":
    sys.exit(main())
