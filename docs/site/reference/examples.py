"""An example of everything: a text made from the schema, and what the companion makes of it."""
import concurrent.futures
import json
import os
import re
import subprocess

from schema_texts import Texts
from schema_values import Maker


class Showing(Maker):
    """Texts for eyes: short ones, numbers within their ranges, a section a day."""

    def __init__(self, schema):
        super().__init__(schema, ranged=True)

    def words(self, row, room):
        key = (row.get("key") or row["name"]).split("/")[-1]
        number, low = self.next(), key.lower()
        if "mac" in low and "address" in low or low == "mac":
            text = f"00:00:5e:00:53:{number:02x}"
        elif low.endswith("ip") or low.endswith("address") or low.endswith("host") or low in ("netmask", "gateway"):
            text = f"192.0.2.{number}"
        elif low.endswith("url"):
            text = f"rtsp://192.0.2.{number}/live"
        elif low.endswith("time"):
            text = f"2026-11-20 09:30:{number % 60:02}"
        else:
            text = f"{key} {number}"
        return text[:room]

    def sections(self, row, at, rows, columns, text, name):
        return super().sections(row, at, rows, min(columns, 1), text, name)


class Example:
    def __init__(self, reply, count=1):
        self.reply, self.count = reply, count
        self.records = []  # as the companion prints them, without what the text does not tell
        self.packed = None  # the text that they give
        self.request = None  # the whole request
        self.lent = []  # what the caller has to lend: (offset path, elements)
        self.findings = ""  # what the companion finds lost of the text
        self.code = 0  # of a template's class
        self.says = {}  # of a command: what reading and writing do, in sentences


class Companion:
    """Calls of `orrery`, several at a time."""

    def __init__(self, path):
        self.path = path
        self.environment = dict(os.environ, LC_ALL="C.UTF-8")

    def run(self, arguments, text=""):
        done = subprocess.run(
            [self.path, *arguments],
            input=text,
            stdout=subprocess.PIPE,
            stderr=subprocess.PIPE,
            text=True,
            env=self.environment,
            check=False,
        )
        return done.returncode, done.stdout, done.stderr

    def each(self, jobs):
        """Runs functions, two at a time."""
        with concurrent.futures.ThreadPoolExecutor(max_workers=os.cpu_count()) as pool:
            return list(pool.map(lambda job: job(), jobs))


def several(text):
    """JSON values that stand one behind another."""
    decoder, at, values = json.JSONDecoder(), 0, []
    while at < len(text):
        if text[at].isspace():
            at += 1
            continue
        value, at = decoder.raw_decode(text, at)
        values.append(value)
    return values


def said(text):
    """The sentences of `orrery describe` about reading and writing."""
    found, way = {}, ""
    for line in text.split("\n\n")[0].split("\n")[1:]:
        start = re.match(r"  (parse|pack): (.*)", line)
        if start:
            way = start.group(1)
            found[way] = start.group(2)
        elif way:
            found[way] += " " + line.strip()
    return {way: each.split("; ") for way, each in found.items()}


