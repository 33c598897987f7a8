#!/usr/bin/env bash
# What a process pays for the tables before its first call, to the number of commands: pointers that the loader sets,
# and the memory of the process's own that they stand in. Rare words of rows cost most of it; what calls look at has no
# pointers.
# relocations.sh LIBRARY COMPANION
set -euo pipefail
most_pointers=160 # a command
most_bytes=12500
commands=$("$2" commands | tail -n +2 | wc -l)
pointers=$(readelf -rW "$1" | grep -c _RELATIVE)
bytes=$((16#$(readelf -SW "$1" | sed -n 's/.* \.data\.rel\.ro  *PROGBITS  *[0-9a-f]* [0-9a-f]* \([0-9a-f]*\) .*/\1/p')))
echo "$commands commands, a command: $((pointers / commands)) pointers, $((bytes / commands)) bytes"
[ "$commands" -gt 0 ] && [ "$bytes" -gt 0 ]
[ $((pointers / commands)) -le $most_pointers ]
[ $((bytes / commands)) -le $most_bytes ]
