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

#include <cstddef>
#include <cstdint>

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


def cases(codes):
    return " || ".join("code == %du" % code for code in sorted(codes))


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
    out += ["struct %s;" % name for name in sorted(used)]
    out += ["", "namespace orrery {", "",
            "namespace detail {",
            "struct no_command {};",
            "struct several_commands {};",
            "// What a command's type says of it.",
            "template <class R, bool IsCommand, bool Parses, bool Packs>",
            "struct command {",
            "    using record = R;",
            "    static constexpr bool is_command = IsCommand, parses = Parses, packs = Packs;",
            "};",
            "// What is known of a record: what reads and what writes it, where that is one command only; a command that",
            "// knows its size words; its size.",
            "template <class R>",
            "struct record_of {",
            "    using parsed_by = no_command;",
            "    using packed_by = no_command;",
            "    static const char* any_command() { return nullptr; }",
            "    static constexpr std::size_t size = 0;",
            "};",
            "template <class R>",
            "struct codes_of {",
            "    static constexpr bool is_rule = false, is_event = false;",
            "    static bool rule(std::uint32_t) { return false; }",
            "    static bool event(std::uint32_t) { return false; }",
            "};",
            "} // namespace detail", "",
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
                      served[0]["name"])
    for name, command in others.items():
        one = "commands::" + identifier(command["name"])
        rows.setdefault(name, (one, one, command["name"]))
    for row in templates:
        rows.setdefault(row["record"], ("no_command", "no_command", row["name"]))
    for name in sorted(rows):
        parsed, packed, command = (word.replace("detail::", "") for word in rows[name])
        out.append("template <> struct record_of< ::%s> { using parsed_by = %s; using packed_by = %s; "
                   'static const char* any_command() { return "%s"; } static constexpr std::size_t size = %d; };' %
                   (name, parsed, packed, command, sizes[name]))
    for name in sorted(set(rules) | set(events)):
        if name not in rows:
            out.append("template <> struct record_of< ::%s> { using parsed_by = no_command; using packed_by = no_command; "
                       "static const char* any_command() { return nullptr; } static constexpr std::size_t size = %d; };" %
                       (name, sizes[name]))
        tests = ["static bool %s(std::uint32_t%s) { return %s; }" %
                 (word, " code" if name in of else "", cases(of[name]) if name in of else "false")
                 for word, of in (("rule", rules), ("event", events))]
        out.append("template <> struct codes_of< ::%s> { static constexpr bool is_rule = %s, is_event = %s; %s };" %
                   (name, str(name in rules).lower(), str(name in events).lower(), " ".join(tests)))
    out += ["} // namespace detail"]
    print("\n".join(out) + TAIL, end="")


if __name__ == "__main__":
    main()
