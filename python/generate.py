#!/usr/bin/env python3
"""Makes the typed modules of the package from `orrery schema`: generate.py SCHEMA.json PACKAGE_FOLDER"""

from __future__ import annotations

import json
import keyword
import os
import re
import sys
from typing import Any, Dict, List, Optional, Set

Json = Dict[str, Any]
FORMS = {"i8": "b", "u8": "B", "i16": "h", "u16": "H", "i32": "i", "u32": "I", "i64": "q", "u64": "Q", "f32": "f",
         "f64": "d", "char": "c"}
# Type prefixes of members, as the C headers have them.
PREFIX = re.compile(r"^(?:ab|an|ae|as|astu|stu|psz|pstu|pst|pn|sz|em|dw|by|dbl|bt|n|b|w|f|d|p|u|e|m)(?=[A-Z0-9])")


def snake(name: str) -> str:
    name = re.sub(r"([A-Z]+)([A-Z][a-z])", r"\1_\2", name)
    return re.sub(r"([a-z0-9])([A-Z])", r"\1_\2", name).lower()


def camel(name: str) -> str:
    return "".join(part[:1].upper() + part[1:].lower() for part in name.split("_") if part)


def safe(name: str) -> str:
    if not name or name[0].isdigit():
        name = "_" + name
    return name + "_" if keyword.iskeyword(name) or name in ("size_", "command", "view", "as_dict") else name


# What the module of records imports.
IMPORTED = ("Array", "Bool", "Code", "Field", "Flagged", "Inside", "Listed", "Mask", "Number", "PackedList", "PointedList",
            "PointedText", "Record", "RuleItems", "Text", "List", "Optional", "Union")


def class_names(records: List[Json]) -> Dict[str, str]:
    """Class names of records; where two would be one, both keep their C names."""
    short: Dict[str, str] = {}
    for record in records:
        name = record["name"]
        event = name.startswith("DEV_EVENT_")
        stem = re.sub(r"^(CFG|DEV_EVENT|tag)_", "", re.sub(r"_INFO$", "", name))
        short[name] = safe(camel(stem) + ("Event" if event else ""))
    taken: Dict[str, int] = {name: 1 for name in IMPORTED}
    for name in short.values():
        taken[name] = taken.get(name, 0) + 1
    return {name: one if taken[one] == 1 else name for name, one in short.items()}


def member_names(record: Json) -> Dict[str, str]:
    short = {field["name"]: safe(snake(PREFIX.sub("", field["name"]))) for field in record["fields"]
             if not hidden(record, field)}
    taken: Dict[str, int] = {}
    for name in short.values():
        taken[name] = taken.get(name, 0) + 1
    return {name: one if taken[one] == 1 else safe(snake(name)) for name, one in short.items()}


def items(record: Json) -> Optional[Json]:
    """The member that leads to rules: of a type which the record tells itself, or with a head before each."""
    if "items" not in record:
        return None
    return next(field for field in record["fields"] if field.get("pointer", {}).get("elements") == "bytes")


def hidden(record: Json, field: Json) -> bool:
    """What another member stands for: counts, flags, rooms, size words, reserved bytes."""
    leads = items(record)
    if leads is not None and field["name"] in (leads["pointer"]["items"], leads["pointer"]["bytes"], record["items"]["size"]):
        return True
    return field.get("role") in ("count", "flag", "capacity", "size", "reserved")


def doc_of(words: str) -> str:
    """A documentation string. One that ends in a quote wants a space before the closing ones."""
    words = words.replace("\\", "\\\\").replace('"""', "'''").strip()
    return '"""%s%s"""' % (words, " " if words.endswith('"') else "")


