#!/usr/bin/env bash
# Makes random changes to rows and words of the tables and tells which of them no test minds.
# mutate.sh [COUNT [SEED]]: 200 changes with seed 1 by default. Each is made alone, in a copy of what is checked in, and
# the golden layout has no say. The tests load the tables (ORRERY_MUTANTS), so that a change costs one file to compile,
# and stop at the first that fails. No stage of scripts/test.sh runs this.
# The copy, its commit and the results stay in build/mutants, or in the folder that MUTATE_TREE names; a run that was
# ended goes on there. Remove it to begin anew.
# Kinds: key (two rows swap keys), codec, default, flag, count, policy (a word goes), code (two names swap codes).
# The last lines are the survivors and "N changes: N killed by tests, N refused by the compiler, N survived".
set -euo pipefail
cd "$(dirname "$0")/.."
work=${MUTATE_TREE:-$PWD/build/mutants}
tree=$work/tree

if [ ! -f "$work/commit" ]; then
    mkdir -p "$tree"
    git archive HEAD | tar -x -C "$tree"
    git rev-parse HEAD >"$work/commit"
fi
echo "mutate: of commit $(cat "$work/commit")"
if command -v ccache >/dev/null; then export CMAKE_C_COMPILER_LAUNCHER=ccache CMAKE_CXX_COMPILER_LAUNCHER=ccache; fi
(cd "$tree" && cmake --preset test -DORRERY_MUTANTS=ON >/dev/null)
exec python3 scripts/mutants.py "$tree" "$work" "${1:-200}" "${2:-1}"
