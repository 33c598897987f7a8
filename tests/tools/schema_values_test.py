#!/usr/bin/env python3
"""schema_values_test.py COMPANION LIBRARY: from the schema alone, a full text for every command, rule, event, typed
text and template; each is parsed through the C interface, and every value must stand where the schema says it is."""
import collections
import copy
import ctypes
import json
import subprocess
import sys
import unittest

from schema_texts import Texts, put, result_of
from schema_values import Lack, Maker, Memory, Text, differences, images

COMPANION, LIBRARY = sys.argv[1:3]
CALLBACK = ctypes.CFUNCTYPE(ctypes.c_int32, ctypes.c_uint32, ctypes.c_void_p, ctypes.c_uint32, ctypes.c_void_p,
                            ctypes.c_int32, ctypes.c_void_p)
library = ctypes.CDLL(LIBRARY)
library.CLIENT_ParseData.argtypes = [ctypes.c_char_p, ctypes.c_char_p, ctypes.c_void_p, ctypes.c_uint32,
                                     ctypes.c_void_p]
library.CLIENT_ParseAnalyzerEventData.argtypes = [ctypes.c_char_p, ctypes.c_uint32, CALLBACK, ctypes.c_void_p]
library.CLIENT_ParseDataByCallback.argtypes = library.CLIENT_ParseAnalyzerEventData.argtypes
library.CLIENT_ParseVideoInAnalyse.argtypes = [ctypes.c_char_p, ctypes.c_int32, ctypes.c_char_p, ctypes.c_void_p,
                                               ctypes.c_void_p, ctypes.c_uint32]


class Trial:
    def __init__(self, schema, second=False, unknown=False):
        self.schema = schema
        self.maker = Maker(schema, second, unknown)
        self.texts = Texts(schema, self.maker)
        self.looked, self.by_function, self.shared, self.completed = 0, 0, 0, set()
        # Of the keys that functions read: those whose value stands as the member's type lets expect, those whose
        # member changes when the key goes, and of the others why nothing is compared.
        self.exact, self.moved, self.uncompared = 0, 0, collections.Counter()

    def differences(self, base, text):
        self.looked += len(text.after)
        self.by_function += len(text.functions)
        self.shared += len(text.shared)
        return differences(base, text.after, self.completed)

    def functions(self, base, text, again):
        """Compares what functions read. `again`: the members' bytes when the text is read without their keys."""
        whole, rest = images(base, text.stored), []
        for name in text.functions:
            likely = text.likely.get(name, [])
            if likely and not differences(base, likely):
                self.exact += 1
            else:
                rest.append(name)
        if not rest:
            return
        for holder, key in text.removable:
            holder.pop(key, None)
        without = again()
        for name in rest:
            if name not in text.likely:
                self.uncompared["it reads a key that another member is told by"] += 1
            elif name not in whole:
                self.uncompared["it has no member of its own, or one behind a null pointer"] += 1
            elif without is None:
                self.uncompared["the text is refused without it"] += 1
            elif without.get(name) != whole[name]:
                self.moved += 1
            else:
                self.uncompared["its member stays the same: nothing tells what it takes"] += 1

    # ---- Commands ---------------------------------------------------------------------------------------------------

    def command(self, command):
        """What is wrong with a command; nothing when all is in its place."""
        if "items" in self.maker.form(command):
            return [f"{rule['name']}: {each}" for rule in self.texts.rules_of(command)
                    for each in self.parsed(command, self.texts.rule(command, rule))]
        return self.parsed(command, self.texts.command(command))

    def parsed(self, command, made):
        memory = Memory(made.size)
        memory.prepare(made.text.before)
        told = ctypes.c_uint32(0)
        done = library.CLIENT_ParseData(command["name"].encode(), json.dumps(made.reply).encode(), memory.base,
                                        made.size, ctypes.byref(told))
        if done != 1:
            return [f"refused: {json.dumps(made.reply)[:300]}"]
        wrong = self.differences(memory.base, made.text)

        def again():
            other = Memory(made.size)
            other.prepare(made.text.before)
            done = library.CLIENT_ParseData(command["name"].encode(), json.dumps(made.reply).encode(), other.base,
                                            made.size, None)
            return images(other.base, made.text.stored) if done == 1 else None
        self.functions(memory.base, made.text, again)
        return wrong

    def absent(self, command):
        """A record without keys: what the schema says of absent ones."""
        reading, form = command["reading"], self.maker.form(command)
        if reading["shapes"]["object"] != "record" or reading["clears"] != "buffer" or form["shape"] != "object":
            return []
        text, memory = Text(), Memory(self.maker.size(command["record"]))
        self.maker.absent(form, (0,), text)
        reply = {"result": result_of(reading)}
        put(reply, reading["value"][0], {})
        if reading["value"][0] == "result":
            return []
        done = library.CLIENT_ParseData(command["name"].encode(), json.dumps(reply).encode(), memory.base,
                                        memory.size, None)
        if done != 1:
            # Functions may insist on their keys.
            return [] if any("function" in field for field in form["fields"]) else [f"refused: {reply}"]
        return self.differences(memory.base, text)

    # ---- Events and typed texts ---------------------------------------------------------------------------------------

    def delivered(self, call, reply, look):
        """What `look(code, record, size)` says of what the callback is given."""
        wrong, calls = [], []

        def take(code, record, size, _reserved, _sequence, _user):
            calls.append(code)
            wrong.extend(look(code, record, size))
            return 1
        call(json.dumps(reply).encode(), 0, CALLBACK(take), None)
        return wrong if len(calls) == 1 else [f"handed over {len(calls)} times: {json.dumps(reply)[:300]}"]

    def event(self, event):
        made = self.texts.event(event)

        def look(code, record, size):
            wrong = [] if (code, size) == (event["code"], event["size"]) else [f"code {code}, {size} bytes"]
            wrong += self.differences(record, made.text)

            def again():
                found = []
                self.delivered(library.CLIENT_ParseAnalyzerEventData, made.reply,
                               lambda _code, other, _size: found.append(images(other, made.text.stored)) or [])
                return found[0] if found else None
            self.functions(record, made.text, again)
            return wrong
        return self.delivered(library.CLIENT_ParseAnalyzerEventData, made.reply, look)

    def typed(self, typed):
        if any(field.get("pointer", {}).get("items") for field in self.maker.form(typed)["fields"]):
            return self.typed_items(typed)
        made = self.texts.typed(typed)

        def look(code, record, size):
            wrong = [] if code == typed["code"] and size == made.size else [f"{code}, {size}"]
            return wrong + self.differences(record, made.text)
        return self.delivered(library.CLIENT_ParseDataByCallback, made.reply, look)

    def rules(self):
        return [rule for rule in self.schema["rules"] if not rule.get("writeOnly")]

    def typed_items(self, typed):
        wrong = []
        for rule in self.rules():
            made = self.texts.typed_rule(typed, rule)
            wrong += self.delivered(library.CLIENT_ParseDataByCallback, made.reply,
                                    lambda code, record, size, made=made: self.differences(record, made.text))
        return wrong

    def template(self, template):
        if "items" in self.maker.form(template):
            return [f"{rule['name']}: {each}" for rule in self.rules()
                    for each in self.run_template(template, self.texts.template_rule(template, rule))]
        return self.run_template(template, self.texts.template(template))

    def run_template(self, template, made):
        memory = Memory(made.size)
        memory.prepare(made.text.before)
        done = library.CLIENT_ParseVideoInAnalyse(template["name"].encode(), made.code, json.dumps(made.reply).encode(),
                                                  b"x", memory.base, memory.size)
        if done != 1:
            return [f"refused: {json.dumps(made.reply)[:300]}"]
        return self.differences(memory.base, made.text)


