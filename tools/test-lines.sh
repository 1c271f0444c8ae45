#!/bin/sh
# SPDX-License-Identifier: GPL-3.0-or-later
# tools/test-lines.sh: non-blank lines of every tracked source file (C++, driver
# scripts, shell, JavaScript, Python), tests/ against the rest, docs/ left out.
cd "$(dirname "$0")/.." || exit 1
count() {
    git ls-files -- "$@" | grep -E '\.(cpp|cc|c|h|hpp|script|sh|js|mjs|ts|py)$' |
        grep -vE '(^|/)(node_modules|third_party|vendor)/' | xargs -r -d '\n' cat | grep -cv '^[[:space:]]*$'
}
code=$(count . ':!tests' ':!docs')
tests=$(count tests)
echo "code $code, tests $tests, tests/code $((100 * tests / code)) %"
