#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# tests/packaging/licence.sh SOURCEDIR
# Every source file git tracks names its licence at its top: an
# SPDX-License-Identifier line on the first line, or on the second after a #!
# line, an XML declaration or an HTML doctype, GPL-3.0-or-later but for the AppStream metainfo,
# which is CC0-1.0. Only documents, pictures, saved games, JSON, the licence texts
# and the CI entry point go without. A file that lacks the line gets it from
# tools/spdx.sh. Outside a git checkout there is no list of tracked files,
# and the test is skipped.
set -u
src=$(cd "$1" && pwd)
git -C "$src" rev-parse --is-inside-work-tree >/dev/null 2>&1 || { echo "not a git checkout"; exit 77; }
failed=0
count=0
while IFS= read -r file; do
    case $file in
        *.md | *.png | *.sfl | *.json | *.webmanifest | COPYING | packaging/changelog | packaging/copyright | .ci/*) continue ;;
        packaging/*.metainfo.xml.in) licence=CC0-1.0 ;;
        *) licence=GPL-3.0-or-later ;;
    esac
    [ -f "$src/$file" ] || continue
    count=$((count + 1))
    first=$(head -n 1 "$src/$file")
    second=$(sed -n 2p "$src/$file")
    tag="SPDX-License-Identifier: $licence"
    case $first in
        *"$tag"*) continue ;;
        '#!'* | '<?xml'* | '<!DOCTYPE'*) [[ $second == *"$tag"* ]] && continue ;;
    esac
    echo "FAIL: $file does not start with '$tag' (tools/spdx.sh adds it)"
    failed=1
done < <(git -C "$src" ls-files)
echo "$count source files"
[ "$count" -gt 0 ] || { echo "FAIL: no source files listed"; failed=1; }
exit $failed
