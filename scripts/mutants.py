#!/usr/bin/env python3
"""Makes the changes of scripts/mutate.sh and tries each: mutants.py TREE WORK COUNT SEED. The tree is built."""
import collections
import glob
import json
import os
import random
import re
import shlex
import shutil
import subprocess
import sys
import time

TREE, WORK, COUNT, SEED = sys.argv[1], sys.argv[2], int(sys.argv[3]), int(sys.argv[4])
BUILD = TREE + '/build/test'
CORE = 'liborrery_core.so'
CORE_OBJECTS = 'orrery_core.dir/'
ALL = [CORE, 'orrery_tests', 'orrery_tool_tests']
TESTS = BUILD + '/tests/orrery_tests'
TOOL_TESTS = BUILD + '/tests/tools/orrery_tool_tests'
GOLDEN = 'Layout.IsTheOneCheckedIn'
# Sweeps over all commands, and what other code referees.
SLOW = 'Buffers.*:HostileText.*:Rows.*:Growth.*:Heap.*:Threads*:RoundTrip.*:Packing.*'
NEVER = '*AgainstTheCLibrary*:*Oracle*'
MOST_SECONDS = 900

# ---- The changes --------------------------------------------------------------------------------------------------

KEY = re.compile(r'\b(?:FIELD|RULE_CONFIG)\((?:[^,()]|\([^()]*\))+, ("[^"]+"), (\w+)')
NAME = re.compile(r'^\s*\{([\w-]+), ("[^"]*")[,}]')
CODECS = {'Int': ['UInt', 'Bool'], 'UInt': ['Int'], 'Bool': ['Int'], 'Text': ['RawText', 'FullText'],
          'RawText': ['Text'], 'FullText': ['Text'], 'Real': ['Int'], 'NetTime': ['NetTimeEx'],
          'BitMask': ['BitMaskLoose'], 'BitMaskLoose': ['BitMask']}
WORDS = ('Always|AnyShape|Exactly|AtLeast|Zeroed|Owned|Keyed|NullElement|RefusedElement|ReadIf|FirstBytes|Only|FromRoot|'
         'ReadOnly|WriteOnly|TrueAtOne|WriteUnless|WriteUnlessNegative|WriteAtMost|WriteIf|UntilEmpty|WriteIfLinked|'
         'WriteEmpty|WriteSkipped|WriteUnlessBare|KeepsObject|WritesCapacity|ConvertedRoom|Unknown|UnknownLeaves|OutsideWrites|'
         'OutsideWritesNull|LastWins|Null|Clears|Length|Result|Takes|From|As|Fits|Strides|ReadsNulls|RootKeysFirst|'
         'AllMustFit|AnySize|NeedsText|ExactSize|KeepsText')
WORD = re.compile(r'\.(?:%s)\((?:[^()]|\([^()]*\))*\)' % WORDS)

Change = collections.namedtuple('Change', 'number kind file lines')  # lines: (number from 0, new text)


def all_sites():
    """By kind, the places that can change: (path, [(line, new text)])."""
    files = sorted(f for pattern in ('*.cpp', '*.h') for f in glob.glob(TREE + '/src/**/' + pattern, recursive=True)
                   if '/frame/' not in f or f.endswith('SharedRecords.h'))
    sites = {kind: [] for kind in ('key', 'codec', 'default', 'flag', 'count', 'policy', 'code')}
    for path in files:
        rows, names = [], []  # of the table that is open
        for number, line in enumerate(open(path).read().split('\n')):
            if line.lstrip().startswith(('#define', '//', '*')):
                continue
            if re.search(r'^(TABLE|PART|NAMES|RULE)|static constexpr Field rows', line):
                rows, names = [], []
            for match in KEY.finditer(line):
                key, codec = match.group(1), match.group(2)
                for other, other_line, other_key, other_codec in rows[-6:]:
                    if other_codec == codec and other_key != key and other != number:
                        sites['key'].append((path, [(other, other_line.replace(other_key, key, 1)),
                                                    (number, line.replace(key, other_key, 1))]))
                rows.append((number, line, key, codec))
                for better in CODECS.get(codec, []):
                    start, end = match.span(2)
                    sites['codec'].append((path, [(number, line[:start] + better + line[end:])]))
            for match in re.finditer(r'\.Absent\((-?\w+)\)', line):
                more = '.Absent(%s + 1)' % match.group(1)
                sites['default'].append((path, [(number, line.replace(match.group(0), '', 1))]))
                sites['default'].append((path, [(number, line.replace(match.group(0), more, 1))]))
            for match in re.finditer(r'\.SetsAndNeeds\(AT\(\w+\)\)', line):
                sites['flag'].append((path, [(number, line.replace(match.group(0), '', 1))]))
            for match in re.finditer(r'\.Count(?:Uncapped)?\((AT\(\w+\))\)', line):
                other = '.Count(' if 'Uncapped' in match.group(0) else '.CountUncapped('
                sites['count'].append((path, [(number, line.replace(match.group(0), '', 1))]))
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
    return sites


