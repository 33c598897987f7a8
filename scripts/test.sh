#!/usr/bin/env bash
# Every test there is. Stages, in order: format, release, gcc, asan, fuzz, tsan; name some to run only those.
# `long` (about an hour) is what a release wants more, and each of its stages has a name too:
#   abi                       records and functions against the last tagged version, its programs on this library
#   embedded port archive     inside a client's build (FetchContent), as a port for vcpkg, as cpack's archive
#   debian root python        Debian packages without a finding of lintian, on a bare system; types of the Python package
#   bits32 aarch64 windows    refused; library, companion and tests under qemu-user; the same under wine64
#   site                      the reference site, in a browser as well
# A stage that fails does not stop the others. The last line is "N passed, M failed": one for each test that ctest ran,
# each fuzz target and each stage that could not run its tests. What failed stands above it.
# Results stay in build/results: JUnit files, a log a stage, fuzz findings.
# FUZZ_SECONDS (30) is the time for each fuzz target.
set -euo pipefail
cd "$(dirname "$0")/.."
root=$PWD
results=$root/build/results
fuzz_seconds=${FUZZ_SECONDS:-30}
jobs=$(nproc)

all_stages=(format release gcc asan fuzz tsan)
package_stages=(embedded port archive debian root python)
platform_stages=(bits32 aarch64 windows)
long_stages=(release abi site "${package_stages[@]}" "${platform_stages[@]}")
stages=()
for stage in "$@"; do
    if [ "$stage" = long ]; then stages+=("${long_stages[@]}"); else stages+=("$stage"); fi
done
if [ ${#stages[@]} -eq 0 ]; then stages=("${all_stages[@]}"); fi
for stage in "${stages[@]}"; do
    case " ${all_stages[*]} ${long_stages[*]} " in
    *" $stage "*) ;;
    *)
        echo "test: no stage '$stage'; stages are: ${all_stages[*]}; long: ${long_stages[*]}" >&2
        exit 2
        ;;
    esac
done

passed=0
failed=0
failures=()
failed_stages=()
times=()

build() { # build PRESET BUILD_DIR [CMAKE_ARGUMENT...]
    local preset=$1 dir=$2
    shift 2
    cmake --preset "$preset" "$@"
    cmake --build "$dir" -j "$jobs"
}

# Which tests failed is read from the JUnit file, so ctest's own complaint stands only where that file explains nothing.
tests() { # tests STAGE BUILD_DIR [CTEST_ARGUMENT...]
    local stage=$1 dir=$2
    shift 2
    ctest --test-dir "$dir" -j "$jobs" --output-on-failure --no-tests=error --output-junit "$results/$stage.xml" "$@" ||
        grep -Eq '<testcase .* status="(fail|notrun|disabled)"' "$results/$stage.xml"
}

stage_format() { scripts/format.sh --check; }

# What a newcomer builds first has no warnings.
stage_release() {
    build release build -DORRERY_WERROR=ON
    [ -e build/liborrery.so ]
    [ -x build/orrery ]
}

stage_gcc() {
    build test build/test
    tests gcc build/test
}

# Leaks count as failures.
export ASAN_OPTIONS=detect_leaks=1:strict_string_checks=1:detect_stack_use_after_return=1
export UBSAN_OPTIONS=print_stacktrace=1

stage_asan() {
    build asan build/asan
    tests asan build/asan
}

