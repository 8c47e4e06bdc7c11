#!/usr/bin/env bash
# Starts the real program under Xvfb several times and reports, as median and range:
#   exec -> first paint of the opening window,
#   click on "Start" -> first paint of the main window,
#   resident memory (VmRSS, and the peak VmHWM) one second after the main window came up.
# Usage: bench/startup.sh [RUNS] [PROGRAM]   (defaults: 7, build/vortic-typing-russian)
# The timing is done by paintclock.cpp, compiled here into a scratch directory.
set -euo pipefail
cd "$(dirname "$0")/.."

runs=${1:-7}
program=${2:-build/vortic-typing-russian}
[ -x "$program" ] || { echo "no program at $program; build it first" >&2; exit 2; }
program=$(realpath "$program")

have_tools() {
    command -v Xvfb >/dev/null && command -v c++ >/dev/null \
        && [ -f /usr/include/X11/extensions/Xdamage.h ] && [ -f /usr/include/X11/extensions/XTest.h ]
}
if ! have_tools; then
    if [ "$(id -u)" = 0 ]; then
        apt-get update
        DEBIAN_FRONTEND=noninteractive apt-get install -y xvfb g++ libx11-dev libxdamage-dev libxtst-dev
    else
        echo "needs Xvfb, g++, libx11-dev, libxdamage-dev and libxtst-dev" >&2
        exit 2
    fi
fi

scratch=$(mktemp -d)
xvfb_pid=
cleanup() {
    # paintclock ends the program itself; this is for a run cut short.
    if [ -f "$scratch/pids" ]; then
        while read -r pid; do kill "$pid" 2>/dev/null || true; done <"$scratch/pids"
    fi
    if [ -n "$xvfb_pid" ]; then
        kill "$xvfb_pid" 2>/dev/null || true
        wait "$xvfb_pid" 2>/dev/null || true
    fi
    rm -rf "$scratch"
}
trap cleanup EXIT INT TERM

c++ -std=c++17 -O2 -o "$scratch/paintclock" bench/paintclock.cpp -lX11 -lXdamage -lXtst

# -displayfd picks a free display number and writes it once the server is ready.
Xvfb -displayfd 3 -screen 0 1920x1080x24 -nolisten tcp 3>"$scratch/display" 2>"$scratch/xvfb.log" &
xvfb_pid=$!
for _ in $(seq 100); do
    [ -s "$scratch/display" ] && break
    sleep 0.05
done
[ -s "$scratch/display" ] || { echo "Xvfb did not start" >&2; cat "$scratch/xvfb.log" >&2; exit 1; }
export DISPLAY=":$(tr -d '\n' <"$scratch/display")"
unset QT_QPA_PLATFORM

# The Start button lies at (80,188), 521x51, in the 700x551 opening window: click its middle.
for run in $(seq "$runs"); do
    "$scratch/paintclock" --click 700x551:340,213 --then 1211x695 --settle 1000 -- "$program" \
        >"$scratch/run$run" 2>>"$scratch/program.log" || true
    awk '$1 == "pid" { print $2 }' "$scratch/run$run" >>"$scratch/pids"
    if ! grep -q '^done' "$scratch/run$run"; then
        echo "run $run did not reach the main window:" >&2
        cat "$scratch/run$run" "$scratch/program.log" >&2
        exit 1
    fi
    awk -v run="$run" '
        $1 == "paint" && !first { first = $2 }
        $1 == "paint" && $3 == "700x551" && !opening { opening = $2 }
        $1 == "click" { click = $2 }
        $1 == "paint" && $3 == "1211x695" { main = $2 }
        $1 == "rss" { rss = $2; hwm = $4 }
        END { printf "%d %.1f %.1f %.1f %.1f %.1f\n", run, first, opening, main - click, rss / 1024, hwm / 1024 }
    ' "$scratch/run$run" >>"$scratch/table"
done

echo "machine: $(nproc) cores, $(grep -m1 'model name' /proc/cpuinfo | cut -d: -f2- | sed 's/^ //')"
echo "runs: $runs of $program on Xvfb $DISPLAY"
echo
echo "run  first-paint-ms  opening-painted-ms  start-to-main-ms  rss-MB  hwm-MB"
awk '{ printf "%3d  %14s  %18s  %16s  %6s  %6s\n", $1, $2, $3, $4, $5, $6 }' "$scratch/table"
echo

summary() {
    local column=$1 name=$2 unit=$3 target=$4
    sort -g -k"$column","$column" "$scratch/table" | awk -v c="$column" -v name="$name" \
        -v unit="$unit" -v target="$target" '
        { v[NR] = $c }
        END {
            median = NR % 2 ? v[(NR + 1) / 2] : (v[NR / 2] + v[NR / 2 + 1]) / 2
            printf "%-34s median %7.1f %s  range %.1f .. %.1f  target <= %s %s: %s\n", name,
                median, unit, v[1], v[NR], target, unit, median <= target ? "met" : "NOT met"
        }'
}
summary 3 "exec -> opening window painted" ms 124
summary 4 "Start -> main window painted" ms 150
summary 5 "resident memory, main window up" MB 60
