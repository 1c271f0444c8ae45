#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# tools/web/site.sh SITE CARDHAVEN WEBTREE DATA VERSION
# Puts the web edition together in SITE: the page and its scripts, the
# WebAssembly module, the card pictures at 1x and 2x drawn by the desktop
# program's card painter, the sounds and the tune compressed, the page's font
# cut to the characters the suite shows, the icons, the manifest and the
# service worker with the list of files it keeps for offline play.
set -euo pipefail
site=$1 cardhaven=$2 webtree=$3 data=$4 version=$5
here=$(cd "$(dirname "$0")/../.." && pwd)
fonts=/usr/share/fonts/truetype/dejavu
soundfont=/usr/share/sounds/sf2/TimGM6mb.sf2

mkdir -p "$site/sounds" "$site/fonts"
for f in index.html style.css app.js audio.js cards.js channel.js render.js storage.js worker.js \
         sw.js manifest.webmanifest; do
    cp "$here/web/$f" "$site/$f"
done
cp "$webtree/cardhaven-web.js" "$webtree/cardhaven-web.wasm" "$site/"

export QT_QPA_PLATFORM=offscreen
"$cardhaven" --card-sprites "$site/cards.png" 1
"$cardhaven" --card-sprites "$site/cards@2x.png" 2
"$cardhaven" --write-icon "$site/icon-192.png" 192
"$cardhaven" --write-icon "$site/icon-512.png" 512

# Sounds: each wave once, newer than its source; the tune rendered with the
# soundfont the desktop plays it with.
for wav in "$data"/*.wav; do
    ogg="$site/sounds/$(basename "${wav%.wav}").ogg"
    [ "$ogg" -nt "$wav" ] || oggenc -Q -q 3 -o "$ogg" "$wav"
done
if [ ! "$site/sounds/tune.ogg" -nt "$data/Quillmark.MID" ]; then
    fluidsynth -ni -q -F "$site/sounds/tune.wav" -r 44100 "$soundfont" "$data/Quillmark.MID" >/dev/null
    oggenc -Q -q 2 -o "$site/sounds/tune.ogg" "$site/sounds/tune.wav"
    rm -f "$site/sounds/tune.wav"
fi

# The font: Latin-1 and the punctuation the captions use.
for face in DejaVuSans DejaVuSans-Bold; do
    out="$site/fonts/$face.woff2"
    [ "$out" -nt "$fonts/$face.ttf" ] || /usr/bin/python3 -m fontTools.subset "$fonts/$face.ttf" --output-file="$out" --flavor=woff2 \
        --unicodes='U+0020-007E,U+00A0-00FF,U+2013-2014,U+2018-201D,U+2022,U+2026,U+2122,U+2190-2193,U+2660-2667' \
        --layout-features='*' --drop-tables+=FFTM
done

{
    echo '<!DOCTYPE html><html lang="en"><head><meta charset="utf-8"><title>Card Haven: licence</title></head><body>'
    echo '<h1>Quillmark'"'"'s Card Haven</h1><p>The source of this program and of this page: '
    echo '<a href="https://quillmark.games/cardhaven/">quillmark.games/cardhaven</a>.</p><pre>'
    sed -e 's/&/\&amp;/g' -e 's/</\&lt;/g' "$here/packaging/copyright"
    echo '</pre></body></html>'
} > "$site/licence.html"

# The version names this build's content, so that a changed file is a new version.
stamp=$(cd "$site" && find . -type f ! -name sw.js ! -name index.html -print0 | sort -z | xargs -0 cat | sha256sum | cut -c1-10)
full="$version-$stamp"
sed -i "s/@VERSION@/$full/" "$site/index.html"
files=$(cd "$site" && find . -type f ! -name sw.js ! -name 'tune.ogg' | sort | sed "s|^\./|'./|; s|\$|'|" | paste -sd, -)
sed -e "s/@VERSION@/$full/" -e "s|@FILES@|'./', $files|" "$here/web/sw.js" > "$site/sw.js"