class Examples:
    def __init__(self, schema, companion):
        self.schema, self.companion = schema, companion
        self.commands, self.rules, self.events, self.typed, self.templates = {}, {}, {}, {}, {}
        self.wrong = []  # what the companion says of a text that it should take whole

    def texts(self):
        """A maker of its own for each text, so that one does not change with those before it."""
        return Texts(self.schema, Showing(self.schema))

    def make(self):
        jobs = []
        rule_command = {
            rule["descriptor"]: command
            for command in reversed(self.schema["commands"])
            if command["parse"] and command["pack"]
            for rule in self.schema["rules"]
            if rule["descriptor"] == command["record"]
        }
        for command in self.schema["commands"]:
            jobs.append(lambda command=command: self.command(command))
        for rule in self.schema["rules"]:
            if not rule.get("writeOnly"):
                jobs.append(lambda rule=rule: self.rule(rule, rule_command[rule["descriptor"]]))
        for event in self.schema["events"]:
            if event["name"]:
                jobs.append(lambda event=event: self.event(event))
        for typed in self.schema["typed"]:
            jobs.append(lambda typed=typed: self.typed_text(typed))
        for template in self.schema["templates"]:
            jobs.append(lambda template=template: self.template(template))
        self.companion.each(jobs)

    def failed(self, name, what):
        self.wrong.append(f"{name}: {what.strip()[:600]}")

    # ---- Commands

    def command(self, command):
        name, texts = command["name"], self.texts()
        form = texts.maker.form(command)
        rules = texts.rules_of(command)
        if not command["parse"]:
            # No reply reads as it; what is packed is one element of nothing.
            example = Example(None)
            example.records = [{field["name"]: [{}] for field in form["fields"] if "pointer" in field}]
        elif rules:
            example = self.of(texts.rule(command, rules[0]))
        else:
            example = self.of(texts.command(command))
        self.commands[name] = example
        example.says = said(self.companion.run(["describe", name])[1])
        if command["parse"]:
            if example.count > 1 and command["reading"]["length"] not in ("perRecord", "perFilled", "added"):
                self.cut(example, command["reading"]["value"][0])
            self.parse(name, example)
        if command["pack"]:
            record = example.records if example.count > 1 else example.records[0] if example.records else {}
            status, out, err = self.companion.run(["pack", "--request", name], json.dumps(record))
            if status == 0 and out.strip().startswith("{"):
                example.request = json.loads(out)
                if not command["parse"]:
                    example.packed = self.companion.run(["pack", name], json.dumps(record))[1].strip()
            elif status != 0:
                self.failed(name, "pack: " + err)

    def of(self, made):
        example = Example(made.reply, made.count)
        example.lent = [(value.place, value.value) for value in made.text.before if value.kind == "block"]
        example.code = made.code
        return example

    def cut(self, example, path):
        """Leaves one record: where the length told is that of one, nothing says how many were read."""
        *around, last = path.split("/")
        holder = example.reply
        for part in around:
            holder = holder[part]
        if isinstance(holder[last], list):
            holder[last] = holder[last][:1]
        example.count = 1

    def parse(self, name, example):
        packs = ["--pack"] if self.packs(name) else []
        status, out, err = self.companion.run(["parse", "--brief", "--warn", *packs, name], json.dumps(example.reply))
        if status not in (0, 3):
            self.failed(name, "parse: " + err)
            return
        example.findings = err.strip()
        value, at = json.JSONDecoder().raw_decode(out)
        example.records = value if isinstance(value, list) else [value]
        example.count = min(example.count, len(example.records))
        if packs:
            example.packed = out[at:].strip()

    def packs(self, name):
        return any(command["name"] == name and command["pack"] for command in self.schema["commands"])

    # ---- What is no command

    def rule(self, rule, command):
        texts = self.texts()
        example = self.of(texts.rule(command, rule))
        self.rules[rule["name"]] = example
        example.command = command["name"]
        self.parse(command["name"], example)

    def event(self, event):
        texts = self.texts()
        example = self.of(texts.event(event))
        self.events[event["name"]] = example
        self.decode(event["name"], example)

    def typed_text(self, typed):
        texts = self.texts()
        form = texts.maker.form(typed)
        if any(field.get("pointer", {}).get("items") for field in form["fields"]):
            rule = next(rule for rule in self.schema["rules"] if not rule.get("writeOnly"))
            example = self.of(texts.typed_rule(typed, rule))
        else:
            example = self.of(texts.typed(typed))
        self.typed[typed["name"]] = example
        self.decode(typed["name"], example)

    def decode(self, name, example):
        status, out, err = self.companion.run(["events", "--brief"], json.dumps(example.reply))
        if status not in (0, 3):
            self.failed(name, "events: " + err)
            return
        example.findings = err.strip()
        example.records = several(out)
        if not example.records:
            self.failed(name, "events: none")

    def template(self, template):
        texts = self.texts()
        form = texts.maker.form(template)
        if "items" in form:
            rule = next(rule for rule in self.schema["rules"] if not rule.get("writeOnly"))
            example = self.of(texts.template_rule(template, rule))
        else:
            example = self.of(texts.template(template))
        self.templates[template["name"]] = example
        arguments = ["template", template["name"]]
        if template["class"]:
            arguments += [
                "--class",
                next(each["name"] for each in self.schema["texts"]["templates"]["classes"] if each["code"] == example.code),
            ]
        status, out, err = self.companion.run(arguments, json.dumps(example.reply))
        if status != 0:
            self.failed(template["name"], "template: " + err)
            return
        example.records = several(out)
