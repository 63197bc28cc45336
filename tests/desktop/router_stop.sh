#!/usr/bin/env bash
# The plan of sixty-one stops in a real window: the window tells how far the search has come, Ctrl+C ends it with the
# best plan found so far, and the plot shows that.
#
#   router_stop.sh PROGRAM WORK SOLVER PROBLEM
set -eu
# shellcheck source=tests/desktop/real_window.sh
. "$(dirname "$0")/real_window.sh"
begin "$1" "$2" 1024x768 1
cp "$3" "$install/OPTMZR.EXE"
cp "$4" "$io/RTRBIG.dat"
solver_has_ended() { ! pgrep -f "^$install/OPTMZR.EXE" >/dev/null; }

start_program
expect_window VANTORE
click 5826 5046 # ROUTER
expect_window 'Vehicle Routing and Scheduling'
keys alt+s
expect_window 'Open vehicle routing & scheduling data file'
text RTRBIG.dat
keys Return
expect_window "ROUTER - $io/RTRBIG.dat"
keys alt+s
answer 'Solution options' Return
holds "$io/PROGRESS.DAT" 'Best plan so far: '
import -window root "$work/shots/01-running.png" # never still: its seconds are counted
keys ctrl+c
await "the end of the solver" solver_has_ended
holds "$io/ROUTE.DAT" COMPUTED
shot 02-plot
keys alt+c
keys alt+x
answer ROUTER n
expect_window VANTORE
keys alt+x
wait "$vantore" || fail "vantore ended with status $?"
echo "done"