class Generator:
    def __init__(self, schema: Json) -> None:
        self.schema = schema
        self.records = {record["name"]: record for record in schema["records"]}
        self.names = class_names(schema["records"])
        self.enumerations = {one["name"]: one for one in schema["enumerations"]}
        fields = [field for record in schema["records"] for field in record["fields"] if field.get("enumeration")]
        # Where every member that has its codes has them as bits.
        self.masks = ({field["enumeration"] for field in fields if field.get("codesAre") == "bits"}
                      - {field["enumeration"] for field in fields if field.get("codesAre") != "bits"})
        self.enumeration_names = {name: safe(camel(re.sub(r"^(CFG|EM|ORRERY)_", "", name)) + "Code")
                                  for name in self.enumerations}
        counts: Dict[str, int] = {}
        for name in self.enumeration_names.values():
            counts[name] = counts.get(name, 0) + 1
        for name, short in self.enumeration_names.items():
            if counts[short] > 1:
                self.enumeration_names[name] = camel(name) + "Code"

    # ---- enumerations

    def enumerations_module(self) -> str:
        out = ['"""Codes of members. Made by generate.py from the schema."""', "", "from enum import IntEnum, IntFlag", ""]
        for name, one in self.enumerations.items():
            constants = one["constants"]
            prefix = os.path.commonprefix([constant["name"] + "_" for constant in constants]).rsplit("_", 1)[0] + "_"
            if len(constants) == 1:
                prefix = name + "_"
            out += ["", "class %s(%s):" % (self.enumeration_names[name], "IntFlag" if name in self.masks else "IntEnum"),
                    "    " + doc_of(one.get("doc", "") or name)]
            used: Set[str] = set()
            for constant in constants:
                member = constant["name"]
                member = safe(member[len(prefix):] if member.startswith(prefix) else member)
                if member in used:
                    member = constant["name"]
                used.add(member)
                out.append("    %s = %d" % (member, constant["value"]))
            out.append("")
        return "\n".join(out)

    # ---- records

    def number(self, field: Json) -> "tuple[str, str]":
        """The codec of an element and its type."""
        kind, form = field["type"], FORMS[field["type"]]
        if kind in ("f32", "f64"):
            return 'Number[float]("%s")' % form, "float"
        if field.get("kind") == "bool" or field.get("kind") == "presence":
            return 'Bool("%s")' % form, "bool"
        enumeration = field.get("enumeration")
        if enumeration in self.masks:
            name = "enumerations." + self.enumeration_names[enumeration]
            return 'Mask("%s", %s)' % (form, name), name
        if enumeration in self.enumeration_names and field.get("codes") and field.get("codesAre") != "places":
            name = "enumerations." + self.enumeration_names[enumeration]
            return 'Code("%s", %s)' % (form, name), "Union[%s, int]" % name
        return 'Number[int]("%s")' % form, "int"

    def element(self, field: Json) -> "tuple[str, str]":
        if field["type"] == "record":
            name = self.names[field["record"]]
            return "Inside(%s)" % name, name
        if field["type"] == "char":
            capacity = field["dims"][-1] if field["dims"] else 1
            return "Text(%d, %s)" % (capacity, bool(field.get("terminator", True))), "str"
        return self.number(field)

    def plain(self, record: Json, name: str) -> str:
        """A member as a number, for counts and flags."""
        field = next(one for one in record["fields"] if one["name"] == name)
        return 'Field[int](%d, Number[int]("%s"))' % (field["offset"], FORMS[field["type"]])

    def pointed(self, record: Json, field: Json) -> "Optional[tuple[str, str]]":
        elements = field["pointer"]["elements"]
        if elements == "text":
            return "PointedText(%d)" % field["offset"], "Optional[str]"
        if elements == "bytes":
            beside = [field["pointer"]["items"], field["pointer"]["bytes"]]
            made = "RuleItems"
            if "head" not in record["items"]:
                beside, made = [record["items"]["code"], record["items"]["size"]] + beside, "PackedList"
            return ("%s(%d, %s)" % (made, field["offset"], ", ".join(self.plain(record, name) for name in beside)),
                    "List[Record]")
        if "record" in field:
            codec, kind = "Inside(%s)" % self.names[field["record"]], self.names[field["record"]]
        else:
            codec, kind = 'Number[int]("%s")' % FORMS[field["to"]], "int"
        room = field["pointer"].get("room")
        count = self.plain(record, field["count"]) if "count" in field else "None"
        return ("PointedList[%s](%d, %s, %s, %s)" %
                (kind, field["offset"], codec, count, self.plain(record, room) if room else "None"), "List[%s]" % kind)

    def member(self, record: Json, field: Json) -> "Optional[tuple[str, str]]":
        if field["type"] == "ptr":
            return self.pointed(record, field)
        codec, kind = self.element(field)
        dims = field["dims"][:-1] if field["type"] == "char" else field["dims"]
        for level in range(len(dims) - 1, -1, -1):
            codec, kind = "Array[%s](%s, %d)" % (kind, codec, dims[level]), "List[%s]" % kind
        if dims and "count" in field:
            inner = kind[len("List["):-1]
            return "Listed[%s](%d, %s, %s)" % (inner, field["offset"], codec, self.plain(record, field["count"])), kind
        made = "Field[%s](%d, %s)" % (kind, field["offset"], codec)
        if "flag" in field:
            return "Flagged[%s](%s, %s)" % (kind, made, self.plain(record, field["flag"])), "Optional[%s]" % kind
        return made, kind

    def ordered(self) -> List[Json]:
        """Records behind those that they hold or lead to."""
        out: List[Json] = []
        seen: Set[str] = set()

        def visit(name: str) -> None:
            if name in seen:
                return
            seen.add(name)
            for field in self.records[name]["fields"]:
                if "record" in field:
                    visit(field["record"])
            out.append(self.records[name])

        for name in self.records:
            visit(name)
        return out

    def records_module(self) -> str:
        out = ['"""Records of commands, rules and events. Made by generate.py from the schema."""', "",
               "from typing import List, Optional, Union", "", "from . import _enumerations as enumerations",
               "from ._memory import Array, Bool, Code, Field, Flagged, Inside, Listed, Mask, Number, Record, Text",
               "from ._pointers import PackedList, PointedList, PointedText, RuleItems", ""]
        commands: Dict[str, List[str]] = {}
        writers: Dict[str, List[str]] = {}
        for command in self.schema["commands"]:
            commands.setdefault(command["record"], []).append(command["name"])
            if command["pack"]:
                writers.setdefault(command["record"], []).append(command["name"])
        for template in self.schema["templates"]:
            commands.setdefault(template["record"], []).append(template["name"])
        holding: Set[str] = set()  # packed records, themselves or inside
        listing: Set[str] = set()  # with lists of the caller's, themselves or inside
        sizing: Set[str] = set()  # with size words
        for record in self.ordered():
            name = record["name"]
            names = member_names(record)
            out += ["", "class %s(Record):" % self.names[name],
                    "    " + doc_of(record.get("doc") or name), "", "    __slots__ = ()",
                    '    c_name_ = "%s"' % name, "    size_ = %d" % record["size"]]
            if name in commands:
                out.append('    command_ = "%s"' % commands[name][0])
            if name in writers:
                out.append("    is_written_ = True")
            if len(writers.get(name, [])) == 1:
                out.append('    only_command_ = "%s"' % writers[name][0])
            members = []
            holders: List[str] = []  # of packed records
            lists: List[str] = []
            inner: List[str] = []
            sized: List[str] = []
            for field in record["fields"]:
                made = None if hidden(record, field) else self.member(record, field)
                if made is None:
                    continue
                if made[0].startswith("PackedList") or field["type"] == "record" and field["record"] in holding:
                    holders.append(names[field["name"]])
                    holding.add(name)
                if made[0].startswith("RuleItems"):
                    out.append('    items_ = "%s"' % names[field["name"]])
                if field.get("pointer", {}).get("owner") == "caller" and made[0].startswith("PointedList"):
                    lists.append(names[field["name"]])
                if field["type"] == "record" and field["record"] in listing:
                    inner.append(names[field["name"]])
                if field["type"] == "record" and field["record"] in sizing:
                    sized.append(names[field["name"]])
                members.append(names[field["name"]])
                says = [field.get("doc", "")]
                if field.get("unit"):
                    says.append("Unit: %s." % field["unit"])
                if field.get("range"):
                    says.append("Range: %s." % (field["range"],))
                out += ["    %s = %s" % (names[field["name"]], made[0]),
                        "    " + doc_of(" ".join(says))]
            asked = [(next(one["offset"] for one in record["fields"] if one["name"] == field["asked"]), field["dims"][0])
                     for field in record["fields"] if "asked" in field]
            if asked:
                out.append("    asked_ = %r" % asked)
            words = [field["offset"] for field in record["fields"] if field.get("role") == "size"]
            if words:
                out.append("    size_word_ = %d" % words[0])
            for attribute, found, kind in (("lists_", lists, listing), ("inner_", inner, listing), ("sized_", sized, sizing)):
                if found:
                    kind.add(name)
                    out.append("    %s = %r" % (attribute, found))
            if words:
                sizing.add(name)
            if holders:
                out.append("    packed_ = %r" % holders)
            out += ["    fields_ = %r" % members, ""]
        return "\n".join(out)

    # ---- commands

    def commands_module(self) -> str:
        schema = self.schema
        reads = [command for command in schema["commands"] if command["parse"]]
        rules = {rule["code"]: rule["record"] for rule in schema["rules"]}
        events = {event["code"]: event["record"] for event in schema["events"]}
        typed = {row["code"]: row["record"] for row in schema["typed"]}
        out = ['"""Which record is whose. Made by generate.py from the schema."""', "",
               "from typing import Any, Dict, List, Literal, Protocol, Tuple, Type, Union, overload", "",
               "from . import _records as records", "from ._memory import Record", ""]

        def protocol(name: str, doc: str, rows: List[Json], arguments: str, returns: str) -> None:
            out.extend(["", "class %s(Protocol):" % name, '    """%s"""' % doc, ""])
            for row in rows:
                kind = returns % ("records." + self.names[row["record"]])
                out.extend(["    @overload", '    def __call__(self, %s: Literal["%s"], %s) -> %s: ...' %
                            ("method" if name == "Templates" else "command", row["name"], arguments, kind)])
            out.extend(["    @overload", "    def __call__(self, %s: str, %s) -> %s: ..." %
                        ("method" if name == "Templates" else "command", arguments, returns % "Any"), ""])

        protocol("Reading", "Reads the reply of a command as its record.", reads, "text: Union[str, bytes]", "%s")
        protocol("Several", "Reads as many records as the reply of a command has, `most` at the most.", reads,
                 "text: Union[str, bytes], most: int = 64", "List[%s]")
        protocol("Templates", "Reads a template of analysis settings of a class of rules.", schema["templates"],
                 "text: Union[str, bytes], class_type: int = 1", "%s")

        def table(name: str, kind: str, rows: List[str]) -> None:
            out.extend(["", "%s: %s = {" % (name, kind)] + ["    %s," % row for row in rows] + ["}"])

        table("COMMANDS", "Dict[str, Tuple[str, Type[Record]]]",
              ['"%s": ("%s", records.%s)' % (c["name"].lower(), c["name"], self.names[c["record"]])
               for c in schema["commands"]])
        for name, codes in (("RULES", rules), ("EVENTS", events), ("TYPED", typed)):
            table(name, "Dict[int, Type[Record]]",
                  ["%d: records.%s" % (code, self.names[record]) for code, record in sorted(codes.items())])
        table("TEMPLATES", "Dict[str, Type[Record]]",
              ['"%s": records.%s' % (row["name"], self.names[row["record"]]) for row in schema["templates"]])
        by_code = {row["code"]: row["name"] for row in schema["rules"] + schema["typed"] + schema["events"] if row["name"]}
        table("NAMES_OF_CODES", "Dict[int, str]", ['%d: "%s"' % item for item in sorted(by_code.items())])
        return "\n".join(out) + "\n"


def main() -> None:
    with open(sys.argv[1], encoding="utf-8") as file:
        schema = json.load(file)
    if schema.get("schema") != 2:
        sys.exit("generate.py: a schema of version 2 is wanted")
    made = Generator(schema)
    major, minor = schema["version"].split(".")[:2]
    files = {
        "_version.py": '"""Made by generate.py."""\n\nVERSION = "%s"\nFILE_VERSION = "%s"\n' %
                       (schema["version"], "0." + minor if major == "0" else major),
        "_enumerations.py": made.enumerations_module(),
        "enumerations.py": '"""Codes of members."""\n\nfrom ._enumerations import *  # noqa: F401,F403\n',
        "_records.py": made.records_module(),
        "records.py": '"""Records of commands, rules and events."""\n\nfrom ._records import *  # noqa: F401,F403\n',
        "_commands.py": made.commands_module(),
    }
    os.makedirs(sys.argv[2], exist_ok=True)
    for name, text in files.items():
        with open(os.path.join(sys.argv[2], name), "w", encoding="utf-8") as file:
            file.write(text.rstrip("\n") + "\n")


if __name__ == "__main__":
    main()
