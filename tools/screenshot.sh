#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# tools/screenshot.sh [OUTDIR] [BUILDDIR]
# Starts the desktop program under a virtual X server at pixel ratio 1 and 2,
# drives it with a script (src/qt/driver.h) and writes PNGs into OUTDIR
# (default screenshots/): the selector, and each game window of this build
# idle and in play, plus the sheet of all card pictures. BUILDDIR (default
# build/) is built first when it holds no program.
set -euo pipefail
here=$(cd "$(dirname "$0")/.." && pwd)
out=$(mkdir -p "${1:-screenshots}" && cd "${1:-screenshots}" && pwd)
build=${2:-$here/build}
# A missing program is built first, as ./run.sh builds it.
if [ ! -x "$build/cardhaven" ]; then
    build=$(realpath -m "$build")
    (cd "$here" && source tools/setup.sh && cardhaven_install &&
        cardhaven_build "$build" -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCARDHAVEN_TESTS=OFF)
fi
build=$(cd "$build" && pwd)
program=$build/cardhaven
if [ ! -x "$program" ]; then
    echo "no $program: $build was configured with -DCARDHAVEN_QT=OFF" >&2
    exit 1
fi
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# The script: the selector, then every game the selector offers.
{
    echo "wait 1500"
    echo "shot selector"
    while read -r button form; do
        name=${form#frm}
        name=$(echo "$name" | tr '[:upper:]' '[:lower:]')
        echo "click frmSelect.$button"
        echo "wait 1500"
        echo "shot $name-idle"
        echo "click $form.cmdPlay"
        echo "wait 3000"
        echo "shot $name-play"
        echo "close $form"
        echo "wait 500"
        echo "answer yes"
        echo "wait 1000"
    done < <("$program" --list-games)
    echo "quit"
} >"$work/shots.script"

cd /
for ratio in 1 2; do
    mkdir -p "$out/${ratio}x"
    QT_SCALE_FACTOR=$ratio xvfb-run -a -s "-screen 0 2560x1600x24 -nolisten tcp" \
        "$program" --home "$work" --shots "$out/${ratio}x" --script "$work/shots.script"
    QT_QPA_PLATFORM=offscreen "$program" --card-sheet "$out/${ratio}x/cards.png" "$ratio"
done
ls "$out"/1x "$out"/2x
