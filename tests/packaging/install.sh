#!/usr/bin/env bash
# Installs a build into an empty prefix and looks at what is there.
# install.sh BUILD_DIR PREFIX SOURCE_DIR [COMPANION]
set -euo pipefail
build=$1 prefix=$2 source=$3 companion=${4:-}
rm -rf "$prefix"
cmake --install "$build" --prefix "$prefix"

fail=0
want() {
    if [ -z "$(find "$prefix" -path "$prefix/$1")" ]; then
        echo "not installed: $1" >&2
        fail=1
    fi
}
for header in "$source"/include/orrery/*.h; do
    want "include/orrery/$(basename "$header")"
done
want "lib*/liborrery.so"
want "lib*/liborrery.so.0.[0-9]"
want "lib*/liborrery-explain.so"
want "lib*/liborrery-explain.so.0.[0-9]"
want "lib*/pkgconfig/orrery-explain.pc"
want "lib*/liborrery.a"
want "lib*/liborrery-explain.a"
want "lib*/cmake/orrery/orreryConfig.cmake"
want "lib*/pkgconfig/orrery.pc"
[ -z "$companion" ] || want "bin/$companion"
if [ -n "$companion" ]; then
    want "share/man/man1/orrery.1"
    want "share/bash-completion/completions/orrery"
    want "share/zsh/site-functions/_orrery"
    want "share/fish/vendor_completions.d/orrery.fish"
fi
# A package must not know the folder that it was built in.
if grep -rIlF -e "$build" -e "$source" "$prefix" >&2; then
    echo "the files above name the build's own folders" >&2
    fail=1
fi
exit $fail
