#!/usr/bin/env bash
# Renews the checked-in print of all record tables after a change that is meant. Review the difference.
set -euo pipefail
cd "$(dirname "$0")/.."

if command -v ccache >/dev/null; then export CMAKE_C_COMPILER_LAUNCHER=ccache CMAKE_CXX_COMPILER_LAUNCHER=ccache; fi
cmake --preset release
cmake --build build --target orrery_cli
mkdir -p tests/golden
build/orrery layout >tests/golden/layout.txt.new
mv tests/golden/layout.txt.new tests/golden/layout.txt
git --no-pager diff --stat -- tests/golden
