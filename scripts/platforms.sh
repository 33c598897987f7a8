#!/usr/bin/env bash
# Builds for other platforms and runs there what they can: longer than scripts/test.sh, and no part of it.
#   platforms.sh [STAGE...]   bits32 aarch64 windows (all of them without a name)
# Needs a release build in build/ (scripts/test.sh release) to compare with, and Debian's packages: g++-aarch64-linux-gnu
# and qemu-user, g++-mingw-w64-x86-64-posix and wine64, g++-multilib (which cannot stand beside g++-aarch64-linux-gnu),
# libgtest-dev. Results: build/platforms.
set -euo pipefail
cd "$(dirname "$0")/.."
root=$PWD
out=$root/build/platforms
mkdir -p "$out"
if command -v ccache >/dev/null; then export CMAKE_C_COMPILER_LAUNCHER=ccache CMAKE_CXX_COMPILER_LAUNCHER=ccache; fi
stages=("$@")
[ ${#stages[@]} -gt 0 ] || stages=(bits32 aarch64 windows)
googletest=/usr/src/googletest/googletest

# Records hold 64-bit pointers: CMake says so.
stage_bits32() {
    rm -rf "$out/bits32"
    if cmake -S . -B "$out/bits32" -G Ninja -DCMAKE_C_FLAGS=-m32 -DCMAKE_CXX_FLAGS=-m32 >"$out/bits32.txt" 2>&1; then
        echo "platforms: a 32-bit build is configured" >&2
        exit 1
    fi
    grep -q 'laid out for 64-bit pointers' "$out/bits32.txt"
}

configure() { # configure NAME TOOLCHAIN
    cmake -S . -B "$out/$1" -G Ninja -DCMAKE_BUILD_TYPE=Release "-DCMAKE_TOOLCHAIN_FILE=$root/cmake/toolchains/$2.cmake" \
        -DORRERY_STATIC=OFF
    cmake --build "$out/$1"
}

# Layout of all records, and the texts of an empty record of every command, as the companion of this machine has them.
same_texts() { # same_texts NAME RUNNER...
    local name=$1 command
    shift
    "$@" layout | tr -d '\r' | diff -u tests/golden/layout.txt - || { echo "platforms: another layout" >&2; exit 1; }
    echo '{}' >"$out/empty.json"
    for companion in here there; do : >"$out/$name.$companion.txt"; done
    build/orrery schema | python3 -c 'import json, sys
for command in json.load(sys.stdin)["commands"]:
    if command["pack"]: print(command["name"])' >"$out/commands.txt"
    while read -r command; do
        echo "$command: $(build/orrery pack "$command" "$out/empty.json" 2>&1)" >>"$out/$name.here.txt"
        echo "$command: $("$@" pack "$command" "$out/empty.json" 2>&1 | tr -d '\r')" >>"$out/$name.there.txt"
    done <"$out/commands.txt"
    diff -u "$out/$name.here.txt" "$out/$name.there.txt" || { echo "platforms: other texts" >&2; exit 1; }
    echo "platforms: $name: layout and the texts of $(wc -l <"$out/commands.txt") commands are the same"
}

# The tests that need nothing but the library, GoogleTest and what this platform has.
tests_of() { # tests_of COMPILER FLAG...
    local compiler=$1 file
    shift
    find tests -name '*_test.cpp' ! -path 'tests/tools/*' ! -path 'tests/shared/*' | LC_ALL=C sort | while read -r file; do
        if "$compiler" -std=c++20 "$@" -MM "$file" >/dev/null 2>&1 && ! grep -q FailingAllocator "$file"; then
            echo "$file"
        fi
    done
}

run_tests() { # run_tests NAME COMPILER RUNNER...
    local name=$1 compiler=$2 build=$out/$1 file
    shift 2
    local flags=(-Iinclude -Isrc -Iexplain -Itests "-I$googletest/include" "-DORRERY_TEST_DATA=\"$root/tests\"")
    mkdir -p "$build/tests"
    tests_of "$compiler" "${flags[@]}" >"$build/tests.txt"
    {
        echo "rule cc"
        echo "  command = ${CMAKE_CXX_COMPILER_LAUNCHER:-} $compiler -std=c++20 -O1 ${flags[*]//\"/\\\"} -I$googletest -c \$in -o \$out"
        local objects=()
        while read -r file; do
            objects+=("tests/${file//\//_}.o")
            echo "build tests/${file//\//_}.o: cc $root/$file"
        done < <(cat "$build/tests.txt"; ls tests/support/*.cpp | grep -v FailingAllocator)
        for file in gtest-all gtest_main; do
            objects+=("tests/$file.o")
            echo "build tests/$file.o: cc $googletest/src/$file.cc"
        done
        echo "rule ld"
        echo "  command = $compiler \$in -Lexplain -L. -lorrery_explain_core -lorrery_core $LINK -o \$out"
        echo "build tests/orrery_tests$EXE: ld ${objects[*]}"
    } >"$build/tests.ninja"
    (cd "$root" && ninja -C "$build" -f tests.ninja)
    "$@" "$build/tests/orrery_tests$EXE" --gtest_brief=1
    echo "platforms: $name: the tests of $(wc -l <"$build/tests.txt") files passed"
}

stage_aarch64() {
    configure aarch64 aarch64
    local run=(qemu-aarch64 -L /usr/aarch64-linux-gnu)
    same_texts aarch64 "${run[@]}" "$out/aarch64/orrery"
    LINK=-pthread EXE='' run_tests aarch64 aarch64-linux-gnu-g++ "${run[@]}"
}

stage_windows() {
    configure windows mingw-w64
    local wine
    wine=$(command -v wine64 || command -v wine || echo /usr/lib/wine/wine64)
    export WINEDEBUG=-all WINEPREFIX=$out/wine
    same_texts windows "$wine" "$out/windows/orrery.exe"
    LINK='-static' EXE=.exe run_tests windows x86_64-w64-mingw32-g++-posix "$wine"
}

for stage in "${stages[@]}"; do
    echo "=== $stage"
    "stage_$stage"
done
echo "platforms: all of ${stages[*]} passed"
