#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs what the suite needs, builds it into build/ and starts it.
# Any arguments go to the program.
#
# ./run.sh --web [PORT] builds the web edition into build-web/site/ and
# serves it on http://localhost:8080/ (or PORT).
cd "$(dirname "$0")"
source tools/setup.sh
cardhaven_install
if [ "${1:-}" = "--web" ]; then
    cardhaven_install_web
    cardhaven_build build-web -DCMAKE_BUILD_TYPE=Release -DCARDHAVEN_TESTS=OFF -DCARDHAVEN_WEB=ON
    exec node web/serve.js build-web/site "${2:-8080}"
fi
cardhaven_build build -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCARDHAVEN_TESTS=OFF
exec build/cardhaven "$@"
