#!/usr/bin/env bash
# Renews what is checked in of the record tables, their print and the types of commands in C++, after a change that is
# meant. Review the difference.
set -euo pipefail
cd "$(dirname "$0")/.."

if command -v ccache >/dev/null; then export CMAKE_C_COMPILER_LAUNCHER=ccache CMAKE_CXX_COMPILER_LAUNCHER=ccache; fi
cmake --preset release
cmake --build build --target orrery_cli
mkdir -p tests/golden
build/orrery layout >tests/golden/layout.txt.new
mv tests/golden/layout.txt.new tests/golden/layout.txt
build/orrery schema >build/schema.json
python3 scripts/cpp-commands.py build/schema.json >build/cpp_commands.h
mv build/cpp_commands.h include/orrery/cpp_commands.h
git --no-pager diff --stat -- tests/golden include/orrery/cpp_commands.h
