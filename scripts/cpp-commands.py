#!/usr/bin/env python3
"""Makes include/orrery/cpp_commands.h from `orrery schema`: cpp-commands.py SCHEMA.json > include/orrery/cpp_commands.h

A type for each command, and of each record the commands, rules and events that it is of."""
import json
import re
import sys

HEAD = """// Made by scripts/cpp-commands.py from `orrery schema`; do not edit. Included by orrery/cpp.h, which tells what it is
// for: a type for each command and method, and of each record what it is the record of.
#ifndef ORRERY_CPP_COMMANDS_H
#define ORRERY_CPP_COMMANDS_H

#include "orrery/cpp_records.h"

// clang-format off
"""
TAIL = """
} // namespace orrery
// clang-format on

#endif
"""


def identifier(name):
    return re.sub(r"\W+", "_", name)


def command_type(command):
    flags = "true, %s, %s" % (str(command["parse"]).lower(), str(command["pack"]).lower())
    return 'struct %s : detail::command< ::%s, %s> { static const char* name() { return "%s"; } };' % (
        identifier(command["name"]), command["record"], flags, command["name"])


def only(names):
    """The type of the one command, or what tells that there are several or none."""
    if not names:
        return "detail::no_command"
    return "commands::" + identifier(names[0]) if len(names) == 1 else "detail::several_commands"


def codes(numbers):
    return "codes<%s>" % ", ".join("%du" % number for number in sorted(numbers))


def declared(names):
    """As many declarations a line as it holds."""
    lines = [""]
    for name in names:
        word = "struct %s; " % name
        if len(lines[-1]) + len(word) > 121:
            lines.append("")
        lines[-1] += word
    return [line.rstrip() for line in lines]


def main():
    with open(sys.argv[1], encoding="utf-8") as file:
        schema = json.load(file)
    sizes = {record["name"]: record["size"] for record in schema["records"]}
    commands = schema["commands"]
    names = [identifier(command["name"]) for command in commands]
    assert len(set(names)) == len(names), "two commands have one identifier"
    of_record = {}
    for command in commands:
        of_record.setdefault(command["record"], []).append(command)
    others = {command["otherRecord"]: command for command in commands if "otherRecord" in command}
    rules, events = {}, {}
    for rule in schema["rules"]:
        rules.setdefault(rule["record"], set()).add(rule["code"])
    for event in schema["events"] + schema["typed"]:
        events.setdefault(event["record"], set()).add(event["code"])
    templates = schema["templates"]

    out = [HEAD]
    used = set(of_record) | set(others) | set(rules) | set(events) | {row["record"] for row in templates}
    out += declared(sorted(used))
    out += ["", "namespace orrery {", "",
            "// Configurations and methods, each under its name; what cannot stand in a name is '_'.",
            "namespace commands {"]
    out += [command_type(command) for command in commands]
    out += ["} // namespace commands", "",
            "// Methods of parse_template().",
            "namespace templates {"]
    out += ['struct %s : detail::command< ::%s, false, true, false> { static const char* name() { return "%s"; } };' %
            (identifier(row["name"]), row["record"], row["name"]) for row in templates]
    out += ["} // namespace templates", "", "namespace detail {"]
    rows = {}
    for name, served in of_record.items():
        rows[name] = (only([c["name"] for c in served if c["parse"]]), only([c["name"] for c in served if c["pack"]]),
                      "commands::" + identifier(served[0]["name"]))
    for name, command in others.items():
        one = "commands::" + identifier(command["name"])
        rows.setdefault(name, (one, one, one))
    for row in templates:
        rows.setdefault(row["record"], ("no_command", "no_command", "templates::" + identifier(row["name"])))
    for name in sorted(used):
        served = ", ".join(rows[name]).replace("detail::", "") if name in rows else ""
        coded = [codes(of.get(name, ())) for of in (rules, events)]
        while coded and coded[-1] == "codes<>":
            coded.pop()
        base = "known_record" if served or not coded else "coded_record"
        words = ", ".join(word for word in ["%d" % sizes[name], served] + coded if word)
        out.append("template <> struct record_of< ::%s> : %s<%s> {};" % (name, base, words))
    out += ["} // namespace detail"]
    print("\n".join(out) + TAIL, end="")


if __name__ == "__main__":
    main()
