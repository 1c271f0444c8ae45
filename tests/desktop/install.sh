#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# tests/desktop/install.sh BUILDDIR
# Installs the build into a scratch prefix: everything lands in its place, and the program runs
# from there and keeps the player's files in ~/.local/share/cardhaven, not beside itself.
. "$(dirname "$0")/../packaging/lib.sh"
prefix=$work/prefix
cmake --install "$1" --prefix "$prefix" >/dev/null || { fail "install failed"; exit 1; }
for f in games/cardhaven share/applications/games.quillmark.cardhaven.desktop \
         share/icons/hicolor/256x256/apps/cardhaven.png share/cardhaven/{Quillmark.MID,Chord.wav,Wingame.wav}; do
    [ -e "$prefix/$f" ] || fail "missing $f"
done

# Open and close the first game of the build, then close the selector.
game=$("$prefix/games/cardhaven" --list-games | head -n 1)
[ -n "$game" ] || { fail "the program lists no game"; exit 1; }
cat >"$work/script" <<SCRIPT
wait 600
click frmSelect.${game%% *}
wait 600
close ${game#* }
wait 400
answer yes
wait 400
click frmSelect.cmdClose
SCRIPT
mkdir -p "$work/home"
under_x "$work/home" "$prefix/games/cardhaven" --script "$work/script"
ls "$work/home/.local/share/cardhaven/"*.Ini >/dev/null 2>&1 ||
    fail "the game's settings file is not in ~/.local/share/cardhaven"
[ "$(ls "$prefix/games")" = cardhaven ] || fail "files written beside the program"
finish
