#!/usr/bin/env bash
# The Python package does what its tests say, made from this build's schema and on this build's library.
# python.sh PYTHON COMPANION LIBRARY_DIR SOURCE_DIR WORK_DIR
set -euo pipefail
python=$1 companion=$2 libraries=$3 source=$4 work=$5
rm -rf "$work"
mkdir -p "$work"
cp -r "$source/python/orrery" "$source/python/tests" "$work/"
"$companion" schema >"$work/schema.json"
"$python" "$source/python/generate.py" "$work/schema.json" "$work/orrery"
cd "$work"
ORRERY_EXAMPLES=$source/examples ORRERY_LIBRARY_PATH=$libraries PYTHONPATH=$work "$python" -m pytest -q -p no:cacheprovider tests
