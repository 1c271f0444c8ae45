#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# tests/packaging/package.sh SOURCEDIR RELEASEDIR OUTDIR [COMPILER-LAUNCHER]
# Builds the release tree, makes its Debian package into OUTDIR (kept for installed.sh and
# lintian.sh) and checks what it holds, what it asks for, and that its program is hardened.
. "$(dirname "$0")/lib.sh"
src=$(cd "$1" && pwd)
release=$(realpath -m "$2")
out=$(realpath -m "$3")
launcher=${4:-}
rm -rf "$out"
mkdir -p "$out"

if [ ! -f "$release/build.ninja" ]; then
    cmake -S "$src" -B "$release" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCARDHAVEN_RELEASE=ON \
          -DCARDHAVEN_TESTS=OFF ${launcher:+-DCMAKE_CXX_COMPILER_LAUNCHER=$launcher} >"$out/build.log" 2>&1 ||
        { cat "$out/build.log"; fail "configuring the release tree failed"; exit 1; }
fi
cmake --build "$release" -j "$(nproc)" >>"$out/build.log" 2>&1 ||
    { tail -n 60 "$out/build.log"; fail "building the release tree failed"; exit 1; }
(cd "$out" && cpack --config "$release/CPackConfig.cmake" -B "$out") >"$out/cpack.log" 2>&1 ||
    { cat "$out/cpack.log"; fail "cpack failed"; exit 1; }
package "$out"
[ "$(ls "$out"/*.deb)" = "$deb" ] || { fail "not one package: $(ls "$out"/*.deb)"; exit 1; }

# The files, where a Debian system looks for them.
dpkg-deb -c "$deb" | awk '{print $6}' | sed 's#^\./#/#' >"$out/contents"
id=games.quillmark.cardhaven
wanted=(/usr/games/cardhaven
        /usr/share/doc/cardhaven/copyright
        /usr/share/doc/cardhaven/changelog.gz
        /usr/share/applications/$id.desktop
        /usr/share/metainfo/$id.metainfo.xml
        /usr/share/mime/packages/$id.xml
        /usr/share/man/man6/cardhaven.6.gz
        /usr/share/cardhaven/Quillmark.MID
        /usr/share/cardhaven/{Applause,Busted,Chord,Click,CountScore,HighScore,Markq,Noise}.wav
        /usr/share/cardhaven/{Slide,Snap,Tick,TwentyOne,Wingame}.wav
        /usr/share/icons/hicolor/{16x16,22x22,24x24,32x32,48x48,64x64,128x128,256x256,512x512}/apps/cardhaven.png)
for f in "${wanted[@]}"; do
    grep -qx -- "$f" "$out/contents" || fail "the package lacks $f"
done
# Nothing of the build tree or the tests, nothing outside /usr.
grep -vE '^/usr(/|$)|^/$' "$out/contents" && fail "files outside /usr"
grep -E 'script|test|\.a$|\.h$' "$out/contents" && fail "files of the build or the tests"

# The control fields: what the program links and what it opens by itself.
dpkg-deb -f "$deb" Package Version Section Architecture Depends >"$out/control"
for field in "Package: cardhaven" "Version: $(dpkg-parsechangelog -l "$src/packaging/changelog" -S Version)" \
             "Section: games" "Architecture: $(dpkg --print-architecture)"; do
    grep -qx "$field" "$out/control" || fail "the control file lacks $field"
done
# A synopsis, then the long description as flowing text: a line indented by more than one blank shows verbatim.
dpkg-deb -f "$deb" Description >"$out/description"
head -1 "$out/description" | grep -qx 'seven timed arcade card games' || fail "synopsis: $(head -1 "$out/description")"
[ "$(wc -l <"$out/description")" -ge 3 ] || fail "no long description"
sed 1d "$out/description" | grep -v '^ [^ ]' && fail "long description lines not indented by one blank"
depends=$(sed -n 's/^Depends: //p' "$out/control")
for dep in libqt6core6 libqt6gui6 libqt6widgets6 libqt6multimedia6 qt6-qpa-plugins libfluidsynth3 \
           timgm6mb-soundfont libc6 libstdc\\+\\+6; do
    echo "$depends" | grep -Eq "(^|, )$dep( |,|$)" || fail "Depends lacks $dep: $depends"
done

mkdir "$out/root"
dpkg-deb -x "$deb" "$out/root"
grep -qx 'License: GPL-3.0-or-later' "$out/root/usr/share/doc/cardhaven/copyright" ||
    fail "the package's copyright file does not name GPL-3.0-or-later"

# Stripped, no .comment section, every file fortified with the strong stack protector, no sanitizers.
program=$out/root/usr/games/cardhaven
[ "$(od -An -c -N4 "$program" | tr -d ' ')" = '177ELF' ] || fail "/usr/games/cardhaven is not an ELF program"
readelf -S "$program" >"$out/sections"
grep -q '\.debug_info' "$out/sections" && fail "/usr/games/cardhaven is not stripped"
grep -q ' \.comment ' "$out/sections" && fail "/usr/games/cardhaven has a .comment section"
grep '"command"' "$release/compile_commands.json" >"$out/commands"
[ -s "$out/commands" ] || fail "no compile commands in the release tree"
for flag in -D_FORTIFY_SOURCE=2 -fstack-protector-strong -O2; do
    grep -vqe " $flag " "$out/commands" && fail "a file of the release tree is compiled without $flag"
done
grep -q -- '-fsanitize' "$out/commands" && fail "the release tree is built with a sanitizer"
# Each row: readelf's options, what its output must hold, and the fault if not.
while IFS='|' read -r options pattern problem; do
    readelf $options "$program" | grep -Eq "$pattern" || fail "the program $problem"
done <<'TABLE'
-h|Type: +DYN|is not position independent
-d|FLAGS_1.*Flags:.* PIE|is not a PIE
-d|FLAGS_1.*Flags:.* NOW|binds its symbols lazily (no -z now)
-lW|GNU_RELRO|has no read-only relocations (-z relro)
--dyn-syms -W| __stack_chk_fail@|has no stack protector
--dyn-syms -W| __snprintf_chk@|calls the library unfortified
TABLE

# The icons are PNGs of their size.
for size in 16 256; do
    png=$out/root/usr/share/icons/hicolor/${size}x${size}/apps/cardhaven.png
    w=$(od -An -tu1 -j16 -N8 "$png" | awk '{print $3*256+$4, $7*256+$8}')
    [ "$w" = "$size $size" ] || fail "the ${size}x$size icon is $w"
done
rm -rf "$out/root" "$out/_CPack_Packages"
finish
