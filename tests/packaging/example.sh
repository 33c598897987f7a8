#!/usr/bin/env bash
# The README's lines are those of the example, and the example does what it says when built as a client would build it.
# example.sh C_COMPILER PREFIX SOURCE_DIR WORK_DIR
set -euo pipefail
compiler=$1 prefix=$2 source=$3 work=$4
rm -rf "$work"
mkdir -p "$work"

sed -n '/README: begin/,/README: end/{//!p}' "$source/examples/parse_and_pack.c" | sed 's/^    //' >"$work/example.txt"
sed -n '/^```c$/,/^```$/{//!p}' "$source/README.md" >"$work/readme.txt"
[ -s "$work/example.txt" ] || { echo "no marked lines in the example" >&2; exit 1; }
diff -u "$work/example.txt" "$work/readme.txt" || { echo "README.md (+) shows other lines than the example (-)" >&2; exit 1; }

pc=$(find "$prefix" -name orrery.pc)
export PKG_CONFIG_LIBDIR=${pc%/*}
read -ra found < <(pkg-config --cflags --libs orrery)
"$compiler" -std=c99 -pedantic -Wall -Wextra -Werror "$source/examples/parse_and_pack.c" "${found[@]}" \
    "-Wl,-rpath,$(pkg-config --variable=libdir orrery)" -o "$work/parse_and_pack"
"$work/parse_and_pack" | tee "$work/output.txt"

fail=0
want() {
    if ! grep -qF -- "$1" "$work/output.txt"; then
        echo "not in the output: $1" >&2
        fail=1
    fi
}
want 'Front door is on'
want '"Enable" : false'
want '"Name" : "Front door"'
want '"SensorType" : "NC"'
exit $fail
