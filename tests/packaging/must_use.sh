#!/usr/bin/env bash
# A client that passes over a result which it has to look at is warned, in each language; one that looks is not. On 32
# bits the headers are refused.
# must_use.sh SOURCE_DIR WORK_DIR COMPILER...
set -euo pipefail
source=$1 work=$2
shift 2
rm -rf "$work"
mkdir -p "$work"
calls=(
    'CLIENT_ParseData("NTP", text, record, 1300, 0)'
    'CLIENT_PacketData("NTP", record, 1300, text, 99)'
    'CLIENT_ParseVideoInAnalyse("VideoInAnalyse.getTemplateGlobal", 1, text, text, record, 99)'
    'ORRERY_SetSizeWords("NTP", record, 1300)'
    'ORRERY_RuleBytes("VideoAnalyseRule", text)'
    'ORRERY_CopyEvent(1, record, 99, 0, 0)'
)
compile() { # compile LANGUAGE FILE
    "$compiler" -x "${1%%-*}" -std="${1#*-}" "-I$source/include" -Wall -Wextra -pedantic -Werror -c -o /dev/null "$2"
}

fail=0
for compiler in "$@"; do
    for language in c-c99 c-c11 c++-c++11 c++-c++17 c++-c++20; do
        for i in "${!calls[@]}"; do
            # The call as a statement of its own, and the same call with its result in use.
            for before in '' 'return (int)'; do
                {
                    echo '#include <orrery/calls.h>'
                    echo '#include <orrery/helpers.h>'
                    echo 'int client(char* text, void* record);'
                    echo 'int client(char* text, void* record) {'
                    echo '    if (record == 0 || text == 0) return 0;'
                    echo "    $before ${calls[i]};"
                    [ -n "$before" ] || echo '    return 1;'
                    echo '}'
                } >"$work/client.txt"
                status=0
                compile "$language" "$work/client.txt" 2>"$work/said.txt" || status=1
                if [ -n "$before" ] && [ $status = 1 ]; then
                    cat "$work/said.txt" >&2
                    fail=1
                elif [ -z "$before" ] && { [ $status = 0 ] || ! grep -qE 'unused-(result|value)' "$work/said.txt"; }; then
                    echo "$compiler, $language: no warning of ${calls[i]}" >&2
                    fail=1
                fi
            done
        done
    done
done

# A compiler's own headers are enough to be refused.
for language in c-c99 c-c11 c++-c++11; do
    if [ "$("$1" -dumpmachine | cut -d- -f1)" != x86_64 ]; then break; fi
    status=0
    "$1" -m32 -ffreestanding -x "${language%%-*}" -std="${language#*-}" -fsyntax-only "$source/include/orrery/calls.h" \
        2>"$work/said.txt" || status=1
    if [ $status = 0 ] || ! grep -qiE '64.bit.platform' "$work/said.txt"; then
        cat "$work/said.txt" >&2
        echo "$1, $language: 32 bits are not refused" >&2
        fail=1
    fi
done
exit $fail
