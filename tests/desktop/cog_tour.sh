#!/usr/bin/env bash
# A user's tour in a real window: opens a problem, changes a rate, watches the method, prints report, plot and
# data, saves under a new name, makes a new problem, and leaves.
#
#   cog_tour.sh PROGRAM WORK WIDTHxHEIGHT FACTOR
set -eu
# shellcheck source=tests/desktop/real_window.sh
. "$(dirname "$0")/real_window.sh"
begin "$@"
printf '"Three towns",.5,10\r\n3\r\n"Ashby",2,3,1000,.05\r\n"Borrow",8,4,2500,.04\r\n"Cranmer",5,9,1500,.06\r\n' \
    >"$io/COGT.dat"

start_program
expect_window VANTORE
on_screen VANTORE
shot 01-launcher

click 9186 5046 # COG
expect_window COG
on_screen COG
shot 02-start
keys alt+s
expect_window 'Open center-of-gravity data file'
on_screen 'Open center-of-gravity data file'
shot 03-open
text cogt.dat # in any case
keys Return
expect_window "COG - $io/COGT.dat"
shot 04-data

# The rate of Borrow: a click on its cell, Escape and the new rate; the end of the label typed and undone.
click $((120 + 900 + 3000 + 1250 + 1250 + 1400 + 600)) $((1000 + 400 + 300))
keys Escape
text .045
keys Home
text xyz
keys ctrl+z

# Three cycles of the method, each at a question over the report so far.
keys alt+s
answer 'Solution options' Return
answer Question alt+y
answer Question y
expect_window Question
on_screen Question
shot 05-question
answer Question n
expect_window "COG - $io/COGT.dat"
shot 06-report
keys alt+p
answer COG Return
print_to "$io/report.pdf" 'COG report' 07-print
holds "$io/report.pdf.txt" 'EXACT CENTER-OF-GRAVITY METHOD RESULTS'
holds "$io/report.pdf.txt" 'Page 1 of 1'
no_pictures "$io/report.pdf"

# The plot, with the points' numbers.
expect_window "COG - $io/COGT.dat"
keys alt+l
answer COG y
expect_window "COG - $io/COGT.dat"
shot 08-plot
keys alt+p
answer COG alt+y
print_to "$io/plot.pdf" 'COG plot'
holds "$io/plot.pdf.txt" 'LOCATION OF POINTS'
no_pictures "$io/plot.pdf"
expect_window "COG - $io/COGT.dat"
keys alt+c

# The data, printed with their texts.
keys alt+r
print_to "$io/data.pdf" 'COG data' 09-print-data
holds "$io/data.pdf.txt" 'EXACT CENTER-OF-GRAVITY METHOD RESULTS'
holds "$io/data.pdf.txt" 'Cranmer'
grep -Eq 'Borrow +8.00 +4.00 +2,500 +.0450' "$io/data.pdf.txt" || fail "no row of Borrow in data.pdf"

# Saved under a new name, with a row that the Insert key has added.
expect_window "COG - $io/COGT.dat"
click 600 $((1000 + 400 + 100))
keys Insert ctrl+End Home
text Dunmow
keys Right
text 7
keys alt+v
expect_window 'Save center-of-gravity data'
keys ctrl+a
text COGNEW.dat
keys Return
expect_window "COG - $io/COGNEW.dat"
holds "$io/COGNEW.dat" '"Borrow",8,4,2500,.045'
holds "$io/COGNEW.dat" '"Dunmow",7,0,0,0'
holds "$io/COGT.dat" '"Borrow",8,4,2500,.04'
shot 10-saved

# The same name again is asked about, and kept on No.
keys alt+v
expect_window 'Save center-of-gravity data'
keys ctrl+a
text COGT.dat
dialog=$(xdotool getactivewindow)
keys Return
expect_other_window "$dialog"
shot 11-replace
keys alt+n
expect_same_window "$dialog"
keys Escape
expect_window "COG - $io/COGNEW.dat"
holds "$io/COGT.dat" '"Borrow",8,4,2500,.04'

# Leaving without saving, and a new problem from a new name.
keys alt+x
answer COG alt+n
expect_no_window 'COG - .*'
expect_window VANTORE
click 9186 5046
expect_window COG
keys alt+s
expect_window 'Open center-of-gravity data file'
text COGFRESH # the ending is the filter's
keys Return
expect_window "COG - $io/COGFRESH.dat"
holds "$io/COGFRESH.dat" '"Enter label",.5,1'
keys alt+x
answer COG n
expect_window VANTORE
keys alt+x
wait "$vantore" || fail "vantore ended with status $?"
[ ! -s "$work/vantore.log" ] || cat "$work/vantore.log"
echo "done"
