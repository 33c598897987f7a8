#!/usr/bin/env bash
# The library needs the C and C++ runtimes and nothing else, neither itself nor through another library.
# needs.sh LIBRARY NAME
set -euo pipefail
library=$1 name=$2
allowed='^(libstdc\+\+\.so\.6|libgcc_s\.so\.1|libm\.so\.6|libc\.so\.6|ld-linux[-a-z0-9_]*\.so\.[0-9]+)$'
direct=$(readelf -d "$library" | sed -n 's/.*(NEEDED).*\[\(.*\)\]/\1/p')
closure=$(ldd "$library" | awk '$1 !~ /^linux-vdso/ { n = split($1, parts, "/"); print parts[n] }')
[ -n "$direct" ] && [ -n "$closure" ] || { echo "nothing found: is $library a shared library?" >&2; exit 1; }
if printf '%s\n%s\n' "$direct" "$closure" | grep -Ev "$allowed"; then
    echo "the library needs more than the C and C++ runtimes" >&2
    exit 1
fi
readelf -d "$library" | grep "(SONAME).*\[lib$name\.so\.\(0\.\)\?[0-9]*\]" >/dev/null || { echo "no SONAME" >&2; exit 1; }
