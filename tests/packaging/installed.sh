#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# tests/packaging/installed.sh SOURCEDIR OUTDIR
# Unpacks the package into a scratch root and, once the desktop's caches say the program opens
# a saved game, opens one in a folder whose name has a blank: the selector comes up, Sumfall
# opens the game, closing both ends the program, the player's files are in ~/.local/share/cardhaven.
. "$(dirname "$0")/lib.sh"
src=$(cd "$1" && pwd)
package "$(realpath -m "$2")"
root=$work/root
apps=$root/usr/share/applications
dpkg -x "$deb" "$root" || { fail "dpkg -x"; exit 1; }

# The caches a desktop builds from the installed files: a .sfl file is a saved game, opened by us.
update-mime-database "$root/usr/share/mime" >"$work/log" 2>&1 || fail "update-mime-database: $(cat "$work/log")"
type=$(sed -n 's/^[0-9]*:\([^:]*\):\*\.sfl$/\1/p' "$root/usr/share/mime/globs2")
[ -n "$type" ] || fail "the installed MIME database has no type for *.sfl"
update-desktop-database "$apps" >"$work/log" 2>&1 || fail "update-desktop-database: $(cat "$work/log")"
grep -qx "$type=games.quillmark.cardhaven.desktop;" "$apps/mimeinfo.cache" ||
    fail "$type does not open with the program: $(cat "$apps/mimeinfo.cache")"

mkdir -p "$work/My Games" "$work/home"
cp "$src/tests/scenarios/command/cleo.sfl" "$work/My Games/cleo.sfl"
exec_line=$(sed -n 's/^Exec=//p' "$apps/games.quillmark.cardhaven.desktop")
[ "$exec_line" = "cardhaven %f" ] || fail "the installed desktop file runs '$exec_line', not 'cardhaven %f'"

# The saved game's box has only OK; the splash hides once the game loads, stays if it could not.
cat >"$work/script" <<'SCRIPT'
wait 800
windows
click frmSelect.cmdSumfall
wait 1200
answer ok
wait 600
windows
dump frmSumfall
close frmSumfall
wait 500
answer yes
wait 800
click frmSelect.cmdClose
SCRIPT
under_x "$work/home" "$root/usr/games/cardhaven" "$work/My Games/cleo.sfl" --script "$work/script"
[ "$(sed -n 1p "$work/out")" = "windows frmSelect" ] || fail "the selector did not come up first"
grep -qx "windows frmSumfall" "$work/out" || fail "the Sumfall window did not come up"
grep -Eq '^[A-Za-z:]+ frmSplash -?[0-9]+,-?[0-9]+ [0-9]+x[0-9]+ hidden ' "$work/out" ||
    fail "the saved game was not opened (the splash panel stands)"
ls "$work/home/.local/share/cardhaven/"*.Ini >/dev/null 2>&1 ||
    fail "no settings file in ~/.local/share/cardhaven"
finish
