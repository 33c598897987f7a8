#!/usr/bin/env bash
# Formats every C and C++ file of the tree; with --check, changes nothing and fails if a file would change.
set -euo pipefail
cd "$(dirname "$0")/.."

case ${1:-} in
"") how=(-i) ;;
--check) how=(--dry-run -Werror) ;;
*)
    echo "usage: $0 [--check]" >&2
    exit 2
    ;;
esac

# Other versions break lines differently.
format=$(command -v clang-format-14 || true)
[ -n "$format" ] || {
    echo "format: clang-format-14 is not installed (scripts/install-deps.sh)" >&2
    exit 1
}
mapfile -d '' files < <(find bench examples explain fuzz include src tests tools -type f \
    \( -name '*.c' -o -name '*.cpp' -o -name '*.h' \) -print0 2>/dev/null | sort -z)
[ ${#files[@]} -gt 0 ] || { echo "format: no files found" >&2; exit 1; }
printf '%s\0' "${files[@]}" | xargs -0 "$format" --style=file "${how[@]}"
echo "format: ${#files[@]} files${1:+ checked}"
