#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# tests/packaging/package.sh SOURCEDIR RELEASEDIR OUTDIR [COMPILER-LAUNCHER]
# Configures (once) and builds the release tree RELEASEDIR from SOURCEDIR,
# makes its Debian package into OUTDIR with CPack and checks what it holds,
# what it asks for, and that the program in it was built hardened. Leaves
# the package in OUTDIR for tests/packaging/installed.sh and lintian.sh.
set -u
src=$(cd "$1" && pwd)
release=$(realpath -m "$2")
out=$(realpath -m "$3")
launcher=${4:-}
rm -rf "$out"
mkdir -p "$out"
failed=0
fail() { echo "FAIL: $*"; failed=1; }

start=$(date +%s)
if [ ! -f "$release/build.ninja" ]; then
    cmake -S "$src" -B "$release" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCARDHAVEN_RELEASE=ON \
          -DCARDHAVEN_TESTS=OFF ${launcher:+-DCMAKE_CXX_COMPILER_LAUNCHER=$launcher} >"$out/build.log" 2>&1 ||
        { cat "$out/build.log"; fail "configuring the release tree failed"; exit 1; }
fi
cmake --build "$release" -j "$(nproc)" >>"$out/build.log" 2>&1 ||
    { tail -n 60 "$out/build.log"; fail "building the release tree failed"; exit 1; }
echo "release tree built in $(($(date +%s) - start)) s"
build=$release
(cd "$out" && cpack --config "$build/CPackConfig.cmake" -B "$out") >"$out/cpack.log" 2>&1 ||
    { cat "$out/cpack.log"; fail "cpack failed"; exit 1; }
debs=("$out"/cardhaven_*.deb)
[ ${#debs[@]} -eq 1 ] && [ -f "${debs[0]}" ] || { fail "not one package: ${debs[*]}"; exit 1; }
deb=${debs[0]}
echo "$(basename "$deb"): $(du -k "$deb" | cut -f1) kB"

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
        /usr/share/cardhaven/Quillmark.MID)
for sound in Applause Busted Chord Click CountScore HighScore Markq Noise Slide Snap Tick TwentyOne Wingame; do
    wanted+=(/usr/share/cardhaven/$sound.wav)
done
for size in 16 22 24 32 48 64 128 256 512; do
    wanted+=(/usr/share/icons/hicolor/${size}x${size}/apps/cardhaven.png)
done
for f in "${wanted[@]}"; do
    grep -qx -- "$f" "$out/contents" || fail "the package lacks $f"
done
# Nothing of the build tree or the tests, nothing outside /usr.
grep -vE '^/usr(/|$)|^/$' "$out/contents" && fail "files outside /usr"
grep -E 'script|test|\.a$|\.h$' "$out/contents" && fail "files of the build or the tests"

# The control fields: what the program links and what it opens by itself.
dpkg-deb -f "$deb" Package Version Section Architecture Depends >"$out/control"
version=$(dpkg-parsechangelog -l "$src/packaging/changelog" -S Version)
grep -qx "Package: cardhaven" "$out/control" || fail "package name"
grep -qx "Version: $version" "$out/control" || fail "package version is not $version"
grep -qx "Section: games" "$out/control" || fail "section is not games"
grep -qx "Architecture: $(dpkg --print-architecture)" "$out/control" || fail "architecture"
# A synopsis, then the long description as flowing text: lines indented by
# more than one blank would be shown verbatim.
dpkg-deb -f "$deb" Description >"$out/description"
[ "$(sed -n 1p "$out/description")" = "seven timed arcade card games" ] || fail "synopsis: $(sed -n 1p "$out/description")"
[ "$(wc -l <"$out/description")" -ge 3 ] || fail "no long description"
sed 1d "$out/description" | grep -v '^ [^ ]' && fail "long description lines not indented by one blank"
depends=$(sed -n 's/^Depends: //p' "$out/control")
for dep in libqt6core6 libqt6gui6 libqt6widgets6 libqt6multimedia6 qt6-qpa-plugins libfluidsynth3 \
           timgm6mb-soundfont libc6 libstdc\\+\\+6; do
    echo "$depends" | grep -Eq "(^|, )$dep( |,|$)" || fail "Depends lacks $dep: $depends"
done

# The copyright file names the licence.
mkdir "$out/root"
dpkg-deb -x "$deb" "$out/root"
grep -qx 'License: GPL-3.0-or-later' "$out/root/usr/share/doc/cardhaven/copyright" ||
    fail "the package's copyright file does not name GPL-3.0-or-later"

# The program is stripped and hardened: every file compiled fortified and with
# the strong stack protector and nothing of the sanitizers, the program
# position independent, its relocations read-only and bound at start, and
# no .comment section.
program=$out/root/usr/games/cardhaven
file_out=$(od -An -c -N4 "$program" | tr -d ' ')
[ "$file_out" = '177ELF' ] || fail "/usr/games/cardhaven is not an ELF program"
readelf -S "$program" >"$out/sections"
grep -q '\.debug_info' "$out/sections" && fail "/usr/games/cardhaven is not stripped"
grep -q ' \.comment ' "$out/sections" && fail "/usr/games/cardhaven has a .comment section"
grep '"command"' "$build/compile_commands.json" >"$out/commands"
[ -s "$out/commands" ] || fail "no compile commands in the release tree"
for flag in -D_FORTIFY_SOURCE=2 -fstack-protector-strong -O2; do
    grep -vqe " $flag " "$out/commands" && fail "a file of the release tree is compiled without $flag"
done
grep -q -- '-fsanitize' "$out/commands" && fail "the release tree is built with a sanitizer"
readelf -h "$program" | grep -Eq 'Type: +DYN' || fail "the program is not position independent"
readelf -d "$program" >"$out/dynamic"
grep -Eq 'FLAGS_1.*Flags:.* PIE' "$out/dynamic" || fail "the program is not a PIE"
grep -Eq 'FLAGS_1.*Flags:.* NOW' "$out/dynamic" || fail "the program's symbols are not bound at start (-z now)"
readelf -lW "$program" | grep -q GNU_RELRO || fail "the program has no read-only relocations (-z relro)"
readelf --dyn-syms -W "$program" >"$out/symbols"
grep -q ' __stack_chk_fail@' "$out/symbols" || fail "the program has no stack protector"
grep -q ' __snprintf_chk@' "$out/symbols" || fail "the program's library calls are not fortified"

# The icons are PNGs of their size.
for size in 16 256; do
    png=$out/root/usr/share/icons/hicolor/${size}x${size}/apps/cardhaven.png
    w=$(od -An -tu1 -j16 -N8 "$png" | awk '{print $3*256+$4, $7*256+$8}')
    [ "$w" = "$size $size" ] || fail "the ${size}x$size icon is $w"
done
# Only the package stays for the next test.
rm -rf "$out/root" "$out/_CPack_Packages"
exit $failed
