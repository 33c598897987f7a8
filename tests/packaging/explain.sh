#!/usr/bin/env bash
# The example that explains replies does what it says when built as a client would build it, against the library for
# explanations alone.
# explain.sh C_COMPILER PREFIX SOURCE_DIR WORK_DIR
set -euo pipefail
compiler=$1 prefix=$2 source=$3 work=$4
rm -rf "$work"
mkdir -p "$work"
pc=$(find "$prefix" -name orrery-explain.pc)
export PKG_CONFIG_LIBDIR=${pc%/*}
read -ra found < <(pkg-config --cflags --libs orrery-explain)
"$compiler" -std=c99 -pedantic -Wall -Wextra -Werror "$source/examples/explain.c" "${found[@]}" \
    "-Wl,-rpath,$(pkg-config --variable=libdir orrery-explain)" -o "$work/explain"

fail=0
want() { # want COMMAND REPLY STATUS LINE...
    local command=$1 reply=$2 status=$3 got=0 line
    shift 3
    printf '%s' "$reply" | "$work/explain" "$command" >"$work/output.txt" || got=$?
    if [ "$got" != "$status" ]; then
        echo "explain $command: status $got, not $status" >&2
        fail=1
    fi
    for line in "$@"; do
        if ! grep -qxF -- "$line" "$work/output.txt"; then
            echo "not in the output: $line" >&2
            cat "$work/output.txt" >&2
            fail=1
        fi
    done
}
want NTP '{"result":true,"params":{"table":{"Port":123}}}' 0 '0 findings'
want NTP '{"result":false,"params":{"table":{}}}' 1 \
    '1:11 refused: result: "result" is false; the command wants true' '1 findings'
want NTP $'{"result":true,"params":{"table":{\n  "Port":"123",\n  "Prot":1}}}' 1 \
    '2:10 lost: params.table.Port: "123" where a number is read: it reads as 0 [CFG_NTP_INFO.nPort]' \
    '3:3 lost: params.table.Prot: nothing reads this key; the nearest that is read is "Port" [CFG_NTP_INFO]' '2 findings'
want NoSuchCommand '{}' 2
exit $fail
