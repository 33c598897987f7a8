#!/usr/bin/env bash
# Tables are constants: of the library's own memory only the log's can be written.
# writable.sh LIBRARY
set -euo pipefail
own='(anonymous namespace)::logLock|(anonymous namespace)::installedSink'
runtime='DW\.ref\..*|completed\.[0-9]+|__dso_handle|__TMC_END__|__bss_start|_edata|_end|\.data|\.bss'
symbols=$(objdump -tC "$1" | grep -E ' \.(data|bss|tdata|tbss)	' | sed 's/.*	[0-9a-f]* *\(\.hidden \)\?//')
grep -q logLock <<<"$symbols" || { echo "no symbols: is $1 stripped?" >&2; exit 1; }
if grep -vxE "$runtime" <<<"$symbols" | grep -vxF "${own//|/$'\n'}"; then
    echo "the above can be written" >&2
    exit 1
fi
