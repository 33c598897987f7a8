#!/usr/bin/env bash
# Holds the records and functions of this tree against those of a tagged one: what a client was compiled with has to be
# what the library of the same file name reads and writes.
#
#   abi.sh [TAG]                     the tag, or the last one that is a version, against this tree, and that version's
#                                    programs on this tree's library (build/liborrery.so, if it is there)
#   abi.sh --trees OLD NEW           two unpacked trees
#
# Fails when something was changed or taken away, unless the new tree has another file name for its library: before 1.0
# a new minor version, then a new major one. What was added changes nothing.
set -euo pipefail
cd "$(dirname "$0")/.."
root=$PWD
compiler=${CC:-cc}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

command -v abidiff >/dev/null || { echo "abi: abidiff is not installed (Debian: abigail-tools)" >&2; exit 2; }

version() { sed -n 's/^project(orrery VERSION \([0-9.]*\).*/\1/p' "$1/CMakeLists.txt"; }
file_version() { # that part of a version which names the library's file
    local major minor
    IFS=. read -r major minor _ <<<"$1"
    if [ "$major" = 0 ]; then echo "0.$minor"; else echo "$major"; fi
}

# The functions take records as bytes, so the library itself tells nothing of them. This one has a function of each
# record of the headers and refers to each function.
probe() { # probe TREE NAME
    local tree=$1 out=$work/$2 record header
    {
        echo '#include <orrery/orrery.h>'
        [ ! -e "$tree/include/orrery/explain.h" ] || echo '#include <orrery/explain.h>'
        cat "$tree"/include/orrery/*.h | sed -n 's/^} \([A-Z][A-Z0-9_a-z]*\);.*/\1/p' | LC_ALL=C sort -u |
            while read -r record; do echo "int abi_of_$record($record* record) { return record != 0; }"; done
        grep -hoE '\b(CLIENT|ORRERY)_[A-Z][A-Za-z]*\(' "$tree/include/orrery/calls.h" "$tree/include/orrery/helpers.h" \
            "$tree/include/orrery/explain.h" 2>/dev/null | tr -d '(' | LC_ALL=C sort -u |
            while read -r record; do echo "__typeof__($record)* abi_call_$record = 0;"; done
    } >"$out.c"
    "$compiler" -std=gnu99 -g -shared -fPIC -I"$tree/include" "$out.c" -o "$out.so" || {
        echo "abi: the headers of $tree do not compile" >&2
        exit 2
    }
    [ "$(grep -c '^int abi_of_' "$out.c")" -gt 0 ] || { echo "abi: no records in $tree" >&2; exit 2; }
}

compare() { # compare OLD NEW
    local old new status=0
    old=$(version "$1") new=$(version "$2")
    probe "$1" old
    probe "$2" new
    echo "abi: $old against $new, $(grep -c '^int abi_of_' "$work/old.c") records"
    abidiff --no-added-syms --no-show-locs "$work/old.so" "$work/new.so" >"$work/report.txt" || status=$?
    if ((status & 3)); then
        cat "$work/report.txt" >&2
        echo "abi: abidiff failed" >&2
        exit 2
    fi
    if ((status == 0)); then
        echo "abi: nothing was changed or taken away"
        return
    fi
    cat "$work/report.txt"
    if [ "$(file_version "$old")" != "$(file_version "$new")" ]; then
        echo "abi: changes, and a library of its own for them"
        return
    fi
    echo "abi: error: the library's file name stays, and so must what clients were compiled with" >&2
    exit 1
}

if [ "${1:-}" = --trees ]; then
    compare "$2" "$3"
    exit
fi

tag=${1:-$(git describe --tags --abbrev=0 --match 'v[0-9]*' 2>/dev/null || true)}
if [ -z "$tag" ]; then
    versions=$(grep -cs '^## [0-9]' CHANGELOG.md || true)
    if [ "${versions:-0}" -gt 1 ]; then
        echo "abi: error: there were versions before this one (CHANGELOG.md), but no tag of them is here: fetch the tags" >&2
        exit 2
    fi
    echo "abi: no version is tagged yet"
    exit 0
fi
mkdir "$work/tag"
git archive "$tag" | tar x -C "$work/tag"
compare "$work/tag" "$root"

library=$root/build/liborrery.so
if [ ! -e "$library" ]; then
    echo "abi: no $library to run the programs of $tag on"
elif [ "$(file_version "$(version "$work/tag")")" = "$(file_version "$(version "$root")")" ]; then
    for program in tests/packaging/consumer.c examples/parse_and_pack.c examples/print_events.c examples/walk_rules.c; do
        [ -e "$work/tag/$program" ] || continue
        "$compiler" -std=c99 -I"$work/tag/include" "$work/tag/$program" -o "$work/program" -L"$root/build" -lorrery \
            "-Wl,-rpath,$root/build"
        "$work/program" >/dev/null || { echo "abi: error: $program of $tag fails on this library" >&2; exit 1; }
        echo "abi: $program of $tag runs"
    done
fi