def all_wrong(trial, kind, run, skip=lambda each: False):
    wrong = {}
    for each in trial.schema[kind]:
        if skip(each):
            continue
        try:
            found = run(each)
        except (Lack, KeyError) as lack:
            found = [f"{type(lack).__name__}: {lack}"]
        if found:
            wrong[each["name"]] = found
    return wrong


# What functions put in the place of a value that the text tells; the schema says of each record that one does.
COMPLETED = {
    "CFG_MODULE_INFO.abObjectImageSize",  # of a size that is told in a filter of its own
    "CFG_RECORD_INFO.bHolidayEnable",  # only with an eighth row of periods
    "DEV_EVENT_QSYTRAFFICCARWEIGHT_INFO.dwAxleNum",  # cut at the room for axles
    "CFG_VSP_GAYS_INFO.nAlarmInSum",  # the list's own count prevails
    "CFG_VSP_GAYS_INFO.nChannelSum",
    "EVENT_OBJECT_INFO.szObjectSubType",  # a vehicle's plate and its type
    "EVENT_OBJECT_INFO.szText",
}
# Keys that functions read and that are sent, but of which nothing is compared: what a function takes stands in no
# schema, so that the text that is sent may be none that it reads.
UNCOMPARED = {
    "commands": {
        "it has no member of its own, or one behind a null pointer": 1,
        "it reads a key that another member is told by": 18,
        # Counts of lists, what only a request tells, and lists that are taken whole.
        "its member stays the same: nothing tells what it takes": 12,
        "the text is refused without it": 5,
    },
    "events": {
        "its member stays the same: nothing tells what it takes": 2,
        "it reads a key that another member is told by": 3,
    },
}
# Which values a broken schema may move: of these the test must find every one.
PLAIN = ("bool", "int", "uint", "real", "text", "rawText", "names")


