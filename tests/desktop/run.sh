#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# tests/desktop/run.sh PROGRAM SCRIPT
# Runs the program with a driver script and a fresh home; each "expect-out TEXT" line must be in
# its output, and the line "# audio: null-sink" brings a sound server with only a null sink.
. "$(dirname "$0")/../packaging/lib.sh"
program=$(realpath "$1")
script=$(realpath "$2")
pa=
trap '[ -n "$pa" ] && kill "$pa" 2>/dev/null; rm -rf "$work"' EXIT
if grep -qx '# audio: null-sink' "$script"; then
    export XDG_RUNTIME_DIR=$work/run
    mkdir -m 700 "$XDG_RUNTIME_DIR"
    pulseaudio -n --daemonize=no --exit-idle-time=-1 --disable-shm=yes --log-level=error \
        -L module-null-sink -L module-native-protocol-unix >/dev/null 2>&1 &
    pa=$!
    for _ in $(seq 50); do [ -S "$XDG_RUNTIME_DIR/pulse/native" ] && break; sleep 0.1; done
fi
under_x "$work" "$program" --home "$work" --shots "$work/shots" --script "$script"
while IFS= read -r want; do
    grep -qxF -- "$want" "$work/out" || fail "missing output: $want"
done < <(sed -n 's/^# expect-out //p' "$script")
finish
