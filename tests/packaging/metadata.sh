#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# tests/packaging/metadata.sh SOURCEDIR BUILDDIR
# The files presenting the program to a desktop and a distribution pass their validators and agree
# with each other, the changelog and the version; Sumfall's saved game is recognised; the manual is clean.
. "$(dirname "$0")/lib.sh"
src=$1
build=$2
id=games.quillmark.cardhaven
desktop=$src/packaging/$id.desktop
metainfo=$build/$id.metainfo.xml
mime=$src/packaging/cardhaven-mime.xml

desktop-file-validate "$desktop" >"$work/out" 2>&1 || fail "desktop-file-validate: $(cat "$work/out")"
# Hints are fine; warnings and errors are not.
appstreamcli validate --no-net --no-color "$metainfo" >"$work/out" 2>&1 || fail "appstreamcli: $(cat "$work/out")"
grep -E '^[EW]:' "$work/out" && fail "appstreamcli has warnings"

# One MIME type, named alike in the three files; the desktop file hands the saved game to the program.
# Licence: the full text as Debian ships it, the metainfo's two licences, and a copyright file
# putting every file under the GPL but the metainfo, CC0 like the metadata it holds.
type=$(sed -n 's/.*<mime-type type="\([^"]*\)".*/\1/p' "$mime")
[ -n "$type" ] || fail "no MIME type in $mime"
for line in "MimeType=$type;" 'Exec=cardhaven %f'; do
    grep -qx "$line" "$desktop" || fail "the desktop file lacks $line"
done
for line in '<project_license>GPL-3.0-or-later</project_license>' '<metadata_license>CC0-1.0</metadata_license>' \
            "<mediatype>$type</mediatype>" "<launchable type=\"desktop-id\">$id.desktop</launchable>"; do
    grep -qF "$line" "$metainfo" || fail "the metainfo lacks $line"
done
cmp -s "$src/COPYING" /usr/share/common-licenses/GPL-3 || fail "COPYING is not the text of the GPL, version 3"
awk '/^Files:/ {f=$0} /^License:/ && f {print f " = " $2; f=""}' "$src/packaging/copyright" >"$work/licences"
printf '%s\n' 'Files: * = GPL-3.0-or-later' "Files: packaging/$id.metainfo.xml.in = CC0-1.0" |
    cmp -s - "$work/licences" || fail "the copyright file's licences: $(cat "$work/licences")"

# The metainfo's releases are the changelog's entries, version and date, newest first: the program's.
version=$("$build/cardhaven-script" --version | sed -n 's/^cardhaven-script //p')
logged=$(dpkg-parsechangelog -l "$src/packaging/changelog" -S Version 2>&1)
[ "$logged" = "$version" ] || fail "the newest entry of packaging/changelog is '$logged', the program is '$version'"
dpkg-parsechangelog -l "$src/packaging/changelog" --all --format rfc822 |
    awk '/^Version: / {v=$2} /^Date: / {print v, $3, $4, $5}' |
    while read -r v day month year; do echo "$v $(date -u -d "$day $month $year" +%F)"; done >"$work/logged"
sed -n 's/.*<release version="\([^"]*\)" date="\([^"]*\)".*/\1 \2/p' "$metainfo" >"$work/released"
[ -s "$work/logged" ] && cmp -s "$work/logged" "$work/released" ||
    fail "the metainfo's releases are not the changelog's entries: $(diff "$work/logged" "$work/released")"
for shot in $(sed -n 's#.*<image>.*/screenshots/\([^<]*\)</image>.*#\1#p' "$metainfo"); do
    [ -f "$src/docs/screenshots/$shot" ] || fail "the metainfo shows $shot, which docs/screenshots lacks"
done

# The MIME description's magic matches what Sumfall writes into a saved game.
cat >"$work/save.script" <<'SCRIPT'
click frmSelect.cmdSumfall
click frmSumfall.cmdPlay
advance 5000
click frmSumfall.cmdTakeScore
answer Yes
click frmSumfall.cmdPlay
click frmSumfall.mnuSave
type frmSave.txtGameName mine
click frmSave.cmdOK
SCRIPT
mkdir "$work/home"
"$build/cardhaven-script" --home "$work/home" --data "$build/data" "$work/save.script" >"$work/out" 2>&1 ||
    fail "saving a game: $(cat "$work/out")"
magic=$(sed -n 's/.*<match type="string" offset="0" value="\([^"]*\)".*/\1/p' "$mime")
[ -n "$magic" ] && [ "$(head -c "${#magic}" "$work/home/mine.sfl" 2>&1)" = "$magic" ] ||
    fail "the saved game does not start with the magic '$magic'"

# The manual page: no complaints from groff, every option of --help told.
groff -man -ww -z -Tutf8 "$build/cardhaven.6" 2>"$work/out"
[ -s "$work/out" ] && fail "groff: $(cat "$work/out")"
zcat "$build/cardhaven.6.gz" | cmp -s - "$build/cardhaven.6" || fail "cardhaven.6.gz is not cardhaven.6"
for option in $("$build/cardhaven" --help | sed '/^For testing/,$d' | grep -oE -- '--[a-z-]+' | sort -u); do
    grep -qF -- "${option//-/\\-}" "$build/cardhaven.6" || fail "the manual page does not tell of $option"
done
finish
