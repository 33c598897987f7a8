"""A page for every command, record, rule, event, typed text, template and list of codes."""
import json
import re

from . import markup, words
from .fields import Fields
from .markup import code, esc, json_text, page
from .model import file_name

UP = "../"


def places_of(model):
    """Where everything has its page."""
    places = {}
    for kind, folder, rows in (
        ("command", "commands", model.schema["commands"]),
        ("rule", "rules", model.schema["rules"]),
        ("event", "events", model.schema["events"]),
        ("typed", "texts", model.schema["typed"]),
        ("template", "texts", model.schema["templates"]),
        ("record", "records", model.schema["records"]),
        ("list", "codes", model.schema["enumerations"]),
    ):
        for each in rows:
            name = each["name"] or f"{each['code']}"
            places[kind, name] = f"{folder}/{file_name(name)}"
    for name, (of, _) in model.constants.items():
        places["constant", name] = f"{places['list', of]}#{name}"
    # What a word of the headers means: some lists have the name of a record, or of their first constant.
    for kind in ("list", "constant", "record"):
        places.update({("name", name): to for (of, name), to in places.items() if of == kind})
    return places


def first_sentence(text):
    return re.split(r"(?<=[.;])\s", text, maxsplit=1)[0].rstrip(";")


class Pages:
    def __init__(self, model, examples, samples):
        self.model, self.examples, self.samples = model, examples, samples
        self.places = places_of(model)
        self.prose = markup.Prose(model, self.places)
        self.fields = Fields(model, self.prose, self.places)
        self.files = {}

    def link(self, kind, name, root=UP, shown=None):
        to = self.places.get((kind, name))
        text = f"<code>{esc(shown or name)}</code>"
        return f'<a href="{root}{to}">{text}</a>' if to else text

    def links(self, kind, names, most=40):
        names = list(names)
        shown = ", ".join(self.link(kind, each) for each in names[:most])
        return shown + (f" and {len(names) - most} more" if len(names) > most else "")

    def facts(self, rows):
        return (
            '<dl class="facts">'
            + "".join(f"<div><dt>{esc(name)}</dt><dd>{value}</dd></div>" for name, value in rows if value)
            + "</dl>"
        )

    def header_fact(self, record):
        header = self.model.header_of.get(record)
        return f"<code>&lt;{esc(header)}&gt;</code>" if header else ""

    def doc(self, text, here, css="doc"):
        return f'<p class="{css}">{self.prose.html(text, UP, here)}</p>' if text else ""

    def columns(self, pairs):
        """Two things side by side."""
        return (
            '<div class="pair">'
            + "".join(f"<figure><figcaption>{name}</figcaption>{what}</figure>" for name, what in pairs)
            + "</div>"
        )

    def envelope(self, shape, holder):
        """JSON with a record's name where the record stands: `shape` has it as the text "@"."""
        text = json_text(shape)
        for quoted in ('<span class="s">&quot;@&quot;</span>', '<span class="k">&quot;@&quot;</span>'):
            text = text.replace(quoted, holder)
        return text

    def sample_sections(self, kind, name):
        sample = self.samples.get((kind, name))
        if not sample:
            return ""
        parts = []
        for language, source, lines, packed in (
            ("C", sample.c, sample.c_output, sample.packed),
            ("Python", sample.python, sample.python_output, sample.packed),
        ):
            if not source:
                continue
            if packed and len(packed) > markup.LARGE // 10:
                packed = packed[: markup.LARGE // 10] + " …"
            out = "\n".join(lines + ([packed] if packed else []))
            printed = f'<p class="prints">prints</p>{code(out)}' if out else ""
            parts.append(f"<h3>{language}</h3>{code(source, language.lower())}{printed}")
        return (
            '<section><h2 id="programs">Programs</h2>'
            + "".join(f'<div class="program">{each}</div>' for each in parts)
            + "</section>"
        )

    def example_section(self, example, title="Example", text="The reply"):
        if not example.reply or not example.records:
            return ""
        told = example.records if len(example.records) > 1 else example.records[0]
        return (
            f'<section><h2 id="example">{title}</h2><p class="note">Made from the schema, and read by the library when this page was made: '
            "members that the text does not tell are left out.</p>"
            + self.columns(((text, json_text(example.reply)), ("The record", json_text(told))))
            + "</section>"
        )

    def field_sections(self, node, here, form=None):
        form = form or self.model.form(node)
        inside = self.fields.inside(form, UP, here)
        shape = {
            "tuple": "A list of exactly these elements.",
            "longTuple": "A list of at least these elements.",
            "looseTuple": "A list of these elements; missing ones read as null.",
        }.get(form["shape"], "")
        return f'<section><h2 id="fields">Fields</h2>{self.doc(shape, here, "note")}{self.fields.table(form, UP, here)}{inside}</section>'

    def put(self, here, title, body, kind, summary, trail, contents):
        self.files[here] = page(title, body, UP, kind, summary, trail, contents)

    # ---- Commands

    def command(self, command):
        name, here = command["name"], self.places["command", command["name"]]
        record = self.model.records[command["record"]]
        example = self.examples.commands[name]
        ways = [each for each, has in (("parse", command["parse"]), ("pack", command["pack"])) if has]
        badges = "".join(f'<span class="badge">{each}</span>' for each in ways)
        siblings = [each for each in self.model.commands_of[command["record"]] if each != name]
        body = [
            f"<h1>{esc(name)} {badges}</h1>",
            self.doc(record.get("doc", ""), here),
            self.facts(
                (
                    ("Record", self.link("record", command["record"]) + f' {record["size"]} bytes'),
                    (
                        "Or",
                        self.link("record", command["otherRecord"]) + " for a buffer of exactly its size"
                        if "otherRecord" in command
                        else "",
                    ),
                    ("Header", self.header_fact(command["record"])),
                    ("With the same record", self.links("command", siblings)),
                )
            ),
        ]
        body.append(self.command_envelope(command, example))
        body.append(self.field_sections(command, here))
        body.append(self.example_section(example))
        if example.request:
            body.append(
                '<section><h2 id="request">The request that sets it</h2>'
                f'<p class="note">As <code>orrery pack --request {esc(name)}</code> prints it for the record above.</p>{json_text(example.request)}</section>'
            )
        body.append(self.sample_sections("commands", name))
        contents = [("envelope", "Envelope"), ("fields", "Fields")]
        contents += [("example", "Example")] if example.reply else []
        contents += [("request", "Request")] if example.request else []
        contents += [("programs", "Programs")] if ("commands", name) in self.samples else []
        self.put(
            here,
            name,
            "".join(body),
            "Commands",
            first_sentence(record.get("doc", "")),
            (("commands/index.html", "Commands"),),
            contents,
        )

    def command_envelope(self, command, example):
        parts, holder = [], f'<em>{self.link("record", command["record"])}</em>'
        if command["parse"]:
            reading = command["reading"]
            shape = {"result": True}
            value = {"array": ["@", "@"]}.get("array") if reading["shapes"]["array"] == "records" else "@"
            if reading["shapes"]["object"] == "members":
                value = {"name": "@", "another": "@"}
            put_at(shape, reading["value"][0], value)
            parts.append(("The reply", self.envelope(shape, holder) + self.said("parse", example)))
        if command["pack"]:
            request = json.loads(json.dumps(example.request)) if example.request else None
            if request and isinstance(request.get("params"), dict) and "table" in request["params"]:
                table = request["params"]["table"]
                request["params"]["table"] = ["@", "@"] if isinstance(table, list) and example.count > 1 else "@"
                parts.append(("The request", self.envelope(request, holder) + self.said("pack", example)))
            else:
                parts.append(("The text", self.said("pack", example)))
        return f'<section><h2 id="envelope">Envelope</h2>{self.columns(parts)}</section>'

    def said(self, way, example):
        told = example.says.get(way, [])
        return '<ul class="says">' + "".join(f"<li>{esc(each)}</li>" for each in told) + "</ul>" if told else ""

    # ---- Records

    def record(self, record):
        name, here = record["name"], self.places["record", record["name"]]
        schema = self.model.schema
        rules = [each["name"] for each in schema["rules"] if each["record"] == name]
        events = [each["name"] for each in schema["events"] if each["record"] == name and each["name"]]
        typed = [each["name"] for each in schema["typed"] if each["record"] == name]
        templates = [each["name"] for each in schema["templates"] if each["record"] == name]
        body = [
            f"<h1>{esc(name)}</h1>",
            self.doc(record.get("doc", ""), here),
            self.facts(
                (
                    ("Size", f'{record["size"]} bytes'),
                    ("Header", self.header_fact(name)),
                    ("Commands", self.links("command", self.model.commands_of.get(name, []))),
                    ("Rules", self.links("rule", rules)),
                    ("Events", self.links("event", events)),
                    ("Typed texts", self.links("typed", typed)),
                    ("Templates", self.links("template", templates)),
                    ("Inside", self.links("record", self.model.users_of.get(name, []))),
                )
            ),
        ]
        flags = [
            self.model.described["records", word]
            for word in record
            if word in ("guarded", "takesFirst", "clearsFlags", "startsWhenRead", "writesFunction", "afterRead")
        ]
        if flags:
            body.append('<ul class="says">' + "".join(f"<li>{esc(each)}</li>" for each in flags) + "</ul>")
        body.append(self.field_sections({"record": name}, here, record))
        for form in record.get("forms", []):
            anchor = "form-" + re.sub(r"[^A-Za-z0-9]+", "-", form["name"])
            body.append(
                f'<section><h2 id="{anchor}">As {esc(form["name"].split("@")[-1])}</h2>'
                + self.fields.table(form, UP, here, anchor + ".", "", form["name"])
                + "</section>"
            )
        declared = self.declaration(name)
        if declared:
            body.append(f'<section><h2 id="declaration">Declaration</h2>{code(declared, "c")}</section>')
        contents = [("fields", "Fields")] + ([("declaration", "Declaration")] if declared else [])
        self.put(
            here,
            name,
            "".join(body),
            "Records",
            first_sentence(record.get("doc", "")),
            (("records/index.html", "Records"),),
            contents,
        )

    def declaration(self, name):
        header = self.model.header_of.get(name)
        found = header and re.search(
            rf"^typedef (?:struct|union)[^;{{}}]*\{{(?:(?!^\}}).)*^\}} {name};", self.model.headers[header], re.S | re.M
        )
        return found.group() if found else ""

    # ---- Rules, events and their like

    def body_of(self, kind, name, node, example, facts, envelope, samples, note=""):
        here, record = self.places[kind, name], self.model.records[node["record"]]
        parts = [
            f'<h1>{esc(name)} <span class="badge">{kind}</span></h1>',
            self.doc(record.get("doc", ""), here),
            note,
            self.facts(
                (
                    *facts,
                    ("Record", self.link("record", node["record"]) + f' {record["size"]} bytes'),
                    ("Header", self.header_fact(node["record"])),
                )
            ),
        ]
        if envelope:
            parts.append(f'<section><h2 id="envelope">Envelope</h2>{envelope}</section>')
        parts.append(self.field_sections(node, here))
        if example:
            parts += [self.example_section(example, text="The text"), self.sample_sections(samples, name)]
        contents = (
            [("envelope", "Envelope")] * bool(envelope)
            + [("fields", "Fields")]
            + [("example", "Example")] * bool(example and example.reply)
        )
        contents += [("programs", "Programs")] if (samples, name) in self.samples else []
        folder = here.split("/")[0]
        title = {"rules": "Rules", "events": "Events", "texts": "Events"}[folder]
        self.put(
            here,
            name,
            "".join(parts),
            title,
            first_sentence(record.get("doc", "")),
            ((f"{title.lower()}/index.html", title),),
            contents,
        )

    def constant_fact(self, prefix, number):
        constant = self.model.code_constant(prefix, number)
        return f"{number} " + (self.link("constant", constant) if constant else "")

    def rule(self, rule):
        name, form = rule["name"] or str(rule["code"]), self.model.form({"record": rule["descriptor"]})
        commands = self.model.commands_of[rule["descriptor"]]
        holder, items = f'<em>{self.link("record", rule["record"])}</em>', form["items"]
        envelope = ""
        if not rule.get("writeOnly"):
            shape = {"result": True, "params": {"table": [{items["typeKey"]: name, "@": "@"}]}}
            envelope = self.envelope(shape, holder).replace(f"{holder}: {holder}", holder)
        also = self.link("event", name) if ("event", name) in self.places else ""
        note = "" if not rule.get("writeOnly") else '<p class="note">No text reads as this rule: it is only written.</p>'
        self.body_of(
            "rule",
            name,
            rule,
            self.examples.rules.get(name),
            (
                ("Code", self.constant_fact("ORRERY_RULE", rule["code"])),
                ("Commands", self.links("command", commands)),
                ("Item", self.link("record", items["head"]) + " and the record behind it"),
                ("Event of the name", also),
            ),
            envelope,
            "rules",
            note,
        )

    def event(self, event):
        name, keys = event["name"] or str(event["code"]), self.model.schema["texts"]["events"]
        holder = f'<em>{self.link("record", event["record"])}</em>'
        envelope = note = ""
        if event["name"]:
            envelope = self.envelope(
                {keys["list"][0]: [{keys["name"]: name, keys["action"]: "Pulse", keys["data"]: "@"}]}, holder
            )
        else:
            note = '<p class="note">No text names it: another event turns into it.</p>'
        if event.get("codeFunction"):
            note += '<p class="note">The data tell under which code it is delivered.</p>'
        also = self.link("rule", name) if ("rule", name) in self.places else ""
        told = f'{event["size"]} bytes' if event["size"] != event["recordSize"] else ""
        self.body_of(
            "event",
            name,
            event,
            self.examples.events.get(name),
            (
                ("Code", self.constant_fact("ORRERY_EVENT", event["code"])),
                ("The callback is told", told),
                ("Without data", "delivered too" if event.get("needsNoData") else ""),
                ("Rule of the name", also),
            ),
            envelope,
            "events",
            note,
        )

    def typed(self, typed):
        name, holder = typed["name"], f'<em>{self.link("record", typed["record"])}</em>'
        envelope = self.envelope({name: ["@", "@"] if typed["list"] else "@"}, holder)
        self.body_of(
            "typed",
            name,
            typed,
            self.examples.typed[name],
            (
                ("Code", self.constant_fact("ORRERY_TYPED", typed["code"])),
                ("Function", "<code>CLIENT_ParseDataByCallback</code>"),
            ),
            envelope,
            "typed",
        )

    def template(self, template):
        name, holder = template["name"], f'<em>{self.link("record", template["record"])}</em>'
        envelope = self.envelope({"result": True, "params": {"Normal": "@"} if template["class"] else "@"}, holder)
        self.body_of(
            "template",
            name,
            template,
            self.examples.templates[name],
            (("Function", "<code>CLIENT_ParseVideoInAnalyse</code>"),),
            envelope,
            "templates",
        )

    # ---- Codes

    def enumeration(self, each):
        name, here = each["name"], self.places["list", each["name"]]
        rows = "".join(
            f'<tr id="{esc(constant["name"])}"><th scope="row"><a class="self" href="#{esc(constant["name"])}"><code>{esc(constant["name"])}</code></a></th>'
            f'<td class="number">{constant["value"]}</td><td>{self.prose.html(constant.get("doc", ""), UP, here)}</td></tr>'
            for constant in each["constants"]
        )
        users = "".join(
            f'<li><a href="{UP}{self.places["record", record]}#{esc(field)}"><code>{esc(record)}.{esc(field)}</code></a></li>'
            for record, field in self.model.code_users.get(name, [])
        )
        body = f"<h1>{esc(name)}</h1>{self.doc(each.get('doc', ''), here)}" + self.facts(
            (("Header", self.header_fact(each["constants"][0]["name"])),)
        ) + '<div class="wide" tabindex="0" role="region" aria-label="Constants"><table class="constants"><thead><tr><th scope="col">Constant</th>' f'<th scope="col">Code</th><th scope="col">Text and meaning</th></tr></thead><tbody>{rows}</tbody></table></div>' + (
            f'<section><h2 id="members">Members that have them</h2><ul class="names">{users}</ul></section>' if users else ""
        )
        self.put(here, name, body, "Codes", each.get("doc", ""), (("codes/index.html", "Codes"),), ())

    def all(self):
        schema = self.model.schema
        for make, rows in (
            (self.command, schema["commands"]),
            (self.record, schema["records"]),
            (self.rule, schema["rules"]),
            (self.event, schema["events"]),
            (self.typed, schema["typed"]),
            (self.template, schema["templates"]),
            (self.enumeration, schema["enumerations"]),
        ):
            for each in rows:
                make(each)
        return self.files


def put_at(reply, path, value):
    parts = path.split("/")
    for part in parts[:-1]:
        reply = reply.setdefault(part, {})
    reply[parts[-1]] = value
