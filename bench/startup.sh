#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# bench/startup.sh [RUNS] [BUILDDIR]
# Measures the desktop program and the floor beside it (bench-floor: a bare Qt
# Widgets window that paints one card) under one virtual X server, RUNS times
# (default 7), the two taking turns, and prints the median of each measure
# and the program's ratio to the floor:
#   startup_ms   process start to the first window painted
#   peak_mb      peak resident memory 5 s after start
#   idle_cpu_pct processor time of 10 idle seconds at the selector, its ring
#                turning, in percent of one core (the floor's: of its window)
# Measure a release build (./run.sh builds build/ with RelWithDebInfo).
set -euo pipefail
runs=${1:-7}
here=$(cd "$(dirname "$0")/.." && pwd)
build=$(cd "${2:-$here/build}" && pwd)
program=$build/cardhaven
floor=$build/bench-floor
for binary in "$program" "$floor"; do
    [ -x "$binary" ] || { echo "no $binary: build it first" >&2; exit 1; }
done
source "$here/bench/common.sh"
start_display
cd /

printf 'wait 5000\nmemory\ncpu start\nwait 10000\ncpu stop\nquit\n' >"$work/bench.script"

# start_ns out: milliseconds from start to the first paint
shown_ms() { awk -v s="$1" '/^shown_at_ns/ { printf "%.1f\n", ($2 - s) / 1e6 }' "$2"; }

for f in startup mem cpu floor_startup floor_mem floor_cpu; do : >"$work/$f"; done
for run in $(seq "$runs"); do
    start=$(date +%s%N)
    "$floor" --stay 10000 >"$work/out" 2>"$work/err"
    shown_ms "$start" "$work/out" >>"$work/floor_startup"
    awk '/^peak_kb/ { printf "%.1f\n", $2 / 1024 }' "$work/out" >>"$work/floor_mem"
    awk '/^cpu_ms/ { printf "%.2f\n", $2 / 100 }' "$work/out" >>"$work/floor_cpu"

    home="$work/home$run"
    mkdir -p "$home"
    start=$(date +%s%N)
    "$program" --home "$home" --report-startup --script "$work/bench.script" >"$work/out" 2>"$work/err"
    shown_ms "$start" "$work/out" >>"$work/startup"
    awk '/^peak_kb/ { printf "%.1f\n", $2 / 1024 }' "$work/out" >>"$work/mem"
    awk '/^cpu_ms/ { printf "%.2f\n", $2 / 100 }' "$work/out" >>"$work/cpu"
    echo "run $run: startup $(tail -n 1 "$work/startup") ms (floor $(tail -n 1 "$work/floor_startup"))," \
        "peak $(tail -n 1 "$work/mem") MB (floor $(tail -n 1 "$work/floor_mem"))," \
        "idle cpu $(tail -n 1 "$work/cpu") % (floor $(tail -n 1 "$work/floor_cpu"))" >&2
done
ratio() { awk -v a="$1" -v b="$2" 'BEGIN { printf "%.2f\n", (b > 0 ? a / b : 0) }'; }
for m in startup_ms:startup peak_mb:mem idle_cpu_pct:cpu; do
    name=${m%%:*} file=${m#*:}
    ours=$(median <"$work/$file") base=$(median <"$work/floor_$file")
    echo "$name $ours floor_$name $base"
    [ "$name" = idle_cpu_pct ] || echo "${name%_*}_ratio $(ratio "$ours" "$base")"
done
