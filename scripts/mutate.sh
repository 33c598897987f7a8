#!/usr/bin/env bash
# Makes random changes to rows and words of the tables and tells which of them no test minds.
# mutate.sh [COUNT [SEED]]: 200 changes with seed 1 by default. Each is made alone, in a copy of what is checked in, which
# stays in build/mutants with the results; the golden layout has no say. No stage of scripts/test.sh runs this.
# MUTATE_TREE names another checkout to work in, whose build/test is used; what is not checked in there may be lost.
# Kinds: key (two rows swap keys), codec, default, flag, count, policy (a word goes), code (two names swap codes).
# The last lines are the survivors and "N changes: N killed by tests, N by the compiler, N survived".
set -euo pipefail
cd "$(dirname "$0")/.."
count=${1:-200}
seed=${2:-1}
jobs=$(nproc)
work=$PWD/build/mutants
tree=${MUTATE_TREE:-$work/tree}
results=$work/results-$seed.txt

mkdir -p "$work" "$tree"
[ -n "${MUTATE_TREE:-}" ] || git archive HEAD | tar -x -C "$tree"
if command -v ccache >/dev/null; then export CMAKE_C_COMPILER_LAUNCHER=ccache CMAKE_CXX_COMPILER_LAUNCHER=ccache; fi
(cd "$tree" && cmake --preset test -DORRERY_WERROR=OFF >/dev/null)
build() { cmake --build "$tree/build/test" -j "$jobs" --target orrery_tests orrery_tool_tests >"$work/build.log" 2>&1; }
echo "mutate: building"
build || { tail -20 "$work/build.log"; exit 1; }

# One line a change: number, kind, file, then the line numbers and what they become, separated by tabs.
python3 - "$tree" "$count" "$seed" >"$work/changes.txt" <<'PYTHON'
import glob, os, random, re, sys
tree, count, seed = sys.argv[1], int(sys.argv[2]), int(sys.argv[3])
files = sorted(f for pattern in ('*.cpp', '*.h') for f in glob.glob(tree + '/src/**/' + pattern, recursive=True)
               if '/frame/' not in f or f.endswith('SharedRecords.h'))
KEY = re.compile(r'\b(?:FIELD|RULE_CONFIG)\((?:[^,()]|\([^()]*\))+, ("[^"]+"), (\w+)')
NAME = re.compile(r'^\s*\{([\w-]+), ("[^"]*")[,}]')
CODECS = {'Int': ['UInt', 'Bool'], 'UInt': ['Int'], 'Bool': ['Int'], 'Text': ['RawText', 'FullText'],
          'RawText': ['Text'], 'FullText': ['Text'], 'Real': ['Int'], 'NetTime': ['NetTimeEx'],
          'BitMask': ['BitMaskLoose'], 'BitMaskLoose': ['BitMask']}
WORDS = ('Always|AnyShape|Exactly|AtLeast|Zeroed|Owned|Keyed|NullElement|RefusedElement|ReadIf|FirstBytes|Only|FromRoot|'
         'ReadOnly|WriteOnly|TrueAtOne|WriteUnless|WriteUnlessNegative|WriteAtMost|WriteIf|UntilEmpty|WriteIfLinked|'
         'WriteEmpty|WriteSkipped|WriteUnlessBare|KeepsObject|WritesCapacity|Unknown|UnknownLeaves|OutsideWrites|'
         'OutsideWritesNull|LastWins|Null|Clears|Length|Result|Takes|From|As|Fits|Strides|ReadsNulls|RootKeysFirst|'
         'AllMustFit|AnySize|NeedsText|ExactSize|KeepsText')
