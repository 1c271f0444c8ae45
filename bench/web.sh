#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# bench/web.sh [RUNS] [BUILDDIR]
# Measures the web edition in a headless Chromium from a local server, RUNS
# times (default 5), beside the desktop program measured in the same run
# (bench/startup.sh, same number of runs), and prints the medians:
#   web_selector_ms     navigation start to the selector's window drawn
#   web_transfer_kb     bytes sent by the server (gzipped where it gzips) up to
#                       the selector drawn, the tune not counted
#   web_offline_copy_kb the same once the service worker has kept every file
#   web_tab_mb          proportional resident memory (PSS) of the tab's
#                       renderer process, its worker included, one game open
#   web_idle_cpu_pct    processor time of Chromium's processes over 10 idle
#                       seconds at the selector, in percent of one core
#   web_game_cpu_pct    the same with the first game's window open
#   input_to_frame_ms   a click to the next snapshot from the worker
# Then the two ways of blocking in a browser, from the driver under Node:
# size of each wasm, gzipped, and processor time of all scenario scripts.
# Measure a release build: ./run.sh --web builds build-web/.
set -euo pipefail
runs=${1:-5}
here=$(cd "$(dirname "$0")/.." && pwd)
build=$(cd "${2:-$here/build-web}" && pwd)
[ -f "$build/site/index.html" ] || { echo "no $build/site: build it first (./run.sh --web)" >&2; exit 1; }
(cd "$here/tests/web" && [ -d node_modules ] || npm ci --no-audit --no-fund --loglevel=error)

echo "== desktop ($build/cardhaven)"
"$here/bench/startup.sh" "$runs" "$build" | sed 's/^/desktop_/'
echo "== web ($build/site)"
node "$here/bench/web.mjs" "$build/site" "$runs"

echo "== blocking: a worker that waits against Asyncify"
export EM_CACHE=$build/web/emcache NODE_PATH=/usr/share/nodejs
cmake --build "$build/web" --target cardhaven-script-asyncify >/dev/null
# Processor seconds of every scenario script on one build of the driver.
scenarios_cpu() {
    local js=$1 s
    for s in "$here"/tests/scenarios/*.script; do
        node --no-experimental-fetch "$js" --data "$build/data" "$s" >/dev/null || echo "FAIL $s" >&2
    done
}
for variant in cardhaven-script cardhaven-script-asyncify; do
    wasm=$build/web/$variant.wasm
    TIMEFORMAT='%U %S'
    cpu=$( { time scenarios_cpu "$build/web/$variant.js"; } 2>&1 | tail -n 1 | awk '{ print $1 + $2 }')
    echo "$variant wasm_kb $(($(stat -c %s "$wasm") / 1024)) gzip_kb $(($(gzip -9c "$wasm" | wc -c) / 1024)) scenarios_cpu_s $cpu"
done
