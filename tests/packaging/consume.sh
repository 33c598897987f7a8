#!/usr/bin/env bash
# Builds and runs a client against an installed prefix, in a fresh folder.
# consume.sh find_package|static|pkg_config C|CXX COMPILER PREFIX WORK_DIR
set -euo pipefail
way=$1 language=$2 compiler=$3 prefix=$4 work=$5
here=$(cd "$(dirname "$0")" && pwd)
rm -rf "$work"
mkdir -p "$work"

case $way in
find_package | static)
    library=orrery
    [ "$way" = find_package ] || library=orrery_static
    cmake -S "$here/find_package" -B "$work" -G Ninja "-DCMAKE_PREFIX_PATH=$prefix" "-DCONSUMER_LANGUAGE=$language" \
        "-DCONSUMER_LIBRARY=$library" "-DCMAKE_${language}_COMPILER=$compiler" -DCMAKE_FIND_USE_PACKAGE_REGISTRY=OFF
    cmake --build "$work"
    ;;
pkg_config)
    pc=$(find "$prefix" -name orrery.pc)
    export PKG_CONFIG_LIBDIR=${pc%/*}
    if [ "$language" = C ]; then flags=(-std=c99 "$here/consumer.c"); else flags=(-std=c++11 "$here/consumer.cpp"); fi
    read -ra found < <(pkg-config --cflags --libs orrery)
    libdir=$(pkg-config --variable=libdir orrery)
    "$compiler" -Wall -Wextra -Wpedantic -Werror "${flags[@]}" "${found[@]}" "-Wl,-rpath,$libdir" -o "$work/consumer"
    ;;
*)
    echo "unknown way: $way" >&2
    exit 2
    ;;
esac
"$work/consumer"
if [ "$way" = static ]; then
    if ldd "$work/consumer" | grep liborrery; then
        echo "the client needs a library to load" >&2
        exit 1
    fi
    exit 0
fi
# The client must have used the library of the prefix, not one that happens to lie around on the machine.
used=$(ldd "$work/consumer" | awk '$1 ~ /^liborrery\.so/ { print $3 }')
[ -n "$used" ] || { echo "the client is not linked to liborrery.so" >&2; exit 1; }
case $(realpath "$used") in
"$(realpath "$prefix")"/*) ;;
*) echo "the client runs with $used, which is not below the prefix" >&2; exit 1 ;;
esac
