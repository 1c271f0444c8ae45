#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# tests/packaging/metadata.sh SOURCEDIR BUILDDIR
# The files that present the program to a desktop and a distribution: the
# .desktop file and the AppStream metainfo pass their validators, name the
# same saved game type as the MIME description, the metainfo's releases are
# the changelog's entries and the newest is the program's version, the
# licences are named, a saved game written by Sumfall is recognised by its
# name and its first bytes, and the manual page formats cleanly and tells
# of every option --help lists.
set -u
src=$1
build=$2
id=games.quillmark.cardhaven
desktop=$src/packaging/$id.desktop
metainfo=$build/$id.metainfo.xml
mime=$src/packaging/cardhaven-mime.xml
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failed=0
fail() { echo "FAIL: $*"; failed=1; }

desktop-file-validate "$desktop" >"$work/out" 2>&1 || fail "desktop-file-validate: $(cat "$work/out")"
# Hints are fine; warnings and errors are not.
appstreamcli validate --no-net --no-color "$metainfo" >"$work/out" 2>&1 || fail "appstreamcli validate: $(cat "$work/out")"
grep -E '^[EW]:' "$work/out" && fail "appstreamcli has warnings"

# The licence: the full text as Debian ships it, the metainfo's two licences,
# and a copyright file that puts every file under the GPL but the metainfo,
# which is CC0 like the metadata it holds.
cmp -s "$src/COPYING" /usr/share/common-licenses/GPL-3 || fail "COPYING is not the text of the GPL, version 3"
grep -qx '  <project_license>GPL-3.0-or-later</project_license>' "$metainfo" || fail "the metainfo's project licence"
grep -qx '  <metadata_license>CC0-1.0</metadata_license>' "$metainfo" || fail "the metainfo's metadata licence"
awk '/^Files:/ {files=$0} /^License:/ && files {print files " = " $2; files=""}' "$src/packaging/copyright" >"$work/licences"
printf '%s\n' 'Files: * = GPL-3.0-or-later' "Files: packaging/$id.metainfo.xml.in = CC0-1.0" |
    cmp -s - "$work/licences" || fail "the copyright file's licences: $(cat "$work/licences")"

# One MIME type, named alike in the three files.
type=$(sed -n 's/.*<mime-type type="\([^"]*\)".*/\1/p' "$mime")
[ -n "$type" ] || fail "no MIME type in $mime"
grep -qx "MimeType=$type;" "$desktop" || fail "the desktop file does not declare $type"
grep -q "<mediatype>$type</mediatype>" "$metainfo" || fail "the metainfo does not provide $type"
grep -q "<launchable type=\"desktop-id\">$id.desktop</launchable>" "$metainfo" || fail "the metainfo launches another desktop file"
grep -qx 'Exec=cardhaven %f' "$desktop" || fail "the desktop file does not hand the file to the program"

# The releases of the metainfo are the entries of the changelog, version and
# date, newest first, and the newest is the program's version.
version=$("$build/cardhaven-script" --version | sed -n 's/^cardhaven-script //p')
logged=$(dpkg-parsechangelog -l "$src/packaging/changelog" -S Version 2>&1)
[ "$logged" = "$version" ] || fail "the newest entry of packaging/changelog is '$logged', the program is '$version'"
dpkg-parsechangelog -l "$src/packaging/changelog" --all --format rfc822 |
    awk '/^Version: / {v=$2} /^Date: / {print v, $3, $4, $5}' |
    while read -r v day month year; do echo "$v $(date -u -d "$day $month $year" +%F)"; done >"$work/logged"
sed -n 's/.*<release version="\([^"]*\)" date="\([^"]*\)".*/\1 \2/p' "$metainfo" >"$work/released"
[ -s "$work/logged" ] && cmp -s "$work/logged" "$work/released" ||
    fail "the metainfo's releases are not the changelog's entries:$(diff "$work/logged" "$work/released" | sed 's/^/ /')"
for shot in $(sed -n 's#.*<image>.*/screenshots/\([^<]*\)</image>.*#\1#p' "$metainfo"); do
    [ -f "$src/docs/screenshots/$shot" ] || fail "the metainfo shows $shot, which docs/screenshots lacks"
done

# The compiled MIME database knows the name; the magic matches what Sumfall
# writes into a saved game.
mkdir -p "$work/mime/packages"
cp "$mime" "$work/mime/packages/$id.xml"
update-mime-database "$work/mime" 2>"$work/out" || fail "update-mime-database: $(cat "$work/out")"
grep -qx "50:$type:\*\.sfl" "$work/mime/globs2" || fail "*.sfl is not $type in the compiled database"
cat >"$work/save.script" <<'SCRIPT'
click frmSelect.cmdSumfall
click frmSumfall.cmdPlay
advance 5000
click frmSumfall.cmdTakeScore
answer Yes
click frmSumfall.cmdPlay
expect frmSumfall.mnuSave.Enabled True
click frmSumfall.mnuSave
type frmSave.txtGameName mine
click frmSave.cmdOK
expect frmSave.Loaded False
SCRIPT
mkdir "$work/home"
"$build/cardhaven-script" --home "$work/home" --data "$build/data" "$work/save.script" >"$work/out" 2>&1 ||
    fail "saving a game: $(cat "$work/out")"
magic=$(sed -n 's/.*<match type="string" offset="0" value="\([^"]*\)".*/\1/p' "$mime")
if [ ! -f "$work/home/mine.sfl" ]; then
    fail "no saved game written"
elif [ -z "$magic" ] || [ "$(head -c "${#magic}" "$work/home/mine.sfl")" != "$magic" ]; then
    fail "a saved game does not start with the magic '$magic'"
fi

# The manual page: no complaints from groff, every option of --help told.
groff -man -ww -z -Tutf8 "$build/cardhaven.6" 2>"$work/out"
[ -s "$work/out" ] && fail "groff: $(cat "$work/out")"
zcat "$build/cardhaven.6.gz" | cmp -s - "$build/cardhaven.6" || fail "cardhaven.6.gz is not cardhaven.6"
if [ -x "$build/cardhaven" ]; then
    for option in $("$build/cardhaven" --help | sed '/^For testing/,$d' | grep -oE -- '--[a-z-]+' | sort -u); do
        grep -qF -- "${option//-/\\-}" "$build/cardhaven.6" || fail "the manual page does not tell of $option"
    done
fi
exit $failed
