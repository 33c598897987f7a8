"""What the pages ask of the schema and the headers: who uses what, and where it is described."""
import re


def file_name(name):
    """A name as a file of its own on every file system and in every address."""
    return re.sub(r"[^A-Za-z0-9_.-]", "_", name) + ".html"


class Model:
    def __init__(self, schema, words, headers):
        """`words`: the schema's own description, docs/schema-2.json. `headers`: the texts of the headers by name."""
        self.schema, self.headers = schema, headers
        self.records = {record["name"]: record for record in schema["records"]}
        self.enumerations = {each["name"]: each for each in schema["enumerations"]}
        self.commands = {command["name"]: command for command in schema["commands"]}
        self.constants = {
            constant["name"]: (each["name"], constant["value"])
            for each in schema["enumerations"]
            for constant in each["constants"]
        }
        # Lower case as well: the texts of a device name commands in any case.
        self.folded = {name.lower(): name for name in self.commands}
        self.header_of = self.find_headers()
        self.described = descriptions(words)
        self.commands_of, self.users_of = {}, {}
        for command in schema["commands"]:
            for word in ("record", "otherRecord"):
                if word in command:
                    self.commands_of.setdefault(command[word], []).append(command["name"])
        for record in schema["records"]:
            for row in all_rows(record):
                if "record" in row and row["record"] != record["name"]:
                    users = self.users_of.setdefault(row["record"], [])
                    if record["name"] not in users:
                        users.append(record["name"])
        self.code_users = {}
        for record in schema["records"]:
            for field in record["fields"]:
                if "enumeration" in field:
                    self.code_users.setdefault(field["enumeration"], []).append((record["name"], field["name"]))

    def find_headers(self):
        found = {}
        for header, text in self.headers.items():
            for name in re.findall(r"^\}\s*(\w+);", text, re.M):
                found[name] = header
            for name in re.findall(r"^\s+([A-Z][A-Z0-9_]+)\s*=\s*[-(0-9]", text, re.M):
                found.setdefault(name, header)
        return found

    def form(self, node):
        """The record that a node names, in the form that it names."""
        record = self.records[node["record"]]
        if "form" in node:
            return next(each for each in record["forms"] if each["name"] == node["form"])
        return record

    def family(self, header):
        """What a header is about: the first sentence of its comment."""
        match = re.match(r"/\*(.*?)\*/", self.headers[header], re.S) or re.match(r"((?://[^\n]*\n)+)", self.headers[header])
        if not match:
            return ""
        text = re.sub(r"^\s*(?:\*|//) ?", "", match.group(1).strip(), flags=re.M).split("\n\n")[0]
        return re.split(r"(?<=[.:])\s", " ".join(text.split()))[0].rstrip(".:")

    def code_constant(self, prefix, value):
        """The constant of a list with a value: of rules ORRERY_RULE, of events ORRERY_EVENT."""
        for constant in self.enumerations[prefix]["constants"]:
            if constant["value"] == value:
                return constant["name"]
        return None


def all_rows(record):
    """Every row of a record and its forms."""
    for form in [record] + record.get("forms", []):
        for word in ("fields", "secondKeys", "otherKeys"):
            yield from form.get(word, [])


def descriptions(words):
    """What the schema's own description says of each word, by the part that has it."""
    found = {}

    def walk(node, part):
        if isinstance(node, list):
            for each in node:
                walk(each, part)
        if not isinstance(node, dict):
            return
        for name, each in node.get("properties", {}).items():
            if isinstance(each, dict):
                if "description" in each:
                    found.setdefault((part, name), each["description"])
                walk(each, name)
        for word in ("items", "allOf", "anyOf", "oneOf"):
            walk(node.get(word), part)
        for name, each in node.get("$defs", {}).items():
            walk(each, name)

    walk(words, "schema")
    return found