def chosen_changes():
    sites, chance, seen, changes = all_sites(), random.Random(SEED), set(), []
    while len(changes) < COUNT and any(sites.values()):
        kind = chance.choice(sorted(k for k in sites if sites[k]))
        path, lines = sites[kind].pop(chance.randrange(len(sites[kind])))
        if (path, str(lines)) in seen:
            continue
        seen.add((path, str(lines)))
        changes.append(Change(len(changes) + 1, kind, os.path.relpath(path, TREE), lines))
    return changes


# ---- What depends on what -----------------------------------------------------------------------------------------

def dependents():
    """By file of the tree, the objects that were compiled from it, and by object its source."""
    by_file, source = collections.defaultdict(list), {}
    target = None
    for line in output_of('ninja', '-C', BUILD, '-t', 'deps').split('\n'):
        if line.startswith('    '):
            path = os.path.relpath(os.path.join(BUILD, line.strip()), TREE)
            by_file[path].append(target)
            source.setdefault(target, path)
        elif ': #deps' in line:
            target = line.split(':')[0]
    return by_file, source


def suites(path):
    return sorted(set(re.findall(r'^(?:TYPED_)?TEST(?:_F|_P)?\((\w+),', open(TREE + '/' + path).read(), re.M)))


def filter_of(names):
    """Suites may have parameters: Values/Name.Test/3."""
    return ['%s%s.*' % (before, name) for name in names for before in ('', '*/')]


# ---- Trying one ---------------------------------------------------------------------------------------------------

def ninja(targets):
    with open(WORK + '/build.log', 'w') as log:
        return subprocess.run(['ninja', '-C', BUILD, '-j', '1'] + targets, stdout=log, stderr=log).returncode == 0


def failure(program, only, without):
    """The name of the first test that fails, or None."""
    tests = '%s:-%s' % (only, ':'.join([NEVER, GOLDEN] + without))
    with open(WORK + '/test.log', 'wb') as log:
        try:
            code = subprocess.run([program, '--gtest_fail_fast', '--gtest_filter=' + tests], stdout=log,
                                  stderr=log, timeout=MOST_SECONDS).returncode
        except subprocess.TimeoutExpired:
            return 'the time limit'
    if code == 0:
        return None
    text = open(WORK + '/test.log', 'rb').read().decode('latin-1')
    failed = re.search(r'FAILED  \] ([\w./]+)', text)
    if failed:
        return failed.group(1)
    began = re.findall(r'RUN      \] ([\w./]+)', text)
    return 'the end of the program in ' + (began[-1] if began else 'its beginning')


def suites_below(pattern):
    return [s for path in sorted(glob.glob('%s/tests/%s_test.cpp' % (TREE, pattern), recursive=True))
            for s in suites(os.path.relpath(path, TREE))]


def killer(folder, without, slow=True):
    """The tests that tell most for their time come first: headers against tables, then those of the family. Those of
    the frame have tables of their own, which no change touches."""
    frame = [] if folder.startswith('frame') else filter_of(suites_below('frame/**/*'))
    return (failure(TOOL_TESTS, 'Headers.*:FieldValues.*', without)
            or failure(TESTS, ':'.join(filter_of(suites_below(folder + '/*')) + ['Commands*']), [SLOW] + without)
            or failure(TOOL_TESTS, '*', without)
            or failure(TESTS, '*', [SLOW] + frame + without)
            or (failure(TESTS, SLOW, without) if slow else None))


