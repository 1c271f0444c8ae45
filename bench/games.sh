#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# bench/games.sh [RUNS] [BUILDDIR] [SECONDS]
# Opens every game window of the desktop program in turn, in one run under a
# virtual X server, RUNS times (default 5), and prints the medians of:
#   GAME splash_cpu_pct  processor time of SECONDS (default 5) idle seconds in
#                        the game window before Play, its splash turning, in
#                        percent of one core
#   GAME play_cpu_pct    the same after Play, the clock running
#   all_games_peak_mb    peak resident memory once all seven were opened,
#                        played and closed
# Measure a release build (./run.sh builds build/ with RelWithDebInfo).
set -euo pipefail
runs=${1:-5}
here=$(cd "$(dirname "$0")/.." && pwd)
build=$(cd "${2:-$here/build}" && pwd)
seconds=${3:-5}
program=$build/cardhaven
[ -x "$program" ] || { echo "no $program: build it first" >&2; exit 1; }
source "$here/bench/common.sh"
start_display
cd /

"$program" --list-games >"$work/games"
{
    echo "wait 1500"
    while read -r button form; do
        echo "click frmSelect.$button"
        echo "wait 1500"
        echo "cpu start"
        echo "wait $((seconds * 1000))"
        echo "cpu stop"
        echo "click $form.cmdPlay"
        echo "wait 1500"
        echo "cpu start"
        echo "wait $((seconds * 1000))"
        echo "cpu stop"
        # Closing a game in progress asks first.
        echo "close $form"
        echo "wait 500"
        echo "answer yes"
        echo "wait 500"
    done <"$work/games"
    echo "memory"
    echo "quit"
} >"$work/bench.script"


: >"$work/all"
for run in $(seq "$runs"); do
    home="$work/home$run"
    mkdir -p "$home"
    "$program" --home "$home" --script "$work/bench.script" >"$work/out" 2>"$work/err"
    awk -v s="$seconds" '/^cpu_ms/ { printf "%.2f\n", $2 / (10 * s) }' "$work/out" >"$work/cpu$run"
    awk '/^peak_kb/ { printf "%.1f\n", $2 / 1024 }' "$work/out" >"$work/mem$run"
    echo "run $run: $(paste -sd' ' "$work/cpu$run") %, peak $(cat "$work/mem$run") MB" >&2
done
row=0
while read -r button form; do
    for state in splash play; do
        row=$((row + 1))
        for run in $(seq "$runs"); do sed -n "${row}p" "$work/cpu$run"; done >"$work/values"
        echo "${form#frm} ${state}_cpu_pct $(median <"$work/values")"
    done
done <"$work/games"
echo "all_games_peak_mb $(cat "$work"/mem* | median)"
