#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# tests/packaging/command_line.sh PROGRAM SCRIPT-PROGRAM VERSION
# Without a display: help and version succeed, a wrong option gets usage and status 2, no display one line of ours.
. "$(dirname "$0")/lib.sh"
program=$(realpath "$1")
driver=$(realpath "$2")
version=$3
unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM
export XDG_RUNTIME_DIR=$work/run   # must stay empty: nothing is started
mkdir -m 700 "$XDG_RUNTIME_DIR" "$work/tmp"
empty() { [ -z "$(ls -A "$1")" ] || fail "$2"; }

# expect STATUS STDOUT-PATTERN STDERR-PATTERN STDERR-LINES -- COMMAND...: a pattern is an
# extended regular expression one line must match, "" for an empty stream; "-" any line count.
expect() {
    local patterns=([1]="$2" [2]="$3") names=([1]=stdout [2]=stderr) lines=$4 problem= fd got
    (cd "$work" && timeout 30 "${@:6}") >"$work/1" 2>"$work/2"
    got=$?
    [ "$got" -eq "$1" ] || problem="status $got, not $1"
    for fd in 1 2; do
        if [ -z "${patterns[fd]}" ]; then [ -s "$work/$fd" ] && problem+=" ${names[fd]} not empty"
        elif ! grep -Eq -- "${patterns[fd]}" "$work/$fd"; then
            problem+=" no line of ${names[fd]} matches /${patterns[fd]}/"
        fi
    done
    [ "$lines" = - ] || [ "$(wc -l <"$work/2")" -eq "$lines" ] || problem+=" $(wc -l <"$work/2") lines on stderr"
    [ -z "$problem" ] ||
        fail "${*:6}:$problem"$'\n'"  stdout: $(head -c 600 "$work/1")"$'\n'"  stderr: $(head -c 600 "$work/2")"
}

# Help and version need no display, and start nothing.
expect 0 '^usage: cardhaven \[--home DIR\]' '' - -- "$program" --help
expect 0 '^  --version ' '' - -- "$program" -h
expect 0 "^cardhaven $version\$" '' - -- "$program" --version
expect 0 '^usage: cardhaven-script ' '' - -- "$driver" --help
expect 0 "^cardhaven-script $version\$" '' - -- "$driver" --version
empty "$XDG_RUNTIME_DIR" "--help left files in the runtime folder"

# Wrong options: a short usage on standard error, status 2, before the display is looked at.
expect 2 '' '^cardhaven: unknown option --fullscreen$' 3 -- "$program" --fullscreen
expect 2 '' '^usage: cardhaven ' 3 -- "$program" --home
expect 2 '' "needs a positive number, not 'big'" 3 -- "$program" --write-icon "$work/icon.png" big
expect 2 '' '^cardhaven-script: unknown option -x$' 2 -- "$driver" -x
expect 2 '' '^cardhaven-script: --home needs a value$' 2 -- "$driver" --home
expect 2 '' '^cardhaven-script: one script at a time$' 2 -- "$driver" one.script two.script
# An option after the program's own "--" names a saved game: the program looks for its display.
expect 1 '' '^cardhaven: no display' 1 -- "$program" -- --help

# No display: one line of ours, nothing of Qt's, and no runtime folder left.
expect 1 '' '^cardhaven: no display to show the windows on \(DISPLAY is not set\)$' 1 -- "$program"
expect 1 '' '^cardhaven: cannot open the display :4071$' 1 -- env DISPLAY=:4071 "$program" "$work/saved game.sfl"
empty "$XDG_RUNTIME_DIR" "the runtime folder is not empty"
unset XDG_RUNTIME_DIR
expect 1 '' '^cardhaven: cannot open the display :4071$' 1 -- env DISPLAY=:4071 TMPDIR="$work/tmp" "$program"
empty "$work/tmp" "a private runtime folder was left behind"

# The icon is drawn without a display.
expect 0 '' '' 0 -- "$program" --write-icon "$work/icon.png" 48
[ -s "$work/icon.png" ] || fail "--write-icon wrote no icon"
finish
