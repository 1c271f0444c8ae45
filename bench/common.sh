# SPDX-License-Identifier: GPL-3.0-or-later
# Sourced by the desktop benchmarks.

# The median of the numbers on standard input, one a line.
median() {
    sort -n | awk '{ v[NR] = $1 } END { m = int((NR + 1) / 2); print (NR % 2) ? v[m] : (v[m] + v[m + 1]) / 2 }'
}

# Makes a work folder ($work) and starts one virtual X server for all runs,
# so that its start-up is not counted; both go when the script ends.
start_display() {
    work=$(mktemp -d)
    display=:$((90 + RANDOM % 100))
    Xvfb "$display" -screen 0 1280x1024x24 -nolisten tcp >/dev/null 2>&1 &
    xvfb=$!
    trap 'kill $xvfb 2>/dev/null; rm -rf "$work"' EXIT
    for _ in $(seq 50); do [ -e "/tmp/.X11-unix/X${display#:}" ] && break; sleep 0.1; done
    export DISPLAY=$display
}
