#!/usr/bin/env bash
# Measures the library against other JSON libraries and prints a table of ratios, one "name ratio" a line.
# Arguments go to the benchmark (for example --benchmark_filter=Reader). Quiet machines give steadier figures.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-deps.sh all
if command -v ccache >/dev/null; then export CMAKE_C_COMPILER_LAUNCHER=ccache CMAKE_CXX_COMPILER_LAUNCHER=ccache; fi
cmake --preset bench
cmake --build build/bench --target orrery_bench
build/bench/bench/orrery_bench "$@"
build/bench/bench/orrery_bench --table
