#!/usr/bin/env python3
"""json_schema_test.py COMPANION: the JSON Schema of each command takes the full text that is made from schema 2, and
refuses it once a value is of another type, of no code, too long or too many."""
import copy
import json
import subprocess
import sys
import unittest

import jsonschema

from schema_values import Maker, Text

COMPANION = sys.argv[1]


def run(*arguments):
    return subprocess.run([COMPANION, "schema", *arguments], stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                          check=False)


def put(holder, path, value):
    for part in path[:-1]:
        holder = holder.setdefault(part, {})
    holder[path[-1]] = value


class JsonSchemas(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.schema = json.loads(run().stdout)
        cls.maker = Maker(cls.schema, ranged=True)
        cls.seen = {"bool": 0, "names": 0, "text": 0, "list": 0}

    def reply(self, command):
        reading, form, text = command["reading"], self.maker.form(command), Text()
        if "items" in form:
            rule = next(rule for rule in self.schema["rules"] if not rule.get("writeOnly"))
            value = [dict(self.maker.record(self.maker.form(rule), (0,), text), Type=rule["name"])]
        else:
            members = reading["shapes"]["object"] == "members"
            value = self.maker.record(form, (0,), text, False, self.maker.member_names(form, 1)[0] if members else None)
            if members:
                value = {self.maker.member_names(form, 1)[0]: value}
            elif reading["shapes"]["array"] == "records":
                value = [value]
        reply = {"result": 1 if reading["result"] == "integerNonZero" else True, **text.reply}
        path = reading["value"][0].split("/")
        put(reply, path, value)
        return reply, path, value

    def record_in(self, value):
        while isinstance(value, list) and value:
            value = value[0]
        return value if isinstance(value, dict) else None

    def bent(self, command, record):
        """Ways in which a field's value is none, with what each is called."""
        form = self.maker.form(command)
        rows = form["fields"] + form.get("secondKeys", []) + form.get("otherKeys", [])
        for field in form["fields"]:
            key = field.get("key", "")
            alone = sum(row.get("key") == key for row in rows) == 1
            if field.get("relativeTo") != "record" or "/" in key or not alone or key not in record:
                continue
            if field["kind"] == "bool" and not field["dims"]:
                yield "bool", key, "yes"
            if field["kind"] == "names" and not field["dims"]:
                yield "names", key, "no such text"
            if field["kind"] in ("text", "rawText", "fullText") and len(field["dims"]) == 1:
                yield "text", key, "x" * (field["dims"][-1] + 1)
            if isinstance(record[key], list) and field["kind"] in ("int", "names", "record", "text") \
                    and "pointer" not in field and field["dims"] and not field.get("keyed"):
                yield "list", key, record[key][:1] * (field["dims"][0] + 1)

    def check(self, command):
        made = run("--json-schema", command["name"])
        self.assertEqual(made.returncode, 0, command["name"])
        form = json.loads(made.stdout)
        jsonschema.Draft202012Validator.check_schema(form)
        validator = jsonschema.Draft202012Validator(form)
        reply, path, _ = self.reply(command)
        wrong = [f"{list(error.absolute_path)}: {error.message[:150]}" for error in validator.iter_errors(reply)]
        self.assertEqual(wrong[:3], [], command["name"])
        members = command["reading"]["shapes"]["object"] == "members"
        if members or "items" in self.maker.form(command):
            return
        holder = reply
        for part in path:
            holder = holder[part]
        record = self.record_in(holder)
        if record is None or command["reading"]["shapes"]["array"] == "recordOrRecords":
            return
        for what, key, value in list(self.bent(command, record))[:8]:
            changed = copy.deepcopy(reply)
            place = changed
            for part in path:
                place = place[part]
            self.record_in(place)[key] = value
            self.assertFalse(validator.is_valid(changed), f"{command['name']}: {key} as {value!r:.40}")
            self.seen[what] += 1

    def test_every_command(self):
        for command in self.schema["commands"]:
            if command["parse"]:
                with self.subTest(command["name"]):
                    self.check(command)
        print(self.seen, file=sys.stderr)
        self.assertGreater(min(self.seen.values()), 20)

    def test_written_only(self):
        for command in self.schema["commands"]:
            if not command["parse"]:
                made = run("--json-schema", command["name"])
                jsonschema.Draft202012Validator.check_schema(json.loads(made.stdout))

    def test_the_device_says_no(self):
        validator = jsonschema.Draft202012Validator(json.loads(run("--json-schema", "NTP").stdout))
        self.assertTrue(validator.is_valid({"result": True, "params": {"table": {}}}))
        self.assertFalse(validator.is_valid({"result": False, "params": {"table": {}}}))

    def test_unknown_command(self):
        made = run("--json-schema", "NTPP")
        self.assertEqual((made.returncode, made.stdout), (1, b""))
        self.assertIn(b'no command "NTPP"', made.stderr)
        self.assertIn(b'NTP', made.stderr)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
