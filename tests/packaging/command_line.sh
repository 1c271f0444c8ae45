#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# tests/packaging/command_line.sh PROGRAM SCRIPT-PROGRAM VERSION
# The command lines of cardhaven and cardhaven-script, run without a display:
# help and version print and succeed, a wrong option gets a short usage on
# standard error and status 2, and a missing or unreachable display is told
# in one line of our own.
set -u
program=$(realpath "$1")
driver=$(realpath "$2")
version=$3
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failed=0
unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM
export XDG_RUNTIME_DIR=$work/run   # must stay empty: nothing is started
mkdir -m 700 "$XDG_RUNTIME_DIR"

# expect STATUS STDOUT-PATTERN STDERR-PATTERN STDERR-LINES -- COMMAND...
# A pattern is an extended regular expression one line must match ("" for an
# empty stream); STDERR-LINES is the number of lines wanted there, or "-".
expect() {
    local status=$1 out=$2 err=$3 lines=$4
    shift 5
    (cd "$work" && timeout 30 "$@") >"$work/out" 2>"$work/err"
    local got=$? problem=
    [ "$got" -eq "$status" ] || problem="status $got, not $status"
    if [ -z "$out" ]; then [ -s "$work/out" ] && problem+=" standard output not empty"
    elif ! grep -Eq -- "$out" "$work/out"; then problem+=" no line of standard output matches /$out/"; fi
    if [ -z "$err" ]; then [ -s "$work/err" ] && problem+=" standard error not empty"
    elif ! grep -Eq -- "$err" "$work/err"; then problem+=" no line of standard error matches /$err/"; fi
    if [ "$lines" != - ] && [ "$(wc -l <"$work/err")" -ne "$lines" ]; then
        problem+=" $(wc -l <"$work/err") lines on standard error, not $lines"
    fi
    if [ -n "$problem" ]; then
        echo "FAIL: $*:$problem"
        echo "  stdout: $(head -c 600 "$work/out")"
        echo "  stderr: $(head -c 600 "$work/err")"
        failed=1
    fi
}

# Help and version need no display, and start nothing.
expect 0 '^usage: cardhaven \[--home DIR\]' '' - -- "$program" --help
expect 0 '^  --version ' '' - -- "$program" -h
expect 0 "^cardhaven $version\$" '' - -- "$program" --version
expect 0 '^usage: cardhaven-script ' '' - -- "$driver" --help
expect 0 "^cardhaven-script $version\$" '' - -- "$driver" --version
[ -z "$(ls -A "$XDG_RUNTIME_DIR")" ] || { echo "FAIL: --help left files in the runtime folder"; failed=1; }

# Wrong options: two or three lines of usage on standard error, status 2,
# before anything else happens (the display is not even looked at).
expect 2 '' '^cardhaven: unknown option --fullscreen$' 3 -- "$program" --fullscreen
expect 2 '' '^usage: cardhaven ' 3 -- "$program" --home
expect 2 '' "needs a positive number, not 'big'" 3 -- "$program" --write-icon "$work/icon.png" big
expect 2 '' '^cardhaven-script: unknown option -x$' 2 -- "$driver" -x
expect 2 '' '^cardhaven-script: --home needs a value$' 2 -- "$driver" --home
expect 2 '' '^cardhaven-script: one script at a time$' 2 -- "$driver" one.script two.script
# An option after the program's own "--" is a saved game's name, not an option:
# the program goes on to look for its display.
expect 1 '' '^cardhaven: no display' 1 -- "$program" -- --help

# No display: one line of ours, nothing of Qt's, and no runtime folder left.
expect 1 '' '^cardhaven: no display to show the windows on \(DISPLAY is not set\)$' 1 -- "$program"
expect 1 '' '^cardhaven: cannot open the display :4071$' 1 -- env DISPLAY=:4071 "$program" "$work/saved game.sfl"
[ -z "$(ls -A "$XDG_RUNTIME_DIR")" ] || { echo "FAIL: the runtime folder is not empty"; failed=1; }
unset XDG_RUNTIME_DIR
mkdir "$work/tmp"
expect 1 '' '^cardhaven: cannot open the display :4071$' 1 -- env DISPLAY=:4071 TMPDIR="$work/tmp" "$program"
[ -z "$(ls -A "$work/tmp")" ] || { echo "FAIL: a private runtime folder was left behind"; failed=1; }

# The icon is drawn without a display.
expect 0 '' '' 0 -- "$program" --write-icon "$work/icon.png" 48
[ -s "$work/icon.png" ] || { echo "FAIL: --write-icon wrote no icon"; failed=1; }
exit $failed
