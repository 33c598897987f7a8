"""C and Python programs for everything, made from the schema, and what they print by the companion's account."""
import generate  # of the Python package: its names

from .lending import Lending

ROOM = 8  # records that a program lends where a reply holds several
MOST_SHOWN = 4
PLAIN = ("bool", "int", "uint", "real", "names", "text", "fullText", "rawText")
TEXT_ROOM = 65536


class Sample:
    def __init__(self, name, c, python, c_lines, python_lines, text, packed=None):
        self.name, self.c, self.python = name, c, python
        self.c_output, self.python_output = c_lines, python_lines
        self.text = text  # what the programs read
        self.packed = packed  # the text that they end with


class Shown:
    """A member that a program prints: its places in both languages, its row and its value."""

    def __init__(self, c, python, row, value):
        # Codes come with their texts.
        self.c, self.python, self.row, self.value = c, python, row, value["code"] if isinstance(value, dict) else value

    def c_print(self, variable, arrow="."):
        row, place = self.row, f"{variable}{arrow}{self.c}"
        if row["type"] == "char":
            # A text may fill its member, without a terminator.
            form = "%s" if row.get("terminator", True) else f"%.{row['dims'][-1]}s"
            return f'printf("{self.c} = {form}\\n", {place});'
        if row["type"] in ("f32", "f64"):
            return f'printf("{self.c} = %g\\n", {place});'
        if row["type"] in ("u32", "u64"):
            form, cast = ("%u", "unsigned") if row["type"] == "u32" else ("%llu", "unsigned long long")
        else:
            form, cast = ("%lld", "long long") if row["type"] == "i64" else ("%d", "int")
        return f'printf("{self.c} = {form}\\n", ({cast}){place});'

    def c_line(self):
        return f"{self.c} = {self.worded()}"

    def python_print(self, variable):
        return f'print(f"{self.python} = {{{variable}.{self.python}{":g" if self.row["type"] in ("f32", "f64") else ""}}}")'

    def python_line(self):
        value = str(bool(self.value)) if self.row["kind"] == "bool" and self.row["type"][0] in "iu" else self.worded()
        return f"{self.python} = {value}"

    def worded(self):
        return f"{self.value:g}" if self.row["type"] in ("f32", "f64") else str(self.value)


