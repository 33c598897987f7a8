#!/usr/bin/env bash
# The gate lets a record grow with a new minor version, and not without; what is added passes.
# abi.sh C_COMPILER SOURCE_DIR WORK_DIR
set -euo pipefail
export CC=$1
source=$2 work=$3
rm -rf "$work"
mkdir -p "$work"

tree() { # a copy of the headers and the version
    mkdir -p "$work/$1"
    cp -r "$source/include" "$source/CMakeLists.txt" "$work/$1/"
}
gate() { "$source/scripts/abi.sh" --trees "$source" "$work/$1"; }

tree same
gate same

tree more
printf 'typedef struct CFG_NEW_OF_TEST { int nNew; } CFG_NEW_OF_TEST;\n' >>"$work/more/include/orrery/wlan.h"
gate more

tree grown
sed -i 's/^} CFG_ENABLE_INFO;/    int nGrown;\n} CFG_ENABLE_INFO;/' "$work/grown/include/orrery/"*.h
grep -q nGrown -r "$work/grown/include" || { echo "nothing has grown" >&2; exit 1; }
status=0
gate grown >"$work/grown.txt" 2>&1 || status=$?
[ $status = 1 ] && grep -q 'CFG_ENABLE_INFO' "$work/grown.txt" || {
    cat "$work/grown.txt" >&2
    echo "a grown record passed with status $status" >&2
    exit 1
}

# The same with a new minor version.
sed -i 's/^project(orrery VERSION 0\.[0-9]*\./project(orrery VERSION 0.999./' "$work/grown/CMakeLists.txt"
gate grown

tree lost
sed -i '/^int32_t CLIENT_ParseDataByCallback/,/;/d' "$work/lost/include/orrery/calls.h"
status=0
gate lost >"$work/lost.txt" 2>&1 || status=$?
[ $status = 1 ] || { cat "$work/lost.txt" >&2; echo "a lost function passed with status $status" >&2; exit 1; }
