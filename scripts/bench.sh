#!/usr/bin/env bash
# Measures the library against other JSON libraries and prints a table of ratios, one "name ratio" a line.
# bench.sh [--quick] [--only=PART] [--benchmark_...]: --quick only shows that everything runs; its figures mean nothing.
# With --only=PART there are just the lines of the tables whose names have PART. Arguments of Google Benchmark choose
# among the single measurements that come before the tables. How to read it: docs/benchmark.md.
set -euo pipefail
cd "$(dirname "$0")/.."

quick=()
single=(--benchmark_min_time=0.5)
arguments=()
only=()
for argument in "$@"; do
    case $argument in
    --quick)
        quick=(--quick)
        single=(--benchmark_min_time=0.01)
        ;;
    --only=*) only=("$argument") ;;
    *) arguments+=("$argument") ;;
    esac
done

scripts/install-deps.sh all
if command -v ccache >/dev/null; then export CMAKE_C_COMPILER_LAUNCHER=ccache CMAKE_CXX_COMPILER_LAUNCHER=ccache; fi
cmake --preset bench
cmake --build build/bench --target orrery_bench
[ ${#only[@]} -gt 0 ] || build/bench/bench/orrery_bench "${single[@]}" "${arguments[@]}"
build/bench/bench/orrery_bench --table "${quick[@]}" "${only[@]}"
