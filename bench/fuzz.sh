#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# bench/fuzz.sh [EVENTS] [SEED] [FUZZ OPTIONS...]
# Builds cardhaven-fuzz optimised (build-bench/, no sanitizers) and plays every
# game with EVENTS random events (default 1000000), checking after each event;
# further options go to cardhaven-fuzz (--edges --scoring: values at the edges,
# played toward big scores). Prints, per game, events a second and complete
# games (Play to Game Over, in virtual time) a second of real time. A fault
# ends that game's run; the others are played all the same, the fault's trail
# is kept in build-bench/ and the script exits 1.
set -euo pipefail
events=${1:-1000000}
seed=${2:-1}
shift $(( $# < 2 ? $# : 2 ))
here=$(cd "$(dirname "$0")/.." && pwd)
build=$here/build-bench
cmake -S "$here" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DCARDHAVEN_QT=OFF -DCARDHAVEN_TESTS=OFF >/dev/null
cmake --build "$build" --target cardhaven-fuzz cardhaven_data >/dev/null
cd "$build"
printf '%-10s %9s %10s %8s %9s %12s\n' game events events/s games games/s virtual_h
status=0
for game in sumfall fivestack blackrush spirehold duopick handgrid treyshift; do
    start=$(date +%s.%N)
    if out=$(./cardhaven-fuzz --game "$game" --seed "$seed" --events "$events" --data "$build/data" "$@"); then
        :
    elif code=$?; [ $code -gt 128 ]; then
        echo "$game: FAULT crash (signal $((code - 128))); trail kept: $build/cardhaven-fuzz-$game-$seed.script"
        status=1
        continue
    else
        echo "$out" | grep -v '^  '
        status=1
    fi
    end=$(date +%s.%N)
    # "<game> seed S: E events, G games completed, V s of virtual time, T s"
    read -r n games virtual <<<"$(head -1 <<<"$out" | sed -E 's/.*: ([0-9]+) events, ([0-9]+) games completed, ([0-9]+) s of virtual.*/\1 \2 \3/')"
    awk -v g="$game" -v n="$n" -v games="$games" -v v="$virtual" -v s="$start" -v e="$end" \
        'BEGIN { t = e - s; printf "%-10s %9d %10.0f %8d %9.1f %12.1f\n", g, n, n / t, games, games / t, v / 3600 }'
done
exit $status
