# SPDX-License-Identifier: GPL-3.0-or-later
# Sourced by run.sh and test.sh: installs the Debian packages the build needs,
# once, then configures and builds a tree. A second run installs nothing and
# rebuilds only what changed.
set -euo pipefail

CARDHAVEN_PACKAGES=(cmake ninja-build g++ libgtest-dev pkg-config
    qt6-base-dev qt6-base-dev-tools qt6-multimedia-dev libgl-dev libfluidsynth-dev timgm6mb-soundfont
    fonts-dejavu-core xvfb xauth imagemagick xdotool pulseaudio
    dpkg-dev lintian appstream desktop-file-utils shared-mime-info groff-base)

cardhaven_install() {
    local missing=()
    for pkg in "${CARDHAVEN_PACKAGES[@]}" "$@"; do
        if ! dpkg-query -W -f='${Status}' "$pkg" 2>/dev/null | grep -q 'install ok installed'; then
            missing+=("$pkg")
        fi
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    local sudo=""
    [ "$(id -u)" -ne 0 ] && sudo="sudo"
    echo "Installing: ${missing[*]}"
    $sudo apt-get update -qq
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# The web edition's tools: Emscripten (its JavaScript optimiser needs acorn),
# the tune's renderer and compressor, the font cutter and Chromium for the
# page tests. Node and npm only where missing: a Node from elsewhere may
# bring its own npm, which Debian's npm package would conflict with.
CARDHAVEN_WEB_PACKAGES=(emscripten node-acorn fluidsynth vorbis-tools python3-fonttools python3-brotli chromium)

cardhaven_install_web() {
    local extra=()
    command -v node >/dev/null 2>&1 || extra+=(nodejs)
    command -v npm >/dev/null 2>&1 || extra+=(npm)
    cardhaven_install "${CARDHAVEN_WEB_PACKAGES[@]}" "${extra[@]}"
}

# cardhaven_build DIR [CMAKE ARGS...]
cardhaven_build() {
    local dir="$1"
    shift
    if [ ! -f "$dir/build.ninja" ]; then
        cmake -S . -B "$dir" -G Ninja "$@" >/dev/null
    fi
    cmake --build "$dir" -j "$(nproc)"
}
