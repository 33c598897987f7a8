#!/usr/bin/env bash
# check.sh FILE COMPILER [FLAG...]: see CMakeLists.txt.
set -euo pipefail
file=$1
shift
case=
for flag in "$@"; do
    if [[ $flag == -DCASE=* ]]; then case=" ${flag#-DCASE=}"; fi
done
phrase=$(sed -n 's|^.*must not compile'"$case"': \(.*[^ */]\)[ */]*$|\1|p' "$file")
later=$(sed -n 's|^.*must not compile, as a note tells: \(.*[^ */]\)[ */]*$|\1|p' "$file")
[ -n "$phrase$later" ] || { echo "$file has no line 'must not compile: phrase'" >&2; exit 1; }

if ! "$@" -DGOOD -fsyntax-only "$file"; then
    echo "the correct form does not compile" >&2
    exit 1
fi
if messages=$("$@" -fsyntax-only "$file" 2>&1); then
    echo "the wrong form compiles" >&2
    exit 1
fi
# The compiler quotes the source; the phrase must come from a message, not from that quotation. Not grep -q: it would
# leave before the first grep has written all, which then fails.
if [ -n "$phrase" ]; then
    told=$(grep -m 1 'error:' <<<"$messages")
else
    told=$(grep -E '(error|note):' <<<"$messages")
fi
if ! grep -F -- "$phrase$later" <<<"$told" >/dev/null; then
    printf '%s\n' "$messages" "the wrong form is refused, but not for: $phrase$later" >&2
    exit 1
fi
