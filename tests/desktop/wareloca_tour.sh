#!/usr/bin/env bash
# A user's tour through the warehouse case in a real window: the three tables, the solver's report, the customers on
# the map and the network with its labels, printed as lines and texts.
#
#   wareloca_tour.sh PROGRAM WORK WIDTHxHEIGHT FACTOR
set -eu
# shellcheck source=tests/desktop/real_window.sh
. "$(dirname "$0")/real_window.sh"
begin "$@"
for file in FIL.DAT OLDSOL.DAT MAP.DAT WARELO.EXE; do cp "$(dirname "$1")/$file" "$install/"; done
cp "$(dirname "$1")/LTH01.dat" "$io/"

start_program
expect_window VANTORE
click 5826 5646 # WARELOCA
expect_window Wareloca
on_screen Wareloca
keys alt+s
expect_window 'Open Lathern Soap Company data file'
text lth01.dat
keys Return
expect_window "WARELOCA - $io/LTH01.dat"
shot 01-plants
click 2000 300 # the tab of the warehouses
shot 02-warehouses
click 3400 300
shot 03-customers

keys alt+s
await "the report" holds "$io/OUTPUT.DAT" 'CUSTOMER SERVICE'
expect_window "WARELOCA - $io/LTH01.dat"
shot 04-report
keys alt+l
answer Wareloca Return
expect_window "WARELOCA - $io/LTH01.dat"
shot 05-customers-on-the-map
keys alt+c
keys alt+s
expect_window "WARELOCA - $io/LTH01.dat"
shot 06-report-again
keys alt+l
expect_window Wareloca
keys ctrl+a
text 5
keys Return
answer WARELOCA alt+y
answer WARELOCA alt+y
expect_window "WARELOCA - $io/LTH01.dat"
shot 07-network
