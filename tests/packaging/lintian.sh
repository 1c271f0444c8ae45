#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# tests/packaging/lintian.sh OUTDIR
# Debian's package checker on the package tests/packaging/package.sh left in
# OUTDIR, at its most demanding: no error and no warning, and of the
# informational and pedantic tags exactly those listed below, each with the
# reason it stays. A tag that goes away is struck from the list as well.
set -u
out=$(realpath -m "$1")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failed=0
fail() { echo "FAIL: $*"; failed=1; }

# The tag and what lintian says with it, without the file it names.
allowed=(
    # The games' own texts, shown to the player word for word: the message
    # about a high score table that cannot be read, and Handgrid's rules.
    "spelling-error-in-binary occured occurred"
    "spelling-error-in-binary remaing remaining"
)

debs=("$out"/cardhaven_*.deb)
[ -f "${debs[0]}" ] || { fail "no package in $out"; exit 1; }
command -v lintian >/dev/null || { fail "lintian is not installed (tools/setup.sh installs it)"; exit 1; }
lintian --pedantic --display-info --display-experimental --no-override --color never \
    "${debs[0]}" >"$work/out" 2>"$work/err"
status=$?
cat "$work/out"
[ "$status" -le 1 ] || fail "lintian ended with status $status: $(cat "$work/err")"
grep -E '^[EW]: ' "$work/out" >/dev/null && fail "lintian reports errors or warnings"

sed -nE 's/^[IPXN]: [^ ]+: (.*[^ ]) *$/\1/p' "$work/out" | sed -E 's/ *\[[^]]*\]$//' | sort -u >"$work/found"
printf '%s\n' "${allowed[@]}" | sort -u >"$work/allowed"
comm -23 "$work/found" "$work/allowed" | sed 's/^/  /' >"$work/new"
comm -13 "$work/found" "$work/allowed" | sed 's/^/  /' >"$work/gone"
[ -s "$work/new" ] && fail "tags not listed in $0:"$'\n'"$(cat "$work/new")"
[ -s "$work/gone" ] && fail "listed tags lintian no longer reports:"$'\n'"$(cat "$work/gone")"
exit $failed