class Compiler:
    """Compiles sources of the core without asking what else is to be built, and without warnings: what is tried may
    leave something unused. What no change touches is read once."""

    def __init__(self):
        self.commands = {}
        for entry in json.load(open(BUILD + '/compile_commands.json')):
            words = [word for word in shlex.split(entry['command']) if not word.endswith('ccache')]
            target = words[words.index('-o') + 1]
            at = words.index('-o')
            self.commands[target] = words[:at] + words[at + 2:-2] + ['-w', '-o', target, '-c', words[-1]]
        self.link = {target: output_of('ninja', '-C', BUILD, '-t', 'commands', target).strip().split('\n')[-1]
                     for target in (CORE, os.path.relpath(TESTS, BUILD), os.path.relpath(TOOL_TESTS, BUILD))}
        self.head = WORK + '/frame.h'
        with open(self.head, 'w') as head:
            head.write(''.join('#include "%s"\n' % name for name in (
                'frame/record/Engine.h', 'frame/Frames.h', 'orrery/orrery.h', 'algorithm', 'span')))
        one = next(words for target, words in self.commands.items() if CORE_OBJECTS in target and '/frame/' not in target)
        subprocess.run(one[:-4] + ['-x', 'c++-header', '-o', self.head + '.gch', self.head], cwd=BUILD, check=True)
        self.read = output_of(*one[:-4], '-M', self.head)

    def compiled(self, target, change):
        words = self.commands[target]
        if CORE_OBJECTS in target and '/%s ' % change.file not in self.read.replace('\n', ' '):
            words = words[:1] + ['-include', self.head] + words[1:]
        with open(WORK + '/build.log', 'a') as log:
            return subprocess.run(words, cwd=BUILD, stdout=log, stderr=log).returncode == 0

    def linked(self, target=CORE, output=CORE):
        command = self.link[target].replace(' -o %s ' % target, ' -o %s ' % output)
        return subprocess.run(command, shell=True, cwd=BUILD).returncode == 0


def output_of(*words):
    return subprocess.run(words, capture_output=True, text=True).stdout


def nearest(file, objects, source):
    """A few of a change's objects: its own, those of its folder that name it, and others."""
    def distance(target):
        path = source[target]
        return (os.path.splitext(path)[0] != os.path.splitext(file)[0], os.path.dirname(path) != os.path.dirname(file),
                '"%s"' % file[len('src/'):] not in open(TREE + '/' + path).read(), path)
    return sorted(objects, key=distance)[:5]


def still_fails(target, test, change, compiler, touched):
    """When the test's own file is compiled again."""
    touched.append(target)
    tests = os.path.relpath(TOOL_TESTS if 'tests/tools/' in target else TESTS, BUILD)
    again = WORK + '/again'
    if not compiler.compiled(target, change) or not compiler.linked(tests, again):
        return False
    return failure(again, test, []) is not None


def verdict(change, by_file, source, compiler, touched):
    """Of a change that is made. Tells in `touched` which targets are no longer those of the tree as it is."""
    folder = os.path.dirname(change.file)[len('src/'):]
    objects = [target for target in by_file[change.file] if CORE_OBJECTS in target]
    near = nearest(change.file, objects, source)
    open(WORK + '/build.log', 'w').close()
    for target in near:
        touched.append(target)
        if not compiler.compiled(target, change):
            return 'refused by the compiler'
    if not compiler.linked():
        return 'refused by the linker'
    if not change.file.endswith('.h'):
        found = killer(folder, [])
    else:
        # Dear, as many files include it. What a test finds in a few of them is found in all. Tests that were compiled
        # from the header have to find it when they are compiled again.
        readers = {s: target for target in by_file[change.file] if source[target].endswith('_test.cpp')
                   for s in suites(source[target])}
        found = killer(folder, filter_of(readers), slow=False)
        if not found and readers:
            found = killer(folder, [], slow=False)
            test = re.search(r'(\w+)(?:/\d+)?\.[\w/]+$', found or '')
            reader = test and readers.get(test.group(1))
            if found and not (reader and still_fails(reader, '*' + test.group(0), change, compiler, touched)):
                found = None
        if not found:
            touched[:] = by_file[change.file]
            open(WORK + '/all', 'w').close()
            if not ninja(ALL):
                return 'refused by the compiler'
            found = killer(folder, [])
    return 'killed by ' + found if found else 'SURVIVED'


