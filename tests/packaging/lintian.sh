#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# tests/packaging/lintian.sh OUTDIR
# Debian's package checker at its most demanding on package.sh's package: no error, no warning, and
# exactly the informational and pedantic tags below, each with why it stays (one gone is struck too).
. "$(dirname "$0")/lib.sh"
# The tag and what lintian says with it, without the file it names.
allowed=(
    # The games' own texts, shown to the player word for word: the message
    # about a high score table that cannot be read, and Handgrid's rules.
    "spelling-error-in-binary occured occurred"
    "spelling-error-in-binary remaing remaining"
)
package "$(realpath -m "$1")"
command -v lintian >/dev/null || { fail "lintian is not installed (tools/setup.sh installs it)"; exit 1; }
lintian --pedantic --display-info --display-experimental --no-override --color never \
    "$deb" >"$work/lint" 2>"$work/err"
status=$?
[ "$status" -le 1 ] || fail "lintian ended with status $status: $(cat "$work/err")"
grep -E '^[EW]: ' "$work/lint" >/dev/null && fail "lintian reports errors or warnings"
sed -nE 's/^[IPXN]: [^ ]+: (.*[^ ]) *$/\1/p' "$work/lint" | sed -E 's/ *\[[^]]*\]$//' | sort -u >"$work/found"
new=$(printf '%s\n' "${allowed[@]}" | sort -u | comm -23 "$work/found" - | sed 's/^/  /')
gone=$(printf '%s\n' "${allowed[@]}" | sort -u | comm -13 "$work/found" - | sed 's/^/  /')
[ -n "$new" ] && fail "tags not listed in $0:"$'\n'"$new"
[ -n "$gone" ] && fail "listed tags lintian no longer reports:"$'\n'"$gone"
finish
