# SPDX-License-Identifier: GPL-3.0-or-later
# Sourced by the packaging and desktop tests: a scratch folder $work, fail and finish, the package
# a folder holds, and the program (own runtime folder, files in $HOME) under a virtual X server.
set -u
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failed=0
unset XDG_RUNTIME_DIR XDG_DATA_HOME
fail() { echo "FAIL: $*"; failed=1; }
finish() {
    [ "$failed" -eq 0 ] || [ ! -s "$work/out" ] || { echo "--- output:"; cat "$work/out"; }
    exit $failed
}
# package OUTDIR: $deb is the one package tests/packaging/package.sh left there.
package() {
    local debs=("$1"/cardhaven_*.deb)
    [ -f "${debs[0]}" ] || { fail "no package in $1"; exit 1; }
    deb=${debs[0]}
}
# under_x HOME COMMAND...: runs the command from / under a virtual X server, output in $work/out;
# status 0 and nothing on standard error. A script closing the last window has no quit: a program
# that stays runs into the time limit. Leaks of the system libraries below Qt are not ours.
under_x() {
    local home=$1 supp
    supp=$(cd "$(dirname "${BASH_SOURCE[0]}")/../desktop" && pwd)/lsan.supp
    shift
    (cd / && HOME=$home LSAN_OPTIONS="suppressions=$supp:print_suppressions=0${LSAN_OPTIONS:+:$LSAN_OPTIONS}" \
        timeout 120 xvfb-run -a -s "-screen 0 1280x1024x24 -nolisten tcp" "$@") >"$work/out" 2>"$work/err"
    local status=$?
    [ "$status" -eq 0 ] || fail "exit status $status"
    [ -s "$work/err" ] && fail "standard error: $(cat "$work/err")"
}
