#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# tools/web/page-tests.sh SITE: runs tests/web in a headless Chromium against
# the site folder, installing the tests' npm packages from the lock file
# first. Exit 77 (skipped) where no Chromium can run, except in CI.
set -euo pipefail
site=$(cd "$1" && pwd)
tests=$(cd "$(dirname "$0")/../../tests/web" && pwd)
chromium=${CHROMIUM:-/usr/bin/chromium}
if ! [ -x "$chromium" ] || ! "$chromium" --headless=new --no-sandbox --disable-gpu --dump-dom about:blank >/dev/null 2>&1; then
    if [ "${CI:-}" = "true" ]; then
        echo "no headless Chromium at $chromium, and CI must run the page tests" >&2
        exit 1
    fi
    echo "skipped: no headless Chromium can run here ($chromium)"
    exit 77
fi
if [ ! -f "$tests/node_modules/.package-lock.json" ] || [ "$tests/package-lock.json" -nt "$tests/node_modules/.package-lock.json" ]; then
    (cd "$tests" && npm ci --no-audit --no-fund --loglevel=error)
fi
cd "$tests"
CARDHAVEN_SITE=$site CHROMIUM=$chromium exec node --test --test-concurrency=1 page.test.js
