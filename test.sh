#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs what the suite needs, builds it with AddressSanitizer and
# UndefinedBehaviorSanitizer into build-test/, and runs every test.
cd "$(dirname "$0")"
source tools/setup.sh
cardhaven_install
cardhaven_install_web
cardhaven_build build-test -DCMAKE_BUILD_TYPE=Debug -DCARDHAVEN_SANITIZE=ON -DCARDHAVEN_WERROR=ON
export ASAN_OPTIONS=detect_leaks=1:abort_on_error=0
export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
cd build-test
ctest --output-on-failure -j "$(nproc)"
