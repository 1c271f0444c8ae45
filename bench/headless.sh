#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# bench/headless.sh [RUNS] [BUILDDIR] [GAMES]
# Complete games a second on the headless driver: for each game window, GAMES
# games (default 1000) in one process, each Play and then time passing until
# Game Over, with the default time limit and settings. RUNS times (default 5);
# prints the median games a second of each game, counted in processor time
# (the same as wall time on an idle machine). A run of the same script with
# no game in it is timed too, and its time taken off. The home folder
# lies in memory (/dev/shm where there is one): each game writes its high
# score table, synced, and the figure is of the program, not of the disk.
# Measure a release build (./run.sh builds build/ with RelWithDebInfo).
set -euo pipefail
runs=${1:-5}
here=$(cd "$(dirname "$0")/.." && pwd)
build=$(cd "${2:-$here/build}" && pwd)
games=${3:-1000}
driver=$build/cardhaven-script
[ -x "$driver" ] || { echo "no $driver: build it first" >&2; exit 1; }
work=$(mktemp -d)
home=$(mktemp -d -p "$([ -d /dev/shm ] && echo /dev/shm || echo "$work")")
trap 'rm -rf "$work" "$home"' EXIT
run() { "$driver" --home "$home" --data "$build/data" "$@"; }

source "$here/bench/common.sh"
# Processor time of one run in nanoseconds: on a machine shared with other
# work the wall clock measures the others as much as the driver.
cpu_ns() {
    local TIMEFORMAT='%3U %3S'
    { time run "$1" >/dev/null; } 2>&1 | awk '{ printf "%.0f\n", ($1 + $2) * 1e9 }'
}

"$build/cardhaven" --list-games >"$work/games"
while read -r button form; do
    # How long a game lasts: the first whole second with no game in progress.
    {
        echo "click frmSelect.$button"
        echo "click $form.cmdPlay"
        for _ in $(seq 1800); do echo "advance 1000"; echo "print GameInProgress"; done
    } >"$work/length.script"
    run "$work/length.script" >"$work/length.out"
    seconds=$(awk '/False/ { print NR; exit }' "$work/length.out")
    [ -n "$seconds" ] || { echo "${form#frm}: no Game Over within 30 minutes" >&2; continue; }
    echo "click frmSelect.$button" >"$work/none.script"
    cp "$work/none.script" "$work/games.script"
    # Time passes a second at a time, as in the search for the game's length.
    game=$(echo "click $form.cmdPlay"; for _ in $(seq "$seconds"); do echo "advance 1000"; done)
    for _ in $(seq "$games"); do echo "$game"; done >>"$work/games.script"
    echo "print GameInProgress" >>"$work/games.script"
    [ "$(run "$work/games.script")" = False ] ||
        { echo "${form#frm}: the last game did not end" >&2; continue; }
    : >"$work/rates"
    for _ in $(seq "$runs"); do
        none=$(cpu_ns "$work/none.script")
        all=$(cpu_ns "$work/games.script")
        awk -v g="$games" -v ns=$((all - none)) 'BEGIN { printf "%.0f\n", g / (ns / 1e9) }' >>"$work/rates"
    done
    echo "${form#frm} games_per_s $(median <"$work/rates") (game ${seconds} s, runs $(paste -sd' ' "$work/rates"))"
done <"$work/games"