WORD = re.compile(r'\.(?:%s)\((?:[^()]|\([^()]*\))*\)' % WORDS)
sites = {kind: [] for kind in ('key', 'codec', 'default', 'flag', 'count', 'policy', 'code')}
for path in files:
    lines = open(path).read().split('\n')
    rows, names = [], []  # of the table that is open
    for number, line in enumerate(lines):
        if line.lstrip().startswith(('#define', '//', '*')): continue
        if re.search(r'^(TABLE|PART|NAMES|RULE)|static constexpr Field rows', line): rows, names = [], []
        for match in KEY.finditer(line):
            key, codec = match.group(1), match.group(2)
            for other, otherLine, otherKey, otherCodec in rows[-6:]:
                if otherCodec == codec and otherKey != key and other != number:
                    sites['key'].append((path, [(other, otherLine.replace(otherKey, key, 1)),
                                                (number, line.replace(key, otherKey, 1))]))
            rows.append((number, line, key, codec))
            for better in CODECS.get(codec, []):
                start, end = match.span(2)
                sites['codec'].append((path, [(number, line[:start] + better + line[end:])]))
        for match in re.finditer(r'\.Absent\((-?\w+)\)', line):
            sites['default'].append((path, [(number, line.replace(match.group(0), '', 1))]))
            sites['default'].append((path, [(number, line.replace(match.group(0), '.Absent(%s + 1)' % match.group(1), 1))]))
        for match in re.finditer(r'\.SetsAndNeeds\(AT\(\w+\)\)', line):
            sites['flag'].append((path, [(number, line.replace(match.group(0), '', 1))]))
        for match in re.finditer(r'\.Count(?:Uncapped)?\((AT\(\w+\))\)', line):
            sites['count'].append((path, [(number, line.replace(match.group(0), '', 1))]))
            other = '.Count(' if 'Uncapped' in match.group(0) else '.CountUncapped('
            sites['count'].append((path, [(number, line.replace(match.group(0), other + match.group(1) + ')', 1))]))
        for match in WORD.finditer(line):
            sites['policy'].append((path, [(number, line[:match.start()] + line[match.end():])]))
        match = NAME.match(line)
        if match:
            if names and names[-1][0] == number - 1 and names[-1][2] != match.group(1):
                before = names[-1]
                sites['code'].append((path, [(before[0], before[1].replace(before[2], match.group(1), 1)),
                                             (number, line.replace(match.group(1), before[2], 1))]))
            names.append((number, line, match.group(1)))
chance = random.Random(seed)
seen = set()
made = 0
while made < count and any(sites.values()):
    kind = chance.choice(sorted(k for k in sites if sites[k]))
    path, changes = sites[kind].pop(chance.randrange(len(sites[kind])))
    if (path, str(changes)) in seen: continue
    seen.add((path, str(changes)))
    made += 1
    print('\t'.join([str(made), kind, os.path.relpath(path, tree)]
                    + ['%d\t%s' % (number + 1, text) for number, text in changes]))
PYTHON

# 0: all tests pass. The sweeps over all commands come last.
slow='Buffers.*:HostileText.*:Rows.*:Growth.*:Heap.*:*AgainstTheCLibrary*:Threads*:*Oracle*:RoundTrip.*:Packing.*'
run() { timeout 600 "$@" --gtest_fail_fast --gtest_brief=1 >"$work/test.log" 2>&1; }
tests() {
    run "$tree/build/test/tests/tools/orrery_tool_tests" --gtest_filter=-Layout.IsTheOneCheckedIn &&
        run "$tree/build/test/tests/orrery_tests" "--gtest_filter=-$slow" &&
        run "$tree/build/test/tests/orrery_tests" "--gtest_filter=$slow:-*AgainstTheCLibrary*:*Oracle*"
}
echo "mutate: running the tests on the tree as it is"
tests || { cat "$work/test.log"; echo "mutate: they fail without any change"; exit 1; }

killed=0 refused=0 survived=0
: >"$results"
while IFS= read -r change; do
    IFS=$'\t' read -r number kind file rest <<<"$change"
    cp "$tree/$file" "$work/original"
    python3 - "$tree/$file" "$rest" <<'PYTHON'
import sys
lines = open(sys.argv[1]).read().split('\n')
parts = sys.argv[2].split('\t')
for number, text in zip(parts[::2], parts[1::2]): lines[int(number) - 1] = text
open(sys.argv[1], 'w').write('\n'.join(lines))
PYTHON
    if ! build; then
        refused=$((refused + 1)) verdict='refused by the compiler'
    elif tests; then
        survived=$((survived + 1)) verdict=SURVIVED
    else
        killed=$((killed + 1))
        verdict="killed by $(grep -am1 -oE 'FAILED  \] [A-Za-z_./0-9]+' "$work/test.log" | cut -d' ' -f4 || true)"
    fi
    {
        echo "$number $kind $file: $verdict"
        diff "$work/original" "$tree/$file" | grep '^[<>]' || true
    } | tee -a "$results"
    cp "$work/original" "$tree/$file"
done <"$work/changes.txt"

echo "=== survivors, from ${results#"$PWD/"}"
grep -A 4 SURVIVED "$results" | grep -vE 'killed by|refused by' || true
echo "$((killed + refused + survived)) changes: $killed killed by tests, $refused by the compiler, $survived survived"
