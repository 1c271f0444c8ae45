#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# tests/packaging/installed.sh SOURCEDIR OUTDIR
# Unpacks the package tests/packaging/package.sh left in OUTDIR into a
# scratch root and starts the program from there under a virtual X server, the
# way a file manager opens a saved game: the Exec line of the installed
# .desktop file with %f a saved game in a folder whose name has a blank, once
# the desktop's caches say that the program opens such a file. The
# selector comes up, Sumfall opens the saved game, and closing both ends the
# program cleanly, with the player's files under ~/.local/share/cardhaven.
set -u
src=$(cd "$1" && pwd)
out=$(realpath -m "$2")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failed=0
fail() { echo "FAIL: $*"; failed=1; }

debs=("$out"/cardhaven_*.deb)
[ -f "${debs[0]}" ] || { fail "no package in $out"; exit 1; }
root=$work/root
dpkg -x "${debs[0]}" "$root" || { fail "dpkg -x"; exit 1; }

# The caches a desktop builds from the installed files: a .sfl file is a
# saved game, and a saved game opens with the program.
update-mime-database "$root/usr/share/mime" >"$work/log" 2>&1 || fail "update-mime-database: $(cat "$work/log")"
type=$(sed -n 's/^[0-9]*:\([^:]*\):\*\.sfl$/\1/p' "$root/usr/share/mime/globs2")
[ -n "$type" ] || fail "the installed MIME database has no type for *.sfl"
update-desktop-database "$root/usr/share/applications" >"$work/log" 2>&1 || fail "update-desktop-database: $(cat "$work/log")"
grep -qx "$type=games.quillmark.cardhaven.desktop;" "$root/usr/share/applications/mimeinfo.cache" ||
    fail "$type does not open with the program: $(cat "$root/usr/share/applications/mimeinfo.cache")"

mkdir -p "$work/My Games" "$work/home"
cp "$src/tests/scenarios/command/cleo.sfl" "$work/My Games/cleo.sfl"
exec_line=$(sed -n 's/^Exec=//p' "$root/usr/share/applications/games.quillmark.cardhaven.desktop")
read -r -a words <<<"$exec_line"
command=()
for word in "${words[@]}"; do
    case $word in
        cardhaven) command+=("$root/usr/games/cardhaven") ;;
        %f) command+=("$work/My Games/cleo.sfl") ;;
        *) command+=("$word") ;;
    esac
done

# The saved game's message box has only OK; the splash panel hides when the
# game is loaded, and stays when the file could not be read.
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
wait 4000
quit
SCRIPT
unset XDG_RUNTIME_DIR XDG_DATA_HOME
export LSAN_OPTIONS="suppressions=$src/tests/desktop/lsan.supp:print_suppressions=0"
(cd / && HOME=$work/home timeout 90 xvfb-run -a -s "-screen 0 1280x1024x24 -nolisten tcp" \
    "${command[@]}" --script "$work/script") >"$work/out" 2>"$work/err"
status=$?
[ "$status" -eq 0 ] || fail "exit status $status"
[ -s "$work/err" ] && fail "standard error: $(cat "$work/err")"
[ "$(sed -n 1p "$work/out")" = "windows frmSelect" ] || fail "the selector did not come up first"
grep -qx "windows frmSumfall" "$work/out" || fail "the Sumfall window did not come up"
grep -Eq '^[A-Za-z:]+ frmSplash -?[0-9]+,-?[0-9]+ [0-9]+x[0-9]+ hidden ' "$work/out" ||
    fail "the saved game was not opened (the splash panel stands)"
ls "$work/home/.local/share/cardhaven/"*.Ini >/dev/null 2>&1 ||
    fail "no settings file in ~/.local/share/cardhaven"
[ "$failed" -eq 0 ] || { echo "--- output:"; cat "$work/out"; }
exit $failed
