#!/usr/bin/env python3
"""Has MIP.EXE solve a published problem within its own limits.

    published_optimum.py PROGRAM PROBLEM.json

Writes the problem as TEMP.DAT, runs the program, and reads OUTPUT.Dat: the status must be OPTIMAL, the objective
value the published one, and the values of the variables must give it again and keep every constraint.
"""
import json
import os
import pathlib
import subprocess
import sys
import tempfile

SENSES = {"<=": 1, "=": 0, ">=": -1}
TIME_LIMIT = 150  # seconds


def temporary_lines(problem):
    variables, constraints = problem["variables"], problem["constraints"]
    senses = [SENSES[c["op"]] for c in constraints]
    counts = [len(constraints), len(variables), senses.count(1), senses.count(0), senses.count(-1)]
    whole = [j for j, v in enumerate(variables, 1) if v["type"] != "continuous"]
    bounds = [bound for v in variables for bound in (v["lb"], "1E+30" if v["ub"] is None else v["ub"])]
    rows = [["1" if problem["sense"] == "max" else "-1"], counts, ["'%s'" % v["name"] for v in variables]]
    rows += [[c["coef"].get(v["name"], 0) for v in variables] for c in constraints]
    rows += [[c["rhs"] for c in constraints], senses, [v["obj"] for v in variables], bounds, [len(whole)], whole]
    return [",".join(map(str, row)) for row in rows]


def solve(program, problem):
    with tempfile.TemporaryDirectory(prefix="vantore-mip-") as folder:
        path = pathlib.Path(folder)
        path.joinpath("TEMP.DAT").write_text("\r\n".join(temporary_lines(problem)) + "\r\n", newline="")
        environment = dict(os.environ, VANTORE_IO=folder + "/")
        run = subprocess.run([program], env=environment, capture_output=True, timeout=TIME_LIMIT, check=True)
        if run.stdout or run.stderr:
            raise SystemExit(f"the program isn't silent: {run.stdout + run.stderr}")
        return path.joinpath("OUTPUT.Dat").read_text(encoding="utf-8").splitlines()


def figure(lines, label):
    line = next(line for line in lines if line.startswith(label + "  "))
    return float(line[len(label):].replace(",", ""))


def values(lines, count):
    """The column "Value", which ends where its heading does."""
    start = lines.index("VARIABLES") + 3
    end = lines[start - 1].index(" Value") + len(" Value")
    return [float(line[:end].split()[-1]) for line in lines[start:start + count]]


def faults(problem, lines):
    if lines[0] != "STATUS: OPTIMAL":
        yield f"{lines[0]} in place of OPTIMAL"
        return
    want, got = problem["known_optimum"], figure(lines, "Objective value")
    if abs(got - want) > 1e-6 * max(1, abs(want)):
        yield f"objective value {got}, published {want}"
    relaxed = problem.get("lp_relaxation_optimum")
    if relaxed and abs(figure(lines, "Objective value of the relaxation") - relaxed) > 0.01:
        yield f"relaxation not the published {relaxed}"
    x = dict(zip((v["name"] for v in problem["variables"]), values(lines, len(problem["variables"]))))
    total = sum(v["obj"] * x[v["name"]] for v in problem["variables"])
    if abs(total - want) > 0.01:
        yield f"the variables give {total}"
    for c in problem["constraints"]:
        over = SENSES[c["op"]], sum(a * x[name] for name, a in c["coef"].items()) - c["rhs"]
        if (over[0] >= 0 and over[1] > 0.01) or (over[0] <= 0 and over[1] < -0.01):
            yield f"constraint {c['name']} is missed by {over[1]}"


def main():
    problem = json.loads(pathlib.Path(sys.argv[2]).read_text(encoding="utf-8"))
    lines = solve(sys.argv[1], problem)
    found = list(faults(problem, lines))
    print(*(found or ["%s: %s" % (problem["name"], problem["known_optimum"])]), sep="\n")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