class Values(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.schema = json.loads(subprocess.run([COMPANION, "schema"], stdout=subprocess.PIPE, check=True).stdout)

    def expect_none(self, wrong, trial):
        lines = [f"{name}: {each}"[:400] for name, found in wrong.items() for each in found[:4]]
        print(f"{trial.looked} values, {trial.by_function} keys read by functions, {trial.shared} shared",
              file=sys.stderr)
        print(f"  of the keys read by functions {trial.exact} values are compared, {trial.moved} members by what a key "
              f"changes; not compared: {dict(trial.uncompared)}", file=sys.stderr)
        self.assertEqual(sorted(trial.completed - COMPLETED), [])
        self.assertFalse(lines, "\n" + "\n".join(lines[:100]))

    def expect_compared(self, trial, compared, uncompared):
        """So many keys that functions read are compared at least, and no more are not, for whichever reason."""
        self.assertGreaterEqual(trial.exact + trial.moved, compared)
        for reason, count in trial.uncompared.items():
            self.assertLessEqual(count, uncompared.get(reason, 0), reason)

    def run_all(self, kind, method, skip=lambda each: False, **words):
        trial = Trial(self.schema, **words)
        self.expect_none(all_wrong(trial, kind, getattr(trial, method), skip), trial)
        return trial

    def test_commands(self):
        trial = self.run_all("commands", "command", lambda each: not each["parse"])
        # Nearly all is decided by the schema.
        self.assertLess((trial.by_function + trial.shared) * 25, trial.looked)
        self.expect_compared(trial, 947, UNCOMPARED["commands"])

    def test_second_keys(self):
        self.run_all("commands", "command", lambda each: not each["parse"], second=True)
        self.run_all("events", "event", lambda each: not each["name"], second=True)

    def test_unknown_texts_of_codes(self):
        self.run_all("commands", "command", lambda each: not each["parse"], unknown=True)

    def test_absent_keys(self):
        self.run_all("commands", "absent", lambda each: not each["parse"])

    def test_events(self):
        # An event without a name is one that another turns into.
        trial = self.run_all("events", "event", lambda each: not each["name"])
        self.expect_compared(trial, 601, UNCOMPARED["events"])
        self.assertLess(sum(not each["name"] for each in self.schema["events"]), 3)

    def test_typed(self):
        self.run_all("typed", "typed")

    def test_templates(self):
        self.run_all("templates", "template")

    def test_finds_what_is_wrong_with_a_schema(self):
        records = {record["name"]: record for record in self.schema["records"]}
        bends = {
            "offset": lambda field: field.update(offset=field["offset"] + 1),
            "key": lambda field: field.update(key=field["key"] + "x"),
            "type": lambda field: field.update(type="i32" if field["type"] in ("f32", "f64") else "f32", dims=[],
                                               kind="int"),
            "codes": lambda field: [code.update(code=code["code"] + 1) for code in field["codes"]],
            "flag": lambda field: field.update(flag=field["name"]),
            "count": lambda field: field.update(count=field["other"]),
        }
        tried = dict.fromkeys(bends, 0)
        for command in self.schema["commands"]:
            record = records[command["record"]]
            if not command["parse"] or "forms" in record or record.get("afterRead"):
                continue
            for index, field in enumerate(record["fields"]):
                if field["kind"] not in PLAIN or field.get("relativeTo") != "record" or "pointer" in field:
                    continue
                if sum(other.get("key") == field["key"] for other in record["fields"]) > 1:
                    continue  # the value is made for one of them
                for word, bend in bends.items():
                    if (word in ("codes", "flag", "count") and word not in field) or tried[word] >= 40:
                        continue
                    bent = dict(self.schema, records=[copy.deepcopy(record) if each is record else each
                                                      for each in self.schema["records"]])
                    place = next(each for each in bent["records"] if each["name"] == record["name"])
                    bent_field = place["fields"][index]
                    others = [other["name"] for other in record["fields"] if not other["dims"]
                              and other["type"] == "i32" and "role" not in other]
                    if (word == "count" and not others) or (word == "flag" and field["kind"] in ("bool", "names")):
                        continue  # nothing else to count; the value of such a flag is the same
                    bent_field["other"] = (others or [""])[0]
                    bend(bent_field)
                    trial = Trial(bent)
                    found = all_wrong(trial, "commands", trial.command, lambda each: each is not command)
                    self.assertTrue(found, f"{command['name']}: {field['name']}, {word}")
                    tried[word] += 1
                if index > 20:
                    break
        print(tried, file=sys.stderr)
        self.assertGreaterEqual(min(tried.values()), 5)
        self.assertGreaterEqual(sum(tried.values()), 180)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
