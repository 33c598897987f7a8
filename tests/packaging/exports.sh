#!/usr/bin/env bash
# The library shows the documented functions and nothing else, each of them in a public header.
# exports.sh LIBRARY SOURCE_DIR EXPECTED
set -euo pipefail
library=$1 source=$2 expected=$2/tests/packaging/$3
LC_ALL=C diff -u <(LC_ALL=C sort "$expected") \
    <(nm -D --defined-only --demangle "$library" | cut -d' ' -f3- | LC_ALL=C sort) || {
    echo "the exports (+) are not the documented ones (-)" >&2
    exit 1
}
fail=0
while read -r line; do
    name=${line%%(*}
    if ! grep -rqw -- "$name" "$source/include/orrery"; then
        echo "$name is declared in no public header" >&2
        fail=1
    fi
done <"$expected"
exit $fail
