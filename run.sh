#!/usr/bin/env bash
# Installs what the suite needs, builds it into build/ and starts it.
# Any arguments go to the program.
cd "$(dirname "$0")"
source tools/setup.sh
cardhaven_install
cardhaven_build build -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCARDHAVEN_TESTS=OFF
exec build/cardhaven "$@"
