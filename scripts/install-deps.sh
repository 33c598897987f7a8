#!/usr/bin/env bash
# Installs the Debian packages that building and testing need; those that are there already are left alone.
# install-deps.sh [build|all|site]: `build` is what the library and the companion need, `all` (default) everything for
# building and testing, `site` also the browser that looks at the reference site.
set -euo pipefail

build=(g++ cmake ninja-build pkg-config libcli11-dev python3)
test=(abigail-tools binutils ccache clang-14 clang-format-14 llvm-14 libclang-rt-14-dev libgmock-dev libgtest-dev
    jq libjsoncpp-dev locales python3-hypothesis python3-jsonschema python3-markdown python3-pytest)
bench=(libbenchmark-dev libsimdjson-dev nlohmann-json3-dev rapidjson-dev)

site=(chromium chromium-driver python3-selenium)

case ${1:-all} in
build) wanted=("${build[@]}") ;;
all) wanted=("${build[@]}" "${test[@]}" "${bench[@]}") ;;
site) wanted=("${build[@]}" "${test[@]}" "${bench[@]}" "${site[@]}") ;;
*)
    echo "usage: $0 [build|all|site]" >&2
    exit 2
    ;;
esac

if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
    echo "install-deps: this is no Debian system; these packages, or their like, are needed: ${wanted[*]}" >&2
    exit 1
fi

missing=()
for package in "${wanted[@]}"; do
    status=$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null || true)
    [ "$status" = installed ] || missing+=("$package")
done
if [ ${#missing[@]} -eq 0 ]; then
    echo "install-deps: all ${#wanted[@]} packages are there"
    exit 0
fi

if [ "$(id -u)" -eq 0 ]; then
    as_root=()
elif command -v sudo >/dev/null; then
    as_root=(sudo)
else
    echo "install-deps: missing: ${missing[*]}" >&2
    echo "install-deps: run this as root, or install sudo, or have these packages installed for you" >&2
    exit 1
fi

echo "install-deps: installing ${missing[*]}"
"${as_root[@]}" apt-get update
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "${missing[@]}" || {
    echo "install-deps: apt-get could not install: ${missing[*]}" >&2
    exit 1
}
