#!/bin/sh
# Triple exponential smoothing of one series of 200 periods, by Vantore and by R's HoltWinters.
#
#   forecast_vs_r.sh PATH-TO-vantore-script
#
# Vantore: the whole program, from its start to the written report, with the search over all 1,030,301
# combinations of hundredths. R, timed inside R: HoltWinters with its own optimiser (L-BFGS-B from one starting
# point, a few dozen combinations), and its compiled recursion for one combination, which a full grid would
# repeat. The two start their recursions differently and sum different errors, so the fits differ.
# R comes with Debian's r-base-core; without Rscript its part is left out.
set -eu

player=${1:?usage: forecast_vs_r.sh PATH-TO-vantore-script}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# Trend, a season of 12 and noise from a linear congruential generator.
awk 'BEGIN {
    state = 1
    for (t = 1; t <= 200; ++t) {
        state = (state * 16807) % 2147483647
        noise = 1 + .1 * (state / 2147483647 - .5)
        printf "%.0f\n", (500 + 4 * t) * (1 + .3 * sin(2 * 3.14159265358979 * t / 12)) * noise
    }
}' > "$work/series.txt"
{
    printf '"Monthly sales",200,24,176,4,"Y",.01,0,0,0,12,12\r\n200\r\n'
    awk '{ printf "\"M%d\",%s\r\n", NR, $1 }' "$work/series.txt"
} > "$work/FRC01.dat"
printf 'module FORECAST\nfile FRC01.dat\npress cmdOpen\npress cmdSolve\n' > "$work/script.txt"

now() { date +%s%N; }
best=
for run in 1 2 3 4 5; do
    start=$(now)
    "$player" --io "$work" "$work/script.txt" > /dev/null
    took=$(( ($(now) - start) / 1000000 ))
    if [ -z "$best" ] || [ "$took" -lt "$best" ]; then best=$took; fi
done
echo "Vantore, 1030301 combinations, best of 5: $best ms"
grep -E 'sm\. const|RMSE' "$work/OUTPUT.DAT"

if ! command -v Rscript > /dev/null; then
    echo "R: not measured, there is no Rscript"
    exit 0
fi
Rscript - "$work/series.txt" "$best" <<'R'
arguments <- commandArgs(TRUE)
series <- ts(scan(arguments[1], quiet = TRUE), frequency = 12)
seconds <- function(runs, work) {
    gc()
    system.time(for (i in seq_len(runs)) work())["elapsed"] / runs
}
model <- function(...) suppressWarnings(HoltWinters(series, ..., seasonal = "multiplicative"))
fitted <- model()
own <- seconds(20, function() model())
errors <- nrow(fitted$fitted)
cat(sprintf("R %s.%s, its own optimiser: %.1f ms; alpha %.2f, beta %.2f, gamma %.2f, RMSE %.2f over %d periods\n",
            R.version$major, R.version$minor, 1000 * own, fitted$alpha, fitted$beta, fitted$gamma,
            sqrt(fitted$SSE / errors), errors))

# The compiled recursion alone, as the optimiser calls it: the part of the work that a grid repeats.
x <- as.double(series)
recursion <- function(alpha, beta, gamma)
    .C(stats:::C_HoltWinters, x, length(x), alpha, beta, gamma, 13L, 0L, 12L, 1L, 1L, a = 500, b = 4,
       s = rep(1, 12), SSE = 0, level = double(189), trend = double(189), seasonal = double(200))$SSE
one <- seconds(20000, function() recursion(.2, .1, .3))
cat(sprintf("R, compiled recursion: %.4f ms a combination, %.1f s for 1030301, %.0f times Vantore's time\n",
            1000 * one, one * 1030301, one * 1030301 / (as.numeric(arguments[2]) / 1000)))
R
