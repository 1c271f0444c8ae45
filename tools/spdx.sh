#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# tools/spdx.sh [--check]
# Puts an SPDX-License-Identifier line at the top of every source file git
# tracks that lacks one, in the file's own comment syntax: the first line, or
# the second after a #! line, an XML declaration or an HTML doctype. The AppStream metainfo is
# CC0-1.0, everything else GPL-3.0-or-later. Documents, pictures, saved games,
# JSON (which has no comments), the licence texts themselves and the CI entry
# point get none; a file of a kind not named here
# is reported, and the script fails, so that a new kind is decided on once.
# With --check nothing is written: the files that lack the line are listed.
set -euo pipefail
cd "$(dirname "$0")/.."
check=0
[ "${1:-}" = --check ] && check=1

# The comment that carries the line, for FILE; empty for a file that takes
# none; "?" for a kind not known.
comment_for() {
    case $1 in
        *.cpp | *.h) echo '// %s' ;;
        *.sh | *.cmake | */CMakeLists.txt | CMakeLists.txt | *.script | *.supp | *.desktop | .gitignore | */.gitignore)
            echo '# %s' ;;
        *.xml | *.xml.in | *.html) echo '<!-- %s -->' ;;
        *.js | *.mjs) echo '// %s' ;;
        *.css) echo '/* %s */' ;;
        *.[1-9].in) echo '.\" %s' ;;
        *.md | *.png | *.sfl | *.json | *.webmanifest | COPYING | packaging/changelog | packaging/copyright) echo '' ;;
        .ci/*) echo '' ;;   # the CI service's entry point stays as that service wants it
        *) echo '?' ;;
    esac
}

licence_for() {
    case $1 in
        packaging/*.metainfo.xml.in) echo CC0-1.0 ;;
        *) echo GPL-3.0-or-later ;;
    esac
}

status=0
while IFS= read -r file; do
    [ -f "$file" ] || continue
    comment=$(comment_for "$file")
    [ -z "$comment" ] && continue
    if [ "$comment" = '?' ]; then
        echo "tools/spdx.sh: no comment syntax known for $file" >&2
        status=1
        continue
    fi
    head -n 2 "$file" | grep -q 'SPDX-License-Identifier: ' && continue
    if [ "$check" -eq 1 ]; then
        echo "$file"
        status=1
        continue
    fi
    line=${comment/'%s'/SPDX-License-Identifier: $(licence_for "$file")}
    first=$(head -n 1 "$file")
    tmp=$(mktemp "$file.XXXXXX")
    case $first in
        '#!'* | '<?xml'* | '<!DOCTYPE'*) { printf '%s\n%s\n' "$first" "$line"; tail -n +2 "$file"; } >"$tmp" ;;
        *) { printf '%s\n' "$line"; cat "$file"; } >"$tmp" ;;
    esac
    chmod --reference="$file" "$tmp"
    mv "$tmp" "$file"
    echo "$file"
done < <(git ls-files)
exit $status
