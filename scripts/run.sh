#!/usr/bin/env bash
# From a bare machine to a result: installs what the build needs, builds build/liborrery.so and build/orrery, prints a
# device's alarm reply as a record and packs the record back.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-deps.sh build
if command -v ccache >/dev/null; then export CMAKE_C_COMPILER_LAUNCHER=ccache CMAKE_CXX_COMPILER_LAUNCHER=ccache; fi
cmake --preset release
cmake --build build
for result in build/liborrery.so build/orrery; do
    [ -e "$result" ] || { echo "run: the build left no $result" >&2; exit 1; }
done

echo
echo "\$ build/orrery parse Alarm examples/alarm-reply.json --pack"
build/orrery parse Alarm examples/alarm-reply.json --pack
