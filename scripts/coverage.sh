#!/usr/bin/env bash
# Prints folder by folder how many of the lines of src/ that have code run in the tests, and how many with the fuzz
# targets' seeds alone. What is worked out when the library is compiled has no code and doesn't count.
# coverage.sh [tests|seeds]...; both when none is named. Lines that did not run are listed in build/coverage/*.missed.
# It ends with 1 when the seeds reach less than 85% of all lines or 75% of a folder's, or the tests less than 95%.
set -euo pipefail
cd "$(dirname "$0")/.."
root=$PWD
build=$root/build/coverage
what=("$@")
[ ${#what[@]} -gt 0 ] || what=(tests seeds)
jobs=${JOBS:-$(nproc)}

cmake --preset coverage >"$build.log" 2>&1 || { cat "$build.log" >&2; exit 1; }
targets=()
for source in fuzz/*_fuzz.cpp; do targets+=("$(basename "$source" .cpp)"); done

run_tests() {
    cmake --build "$build" -j "$jobs" --target orrery_tests >>"$build.log" 2>&1 || { tail -30 "$build.log" >&2; exit 1; }
    "$build/tests/orrery_tests" --gtest_brief=1 >"$build/tests.log" 2>&1 || { tail -30 "$build/tests.log" >&2; exit 1; }
}

run_seeds() {
    cmake --build "$build" -j "$jobs" --target "${targets[@]}" >>"$build.log" 2>&1 || { tail -30 "$build.log" >&2; exit 1; }
    find "$build" -name '*.gcda' -delete # what the making of the seeds ran does not count
    local target name inputs
    for target in "${targets[@]}"; do
        name=${target%_fuzz}
        inputs=()
        for input in "$build/fuzz/seeds/$name" "fuzz/corpus/$name"; do [ ! -d "$input" ] || inputs+=("$input"); done
        "$build/fuzz/$target" "${inputs[@]}" >"$build/$target.log" 2>&1 || { tail -5 "$build/$target.log" >&2; exit 1; }
    done
}

# One line a source line with code: its file, its number, whether it ran. The lines of a template or an inline function
# come once more for each of its forms; the first is their sum.
lines() {
    local out=$build/gcov
    rm -rf "$out"
    mkdir -p "$out"
    (cd "$out" && find "$build/CMakeFiles/orrery_core.dir" -name '*.gcda' -print0 |
        xargs -0 gcov --preserve-paths --source-prefix "$root" --relative-only >/dev/null 2>&1)
    find "$out" -name '*.gcov' -print0 | xargs -0 awk -F: '
        { count = $1; number = $2; gsub(/ /, "", count); gsub(/ /, "", number) }
        number == "0" && $3 == "Source" { file = $4; next }
        number !~ /^[0-9]+$/ || number == "0" || count == "-" || file !~ /^src\// { next }
        { key = file " " number; ran = count !~ /^[#=%]/; if (!(key in all)) all[key] = ran; else if (ran) all[key] = 1 }
        END { for (key in all) print key, all[key] }' | sort -k1,1 -k2,2n
}

status=0
for one in "${what[@]}"; do
    find "$build" -name '*.gcda' -delete 2>/dev/null || true
    "run_$one"
    lines >"$build/$one.lines"
    awk '$3 == 0 { print $1 ":" $2 }' "$build/$one.lines" >"$build/$one.missed"
    if [ "$one" = seeds ]; then all=85 folder=75; else all=95 folder=0; fi
    awk -v what="$one" -v all="$all" -v least="$folder" '
        { n = split($1, part, "/"); f = n > 2 ? part[1] "/" part[2] : part[1]; lines[f]++; ran[f] += $3; total++; sum += $3 }
        END {
            printf "%-16s %8s %8s %7s\n", what, "lines", "ran", "%"
            for (f in lines) {
                printf "%-16s %8d %8d %6.1f%s\n", f, lines[f], ran[f], 100 * ran[f] / lines[f],
                       100 * ran[f] < least * lines[f] ? "  below " least : "" | "sort"
                if (100 * ran[f] < least * lines[f]) bad = 1
            }
            close("sort")
            printf "%-16s %8d %8d %6.1f%s\n\n", "all", total, sum, 100 * sum / total,
                   100 * sum < all * total ? "  below " all : ""
            exit bad || 100 * sum < all * total
        }' "$build/$one.lines" || status=1
done
exit $status
