#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# tests/desktop/run.sh PROGRAM SCRIPT
# Runs the desktop program under a virtual X server with a driver script and
# a fresh home folder. Passes when the program ends with status 0 and writes
# nothing to standard error, and every "expect-out TEXT" line of the script
# is found in what it printed. A script with the line "# audio: null-sink"
# gets a private sound server whose only output is a null sink.
set -u
program=$(realpath "$1")
script=$(realpath "$2")
home=$(mktemp -d)
pa=
trap '[ -n "$pa" ] && kill "$pa" 2>/dev/null; rm -rf "$home"' EXIT
# In a sanitizer build, leaks of the system libraries below Qt are not ours.
export LSAN_OPTIONS="suppressions=$(cd "$(dirname "$0")" && pwd)/lsan.supp:print_suppressions=0${LSAN_OPTIONS:+:$LSAN_OPTIONS}"
cd /
# The program makes its own runtime folder where the session has none.
unset XDG_RUNTIME_DIR
if grep -qx '# audio: null-sink' "$script"; then
    export XDG_RUNTIME_DIR=$home/run
    mkdir -m 700 "$XDG_RUNTIME_DIR"
    pulseaudio -n --daemonize=no --exit-idle-time=-1 --disable-shm=yes --log-level=error \
        -L module-null-sink -L module-native-protocol-unix >/dev/null 2>&1 &
    pa=$!
    for _ in $(seq 50); do [ -S "$XDG_RUNTIME_DIR/pulse/native" ] && break; sleep 0.1; done
fi
timeout 120 xvfb-run -a -s "-screen 0 1280x1024x24 -nolisten tcp" \
    "$program" --home "$home" --shots "$home/shots" --script "$script" >"$home/out" 2>"$home/err"
status=$?
failed=0
if [ "$status" -ne 0 ]; then
    echo "exit status $status"
    failed=1
fi
if [ -s "$home/err" ]; then
    echo "standard error was not empty:"
    cat "$home/err"
    failed=1
fi
while IFS= read -r want; do
    if ! grep -qxF -- "$want" "$home/out"; then
        echo "missing output: $want"
        failed=1
    fi
done < <(sed -n 's/^# expect-out //p' "$script")
if [ "$failed" -ne 0 ]; then
    echo "--- output:"
    cat "$home/out"
fi
exit $failed
