#!/usr/bin/env bash
# The gate holds a tree against its last tag: what is as it was or is added passes, a record that grows wants a new minor
# version, and so does a function that goes; the tagged version's programs run on the library of the tree.
# abi.sh C_COMPILER SOURCE_DIR WORK_DIR LIBRARY
set -euo pipefail
export CC=$1
source=$2 work=$3 library=$4
rm -rf "$work"
mkdir -p "$work"

# A repository with a release, and the built library where a build has it.
released=$work/released
mkdir -p "$released/build" "$released/scripts" "$released/tests/packaging"
cp -r "$source/include" "$source/examples" "$source/CMakeLists.txt" "$released/"
cp "$source/scripts/abi.sh" "$released/scripts/"
cp "$source/tests/packaging/consumer.c" "$released/tests/packaging/"
version=$(sed -n 's/^project(orrery VERSION \([0-9.]*\).*/\1/p' "$source/CMakeLists.txt")
git() { command git -C "$released" -c user.name=Tests -c user.email=tests@orrery.invalid -c commit.gpgsign=false "$@"; }
git init -q
git add include examples CMakeLists.txt scripts tests
git commit -qm "A release"
"$released/scripts/abi.sh" | grep -q 'no version is tagged yet' || { echo "a tag where there is none" >&2; exit 1; }
# A checkout that lacks its tags is no first version.
printf '## 0.2.0\n\n## 0.1.0\n' >"$released/CHANGELOG.md"
! "$released/scripts/abi.sh" >/dev/null 2>&1 || { echo "passed without the tags of earlier versions" >&2; exit 1; }
rm "$released/CHANGELOG.md"
git tag -am "Release $version" "v$version"
for file in "$(dirname "$library")"/liborrery.so*; do ln -s "$file" "$released/build/"; done

fail=0
passes() { # passes WHAT WORDS
    "$released/scripts/abi.sh" >"$work/said.txt" 2>&1 && grep -q "$2" "$work/said.txt" || {
        cat "$work/said.txt" >&2
        echo "refused: $1" >&2
        fail=1
    }
}
refuses() { # refuses WHAT WORDS
    local status=0
    "$released/scripts/abi.sh" >"$work/said.txt" 2>&1 || status=$?
    [ $status = 1 ] && grep -q "$2" "$work/said.txt" || {
        cat "$work/said.txt" >&2
        echo "status $status: $1" >&2
        fail=1
    }
}
minor() { sed -i "s/^\(project(orrery VERSION 0\.\)[0-9]*\./\1$1./" "$released/CMakeLists.txt"; }
changed() { [ -n "$(git status --porcelain "$@")" ] || { echo "nothing was changed in $*" >&2; exit 1; }; }
again() { git checkout -q -- .; }

passes "the release itself" "consumer.c of v$version runs"

printf 'typedef struct CFG_NEW_OF_TEST { int nNew; } CFG_NEW_OF_TEST;\n' >>"$released/include/orrery/wlan.h"
passes "a new record" 'nothing was changed or taken away'
again

grow() { sed -i 's/^} CFG_ENABLE_INFO;/    int nGrown;\n} CFG_ENABLE_INFO;/' "$released/include/orrery/"*.h && changed include; }
grow
refuses "a grown record" 'CFG_ENABLE_INFO'
minor 999
passes "a grown record in a library of its own" 'a library of its own for them'
again

sed -i '/^int32_t CLIENT_ParseDataByCallback/{:more;/;/!{N;b more};d}' "$released/include/orrery/calls.h"
changed include
refuses "a lost function" 'CLIENT_ParseDataByCallback'
again

# A member that means another one keeps the size.
sed -i 's/^    int32_t nPort;  *\/\* "Port": 123/    uint32_t nPort; \/* "Port": 123/' "$released/include/orrery/device_settings.h"
changed include
refuses "a member of another type" 'nPort'
again

# What a client of the release relied on.
sed -i 's/^int main(void) {/int main(void) {\n    if (ORRERY_Version() != 0) return 1;/' "$released/tests/packaging/consumer.c"
changed tests
git commit -qam "A release with a program of its own"
git tag -fam "Release $version" "v$version" >/dev/null
refuses "a program of the release that fails" "consumer.c of v$version fails on this library"
exit $fail
