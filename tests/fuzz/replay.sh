#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# replay.sh FUZZ SCRIPT DATA GAME SEED
# A fuzz run's trail, closed by expectations of its end state, replays in the driver and meets them all.
set -euo pipefail
fuzz=$1 script=$2 data=$3 game=$4 seed=$5
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
"$fuzz" --game "$game" --seed "$seed" --events 1500 --data "$data" --trail "$work/trail.script" --keep-trail
grep -q '^expect CurrentScore' "$work/trail.script"
"$script" --data "$data" "$work/trail.script"
