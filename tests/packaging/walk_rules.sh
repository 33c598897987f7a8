#!/usr/bin/env bash
# The example that walks a rule buffer does what it says when built as a client would build it.
# walk_rules.sh C_COMPILER PREFIX SOURCE_DIR WORK_DIR
set -euo pipefail
compiler=$1 prefix=$2 source=$3 work=$4
rm -rf "$work"
mkdir -p "$work"
pc=$(find "$prefix" -name orrery.pc)
export PKG_CONFIG_LIBDIR=${pc%/*}
read -ra found < <(pkg-config --cflags --libs orrery)
"$compiler" -std=c99 -pedantic -Wall -Wextra -Werror "$source/examples/walk_rules.c" "${found[@]}" \
    "-Wl,-rpath,$(pkg-config --variable=libdir orrery)" -o "$work/walk_rules"
"$work/walk_rules" | tee "$work/output.txt"

fail=0
want() {
    if ! grep -qF -- "$1" "$work/output.txt"; then
        echo "not in the output: $1" >&2
        fail=1
    fi
}
want 'rule 1, "Fence": a line of 2 points'
want 'rule 2, "Hall": alarms after 30 seconds'
want '"DetectLine" : [ [ 100, 200 ], [ 8000, 200 ] ]'
want '"Enable" : false'
want '"Enable" : true'
want '"Type" : "LeftDetection"'
exit $fail
