#!/usr/bin/env python3
"""schema_test.py COMPANION DOCS: what 'orrery schema' prints is what docs/schema-2.json and docs/schema.md tell of."""
import copy
import json
import re
import subprocess
import sys
import unittest

import jsonschema

COMPANION, DOCS = sys.argv[1:3]


class Schema(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.schema = json.loads(subprocess.run([COMPANION, "schema"], stdout=subprocess.PIPE, check=True).stdout)
        with open(DOCS + "/schema-2.json", encoding="utf-8") as file:
            cls.form = json.load(file)
        jsonschema.Draft202012Validator.check_schema(cls.form)
        cls.validator = jsonschema.Draft202012Validator(cls.form)

    def small(self):
        """The same form with a record, a command and an event only, to be bent."""
        bent = copy.deepcopy({key: value[:1] if isinstance(value, list) else value
                              for key, value in self.schema.items() if key != "records"})
        bent["records"] = [copy.deepcopy(record) for record in self.schema["records"]
                           if record["name"] in ("CFG_ALARM_INPUT_INFO", "CFG_RECT")]
        return bent

    def test_is_of_its_form(self):
        wrong = [f"{list(error.absolute_path)}: {error.message[:200]}"
                 for error in self.validator.iter_errors(self.schema)]
        self.assertEqual(wrong[:10], [])

    def test_the_form_refuses_what_it_does_not_tell_of(self):
        self.assertTrue(self.validator.is_valid(self.small()))

        def refuses(what, bend):
            bent = self.small()
            bend(bent)
            self.assertFalse(self.validator.is_valid(bent), what)

        field = lambda bent: bent["records"][0]["fields"][3]
        refuses("another version", lambda bent: bent.update(schema=1))
        refuses("a word that is not told of", lambda bent: field(bent).update(mystery=True))
        refuses("a kind that is not told of", lambda bent: field(bent).update(kind="mystery"))
        refuses("no doc", lambda bent: field(bent).pop("doc"))
        refuses("an empty doc", lambda bent: field(bent).update(doc=""))
        refuses("a range of one", lambda bent: field(bent).update(range=[1]))
        refuses("a code without its text", lambda bent: field(bent)["codes"][0].pop("name"))
        refuses("a shape of a command", lambda bent: bent["commands"][0]["reading"].update(takes="mystery"))
        refuses("no rules", lambda bent: bent.pop("rules"))

    def test_every_member_is_described(self):
        with open(DOCS + "/schema.md", encoding="utf-8") as file:
            told = set(re.findall(r"`\"?(\w+)\"?`", file.read()))
        members = set()

        def walk(node):
            if isinstance(node, dict):
                members.update(node.get("properties", {}))
                for value in node.values():
                    walk(value)
            elif isinstance(node, list):
                for value in node:
                    walk(value)

        walk(self.form)
        kinds = set(self.form["$defs"]["field"]["properties"]["kind"]["enum"])
        plain = {"array", "object", "other", "read", "write", "events", "data", "action", "list", "bytes", "items"}
        self.assertEqual(sorted((members | kinds) - told - plain), [])

    def test_all_names_lead_somewhere(self):
        forms = {}
        for record in self.schema["records"]:
            forms[record["name"]] = {form["name"] for form in record.get("forms", [])}

        def check(where, node, record="record", form="form"):
            if record not in node:
                return
            self.assertIn(node[record], forms, where)
            named = {node[form]} if form in node else set()
            self.assertTrue(named <= forms[node[record]], where)
            self.assertEqual(bool(named), bool(forms[node[record]]), where)

        for kind in ("commands", "rules", "events", "typed", "templates"):
            for each in self.schema[kind]:
                check(f"{kind} {each['name']}", each)
                check(f"{kind} {each['name']}", each, "otherRecord", "otherForm")
        enumerations = {each["name"]: {constant["name"] for constant in each["constants"]}
                        for each in self.schema["enumerations"]}
        self.assertEqual(len(enumerations), len(self.schema["enumerations"]))
        for record in self.schema["records"]:
            names = {field["name"] for field in record["fields"]}
            for form in [record] + record.get("forms", []):
                self.assertEqual({field["name"] for field in form["fields"]}, names)
                for field in form["fields"] + form.get("secondKeys", []):
                    where = f"{form['name']}.{field['name']}"
                    check(where, field)
                    for word in ("count", "flag", "asked", "room", "readIf", "writeIf"):
                        self.assertIn(field.get(word, field["name"].split(".")[0]), names, f"{where} {word}")
                    for word in ("room", "items", "bytes"):
                        self.assertIn(field.get("pointer", {}).get(word, field["name"].split(".")[0]), names, where)
                    self.assertTrue(set(field.get("of", [])) <= names, where)
                    if "enumeration" in field:
                        constants = enumerations[field["enumeration"]]
                        told = {code["constant"] for code in field.get("codes", []) if "constant" in code}
                        self.assertTrue(told <= constants, where)

    def test_codes_have_their_constants(self):
        field = next(field for record in self.schema["records"] if record["name"] == "CFG_ALARM_INPUT_INFO"
                     for field in record["fields"] if field["name"] == "nSensorType")
        self.assertEqual(field["codes"], [{"code": 0, "name": "NC", "constant": "CFG_SENSOR_NORMALLY_CLOSED"},
                                          {"code": 1, "name": "NO", "constant": "CFG_SENSOR_NORMALLY_OPEN"}])
        self.assertEqual((field["unknownText"], field["unknownCode"], field["unknownCodeText"]), (1, "text", "NO"))
        coded = [field for record in self.schema["records"] for field in record["fields"] if "codes" in field]
        named = [field for field in coded if any("constant" in code for code in field["codes"])]
        self.assertGreater(len(named), 0.9 * len(coded))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
