#!/usr/bin/env bash
# A solver run that would take very long, in a real window: the window stays alive, and Ctrl+C ends the run with the
# best solution found so far.
#
#   solver_stop.sh PROGRAM WORK SOLVER PROBLEM
set -eu
# shellcheck source=tests/desktop/real_window.sh
. "$(dirname "$0")/real_window.sh"
begin "$1" "$2" 1024x768 1
cp "$3" "$install/MIP.EXE"
cp "$4" "$io/ILPSPLIT.dat"

solver_runs() { pgrep -f "^$install/MIP.EXE" >/dev/null; }
solver_has_ended() { ! solver_runs; }
solver_has_run() { [ "$(ps -o etimes= -p "$(pgrep -of "^$install/MIP.EXE")")" -ge 2 ]; }

start_program
expect_window VANTORE
click 5826 6246 # MIPROG
expect_window MIPROG
keys alt+s
expect_window 'Open integer programming data file'
text ILPSPLIT.dat
keys Return
expect_window "MIPROG - $io/ILPSPLIT.dat"
keys alt+s
answer MIPROG y
await "the solver" solver_runs
await "a run of two seconds" solver_has_run
import -window root "$work/shots/01-running.png" # never still: its seconds are counted
keys ctrl+c
await "the end of the solver" solver_has_ended
holds "$io/OUTPUT.Dat" 'STATUS: STOPPED'
shot 02-report
keys alt+c
keys alt+x
answer MIPROG n
expect_window VANTORE
keys alt+x
wait "$vantore" || fail "vantore ended with status $?"
echo "done"
