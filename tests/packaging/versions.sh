#!/usr/bin/env bash
# The version is the same in each file that has it.
# versions.sh SOURCE_DIR
set -euo pipefail
cd "$1"
wanted=$(sed -n 's/^project(orrery VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
[ -n "$wanted" ] || { echo "no version in CMakeLists.txt" >&2; exit 1; }
fail=0
same() { # same FILE VERSION
    [ "$2" = "$wanted" ] || { echo "$1 has version '$2', CMakeLists.txt $wanted" >&2; fail=1; }
}
same include/orrery/calls.h "$(sed -n 's/^#define ORRERY_VERSION_\(MAJOR\|MINOR\|PATCH\) //p' include/orrery/calls.h | paste -sd.)"
same debian/changelog "$(sed -n '1s/.*(\([^)-]*\).*/\1/p' debian/changelog)"
same packaging/vcpkg/ports/orrery/vcpkg.json "$(sed -n 's/^ *"version": "\(.*\)",/\1/p' packaging/vcpkg/ports/orrery/vcpkg.json)"
grep -q "^## $wanted$" CHANGELOG.md || { echo "CHANGELOG.md has no section $wanted" >&2; fail=1; }
# Before 1.0 each minor version has a library file, and a package, of its own.
file=${wanted%.*}
[ "${wanted%%.*}" = 0 ] || file=${wanted%%.*}
grep -q "^Package: liborrery$file$" debian/control || { echo "debian/control has no liborrery$file" >&2; fail=1; }
exit $fail
