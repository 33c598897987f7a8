#!/usr/bin/env bash
# The types of commands are those of the tables, the README's lines are those of the example, and the example does what it
# says, in every C++ that a client may use.
# cpp.sh CXX_COMPILER PREFIX SOURCE_DIR WORK_DIR [COMPANION]
set -euo pipefail
compiler=$1 prefix=$2 source=$3 work=$4 companion=${5:-}
rm -rf "$work"
mkdir -p "$work"
if [ -n "$companion" ]; then
    "$companion" schema >"$work/schema.json"
    python3 "$source/scripts/cpp-commands.py" "$work/schema.json" >"$work/cpp_commands.h"
    diff -u "$source/include/orrery/cpp_commands.h" "$work/cpp_commands.h" || {
        echo "cpp_commands.h (-) is not what the tables say (+): scripts/update-golden.sh renews it" >&2
        exit 1
    }
fi
sed -n '/README: begin/,/README: end/{//!p}' "$source/examples/typed.cpp" | sed 's/^    //' >"$work/example.txt"
sed -n '/^```cpp$/,/^```$/{//!p}' "$source/README.md" >"$work/readme.txt"
[ -s "$work/example.txt" ] || { echo "no marked lines in the example" >&2; exit 1; }
diff -u "$work/example.txt" "$work/readme.txt" || { echo "README.md (+) shows other lines than the example (-)" >&2; exit 1; }

pc=$(find "$prefix" -name orrery.pc)
export PKG_CONFIG_LIBDIR=${pc%/*}
read -ra found < <(pkg-config --cflags --libs orrery)
read -ra include < <(pkg-config --cflags orrery)
for standard in 17 20; do
    "$compiler" -std=c++$standard -pedantic -Wall -Wextra -Werror -fsyntax-only "$source/examples/typed.cpp" \
        "${include[@]}"
done
"$compiler" -std=c++11 -pedantic -Wall -Wextra -Werror "$source/examples/typed.cpp" "${found[@]}" \
    "-Wl,-rpath,$(pkg-config --variable=libdir orrery)" -o "$work/typed"
"$work/typed" | tee "$work/output.txt"
for line in '"Port" : 1123' '88 km/h' '"Name" : "Fence"'; do
    grep -qF -- "$line" "$work/output.txt" || { echo "not in the output: $line" >&2; exit 1; }
done
[ "$(grep -o '"Enable" : false' "$work/output.txt" | wc -l)" -eq 1 ] || { echo "not one rule is off" >&2; exit 1; }
