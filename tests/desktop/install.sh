#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# tests/desktop/install.sh BUILDDIR
# Installs the build into a scratch prefix and checks that everything lands in
# its usual place, and that the installed program finds its sounds there and
# keeps the player's files in ~/.local/share/cardhaven, not beside itself.
set -u
build=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
prefix=$work/prefix
failed=0
cmake --install "$build" --prefix "$prefix" >/dev/null || { echo "install failed"; exit 1; }
for f in games/cardhaven share/applications/games.quillmark.cardhaven.desktop share/icons/hicolor/256x256/apps/cardhaven.png \
         share/cardhaven/Quillmark.MID share/cardhaven/Chord.wav share/cardhaven/Wingame.wav; do
    [ -e "$prefix/$f" ] || { echo "missing $f"; failed=1; }
done
grep -q '^Exec=cardhaven' "$prefix/share/applications/games.quillmark.cardhaven.desktop" || { echo "desktop file has no Exec"; failed=1; }

# Open and close the first game of the build, then close the selector.
game=$("$prefix/games/cardhaven" --list-games | head -n 1)
{
    echo "wait 600"
    if [ -n "$game" ]; then
        echo "click frmSelect.${game%% *}"
        echo "wait 600"
        echo "close ${game#* }"
        echo "wait 400"
        echo "answer yes"
        echo "wait 400"
    fi
    echo "click frmSelect.cmdClose"
    echo "wait 5000"
    echo "quit"
} >"$work/script"
mkdir -p "$work/home"
unset XDG_RUNTIME_DIR XDG_DATA_HOME
export LSAN_OPTIONS="suppressions=$(cd "$(dirname "$0")" && pwd)/lsan.supp:print_suppressions=0"
(cd / && HOME=$work/home timeout 60 xvfb-run -a "$prefix/games/cardhaven" --script "$work/script") 2>"$work/err"
status=$?
[ "$status" -eq 0 ] || { echo "exit status $status"; failed=1; }
[ -s "$work/err" ] && { echo "standard error:"; cat "$work/err"; failed=1; }
[ -d "$work/home/.local/share/cardhaven" ] || { echo "no ~/.local/share/cardhaven"; failed=1; }
if [ -n "$game" ] && ! ls "$work/home/.local/share/cardhaven/"*.Ini >/dev/null 2>&1; then
    echo "the game's settings file is not in ~/.local/share/cardhaven"
    failed=1
fi
[ "$(ls "$prefix/games")" = cardhaven ] || { echo "files written beside the program"; failed=1; }
exit $failed
