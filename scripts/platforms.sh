#!/usr/bin/env bash
# Builds for other platforms and runs there what they can: longer than scripts/test.sh, and no part of it.
#   platforms.sh [STAGE...]   bits32 aarch64 windows (all of them without a name)
# Needs a companion of this machine to compare with: build/orrery (scripts/test.sh release), or what COMPANION names. The
# Debian packages that a stage needs are installed when they are missing. TEST_FOLDERS names the folders of tests/ to
# run, for example "frame events" (all when empty). Results: build/platforms.
set -euo pipefail
cd "$(dirname "$0")/.."
root=$PWD
out=$root/build/platforms
companion=$(realpath -m "${COMPANION:-build/orrery}")
mkdir -p "$out"
if command -v ccache >/dev/null; then export CMAKE_C_COMPILER_LAUNCHER=ccache CMAKE_CXX_COMPILER_LAUNCHER=ccache; fi
version=$(sed -n 's/^project(orrery VERSION \([0-9]*\.[0-9]*\).*/\1/p' CMakeLists.txt)
stages=("$@")
[ ${#stages[@]} -gt 0 ] || stages=(bits32 aarch64 windows)
googletest=/usr/src/googletest

needs() { # needs PACKAGE...
    local package missing=() as_root=()
    for package in "$@"; do
        [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null || true)" = installed ] || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    [ "$(id -u)" -eq 0 ] || as_root=(sudo)
    "${as_root[@]}" apt-get update
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "${missing[@]}"
}

# Records hold 64-bit pointers: CMake says so. (Nothing is linked, so no 32-bit libraries are needed.)
stage_bits32() {
    rm -rf "$out/bits32"
    if cmake -S . -B "$out/bits32" -G Ninja -DCMAKE_C_FLAGS=-m32 -DCMAKE_CXX_FLAGS=-m32 \
        -DCMAKE_TRY_COMPILE_TARGET_TYPE=STATIC_LIBRARY >"$out/bits32.txt" 2>&1; then
        echo "platforms: a 32-bit build is configured" >&2
        exit 1
    fi
    grep -q 'laid out for 64-bit pointers' "$out/bits32.txt"
}

# The parser of arguments is headers alone, but stands where this machine's own headers do, which are not the platform's.
headers_alone() {
    needs libcli11-dev
    mkdir -p "$out/headers/include" "$out/headers/share/cmake"
    ln -sfn /usr/include/CLI "$out/headers/include/CLI"
    cp -r /usr/share/cmake/CLI11 "$out/headers/share/cmake/"
}

configure() { # configure NAME TOOLCHAIN
    headers_alone
    cmake -S . -B "$out/$1" -G Ninja -DCMAKE_BUILD_TYPE=Release "-DCMAKE_TOOLCHAIN_FILE=$root/cmake/toolchains/$2.cmake" \
        "-DCLI11_DIR=$out/headers/share/cmake/CLI11" -DORRERY_STATIC=OFF
    cmake --build "$out/$1"
}

same() { # same WHAT HERE THERE
    if diff -u "$2" "$3" >"$3.diff"; then return; fi
    head -40 "$3.diff" >&2
    echo "platforms: other $1: $3.diff" >&2
    exit 1
}

# What the companion says, as this machine's says it: layout of all records, the schema, a reply with its findings, events.
same_companion() { # same_companion NAME RUNNER...
    local name=$1 what where program
    shift
    echo '{"Event":[{"Code":"CrossLineDetection","Data":{"Name":"Fence"}},{"Code":"Nothing"}]}' >build/platforms/events.json
    for what in layout schema "parse Alarm examples/alarm-reply.json --pack" "events build/platforms/events.json" \
        "describe Alarm" "check NTP examples/alarm-reply.json" "check nowhere.json" "describe NTP --help" \
        "check /nowhere/reply.json" "check NTP $root/examples/alarm-reply.json"; do
        for where in here there; do
            if [ $where = here ]; then program=("$companion"); else program=("$@"); fi
            # shellcheck disable=SC2086 # several words
            "${program[@]}" $what >"$out/$name.$where.txt" 2>&1 || echo "status $?" >>"$out/$name.$where.txt"
        done
        same "$what" "$out/$name.here.txt" "$out/$name.there.txt"
    done
    echo "platforms: $name: the companion says the same"
}

# What the shared library makes of every command, as this machine's does.
same_texts() { # same_texts NAME PROGRAM
    local name=$1 folder
    shift
    folder=$(dirname "$companion")
    "$companion" schema >"$out/schema.json"
    python3 - "$out/schema.json" >"$out/commands.txt" <<'PYTHON'
import json, sys
schema = json.load(open(sys.argv[1]))
records = {record["name"]: record for record in schema["records"]}
def leads(name):
    return any(field["type"] == "ptr" or field["type"] == "record" and leads(field["record"])
               for field in records[name]["fields"])
for command in schema["commands"]:
    if command["pack"]:
        print(command["name"], records[command["record"]]["size"], int(command["parse"]), int(leads(command["record"])))
PYTHON
    cc -std=c99 -Iinclude tests/packaging/texts.c -o "$out/texts" "$folder/liborrery.so" "-Wl,-rpath,$folder"
    "$out/texts" <"$out/commands.txt" >"$out/texts.here.txt"
    (cd "$out/$name" && "$@") <"$out/commands.txt" | tr -d '\r' >"$out/$name.texts.txt"
    same texts "$out/texts.here.txt" "$out/$name.texts.txt"
    echo "platforms: $name: texts and records of $(wc -l <"$out/commands.txt") commands are the same"
}

# apt for files that are only looked at: nothing of it is installed here.
apart() { # apart FOLDER LINE [OPTION...]
    local at=$1 line=$2 site
    shift 2
    mkdir -p "$at/lists/partial" "$at/cache/archives/partial"
    site=$(apt-get indextargets --format '$(SITE)' 'Created-By: Packages' | sed -n 1p)
    echo "${line/ / [signed-by=/usr/share/keyrings/debian-archive-keyring.gpg] $site bookworm }" >"$at/sources.list"
    own=(-o "Dir::Etc::SourceList=$at/sources.list" -o Dir::Etc::SourceParts=- -o "Dir::State::Lists=$at/lists"
        -o "Dir::Cache=$at/cache" -o Dir::State::status=/dev/null -o APT::Sandbox::User=root "$@")
    apt-get "${own[@]}" update
}

# Libraries of a whole Arm system, whose converters of texts the cross compiler's packages lack.
arm_system() {
    local at=$out/arm64 package
    [ ! -d "$at/root/usr/lib/aarch64-linux-gnu/gconv" ] || return 0
    apart "$at" 'deb main' -o APT::Architecture=arm64 -o APT::Architectures::=arm64
    (cd "$at" && apt-get "${own[@]}" download libc6 libgcc-s1 libstdc++6)
    for package in "$at"/*.deb; do dpkg -x "$package" "$at/root"; done
}

# The referee of the tests is no package of these platforms: its sources are those of this machine's.
jsoncpp() {
    local at=$out/jsoncpp
    [ -z "$(compgen -G "$at/*/src/lib_json/json_value.cpp")" ] || return 0
    needs dpkg-dev
    apart "$at" 'deb-src main'
    (cd "$at" && apt-get "${own[@]}" source libjsoncpp)
}

# The tests, but for those that use what the platform lacks.
tests_of() { # tests_of NAME
    local file
    # shellcheck disable=SC2086 # several names
    (cd tests && find ${TEST_FOLDERS:-.} -name '*_test.cpp' ! -path '*tools/*' ! -path '*shared/*') |
        sed 's|^\(\./\)\?|tests/|' | LC_ALL=C sort | while read -r file; do
        if grep -qE "$LACKS" "$file"; then
            echo "platforms: $1: left out, for it has $(grep -oE "$LACKS" "$file" | sort -u | paste -sd ' '): $file" >&2
        else
            echo "$file"
        fi
    done
}

# What fails is told again at the end; what comes behind it runs all the same.
failed=()
passes() { # passes WHAT COMMAND...
    local what=$1
    shift
    if "$@"; then
        echo "platforms: $what passed"
    else
        echo "platforms: $what failed" >&2
        failed+=("$what")
    fi
}

# Emulated programs are slow: the tests are shared out among as many of them as there are cores.
in_shards() { # in_shards FOLDER TEST_PROGRAM_AND_ARGUMENTS...
    local folder=$1 shards shard running=() status=0
    shift
    shards=$(nproc)
    for ((shard = 0; shard < shards; shard++)); do
        GTEST_TOTAL_SHARDS=$shards GTEST_SHARD_INDEX=$shard "$@" >"$folder/shard$shard.txt" 2>&1 &
        running+=($!)
    done
    for ((shard = 0; shard < shards; shard++)); do
        wait "${running[shard]}" || status=1
        cat "$folder/shard$shard.txt"
    done
    return $status
}

run_tests() { # run_tests NAME COMPILER RUNNER...
    local name=$1 compiler=$2 build=$out/$1 file source objects=()
    shift 2
    jsoncpp
    source=$(compgen -G "$out/jsoncpp/*/src/lib_json")
    # shellcheck disable=SC2206 # several words
    local flags=("-I$root/include" "-I$root/src" "-I$root" "-I$root/tests" "-I$googletest/googletest/include"
        "-I$googletest/googlemock/include" "-I${source%/src/lib_json}/include" -DJSONCPP_NO_LOCALE_SUPPORT $FLAGS)
    mkdir -p "$build/tests"
    # As tests/CMakeLists.txt has it: compiling is most of the time, but for the sweeps, which spend it in their own loops.
    local sweeps='tests/(property/|support/|frame/[^/]*Oracle_test|frame/LocalText_test)'
    tests_of "$name" >"$build/tests.txt"
    {
        echo "builddir = tests" # ninja's own files stand apart from those of the library's build
        echo "level = -O0"
        echo "rule cc"
        echo "  depfile = \$out.d"
        echo "  deps = gcc"
        echo "  command = ${CMAKE_CXX_COMPILER_LAUNCHER:-} $compiler -std=c++20 \$level -MD -MF \$out.d ${flags[*]}" \
            "-I$googletest/googletest -I$googletest/googlemock \$data -c \$in -o \$out"
        while read -r file; do
            objects+=("tests/$(basename "$(dirname "$file")").$(basename "$file").o")
            echo "build ${objects[-1]}: cc $file"
            [[ ! $file =~ $sweeps && $file == "$root"/* ]] || echo "  level = -O1"
            ! grep -q ORRERY_TEST_DATA "$file" || echo "  data = -DORRERY_TEST_DATA=\\\"$root/tests\\\""
        done < <(sed "s|^|$root/|" "$build/tests.txt"
            find "$root/tests/support" -name '*.cpp' ! -name 'FuzzInput.*' | LC_ALL=C sort # that is of the fuzz targets
            ls "$source"/json_{reader,value,writer}.cpp \
            "$googletest"/googletest/src/gtest{-all,_main}.cc "$googletest/googlemock/src/gmock-all.cc")
        echo "rule ld"
        echo "  command = $compiler \$in -Lexplain -L. -lorrery_explain_core -lorrery_core" \
            "-Wl,--wrap=malloc,--wrap=free $LINK -o \$out"
        echo "build tests/orrery_tests$EXE: ld ${objects[*]} | liborrery_core.a explain/liborrery_explain_core.a"
    } >"$build/tests.ninja"
    ninja -k 0 ${CMAKE_BUILD_PARALLEL_LEVEL:+"-j$CMAKE_BUILD_PARALLEL_LEVEL"} -C "$build" -f tests.ninja
    # Those of a code page want a process that was started for it.
    [ -z "$EXCEPT" ] || echo "platforms: $name: left out, for another C library reads them otherwise: ${EXCEPT//:/ }"
    passes "$name: the tests of $(wc -l <"$build/tests.txt") files" \
        in_shards "$build/tests" "$@" "$build/tests/orrery_tests$EXE" --gtest_brief=1 --gtest_filter="-CodePage.*:$EXCEPT"
}

# Clients of the shared library, as they are built there; `texts` stays for same_texts.
run_clients() { # run_clients NAME C_COMPILER CXX_COMPILER RUNNER...
    local name=$1 c=$2 cxx=$3 program compiler
    shift 3
    mkdir -p "$out/$name/clients"
    (
        cd "$out/$name" # where the library is found when it is loaded
        for program in tests/packaging/consumer.c examples/{parse_and_pack,print_events,walk_rules}.c \
            tests/packaging/consumer.cpp examples/typed.cpp tests/packaging/texts.c; do
            compiler=("$c" -std=c99)
            case $program in *.cpp) compiler=("$cxx" -std=c++11) ;; esac
            # shellcheck disable=SC2086 # several words
            "${compiler[@]}" "-I$root/include" "$root/$program" -o "client$EXE" $CLIENT_LINK
            if [ "$program" = tests/packaging/texts.c ]; then
                mv "client$EXE" "texts$EXE"
                continue
            fi
            "$@" "./client$EXE" >"clients/$(basename "$program").txt" || {
                echo "platforms: $name: $program fails" >&2
                exit 1
            }
        done
    )
    echo "platforms: $name: $(find "$out/$name/clients" -name '*.txt' | wc -l) clients of the shared library ran"
}

stage_aarch64() {
    needs g++-aarch64-linux-gnu qemu-user libgmock-dev
    configure aarch64 aarch64
    arm_system
    local run=(qemu-aarch64 -L "$out/arm64/root")
    same_companion aarch64 "${run[@]}" "$out/aarch64/orrery"
    EXE='' CLIENT_LINK='-L. -lorrery -Wl,-rpath,.' \
        run_clients aarch64 aarch64-linux-gnu-gcc aarch64-linux-gnu-g++ "${run[@]}"
    same_texts aarch64 "${run[@]}" ./texts
    LACKS='<windows\.h>' EXCEPT='' FLAGS='' LINK=-pthread EXE='' run_tests aarch64 aarch64-linux-gnu-g++ "${run[@]}"
}

stage_windows() {
    needs g++-mingw-w64-x86-64-posix wine64 libgmock-dev
    configure windows mingw-w64
    local wine
    wine=$(command -v wine64 || command -v wine || echo /usr/lib/wine/wine64)
    export WINEDEBUG=-all WINEPREFIX=$out/wine
    "$wine" cmd /c ver >/dev/null # the first start makes its folder, and takes long
    same_companion windows "$wine" "$out/windows/orrery.exe"
    # The library shows the documented functions, and needs the system's own libraries.
    x86_64-w64-mingw32-objdump -p "$out/windows/liborrery-$version.dll" >"$out/windows.dll.txt"
    sed -n '/Ordinal\/Name Pointer/,/^$/s/.*\] //p' "$out/windows.dll.txt" | grep -v Table | c++filt |
        LC_ALL=C sort >"$out/windows.exports.txt"
    LC_ALL=C sort tests/packaging/exports.txt >"$out/exports.txt"
    same exports "$out/exports.txt" "$out/windows.exports.txt"
    if grep 'DLL Name' "$out/windows.dll.txt" | grep -viE 'kernel32|msvcrt|advapi32|ucrt'; then
        echo "platforms: the library needs the above" >&2
        exit 1
    fi
    EXE=.exe CLIENT_LINK='liborrery.dll.a -static' \
        run_clients windows x86_64-w64-mingw32-gcc-posix x86_64-w64-mingw32-g++-posix "$wine"
    same_texts windows "$wine" ./texts.exe
    # Texts in the process's code page, which follows the locale of who starts it here. Most tests want UTF-8, as they
    # have it elsewhere, and as large a stack. What is left out wants POSIX and its locales, or gigabytes of text that
    # the system only lends, or holds numbers past all bounds against Debian's C library.
    needs locales
    local page locale
    for locale in ja_JP zh_CN de_DE hi_IN; do
        mkdir -p "$out/locales"
        [ -d "$out/locales/$locale.UTF-8" ] || localedef -i "$locale" -f UTF-8 "$out/locales/$locale.UTF-8"
    done
    export LOCPATH=$out/locales
    local bounds=SplitMode.ANumberPastAllBoundsIsTheCLibrarys
    LACKS='support/Locales|MAP_NORESERVE|<unistd\.h>|gmtime_r' \
        FLAGS="-I$root/tests/support/windows -Dmalloc_usable_size=_msize" EXE=.exe \
        LINK='-static -Wl,--stack,8388608' \
        EXCEPT=AgainstTheCLibrary.SectionsReadAlike:AgainstTheCLibrary.DatesReadAlike:$bounds \
        run_tests windows x86_64-w64-mingw32-g++-posix env LC_ALL=hi_IN.UTF-8 "$wine"
    for page in 932:ja_JP 936:zh_CN 1252:de_DE; do
        # A server that is about to end, as no program runs any more, would take the next one along.
        "$(command -v wineserver64 || command -v wineserver || echo /usr/lib/wine/wineserver64)" --wait
        passes "windows: texts in code page ${page%:*}" \
            env "LC_ALL=${page#*:}.UTF-8" "ORRERY_CODE_PAGE=${page%:*}" \
            "$wine" "$out/windows/tests/orrery_tests.exe" --gtest_brief=1 --gtest_filter='CodePage.*'
    done
}

# Before a platform's library is built, which takes minutes.
if [[ " ${stages[*]} " =~ \ (aarch64|windows)\  && ! -x $companion ]]; then
    echo "platforms: no $companion to compare with; scripts/test.sh release builds it" >&2
    exit 2
fi
for stage in "${stages[@]}"; do
    echo "=== $stage"
    "stage_$stage"
done
for what in "${failed[@]}"; do echo "platforms: $what failed" >&2; done
[ ${#failed[@]} -eq 0 ] || exit 1
echo "platforms: all of ${stages[*]} passed"
