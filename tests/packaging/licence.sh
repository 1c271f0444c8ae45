#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# tests/packaging/licence.sh SOURCEDIR
# Every source file git tracks has an SPDX-License-Identifier line first, or
# second after a #! line, an XML declaration or an HTML doctype: GPL-3.0-or-later,
# but CC0-1.0 for the AppStream metainfo. Outside a git checkout it is skipped.
. "$(dirname "$0")/lib.sh"
src=$(cd "$1" && pwd)
git -C "$src" rev-parse --is-inside-work-tree >/dev/null 2>&1 || { echo "not a git checkout"; exit 77; }
count=0
while IFS= read -r file; do
    case $file in
        *.md | *.png | *.sfl | *.json | *.webmanifest | COPYING | packaging/changelog | packaging/copyright | .ci/*)
            continue ;;
        packaging/*.metainfo.xml.in) licence=CC0-1.0 ;;
        *) licence=GPL-3.0-or-later ;;
    esac
    [ -f "$src/$file" ] || continue
    count=$((count + 1))
    tag="SPDX-License-Identifier: $licence"
    case $(head -n 1 "$src/$file") in
        *"$tag"*) continue ;;
        '#!'* | '<?xml'* | '<!DOCTYPE'*) [[ $(sed -n 2p "$src/$file") == *"$tag"* ]] && continue ;;
    esac
    fail "$file does not start with '$tag' (tools/spdx.sh adds it)"
done < <(git -C "$src" ls-files)
[ "$count" -gt 0 ] || fail "no source files listed"
finish
