#!/usr/bin/env python3
"""cookbook_test.py SOURCE_DIR C_COMPILER CXX_COMPILER PREFIX COMPANION PYTHON WORK_DIR: each program of the cookbook is
compiled as the cookbook says, against an installed package, and prints what the cookbook shows."""
import glob
import html
import json
import os
import re
import shutil
import subprocess
import sys
import unittest

SOURCE, CC, CXX, PREFIX, COMPANION, PYTHON, WORK = sys.argv[1:8]
sys.path[:0] = [os.path.join(SOURCE, "docs/site")]

from reference.recipes import recipes  # noqa: E402

UTF8 = "C.UTF-8"


def packages(*names):
    config = os.path.dirname(glob.glob(f"{PREFIX}/**/orrery.pc", recursive=True)[0])
    told = subprocess.run(
        ["pkg-config", "--cflags", "--libs", *names],
        stdout=subprocess.PIPE,
        check=True,
        text=True,
        env=dict(os.environ, PKG_CONFIG_LIBDIR=config),
    ).stdout.split()
    return told + [f"-Wl,-rpath,{os.path.dirname(config)}"], os.path.dirname(config)


class Cookbook(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        shutil.rmtree(WORK, ignore_errors=True)
        os.makedirs(WORK)
        with open(f"{SOURCE}/docs/cookbook.md", encoding="utf-8") as file:
            cls.text = file.read()
        cls.found = recipes(cls.text)
        cls.libraries = packages("orrery")[1]
        shutil.copytree(f"{SOURCE}/python/orrery", f"{WORK}/orrery")
        with open(f"{WORK}/schema.json", "wb") as file:
            subprocess.run([COMPANION, "schema"], stdout=file, check=True)
        subprocess.run([PYTHON, f"{SOURCE}/python/generate.py", f"{WORK}/schema.json", f"{WORK}/orrery"], check=True)

    def built(self, path):
        """The command that runs a program."""
        name, kind = os.path.splitext(os.path.basename(path))
        if kind == ".py":
            given = [COMPANION, f"{self.libraries}/liborrery.so"] if name == "by_schema" else []
            return [PYTHON, "-B", path, *given]
        compiler = [CC, "-std=c99", "-pedantic"] if kind == ".c" else [CXX, "-std=c++11"]
        program = f"{WORK}/{name}{kind.replace('.', '_')}"
        if not os.path.exists(program):
            found = packages("orrery-explain" if name == "findings" else "orrery")[0]
            with open(path, encoding="utf-8") as file:
                # strict C99 hides POSIX, but for what a program asks for
                threads = ["-pthread"] if re.search(r"#include <(pthread\.h|thread)>", file.read()) else []
            subprocess.run([*compiler, "-Wall", "-Wextra", "-Werror", path, *found, *threads, "-o", program], check=True)
        return [program]

    def run_program(self, path, **environment):
        done = subprocess.run(
            self.built(path),
            stdout=subprocess.PIPE,
            stderr=subprocess.PIPE,
            check=False,
            env=dict(os.environ, PYTHONPATH=WORK, ORRERY_LIBRARY_PATH=self.libraries, **environment),
        )
        self.assertEqual(done.returncode, 0, f"{path}: {done.stderr.decode()}")
        return done.stdout

    def test_programs_print_what_is_shown(self):
        for names, output in self.found:
            for name in names:
                with self.subTest(name):
                    path = os.path.normpath(f"{SOURCE}/docs/{name}")
                    self.assertEqual(self.run_program(path, LC_ALL=UTF8).decode(), output)

    def test_every_program_is_shown(self):
        shown = {os.path.basename(name) for names, _ in self.found for name in names}
        self.assertEqual(shown, set(os.listdir(f"{SOURCE}/examples/cookbook")))
        self.assertGreaterEqual(len(self.found), 9)

    def test_each_recipe_has_three_languages(self):
        # A sink is a C++ class, findings have no C++ of their own, and another language is any.
        few = {tuple(os.path.basename(name) for name in names) for names, _ in self.found if len(names) < 3}
        self.assertEqual(few, {("findings.c", "findings.py"), ("log_sink.cpp",), ("by_schema.py",)})

    @unittest.skipUnless(shutil.which("localedef"), "no localedef")
    def test_the_local_encoding(self):
        os.makedirs(f"{WORK}/locales")
        subprocess.run(
            ["localedef", "-c", "--quiet", "--no-archive", "-i", "POSIX", "-f", "ISO-8859-1", f"{WORK}/locales/latin"],
            check=False,
            stderr=subprocess.DEVNULL,
        )
        if not os.path.isdir(f"{WORK}/locales/latin"):
            self.skipTest("no charmap of ISO-8859-1")
        for kind in ("c", "cpp", "py"):
            told = self.run_program(
                f"{SOURCE}/examples/cookbook/encodings.{kind}", LC_ALL="latin", LOCPATH=f"{WORK}/locales"
            )
            self.assertEqual(told.split(b"\n")[0], b"54 fc 72 ", kind)
            self.assertIn('"Name" : "Tür"'.encode(), told)

    def test_the_page_shows_the_files(self):
        page = os.environ.get("ORRERY_SITE_FOLDER", "") + "/cookbook.html"
        if not os.path.exists(page):
            self.skipTest("no site")
        with open(page, encoding="utf-8") as file:
            shown = [
                html.unescape(re.sub(r"<[^>]+>", "", each))
                for each in re.findall(r"<pre[^>]*><code>(.*?)</code></pre>", file.read(), re.S)
            ]
        for names, output in self.found:
            self.assertIn(output.rstrip(), shown)
            for name in names:
                with open(os.path.normpath(f"{SOURCE}/docs/{name}"), encoding="utf-8") as file:
                    self.assertIn(file.read().rstrip(), shown, name)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
