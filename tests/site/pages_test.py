#!/usr/bin/env python3
"""pages_test.py SOURCE_DIR SITE_DIR COMPANION: the reference has a page and an anchor for everything, every link leads
somewhere, and all of it is reached and read without scripts."""
import glob
import html
import json
import os
import re
import subprocess
import sys
import tempfile
import unittest
import urllib.parse

SOURCE, SITE, COMPANION = sys.argv[1:4]
sys.path[:0] = [os.path.join(SOURCE, "docs/site")]

from reference.links import wrong_links  # noqa: E402


def read(name):
    with open(os.path.join(SITE, name), encoding="utf-8") as file:
        return file.read()


def safe(name):
    return re.sub(r"[^A-Za-z0-9_.-]", "_", name)


def luminance(color):
    channels = [int(color[i : i + 2], 16) / 255 for i in (1, 3, 5)]
    linear = [each / 12.92 if each <= 0.04045 else ((each + 0.055) / 1.055) ** 2.4 for each in channels]
    return 0.2126 * linear[0] + 0.7152 * linear[1] + 0.0722 * linear[2]


def contrast(one, other):
    high, low = sorted((luminance(one), luminance(other)), reverse=True)
    return (high + 0.05) / (low + 0.05)


class Pages(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.schema = json.loads(subprocess.run([COMPANION, "schema"], stdout=subprocess.PIPE, check=True).stdout)
        cls.records = {record["name"]: record for record in cls.schema["records"]}

    def test_links(self):
        pages, links, wrong = wrong_links(SITE)
        print(f"{pages} pages, {links} links", file=sys.stderr)
        self.assertEqual(wrong[:20], [])
        self.assertGreater(links, 50000)

    def test_finds_wrong_links(self):
        with tempfile.TemporaryDirectory() as folder:
            with open(f"{folder}/a.html", "w", encoding="utf-8") as file:
                file.write(
                    '<main id="x"><p id="x"><a href="b.html">b</a><a href="#y">y</a><a href="c.css">c</a>'
                    '<a href="https://example.org/">out</a><a href="a.html#x">good</a><b></main>'
                )
            _, _, wrong = wrong_links(folder)
        self.assertEqual(
            sorted(each.split(": ", 1)[1].split(" ")[0] for each in wrong if "closed" not in each),
            ["https://example.org/", "id", "no", "no", "no"],
        )
        self.assertTrue(any("closed" in each for each in wrong))

    def test_everything_has_a_page(self):
        for kind, folder in (
            ("commands", "commands"),
            ("records", "records"),
            ("rules", "rules"),
            ("events", "events"),
            ("typed", "texts"),
            ("templates", "texts"),
            ("enumerations", "codes"),
        ):
            files = {name for name in os.listdir(os.path.join(SITE, folder))}
            for each in self.schema[kind]:
                self.assertIn(safe(each["name"] or str(each["code"])) + ".html", files, kind)

    def test_every_member_has_its_row(self):
        for record in self.schema["records"]:
            anchors = set(re.findall(r'<tr id="([^"]*)"', read(f"records/{safe(record['name'])}.html")))
            for field in record["fields"]:
                self.assertIn(field["name"], anchors, record["name"])
        for command in self.schema["commands"]:
            anchors = set(re.findall(r'<tr id="([^"]*)"', read(f"commands/{safe(command['name'])}.html")))
            for field in self.records[command["record"]]["fields"]:
                self.assertIn(field["name"], anchors, command["name"])

    def test_a_row_says_what_the_schema_says(self):
        # Of every row: type, key, unit, range and the first code, each in a cell of its own.
        looked = 0
        for record in self.schema["records"]:
            page = read(f"records/{safe(record['name'])}.html").split('<h2 id="form-')[0]
            rows = dict(re.findall(r'<tr id="([^"]*)">(.*?)</tr>', page, re.S))
            for field in record["fields"]:
                cells = dict(re.findall(r'<td class="(\w+)[^"]*"[^>]*>(.*?)</td>', rows[field["name"]], re.S))
                cells = {name: html.unescape(re.sub(r"<[^>]+>", " ", cell)) for name, cell in cells.items()}
                if field.get("key") and field["relativeTo"] in ("record", "reply"):
                    self.assertIn(field["key"].replace("/", "."), cells["key"])
                if field["type"] == "record":
                    self.assertIn(field["record"], cells["type"])
                for extent in field["dims"]:
                    self.assertIn(f"[{extent}]", cells["type"])
                if "range" in field:
                    self.assertIn("%s\u00a0to\u00a0%s" % tuple(field["range"]), cells["limits"])
                if "unit" in field:
                    self.assertIn(field["unit"], cells["limits"])
                if "default" in field:
                    self.assertIn(str(field["default"]), cells["absent"])
                for code in field.get("codes", [])[:1]:
                    self.assertIn(f'{code["code"]}  "{code["name"]}"', cells["says"])
                for word in ("flag", "count", "readIf", "writeIf"):
                    if word in field:
                        self.assertIn(field[word], cells["says"], f"{record['name']}.{field['name']}")
                looked += 1
        self.assertGreater(looked, 7000)

    def test_examples(self):
        with open(SITE.rstrip("/") + "-samples.json", encoding="utf-8") as file:
            made = json.load(file)
        # Of every example text all that it tells reaches the record.
        self.assertEqual(made["lost"], [])
        for command in self.schema["commands"]:
            page = read(f"commands/{safe(command['name'])}.html")
            self.assertEqual('id="example"' in page, command["parse"], command["name"])
            self.assertIn('id="programs"', page, command["name"])
            if command["pack"]:
                self.assertTrue('id="request"' in page or command["name"] == "Language", command["name"])
        for rule in self.schema["rules"]:
            page = read(f"rules/{safe(rule['name'] or str(rule['code']))}.html")
            self.assertEqual('id="example"' in page, not rule.get("writeOnly"), rule["name"])
        for event in self.schema["events"]:
            page = read(f"events/{safe(event['name'] or str(event['code']))}.html")
            self.assertEqual('id="programs"' in page, bool(event["name"]), event["name"])

    def test_all_is_reached_without_scripts(self):
        pages = {os.path.relpath(path, SITE) for path in glob.glob(f"{SITE}/**/*.html", recursive=True)}
        seen, left = set(), ["index.html"]
        while left:
            name = left.pop()
            if name in seen:
                continue
            seen.add(name)
            for link in re.findall(r'<a [^>]*href="([^"#]+)', read(name)):
                left.append(os.path.normpath(os.path.join(os.path.dirname(name), urllib.parse.unquote(html.unescape(link)))))
        self.assertEqual(pages - seen, set())

    def test_the_search_knows_everything(self):
        text = read("search-index.js")
        index = json.loads(text[text.index("=") + 1 :].rstrip().rstrip(";"))
        anchors = {}

        def reached(address):
            name, _, anchor = address.partition("#")
            if name not in anchors:
                anchors[name] = set(re.findall(r' id="([^"]*)"', read(name)))
            return not anchor or anchor in anchors[name]

        kinds = {}
        for kind, name, address, _ in index["entries"]:
            kinds.setdefault(index["kinds"][kind], set()).add(name)
            self.assertTrue(reached(address), address)
        self.assertEqual(kinds["command"], {each["name"] for each in self.schema["commands"]})
        self.assertEqual(kinds["record"], set(self.records))
        self.assertEqual(
            kinds["constant"], {each["name"] for one in self.schema["enumerations"] for each in one["constants"]}
        )
        for key, members in index["keys"].items():
            for record, member in zip(members[::2], members[1::2]):
                self.assertTrue(reached(f"records/{safe(index['records'][record])}.html#{member}"), f"{key}: {member}")
        for record in self.schema["records"]:
            for field in record["fields"]:
                if field.get("key") and field["relativeTo"] in ("record", "reply"):
                    self.assertIn(field["key"].split("/")[-1], index["keys"])

    def test_pages_are_for_everybody(self):
        for name in glob.glob(f"{SITE}/**/*.html", recursive=True):
            page = read(os.path.relpath(name, SITE))
            for part in (
                '<html lang="en">',
                '<meta name="viewport" content="width=device-width, initial-scale=1">',
                '<a class="skip" href="#main">',
                '<main id="main"',
                '<label class="hidden" for="q">',
            ):
                self.assertEqual(page.count(part), 1, f"{name}: {part}")
            self.assertEqual(len(re.findall(r"<h1[ >]", page)), 1, name)
            self.assertEqual(re.findall(r"<(?:style|script)>| style=| on\w+=\"", page), [], name)
            levels = [int(each) for each in re.findall(r"<h([1-6])[ >]", page)]
            self.assertTrue(all(after <= before + 1 for before, after in zip(levels, levels[1:])), f"{name}: {levels}")
            self.assertNotIn("VERSION", re.search(r"<footer>.*?</footer>", page, re.S).group(), name)

    def test_colours_can_be_told_apart(self):
        sheet = read("style.css")
        schemes = [
            dict(re.findall(r"--(\w+): (#[0-9a-f]{3,6});", block))
            for block in re.findall(r":root \{(.*?)\}", sheet, re.S)[:2]
        ]
        self.assertEqual(len(schemes), 2)
        for scheme in schemes:
            full = {
                name: "#" + "".join(each * 2 for each in value[1:]) if len(value) == 4 else value
                for name, value in scheme.items()
            }
            for front in ("text", "soft", "link", "key", "string", "number", "word", "comment"):
                for back in ("paper", "raised", "badge") if front in ("text", "link") else ("paper", "raised"):
                    self.assertGreaterEqual(contrast(full[front], full[back]), 4.5, f"{front} on {back}")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
