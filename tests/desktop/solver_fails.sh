#!/usr/bin/env bash
# Solver programs that fail, in a real window: each failure is told, no report is shown that isn't whole, and the
# window goes on.
#
#   solver_fails.sh PROGRAM WORK PROBLEM
set -eu
# shellcheck source=tests/desktop/real_window.sh
. "$(dirname "$0")/real_window.sh"
begin "$1" "$2" 1024x768 1
cp "$3" "$io/ILP01.dat"
report=$io/OUTPUT.Dat

# solver SCRIPT: the solver program that the next run starts.
solver() {
    printf '#!/bin/bash\nreport="$VANTORE_IO/OUTPUT.Dat"\n%s\n' "$1" >"$install/MIP.EXE.next"
    chmod +x "$install/MIP.EXE.next"
    mv "$install/MIP.EXE.next" "$install/MIP.EXE"
}
solve() {
    keys alt+s
    answer MIPROG y
}
solver_runs() { pgrep -f "$install/MIP.EXE" >/dev/null; }
no_solver() { ! solver_runs; }
no_report() { [ ! -e "$report" ]; }

# fails NAME SCRIPT: a run that ends in a message and shows no report; the data stay in view.
fails() {
    solver "$2"
    solve
    expect_window MIPROG
    shot "$1"
    answer MIPROG Return
    expect_window "MIPROG - $io/ILP01.dat"
    await "the end of the report of $1" no_report
}

start_program
expect_window VANTORE
click 5826 6246 # MIPROG
expect_window MIPROG
keys alt+s
expect_window 'Open integer programming data file'
text ILP01.dat
keys Return
expect_window "MIPROG - $io/ILP01.dat"

fails 01-dies-at-once 'echo "error while loading shared libraries" >&2; exit 127'
fails 02-ends-with-a-status 'echo STATUS >"$report"; exit 3'
fails 03-crashes-in-its-report 'printf "STATUS: OPTIMAL" >"$report"; kill -SEGV $$'
fails 04-writes-nothing 'exit 0'

# A good run behind the failed ones.
solver 'echo "STATUS: as asked" >"$report"'
solve
holds "$report" 'STATUS: as asked'
shot 05-report
keys alt+c

# One that goes on whatever it is asked ends with the second Ctrl+C.
solver 'trap "echo asked >$VANTORE_IO/asked" INT; trap "" TERM HUP; echo ready >"$VANTORE_IO/ready"; while :; do sleep 1; done'
solve
holds "$io/ready" ready
keys ctrl+c
holds "$io/asked" asked
keys ctrl+c
await "the end of the stubborn solver" no_solver
expect_window MIPROG
shot 06-ended
answer MIPROG Return
expect_window "MIPROG - $io/ILP01.dat"

# One whose suite is killed ends too.
rm "$io/ready"
solver 'echo ready >"$VANTORE_IO/ready"; while :; do sleep 1; done'
solve
holds "$io/ready" ready
kill -KILL "$vantore"
await "the end of the orphaned solver" no_solver
echo "done"