# Each fuzz/NAME_fuzz.cpp is a target. It starts from the seeds that the build made for it and from fuzz/corpus/NAME, and
# collects what it finds outside the tree.
stage_fuzz() {
    build asan build/asan
    local source target name input seeds found=0
    : >"$results/fuzz.txt"
    for source in fuzz/*_fuzz.cpp; do
        [ -e "$source" ] || continue
        found=1
        target=$(basename "$source" .cpp)
        name=${target%_fuzz}
        echo "fuzz: $name, $fuzz_seconds s"
        mkdir -p "$results/fuzz/$name"
        seeds=()
        for input in "build/asan/fuzz/seeds/$name" "fuzz/corpus/$name"; do
            [ ! -d "$input" ] || seeds+=("$input")
        done
        if [ ${#seeds[@]} -eq 0 ]; then
            echo "fuzz: error: no seeds of $name for $source" >&2
            echo "failed $target" >>"$results/fuzz.txt"
        elif "build/asan/fuzz/$target" -max_total_time="$fuzz_seconds" -timeout=10 -rss_limit_mb=2048 \
            -print_final_stats=1 -artifact_prefix="$results/fuzz/$name-" "$results/fuzz/$name" "${seeds[@]}"; then
            echo "passed $target" >>"$results/fuzz.txt"
        else
            # The input itself: another machine has nothing but what is printed here.
            for input in "$results/fuzz/$name"-*; do
                [ ! -f "$input" ] || echo "fuzz: input $(basename "$input"), base64: $(base64 -w0 "$input")" >&2
            done
            echo "failed $target" >>"$results/fuzz.txt"
        fi
    done
    [ $found -eq 1 ] || { echo "fuzz: no target in fuzz/" >&2; return 1; }
}

stage_tsan() {
    build tsan build/tsan
    tests tsan build/tsan -R Thread
}

# The tests of the site with what they need, which is what is installed: the other tests are not built for it.
stage_site() {
    scripts/install-deps.sh site
    cmake --preset test
    cmake --build build/test -j "$jobs" --target orrery_installed
    tests site build/test -R '^site\.'
    grep -q '<testcase name="site.browser"' "$results/site.xml"
}

stage_abi() { scripts/abi.sh; }
for stage in "${package_stages[@]}"; do eval "stage_$stage() { scripts/packages.sh $stage; }"; done
for stage in "${platform_stages[@]}"; do eval "stage_$stage() { scripts/platforms.sh $stage; }"; done

# What a failed stage complained of, from its log: the closing lines are all that some readers see.
excerpt() { # excerpt STAGE
    echo "=== $1, from build/results/$1.log"
    grep -aE -A 12 ': Failure$|ERROR: |error: ' "$results/$1.log" | cut -c 1-300 | head -n 80 || true
    grep -a '^fuzz: input ' "$results/$1.log" || true
}

# Adds up what a stage left behind. A stage without results of its own counts as one.
collect() { # collect STAGE STATUS
    local stage=$1 status=$2 ran=0 name
    if [ -s "$results/$stage.xml" ]; then
        while read -r state name; do
            ran=1
            case $state in
            run) passed=$((passed + 1)) ;;
            disabled | notrun) failures+=("$stage: $name was not run") failed=$((failed + 1)) ;;
            *) failures+=("$stage: $name") failed=$((failed + 1)) ;;
            esac
        done < <(sed -n 's/.*<testcase name="\([^"]*\)".* status="\([a-z]*\)".*/\2 \1/p' "$results/$stage.xml")
    elif [ -s "$results/$stage.txt" ]; then
        while read -r state name; do
            ran=1
            if [ "$state" = passed ]; then
                passed=$((passed + 1))
            else
                failures+=("$stage: $name") failed=$((failed + 1))
            fi
        done <"$results/$stage.txt"
    fi
    if [ "$status" -ne 0 ]; then
        failures+=("$stage: the stage itself; see build/results/$stage.log") failed=$((failed + 1))
    elif [ $ran -eq 0 ]; then
        passed=$((passed + 1))
    fi
}

run_stage() {
    local stage=$1 status=0 start=$SECONDS failed_before=$failed
    echo
    echo "=== $stage"
    rm -rf "${results:?}/$stage" "${results:?}/$stage".*
    # Not in a condition: there the stage would run on after its first failing command.
    set +e
    (set -euo pipefail; "stage_$stage") 2>&1 | tee "$results/$stage.log"
    status=${PIPESTATUS[0]}
    set -e
    collect "$stage" "$status"
    if [ "$failed" -gt "$failed_before" ]; then failed_stages+=("$stage"); fi
    times+=("$(printf '%-8s %4d s' "$stage" $((SECONDS - start)))")
    echo "=== $stage: $((SECONDS - start)) s"
}

SECONDS=0
scripts/install-deps.sh all
times+=("$(printf '%-8s %4d s' install "$SECONDS")")
ASAN_SYMBOLIZER_PATH=$(command -v llvm-symbolizer-14 || true)
export ASAN_SYMBOLIZER_PATH
if command -v ccache >/dev/null; then
    export CMAKE_C_COMPILER_LAUNCHER=ccache CMAKE_CXX_COMPILER_LAUNCHER=ccache
    export CCACHE_BASEDIR=$root CCACHE_NOHASHDIR=1 # what another checkout compiled serves this one
fi
mkdir -p "$results"
for stage in "${stages[@]}"; do
    run_stage "$stage"
done

echo
echo "=== times"
printf '%s\n' "${times[@]}" "$(printf '%-8s %4d s' total "$SECONDS")"
if [ $failed -gt 0 ]; then
    for stage in "${failed_stages[@]}"; do excerpt "$stage"; done
    printf '%s\n' "=== failed" "${failures[@]}"
fi
echo "$passed passed, $failed failed"
[ $failed -eq 0 ]