def undo(change):
    """With the times that files had, so that nothing else is built again."""
    shutil.copy2(WORK + '/original/source', TREE + '/' + change)
    kept = [line.rstrip('\n') for line in open(WORK + '/original/objects')]
    for number, target in enumerate(kept):
        shutil.copy2('%s/original/%d' % (WORK, number), BUILD + '/' + target)
    shutil.rmtree(WORK + '/original')


def build_all_again():
    if not os.path.exists(WORK + '/all'):
        return
    for program in (TESTS, TOOL_TESTS):
        if os.path.exists(program):
            os.remove(program)
    if not ninja(ALL):
        sys.exit('mutate: the tree does not build again, see build.log')
    os.remove(WORK + '/all')


def try_change(change, by_file, source, compiler):
    path, original = TREE + '/' + change.file, WORK + '/original'
    shutil.rmtree(original, ignore_errors=True)
    os.mkdir(original)
    shutil.copy2(path, original + '/source')
    built = by_file[change.file]
    for number, target in enumerate(built):
        shutil.copy2(BUILD + '/' + target, '%s/%d' % (original, number))
    open(original + '/objects', 'w').write(''.join(target + '\n' for target in built))
    open(WORK + '/changing', 'w').write(change.file)
    lines = open(path).read().split('\n')
    old = [lines[number] for number, _ in change.lines]
    for number, text in change.lines:
        lines[number] = text
    open(path, 'w').write('\n'.join(lines))
    touched = []
    said = verdict(change, by_file, source, compiler, touched)
    undo(change.file)
    os.remove(WORK + '/changing')
    build_all_again()
    return said, old


def main():
    changes_now = WORK + '/changing'
    if os.path.exists(changes_now):  # a run ended here
        undo(open(changes_now).read())
        os.remove(changes_now)
    build_all_again()
    if not ninja(ALL):
        sys.exit('mutate: the tree does not build, see build.log')
    by_file, source = dependents()
    compiler = Compiler()

    results = '%s/results-%d.txt' % (WORK, SEED)
    before = open(results).read() if os.path.exists(results) else ''
    done = dict(re.findall(r'^(\d+) \w+ \S+: (\w+)', before, re.M))
    if not os.path.exists(WORK + '/passed'):
        print('mutate: running the tests on the tree as it is', flush=True)
        found = killer('events', [])
        if found:
            sys.exit('mutate: without any change they fail at %s, see test.log' % found)
        open(WORK + '/passed', 'w').close()
    said_so_far = collections.Counter(done.values())
    for change in sorted(chosen_changes(), key=lambda change: change.file.endswith('.h')): # the dear ones last
        if str(change.number) in done:
            continue
        start = time.time()
        said, old = try_change(change, by_file, source, compiler)
        said_so_far[said.split()[0]] += 1
        text = '%d %s %s: %s\n' % (change.number, change.kind, change.file, said)
        text += ''.join('< %s\n' % line for line in old) + ''.join('> %s\n' % line for _, line in change.lines)
        with open(results, 'a') as out:
            out.write(text)
        print('%s= %d of %d, %d survived, %d s' % (text, sum(said_so_far.values()), COUNT, said_so_far['SURVIVED'],
                                                   time.time() - start), flush=True)

    print('=== survivors, from ' + results)
    for block in re.split(r'^(?=\d+ \w+ \S+: )', open(results).read(), flags=re.M):
        if ': SURVIVED' in block:
            print(block, end='')
    print('%d changes: %d killed by tests, %d refused by the compiler, %d survived' % (
        sum(said_so_far.values()), said_so_far['killed'], said_so_far['refused'], said_so_far['SURVIVED']))


main()
