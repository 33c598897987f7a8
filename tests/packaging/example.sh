#!/usr/bin/env bash
# The README's lines are those of the examples, and the examples do what they say when built as a client would build
# them.
# example.sh C_COMPILER PREFIX SOURCE_DIR WORK_DIR
set -euo pipefail
compiler=$1 prefix=$2 source=$3 work=$4
rm -rf "$work"
mkdir -p "$work"

{
    sed -n '/README: begin/,/README: end/{//!p}' "$source/examples/parse_and_pack.c" | sed 's/^    //'
    sed -n '/README: begin/,/README: end/{//!p}' "$source/examples/print_events.c"
} >"$work/example.txt"
sed -n '/^```c$/,/^```$/{//!p}' "$source/README.md" >"$work/readme.txt"
[ -s "$work/example.txt" ] || { echo "no marked lines in the examples" >&2; exit 1; }
diff -u "$work/example.txt" "$work/readme.txt" || { echo "README.md (+) shows other lines than the examples (-)" >&2; exit 1; }

pc=$(find "$prefix" -name orrery.pc)
export PKG_CONFIG_LIBDIR=${pc%/*}
read -ra found < <(pkg-config --cflags --libs orrery)
for example in parse_and_pack print_events; do
    "$compiler" -std=c99 -pedantic -Wall -Wextra -Werror "$source/examples/$example.c" "${found[@]}" \
        "-Wl,-rpath,$(pkg-config --variable=libdir orrery)" -o "$work/$example"
    "$work/$example" | tee -a "$work/output.txt"
done

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
want 'A12345 drives 88 km/h on lane 2'
want 'card 4711 at door 1'
want 'event 339'
want '3 events'
exit $fail
