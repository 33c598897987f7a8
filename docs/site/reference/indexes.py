"""Pages that list: the entrance, commands by family, records, rules, events, codes, and all keys."""
import re

from .markup import esc, page
from .pages import UP, first_sentence


def letter_of(name):
    return name[0].lower() if name[0].isalpha() else "other"


class Indexes:
    def __init__(self, pages):
        self.pages, self.model = pages, pages.model
        self.files = {}

    def put(self, here, title, body, kind, summary="", contents=(), trail=()):
        root = UP * here.count("/")
        self.files[here] = page(title, body, root, kind, summary, trail, contents)

    def families(self):
        """Commands by the header of their record, in the order of the headers' names."""
        found = {}
        for command in self.model.schema["commands"]:
            found.setdefault(self.model.header_of.get(command["record"], ""), []).append(command)
        return sorted(found.items())

    def table(self, columns, rows, label):
        head = "".join(f'<th scope="col">{each}</th>' for each in columns)
        return (
            f'<div class="wide" tabindex="0" role="region" aria-label="{esc(label)}"><table class="list"><thead><tr>{head}</tr></thead>'
            f'<tbody>{"".join(rows)}</tbody></table></div>'
        )

    def row(self, first, *cells):
        return f'<tr><th scope="row">{first}</th>' + "".join(f"<td>{each}</td>" for each in cells) + "</tr>"

    def summary(self, record):
        doc = self.model.records[record].get("doc", "")
        # What stands before the first colon says again which command it is.
        doc = re.sub(r'^(?:"[^"]*"(?:,| and)?\s*)+(?:\(\d+\))?:\s*', "", doc)
        if re.fullmatch(r'(?:"[^"]*"(?:,| and)?\s*)+\.?', doc):
            return ""  # nothing but its names
        return esc(first_sentence(doc)[:240])

    # ---- Lists

    def commands(self):
        parts = [
            "<h1>Commands</h1><p>Names that <code>CLIENT_ParseData</code> and <code>CLIENT_PacketData</code> take, by the "
            "header of their record.</p>"
        ]
        for header, commands in self.families():
            anchor = re.sub(r"\W", "-", header.split("/")[-1][:-2])
            rows = [
                self.row(
                    self.pages.link("command", each["name"]),
                    "&nbsp;".join(way for way in ("parse", "pack") if each[way]),
                    self.pages.link("record", each["record"]),
                    self.summary(each["record"]),
                )
                for each in commands
            ]
            parts.append(
                f'<section><h2 id="{anchor}">{esc(self.model.family(header))}</h2><p class="note"><code>&lt;{esc(header)}&gt;</code></p>'
                + self.table(("Command", "Ways", "Record", "What it is"), rows, self.model.family(header))
                + "</section>"
            )
        self.put("commands/index.html", "Commands", "".join(parts), "Commands", "All commands by family.")

    def records(self):
        rows = [
            self.row(self.pages.link("record", each["name"]), str(each["size"]), self.summary(each["name"]))
            for each in sorted(self.model.schema["records"], key=lambda each: each["name"])
        ]
        self.put(
            "records/index.html",
            "Records",
            "<h1>Records</h1><p>Every record that a text reaches, with its size in bytes.</p>"
            + self.table(("Record", "Bytes", "What it is"), rows, "Records"),
            "Records",
            "All records.",
        )

    def coded_rows(self, kind, member):
        """A row for each of those that a code tells."""
        return [
            self.row(
                self.pages.link(kind, each["name"] or str(each["code"])),
                str(each["code"]),
                self.pages.link("record", each["record"]),
                self.summary(each["record"]),
            )
            for each in self.model.schema[member]
        ]

    def rules(self):
        rows = self.coded_rows("rule", "rules")
        self.put(
            "rules/index.html",
            "Rules",
            "<h1>Rules</h1><p>Analysis rules of a channel: types of the items in a rule buffer.</p>"
            + self.table(("Rule", "Code", "Record", "What it is"), rows, "Rules"),
            "Rules",
            "All analysis rules.",
        )

    def events(self):
        rows = self.coded_rows("event", "events")
        typed = [
            self.row(
                self.pages.link("typed", each["name"]),
                str(each["code"]),
                self.pages.link("record", each["record"]),
                self.summary(each["record"]),
            )
            for each in self.model.schema["typed"]
        ]
        templates = [
            self.row(
                self.pages.link("template", each["name"]),
                self.pages.link("record", each["record"]),
                self.summary(each["record"]),
            )
            for each in self.model.schema["templates"]
        ]
        body = (
            "<h1>Events</h1><p>What <code>CLIENT_ParseAnalyzerEventData</code> hands to its callback.</p>"
            + self.table(("Event", "Code", "Record", "What it is"), rows, "Events")
            + '<section><h2 id="typed">Typed texts</h2><p>What <code>CLIENT_ParseDataByCallback</code> finds by the keys of a text, besides events.</p>'
            + self.table(("Key", "Code", "Record", "What it is"), typed, "Typed texts")
            + '</section><section><h2 id="templates">Templates</h2><p>Methods of <code>CLIENT_ParseVideoInAnalyse</code>.</p>'
            + self.table(("Method", "Record", "What it is"), templates, "Templates")
            + "</section>"
        )
        self.put("events/index.html", "Events", body, "Events", "All analyzer events.")

    def codes(self):
        rows = [
            self.row(
                self.pages.link("list", each["name"]),
                str(len(each["constants"])),
                esc(first_sentence(each.get("doc", ""))[:200]),
            )
            for each in sorted(self.model.schema["enumerations"], key=lambda each: each["name"])
        ]
        self.put(
            "codes/index.html",
            "Codes",
            "<h1>Codes</h1><p>The C constants of the headers, by lists.</p>"
            + self.table(("List", "Constants", "What it is"), rows, "Codes"),
            "Codes",
            "All lists of constants.",
        )

    # ---- Keys

    def key_rows(self):
        """Keys with the members that they become: {key: [(record, member)]}."""
        found = {}
        for record in self.model.schema["records"]:
            for word in ("fields", "secondKeys"):
                for row in record.get(word, []):
                    last = row.get("key", "").split("/")[-1]
                    if last and "name" in row and row.get("relativeTo") != "element":
                        member = row["name"] if word == "fields" else "key-" + row["name"]
                        if word == "secondKeys" and any(row["name"] == each["name"] for each in record["fields"]):
                            member = row["name"]
                        found.setdefault(last, []).append((record["name"], member))
        return found

    def keys(self):
        letters = {}
        for key, members in sorted(self.key_rows().items(), key=lambda item: (item[0].lower(), item[0])):
            letters.setdefault(letter_of(key), []).append((key, members))
        bar = (
            lambda here: '<nav class="letters" aria-label="Letters"><ul>'
            + "".join(
                f'<li><a href="{each}.html"{" aria-current=page" if each == here else ""}>{each.upper() if len(each) == 1 else "other"}</a></li>'
                for each in sorted(letters)
            )
            + "</ul></nav>"
        )
        for letter, rows in letters.items():
            items = []
            for key, members in rows:
                links = ", ".join(
                    f'<a href="{UP}{self.pages.places["record", record]}#{esc(member)}"><code>{esc(record)}.{esc(member.removeprefix("key-"))}</code></a>'
                    for record, member in members
                )
                items.append(f"<div><dt><code>{esc(key)}</code></dt><dd>{links}</dd></div>")
            title = letter.upper() if len(letter) == 1 else "others"
            self.put(
                f"keys/{letter}.html",
                f"Keys: {title}",
                f'<h1>Keys: {title}</h1>{bar(letter)}<dl class="keys">{"".join(items)}</dl>',
                "Keys",
                "",
                (),
                (("keys/index.html", "Keys"),),
            )
        count = sum(len(rows) for rows in letters.values())
        self.put(
            "keys/index.html",
            "Keys",
            f"<h1>Keys</h1><p>{count} keys of device texts, and the members that they become.</p>{bar('')}",
            "Keys",
        )

    # ---- The entrance

    def entrance(self):
        schema = self.model.schema
        counts = (
            ("commands", "Commands", len(schema["commands"])),
            ("records", "Records", len(schema["records"])),
            ("rules", "Rules", len(schema["rules"])),
            ("events", "Events", len(schema["events"])),
            ("codes", "Lists of codes", len(schema["enumerations"])),
            ("keys", "Keys", len(self.key_rows())),
        )
        tiles = "".join(f'<li><a href="{folder}/index.html"><b>{count}</b>{name}</a></li>' for folder, name, count in counts)
        families = "".join(
            f'<li><h3><a href="commands/index.html#{re.sub(chr(92) + "W", "-", header.split("/")[-1][:-2])}">{esc(self.model.family(header))}</a></h3><p>'
            + " ".join(self.pages.link("command", each["name"], "") for each in commands)
            + "</p></li>"
            for header, commands in self.families()
        )
        body = f"""<h1>Orrery reference</h1>
<p class="doc">The JSON text of network-video devices as plain C records, and back. Every command, record, rule, event and code
of the library, with an example that was read by it and programs that were run.</p>
<ul class="tiles">{tiles}</ul>
<ul class="ways"><li><a href="cookbook.html">Cookbook</a>: several records, rules, events, threads, encodings; in C, C++ and Python</li>
<li><a href="schema.html">The schema</a>, which these pages are made from, for bindings and checks in any language</li>
<li><a href="platforms.html">Platforms and compatibility</a></li></ul>
<section><h2 id="families">Commands by family</h2><ul class="families">{families}</ul></section>"""
        self.put("index.html", "Reference", body, "", "Reference of Orrery: device JSON to fixed-layout C records and back.")

    def all(self):
        for make in (self.commands, self.records, self.rules, self.events, self.codes, self.keys, self.entrance):
            make()
        return self.files
