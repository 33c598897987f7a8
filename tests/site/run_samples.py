#!/usr/bin/env python3
"""run_samples.py SAMPLES.json COMPILER SOURCE_DIR LIBRARY_DIR COMPANION WORK_DIR: the reference's C and Python programs,
exactly as its pages show them, are compiled and run, and print what the pages say. Few programs of C have them all: each
is a file that is included with names of its own for its functions."""
import contextlib
import io
import json
import os
import shutil
import subprocess
import sys

PARTS = 4  # programs of C, compiled side by side
LEAST = 590  # programs that there are


def driver(names):
    """A program that runs a sample by its number: the arguments are the number and its input."""
    lines = ["#include <orrery/orrery.h>", "#include <stdio.h>", "#include <stdlib.h>", "#include <string.h>"]
    for number, name in names:
        lines += [
            f"#define main main_{number}",
            f"#define on_event on_event_{number}",
            f'#include "{number}.c"',
            "#undef main",
            "#undef on_event",
        ]
    lines += [
        "int main(int count, char** arguments) {",
        "    int at, failed = 0;",
        "    for (at = 1; at + 2 < count; at += 3) {",
        "        int done = -1;",
        '        if (!freopen(arguments[at + 1], "r", stdin) || !freopen(arguments[at + 2], "w", stdout)) return 2;',
        "        switch (atoi(arguments[at])) {",
    ]
    lines += [f"        case {number}: done = main_{number}(); break;" for number, _ in names]
    lines += [
        "        }",
        '        if (done) { printf("returned %d\\n", done); failed = 1; }',
        "    }",
        "    fclose(stdout);",
        "    return failed;",
        "}",
    ]
    return "\n".join(lines)


def expected(sample, language):
    packed = sample["packed"]
    return "\n".join(sample[f"{language}_output"] + ([packed] if packed is not None else [])).strip()


def main():
    samples_file, compiler, source, library, companion, work = sys.argv[1:7]
    include = f"{source}/include"
    with open(samples_file, encoding="utf-8") as file:
        samples = json.load(file)["samples"]
    shutil.rmtree(work, ignore_errors=True)
    os.makedirs(work)
    shutil.copytree(f"{source}/python/orrery", f"{work}/orrery")
    with open(f"{work}/schema.json", "wb") as file:
        subprocess.run([companion, "schema"], stdout=file, check=True)
    subprocess.run([sys.executable, f"{source}/python/generate.py", f"{work}/schema.json", f"{work}/orrery"], check=True)
    for number, sample in enumerate(samples):
        with open(f"{work}/{number}.c", "w", encoding="utf-8") as file:
            file.write(sample["c"] + "\n")
        with open(f"{work}/{number}.json", "w", encoding="utf-8") as file:
            file.write(json.dumps(sample["text"]) if sample["text"] is not None else "")
    compiles = []
    for part in range(PARTS):
        names = [(number, sample["name"]) for number, sample in enumerate(samples) if number % PARTS == part]
        with open(f"{work}/part{part}.c", "w", encoding="utf-8") as file:
            file.write(driver(names))
        command = [
            compiler,
            "-std=c99",
            "-pedantic",
            "-Wall",
            "-Wextra",
            "-Werror",
            "-O0",
            f"-I{include}",
            f"{work}/part{part}.c",
            f"-L{library}",
            "-lorrery",
            f"-Wl,-rpath,{library}",
            "-o",
            f"{work}/part{part}",
        ]
        compiles.append((part, names, subprocess.Popen(command)))
        if len(compiles) >= 2:
            compiles[-2][2].wait()
    wrong = []
    for part, names, compile_ in compiles:
        if compile_.wait() != 0:
            sys.exit("run_samples: the programs do not compile")
        arguments = [word for number, _ in names for word in (str(number), f"{work}/{number}.json", f"{work}/{number}.out")]
        subprocess.run([f"{work}/part{part}", *arguments], check=False)
        for number, name in names:
            with open(f"{work}/{number}.out", encoding="utf-8") as file:
                told = file.read().strip()
            if told != expected(samples[number], "c"):
                wrong.append(("C", samples[number], told, expected(samples[number], "c")))
    os.environ["ORRERY_LIBRARY_PATH"] = library
    sys.path.insert(0, work)
    for sample in samples:
        if not sample["python"]:
            continue
        out, was = io.StringIO(), sys.stdin
        sys.stdin = io.StringIO(json.dumps(sample["text"]))
        try:
            with contextlib.redirect_stdout(out):
                exec(
                    compile(sample["python"], sample["name"], "exec"), {"__name__": "__main__"}
                )  # pylint: disable=exec-used
            told = out.getvalue().strip()
        except Exception as error:  # pylint: disable=broad-except
            told = f"{type(error).__name__}: {error}"
        sys.stdin = was
        if told != expected(sample, "python"):
            wrong.append(("Python", sample, told, expected(sample, "python")))
    for language, sample, told, wanted in wrong[:20]:
        print(f"=== {sample['kind']} {sample['name']} in {language}\n--- wanted\n{wanted[:800]}\n--- told\n{told[:800]}")
    ran = sum(1 for sample in samples if sample["python"])
    print(f"{len(samples)} programs in C, {ran} in Python; {len(wrong)} wrong")
    sys.exit(bool(wrong) or len(samples) < LEAST or ran < LEAST)


main()
