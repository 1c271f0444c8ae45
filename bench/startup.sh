#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# bench/startup.sh [RUNS] [BUILDDIR]
# Measures the desktop program under a virtual X server, RUNS times (default 7),
# and prints the median of each measure:
#   startup_ms   process start to the selector's first paint
#   idle_cpu_pct processor time of 10 idle seconds at the selector, with its ring
#                turning, in percent of one core
#   peak_mb      peak resident memory with one game window open (the first game
#                of this build; the selector alone when there is none)
# Measure a release build (./run.sh builds build/ with RelWithDebInfo).
set -euo pipefail
runs=${1:-7}
here=$(cd "$(dirname "$0")/.." && pwd)
build=$(cd "${2:-$here/build}" && pwd)
program=$build/cardhaven
[ -x "$program" ] || { echo "no $program: build it first" >&2; exit 1; }
work=$(mktemp -d)
cd /

# One X server for all runs, so that its start-up is not counted.
display=:$((90 + RANDOM % 100))
Xvfb "$display" -screen 0 1280x1024x24 -nolisten tcp >/dev/null 2>&1 &
xvfb=$!
trap 'kill $xvfb 2>/dev/null; rm -rf "$work"' EXIT
for _ in $(seq 50); do [ -e "/tmp/.X11-unix/X${display#:}" ] && break; sleep 0.1; done
export DISPLAY=$display

game=$("$program" --list-games | head -n 1)
{
    echo "wait 1000"
    echo "cpu start"
    echo "wait 10000"
    echo "cpu stop"
    if [ -n "$game" ]; then
        echo "click frmSelect.${game%% *}"
        echo "wait 2000"
    fi
    echo "memory"
    echo "quit"
} >"$work/bench.script"

median() { sort -n | awk '{ v[NR] = $1 } END { m = int((NR + 1) / 2); print (NR % 2) ? v[m] : (v[m] + v[m + 1]) / 2 }'; }

: >"$work/startup"; : >"$work/cpu"; : >"$work/mem"
for run in $(seq "$runs"); do
    home="$work/home$run"
    mkdir -p "$home"
    start=$(date +%s%N)
    "$program" --home "$home" --report-startup --script "$work/bench.script" >"$work/out" 2>"$work/err"
    shown=$(awk '/^shown_at_ns/ { print $2 }' "$work/out")
    echo $(((shown - start) / 1000)) | awk '{ printf "%.1f\n", $1 / 1000 }' >>"$work/startup"
    awk '/^cpu_ms/ { printf "%.2f\n", $2 / 100 }' "$work/out" >>"$work/cpu"
    awk '/^peak_kb/ { printf "%.1f\n", $2 / 1024 }' "$work/out" >>"$work/mem"
    echo "run $run: startup $(tail -n 1 "$work/startup") ms, idle cpu $(tail -n 1 "$work/cpu") %, peak $(tail -n 1 "$work/mem") MB" >&2
done
echo "game window open: ${game#* }"
echo "startup_ms $(median <"$work/startup")"
echo "idle_cpu_pct $(median <"$work/cpu")"
echo "peak_mb $(median <"$work/mem")"
