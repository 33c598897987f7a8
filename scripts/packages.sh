#!/usr/bin/env bash
# What is packed, built whole and tried on a bare system: longer than scripts/test.sh, and no part of it.
#   packages.sh [STAGE...]   embedded port archive debian root python (all of them without a name)
# Needs root for the stage `root`, and the packages that it names when they are missing. Results: build/packages.
set -euo pipefail
cd "$(dirname "$0")/.."
root=$PWD
out=$root/build/packages
mkdir -p "$out"
if command -v ccache >/dev/null; then
    export CMAKE_C_COMPILER_LAUNCHER=ccache CMAKE_CXX_COMPILER_LAUNCHER=ccache
    CCACHE_DIR=$(ccache -k cache_dir) # a package's build has a home folder of its own
    export CCACHE_DIR
fi
stages=("$@")
[ ${#stages[@]} -gt 0 ] || stages=(embedded port archive debian root python)

needs() { # needs PROGRAM PACKAGE
    command -v "$1" >/dev/null || [ -x "/usr/sbin/$1" ] || { echo "packages: $1 is missing (Debian: $2)" >&2; exit 2; }
}

# Inside a client's own build, shared and static.
stage_embedded() {
    local shared
    for shared in ON OFF; do
        cmake -S tests/packaging/embedded -B "$out/embedded-$shared" -G Ninja -DCMAKE_BUILD_TYPE=Release \
            "-DORRERY_SOURCE=$root" "-DBUILD_SHARED_LIBS=$shared"
        cmake --build "$out/embedded-$shared"
        "$out/embedded-$shared/consumer"
    done
}

# The vcpkg port by plain CMake, and a client that finds what it packs.
stage_port() {
    local linkage
    for linkage in dynamic static; do
        rm -rf "$out/port-$linkage/package" "$out/port-client"
        cmake "-DWORK=$out/port-$linkage" "-DVCPKG_LIBRARY_LINKAGE=$linkage" -P packaging/vcpkg/without-vcpkg.cmake
        cmake -S tests/packaging/find_package -B "$out/port-client" -G Ninja -DCONSUMER_LANGUAGE=CXX \
            "-Dorrery_DIR=$out/port-$linkage/package/share/orrery"
        cmake --build "$out/port-client"
        "$out/port-client/consumer"
        [ -s "$out/port-$linkage/package/share/orrery/LICENSE" ]
    done
}

# cpack's archive, unpacked where nothing was built: the companion runs and a client finds the package.
stage_archive() {
    cmake -S . -B "$out/archive" -G Ninja -DCMAKE_BUILD_TYPE=Release
    cmake --build "$out/archive"
    rm -rf "$out/unpacked" "$out/archive-client" "$out"/archive/*.tar.gz
    (cd "$out/archive" && cpack)
    mkdir "$out/unpacked"
    tar xf "$out"/archive/orrery-*.tar.gz -C "$out/unpacked" --strip-components=1
    "$out/unpacked/bin/orrery" --version
    cmake -S tests/packaging/find_package -B "$out/archive-client" -G Ninja -DCONSUMER_LANGUAGE=C \
        "-DCMAKE_PREFIX_PATH=$out/unpacked" -DCMAKE_FIND_USE_PACKAGE_REGISTRY=OFF
    cmake --build "$out/archive-client"
    "$out/archive-client/consumer"
}

# Packages of the committed tree. A finding of lintian that is an error or a warning is a failure.
stage_debian() {
    needs dpkg-buildpackage "dpkg-dev debhelper dh-python"
    needs lintian lintian
    rm -rf "$out/debian"
    mkdir -p "$out/debian/orrery"
    git archive HEAD | tar x -C "$out/debian/orrery"
    (cd "$out/debian/orrery" && DEB_BUILD_OPTIONS="nocheck ${DEB_BUILD_OPTIONS:-}" dpkg-buildpackage -b -us -uc)
    lintian --allow-root --fail-on error,warning "$out"/debian/*.changes
}

# The packages on a Debian that has nothing else: installed by apt, and the examples as they are printed.
stage_root() {
    needs debootstrap debootstrap
    local bare=$out/root mirror
    mirror=${DEBIAN_MIRROR:-$(apt-get indextargets --format '$(SITE)' 'Created-By: Packages' | sed -n 1p)}
    if [ ! -e "$bare/etc/debian_version" ]; then debootstrap --variant=minbase bookworm "$bare" "$mirror"; fi
    rm -rf "$bare/srv/orrery"
    mkdir -p "$bare/srv/orrery"
    cp "${PACKAGES:-$out/debian}"/*.deb "$bare/srv/orrery/"
    chroot "$bare" /bin/sh -eux <<'INSIDE'
export DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8
cd /srv/orrery
apt-get update
rm -f ./*dbgsym*
apt-get install -y --no-install-recommends ./*.deb
orrery --version
printf '{"result":true,"params":{"table":{"Port":123}}}' >reply.json
orrery parse NTP reply.json | grep -q 123
orrery describe NTP >/dev/null
python3 - <<'PYTHON'
import orrery
clock = orrery.parse("NTP", '{"result":true,"params":{"table":{"Port":123}}}')
clock.port = 1123
assert '"Port" : 1123' in orrery.pack(clock)
PYTHON
apt-get install -y --no-install-recommends g++ pkg-config
cp -r /usr/share/doc/orrery/examples examples
for name in parse_and_pack print_events walk_rules; do
    cc -std=c99 "examples/$name.c" $(pkg-config --cflags --libs orrery) -o "$name"
    "./$name" >/dev/null
done
c++ -std=c++11 examples/typed.cpp $(pkg-config --cflags --libs orrery) -o typed
./typed >/dev/null
cc -std=c99 examples/explain.c $(pkg-config --cflags --libs orrery-explain) -o explain
./explain NTP <reply.json
python3 - <<'PYTHON'
# The cookbook's programs print what stands under them.
import gzip, os, re, subprocess
told = "/usr/share/doc/orrery/cookbook.md"
with (gzip.open(told + ".gz", "rt") if os.path.exists(told + ".gz") else open(told)) as file:
    text = file.read()
ran = 0
for names, output in re.findall(r"\n((?:[^\n]+\n)*[^\n]*\bprints?)\n\n```\n(.*?)```", text, re.S):
    for name in re.findall(r"\(\.\./(examples/cookbook/[^)]+)\)", names):
        with open(name) as file:
            threads = ["-pthread"] if re.search(r"#include <(pthread\.h|thread)>", file.read()) else []
        package = "orrery-explain" if "findings" in name else "orrery"
        found = subprocess.run(["pkg-config", "--cflags", "--libs", package], check=True, text=True, stdout=subprocess.PIPE)
        compilers = {".c": ["cc", "-std=c99"], ".cpp": ["c++", "-std=c++11"]}
        compiler = compilers.get(os.path.splitext(name)[1])
        if compiler is not None:
            subprocess.run([*compiler, name, *found.stdout.split(), *threads, "-o", "recipe"], check=True)
        command = ["./recipe"] if compiler is not None else ["python3", name]
        told = subprocess.run(command, check=True, text=True, stdout=subprocess.PIPE).stdout
        assert told == output, (name, told, output)
        ran += 1
assert ran > 10, ran
print(ran, "programs of the cookbook ran")
PYTHON
apt-get remove -y liborrery0.1
INSIDE
}

stage_python() {
    needs mypy mypy
    [ -x build/orrery ] || { echo "packages: no build/orrery for its schema (scripts/test.sh release)" >&2; exit 2; }
    rm -rf "$out/python"
    mkdir -p "$out/python"
    cp -r python/orrery python/tests "$out/python/"
    build/orrery schema >"$out/python/schema.json"
    python3 python/generate.py "$out/python/schema.json" "$out/python/orrery"
    (cd "$out/python" && mypy --strict orrery tests)
}

for stage in "${stages[@]}"; do
    echo "=== $stage"
    "stage_$stage"
done
echo "packages: all of ${stages[*]} passed"
