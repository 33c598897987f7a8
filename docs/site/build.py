#!/usr/bin/env python3
"""build.py COMPANION SOURCE_DIR OUTPUT_DIR: makes the reference site from the companion's schema and the headers.
samples.json beside the output folder has the programs that the pages show, for the test that runs them."""
import glob
import json
import os
import shutil
import sys

SOURCE = os.path.abspath(sys.argv[2])
sys.path[:0] = [os.path.join(SOURCE, folder) for folder in ("docs/site", "tools/schema", "python")]

from reference.examples import Companion, Examples  # noqa: E402
from reference.indexes import Indexes  # noqa: E402
from reference.model import Model  # noqa: E402
from reference.pages import Pages  # noqa: E402
from reference.prose import documents  # noqa: E402
from reference.samples import Samples  # noqa: E402
from reference.search import index  # noqa: E402


def read(path):
    with open(os.path.join(SOURCE, path), encoding="utf-8") as file:
        return file.read()


def main():
    companion, output = Companion(os.path.abspath(sys.argv[1])), os.path.abspath(sys.argv[3])
    schema = json.loads(companion.run(["schema"])[1])
    headers = {
        "orrery/" + os.path.basename(path): read(path)
        for path in sorted(glob.glob(os.path.join(SOURCE, "include/orrery/*.h")))
    }
    model = Model(schema, json.loads(read("docs/schema-2.json")), headers)
    examples = Examples(schema, companion)
    examples.make()
    if examples.wrong:
        sys.exit("build: no example of\n" + "\n".join(examples.wrong))
    samples = Samples(model, examples).all()
    pages = Pages(model, examples, samples)
    files = pages.all()
    indexes = Indexes(pages)
    files.update(indexes.all())
    files.update(documents(pages, SOURCE))
    files["search-index.js"] = index(pages, indexes)
    lost = sorted(
        name
        for kind in (examples.commands, examples.rules, examples.events, examples.typed, examples.templates)
        for name, example in kind.items()
        if example.findings
    )

    if os.path.isdir(output):
        shutil.rmtree(output)
    for name, text in files.items():
        path = os.path.join(output, name)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "w", encoding="utf-8") as file:
            file.write(text.replace("Orrery VERSION", f"Orrery {schema['version']}") if name.endswith(".html") else text)
    for name in ("style.css", "search.js", "icon.svg"):
        shutil.copy(os.path.join(SOURCE, "docs/site", name), output)
    listed = [{"kind": kind, "name": name, **vars(sample)} for (kind, name), sample in samples.items()]
    with open(output.rstrip("/") + "-samples.json", "w", encoding="utf-8") as file:
        json.dump({"samples": listed, "lost": lost}, file)
    size = sum(len(text.encode()) for text in files.values())
    print(f"site: {sum(name.endswith('.html') for name in files)} pages, {size / 1e6:.1f} MB, {len(listed)} programs")


main()