class Samples(Lending):
    def __init__(self, model, examples):
        super().__init__(model)
        self.examples = examples

    def shown(self, record, value):
        """Members that the example tells: at first the record's own, then those of records inside."""
        found, inside = [], []
        names = generate.member_names(self.model.records[record])
        for row in self.model.records[record]["fields"]:
            if generate.hidden(self.model.records[record], row) or row["name"] not in value or "pointer" in row:
                continue
            dims = row["dims"][:-1] if row["type"] == "char" else row["dims"]
            if row["type"] == "record" and not dims and row["kind"] == "record" and isinstance(value[row["name"]], dict):
                inside.append(row)
            elif row["kind"] in PLAIN and not dims and row.get("codesAre") != "bits" and "writtenAs" not in row:
                found.append(Shown(row["name"], names[row["name"]], row, value[row["name"]]))
        for row in inside:
            if len(found) >= MOST_SHOWN:
                break
            for each in self.shown(row["record"], value[row["name"]])[:2]:
                found.append(Shown(f"{row['name']}.{each.c}", f"{names[row['name']]}.{each.python}", each.row, each.value))
        return found[:MOST_SHOWN]

    # ---- Commands

    def command(self, command):
        name, record = command["name"], command["record"]
        example = self.examples.commands[name]
        if not example.records:
            return None
        if not command["parse"]:
            return self.written(command, example)
        if "items" in self.model.form(command):
            return self.rules(command, example)
        several, packs = example.count > 1, command["pack"] and not self.writes_room(record)
        room = 1 << max(16, (2 * len(example.packed or "")).bit_length())
        variable = "records" if several else "record"
        first = "records[0]" if several else "record"
        shown = self.shown(record, example.records[0])
        lines, statics = [], []
        for i in range(example.count):
            self.lent(record, f"records[{i}]" if several else "record", example.records[i], lines, statics)
        if self.has_sizes(record):
            lines.insert(
                0, f'if (!ORRERY_SetSizeWords("{name}", {"" if several else "&"}{variable}, sizeof {variable})) return 1;'
            )
        c = [
            f'/* Reads a reply of "{name}"' + (" and writes the text that sets it." if packs else ".") + " */",
            "#include <orrery/orrery.h>",
            "#include <stdio.h>",
            "",
            "int main(void) {",
            f"    static char reply[{TEXT_ROOM}]" + (f", text[{room}];" if packs else ";"),
            f"    static {record} {f'records[{ROOM}]' if several else 'record'};",
        ]
        c += [f"    {each}" for each in statics] + ["    uint32_t length = 0;", ""]
        c.append("    reply[fread(reply, 1, sizeof reply - 1, stdin)] = '\\0';")
        c += [f"    {each}" for each in lines]
        address = variable if several else "&record"
        c.append(f'    if (!CLIENT_ParseData("{name}", reply, {address}, sizeof {variable}, &length)) return 1;')
        c_lines, python_lines = [], []
        if several:
            c.append('    printf("records: %u\\n", (unsigned)(length / sizeof records[0]));')
            c_lines.append(f"records: {example.count}")
        c += [f"    {each.c_print(first)}" for each in shown]
        c_lines += [each.c_line() for each in shown]
        if packs:
            size = "length" if several else "sizeof record"
            c += [
                "",
                f'    if (!CLIENT_PacketData("{name}", {address}, {size}, text, sizeof text)) return 1;',
                "    puts(text);",
            ]
        c += ["    return 0;", "}"]

        call = "parse_all" if several else "parse"
        python = ["import sys", "import orrery", "", f'{variable} = orrery.{call}("{name}", sys.stdin.read())']
        if several:
            python.append('print(f"records: {len(records)}")')
            python_lines.append(f"records: {example.count}")
        python += [each.python_print(first) for each in shown]
        python_lines += [each.python_line() for each in shown]
        if packs:
            python.append(f"print(orrery.pack({variable}))")
        packed = example.packed if packs else None
        return Sample(name, "\n".join(c), "\n".join(python), c_lines, python_lines, example.reply, packed)

    def written(self, command, example):
        """Of a command that is only written: a record of its own."""
        name, record = command["name"], command["record"]
        lines, statics = [], []
        self.lent(record, "record", example.records[0], lines, statics)
        c = [
            f'/* Writes the text that sets "{name}". */',
            "#include <orrery/orrery.h>",
            "#include <stdio.h>",
            "",
            "int main(void) {",
            f"    static char text[{TEXT_ROOM}];",
            f"    static {record} record;",
        ]
        c += [f"    {each}" for each in statics] + [""] + [f"    {each}" for each in lines]
        c += [
            f'    if (!CLIENT_PacketData("{name}", &record, sizeof record, text, sizeof text)) return 1;',
            "    puts(text);",
            "    return 0;",
            "}",
        ]
        return Sample(name, "\n".join(c), "", [], [], None, example.packed)

    # ---- Rules

    def rules(self, command, example):
        """Of a command whose records are packed items."""
        name, form = command["name"], self.model.form(command)
        items, pointer = form["items"], next(each for each in form["fields"] if "items" in each.get("pointer", {}))
        data, count, size = pointer["name"], pointer["pointer"]["items"], pointer["pointer"]["bytes"]
        codes = [each["head"][items["code"]] for each in example.records[0][data]]
        packs = command["pack"]
        c = f"""/* Reads the rules of "{name}"{' and writes the text that sets them' if packs else ''}. */
#include <orrery/orrery.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

int main(void) {{
    static char reply[{TEXT_ROOM}]{f', text[{TEXT_ROOM}]' if packs else ''};
    {command['record']} rules = {{0}};
    size_t at = 0;

    reply[fread(reply, 1, sizeof reply - 1, stdin)] = '\\0';
    rules.{size} = (int32_t)ORRERY_RuleBytes("{name}", reply);
    rules.{data} = malloc((size_t)rules.{size});
    if (!rules.{data} || !CLIENT_ParseData("{name}", reply, &rules, sizeof rules, NULL)) return 1;
    for (int i = 0; i < rules.{count}; ++i) {{
        {items['head']} head;
        memcpy(&head, rules.{data} + at, sizeof head); /* items are aligned for nothing */
        printf("rule %u\\n", (unsigned)head.{items['code']});
        at += sizeof head + (size_t)head.{items['size']};
    }}
"""
        if packs:
            c += f"""
    if (!CLIENT_PacketData("{name}", &rules, sizeof rules, text, sizeof text)) return 1;
    puts(text);
"""
        c += f"    free(rules.{data});\n    return 0;\n}}"
        python = [
            "import sys",
            "import orrery",
            "",
            f'rules = orrery.parse_rules(sys.stdin.read(), "{name}")',
            "for rule in rules:",
            '    print(f"rule {rule.code}")',
        ]
        if packs:
            python.append(f'print(orrery.pack_rules(rules, "{name}"))')
        lines = [f"rule {code}" for code in codes]
        packed = example.packed if packs else None
        return Sample(name, c, "\n".join(python), lines, lines, example.reply, packed)

    def rule(self, rule):
        example = self.examples.rules[rule["name"]]
        command, form = self.model.commands[example.command], self.model.form({"record": rule["descriptor"]})
        items, descriptor = form["items"], rule["descriptor"]
        pointer = next(each for each in form["fields"] if "items" in each.get("pointer", {}))
        members = {**pointer["pointer"], "data": pointer["name"]}
        item = next(value for value in example.records[0][pointer["name"]] if value["name"] == rule["name"])
        shown = self.shown(rule["record"], item["record"])
        constant = self.model.code_constant("ORRERY_RULE", rule["code"])
        code = constant or str(rule["code"])
        head = items["head"]
        prints = [f"            {each.c_print('rule')}" for each in shown]
        c = (
            f"""/* Walks the rules of a channel and shows those of "{rule['name']}". */
#include <orrery/orrery.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

int main(void) {{
    static char reply[{TEXT_ROOM}];
    static {rule['record']} rule;
    {descriptor} rules = {{0}};
    size_t at = 0;

    reply[fread(reply, 1, sizeof reply - 1, stdin)] = '\\0';
    rules.{members['bytes']} = (int32_t)ORRERY_RuleBytes("{command['name']}", reply);
    rules.{members['data']} = malloc((size_t)rules.{members['bytes']});
    if (!rules.{members['data']}) return 1;
    if (!CLIENT_ParseData("{command['name']}", reply, &rules, sizeof rules, NULL)) return 1;
    for (int i = 0; i < rules.{members['items']}; ++i) {{
        {head} head;
        memcpy(&head, rules.{members['data']} + at, sizeof head); /* items are aligned for nothing */
        if (head.{items['code']} == {code}) {{
            memcpy(&rule, rules.{members['data']} + at + sizeof head, sizeof rule);
"""
            + "\n".join(prints)
            + f"""
        }}
        at += sizeof head + (size_t)head.{items['size']};
    }}
    free(rules.{members['data']});
    return 0;
}}"""
        )
        python = [
            "import sys",
            "import orrery",
            "",
            f'for rule in orrery.parse_rules(sys.stdin.read(), "{command["name"]}"):',
            f'    if rule.name == "{rule["name"]}":',
        ]
        python += [f"        {each.python_print('rule.record')}" for each in shown] or ["        print(rule.code)"]
        if not shown:
            return None
        return Sample(
            rule["name"],
            c,
            "\n".join(python),
            [each.c_line() for each in shown],
            [each.python_line() for each in shown],
            example.reply,
        )

    # ---- Events, typed texts, templates

    def delivered(self, name, example, told, record, call, constant, python_call):
        """Programs whose callback is handed a record."""
        value = told.get("record") or (told.get("records") or [{}])[0]
        shown = self.shown(record, value)
        prints = [f"    {each.c_print('record', '->')}" for each in shown]
        code = constant or str(told["code"])
        c = (
            f"""/* Shows each "{name}" of a text. */
#include <orrery/orrery.h>
#include <stdio.h>

static int32_t on_event(uint32_t type, const void* data, uint32_t size, void* reserved, int32_t sequence, void* user) {{
    const {record}* record = data; /* lives only during the call */
    (void)size, (void)reserved, (void)sequence, (void)user;
    if (type != {code}) return 0;
    puts("{name}");
"""
            + "".join(each + "\n" for each in prints)
            + f"""    {'' if shown else '(void)record; '}return 0;
}}

int main(void) {{
    static char text[{TEXT_ROOM}];
    const size_t length = fread(text, 1, sizeof text - 1, stdin);
    return !{call}(text, (uint32_t)length, on_event, NULL);
}}"""
        )
        python = [
            "import sys",
            "import orrery",
            "",
            f"for event in orrery.{python_call}(sys.stdin.read()):",
            f"    if event.code == {told['code']}:",
            f'        print("{name}")',
        ]
        python += [f"        {each.python_print('event.record')}" for each in shown]
        return Sample(
            name,
            c,
            "\n".join(python),
            [name] + [each.c_line() for each in shown],
            [name] + [each.python_line() for each in shown],
            example.reply,
        )

    def event(self, event):
        example = self.examples.events[event["name"]]
        told = example.records[0]
        # The data may tell another code than the event's own.
        record = next(each["record"] for each in self.model.schema["events"] if each["code"] == told["code"])
        return self.delivered(
            event["name"],
            example,
            told,
            record,
            "CLIENT_ParseAnalyzerEventData",
            self.model.code_constant("ORRERY_EVENT", told["code"]),
            "events",
        )

    def typed(self, typed):
        example = self.examples.typed[typed["name"]]
        told = next(each for each in example.records if each["name"] == typed["name"])
        return self.delivered(
            typed["name"],
            example,
            told,
            typed["record"],
            "CLIENT_ParseDataByCallback",
            self.model.code_constant("ORRERY_TYPED", told["code"]),
            "typed",
        )

    def template(self, template):
        name, record = template["name"], template["record"]
        example = self.examples.templates[name]
        shown = self.shown(record, example.records[0])
        if not shown:
            return None
        constant = self.model.code_constant("CFG_RULE_CLASS", example.code)
        lines, statics = [], []
        self.lent(record, "record", example.records[0], lines, statics)
        if self.has_sizes(record):
            lines.insert(0, f'if (!ORRERY_SetSizeWords("{name}", &record, sizeof record)) return 1;')
        c = [
            f'/* Reads a template of "{name}". */',
            "#include <orrery/orrery.h>",
            "#include <stdio.h>",
            "",
            "int main(void) {",
            f"    static char reply[{TEXT_ROOM}];",
            f"    static {record} record;",
        ]
        c += [f"    {each}" for each in statics] + ["", "    reply[fread(reply, 1, sizeof reply - 1, stdin)] = '\\0';"]
        c += [f"    {each}" for each in lines]
        c.append(f'    if (!CLIENT_ParseVideoInAnalyse("{name}", {constant}, reply, "", &record, sizeof record)) return 1;')
        c += [f"    {each.c_print('record')}" for each in shown] + ["    return 0;", "}"]
        python = [
            "import sys",
            "import orrery",
            "",
            f'record = orrery.parse_template("{name}", sys.stdin.read(), {example.code})',
        ]
        python += [each.python_print("record") for each in shown]
        return Sample(
            name,
            "\n".join(c),
            "\n".join(python),
            [each.c_line() for each in shown],
            [each.python_line() for each in shown],
            example.reply,
        )

    def all(self):
        """Every sample, by kind and name."""
        schema, made = self.model.schema, {}
        for kind, rows, make, known in (
            ("commands", schema["commands"], self.command, self.examples.commands),
            ("rules", schema["rules"], self.rule, self.examples.rules),
            ("events", schema["events"], self.event, self.examples.events),
            ("typed", schema["typed"], self.typed, self.examples.typed),
            ("templates", schema["templates"], self.template, self.examples.templates),
        ):
            for each in rows:
                if each["name"] in known:
                    sample = make(each)
                    if sample:
                        made[kind, each["name"]] = sample
        return made
