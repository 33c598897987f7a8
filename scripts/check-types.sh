#!/usr/bin/env bash
# check-types.sh FOLDER...: fails when two types could be one to the linker. Two classes of one name in two files share
# their functions, and those of every template that is made of them, whichever the linker takes; it sees no wrong in it.
#
# - A type of a .cpp file stands in an unnamed namespace.
# - A type of a header outside such a namespace has a name that no other header gives to one.
#
# Files are read as clang-format leaves them: what is a namespace's own begins in the first column. Folders named
# compile_fail are left out: no program has their files together.
set -euo pipefail

mapfile -d '' files < <(find "$@" -name compile_fail -prune -o -type f \( -name '*.cpp' -o -name '*.h' \) -print0 | sort -z)
[ ${#files[@]} -gt 0 ] || { echo "check-types: no files" >&2; exit 1; }
awk '
function complain(text) {
    print FILENAME ":" FNR ": " text > "/dev/stderr"
    bad = 1
}
function finish() {
    if (depth > 0) {
        print last ": a namespace that does not end as the formatter ends it" > "/dev/stderr"
        bad = 1
    }
    depth = 0
}
FNR == 1 { finish(); last = FILENAME }
/^(inline )?namespace( [A-Za-z_0-9:]+)? \{/ {
    if (/\}[ ;]*(\/\/.*)?$/) next # begun and ended
    name = $0
    sub(/^(inline )?namespace */, "", name)
    sub(/ *\{.*/, "", name)
    names[++depth] = name
    short[depth] = 1 # so far: the formatter marks no end of a namespace that only announces
    next
}
/^(class|struct) [A-Za-z_0-9]+;$/ { next }
/^\}$/ && depth > 0 && short[depth] { --depth; next }
/^[^ ]/ { short[depth] = 0 }
/^\} \/\/ (inline )?namespace/ { if (depth > 0) --depth; next }
/^(template <.*> )?(struct|class|union|enum|enum class|enum struct) (alignas\([^)]*\) )?[A-Za-z_]/ && (/{/ || !/;$/) {
    type = $0
    sub(/^template <.*> (struct|class|union|enum)/, "struct", type)
    sub(/^(struct|class|union|enum class|enum struct|enum) (alignas\([^)]*\) )?/, "", type)
    sub(/( final)?( :[^:].*| *\{.*)$/, "", type)
    whole = ""
    for (i = 1; i <= depth; ++i) {
        if (names[i] == "") next
        whole = whole names[i] "::"
    }
    whole = whole type
    if (FILENAME ~ /\.cpp$/) {
        if (type !~ /::/) complain(whole " stands in no unnamed namespace") # one with a scope is a member of a class
    } else if (whole in place) {
        complain(whole " stands also in " place[whole])
    } else {
        place[whole] = FILENAME ":" FNR
    }
}
END { finish(); exit bad }
' "${files[@]}"
