#!/usr/bin/env bash
# tests/packaging/package.sh BUILDDIR OUTDIR
# Builds the Debian package of BUILDDIR into OUTDIR with CPack and checks what
# it holds and what it asks for. Leaves the package in OUTDIR for
# tests/packaging/installed.sh.
set -u
build=$(cd "$1" && pwd)
out=$(realpath -m "$2")
rm -rf "$out"
mkdir -p "$out"
failed=0
fail() { echo "FAIL: $*"; failed=1; }

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
version=$("$build/cardhaven-script" --version | sed -n 's/^cardhaven-script //p')
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

# The binary is stripped; the icons are PNGs of their size.
mkdir "$out/root"
dpkg-deb -x "$deb" "$out/root"
file_out=$(od -An -c -N4 "$out/root/usr/games/cardhaven" | tr -d ' ')
[ "$file_out" = '177ELF' ] || fail "/usr/games/cardhaven is not an ELF program"
readelf -S "$out/root/usr/games/cardhaven" | grep -q '\.debug_info' && fail "/usr/games/cardhaven is not stripped"
for size in 16 256; do
    png=$out/root/usr/share/icons/hicolor/${size}x${size}/apps/cardhaven.png
    w=$(od -An -tu1 -j16 -N8 "$png" | awk '{print $3*256+$4, $7*256+$8}')
    [ "$w" = "$size $size" ] || fail "the ${size}x$size icon is $w"
done
# Only the package stays for the next test.
rm -rf "$out/root" "$out/_CPack_Packages"
exit $failed
