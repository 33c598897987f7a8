"""The index of the search: a script, so that it loads from a folder without a server."""
import json
import re

KINDS = ("command", "record", "rule", "event", "text", "template", "list", "constant", "code", "key", "page")


def index(pages, indexes):
    """`records`: names. `entries`: [kind, name, address, what is said of it]. `keys`: {key: [record, member, ...]}, records
    by their number."""
    model, places = pages.model, pages.places
    schema, entries = model.schema, []

    def add(kind, name, address, says):
        entries.append([KINDS.index(kind), name, address, says[:110]])

    for each in schema["commands"]:
        add("command", each["name"], places["command", each["name"]], indexes.summary(each["record"]))
    for kind, prefix, rows in (("rule", "ORRERY_RULE", schema["rules"]), ("event", "ORRERY_EVENT", schema["events"])):
        for each in rows:
            name = each["name"] or str(each["code"])
            add(kind, name, places[kind, name], f"{each['code']} {each['record']}")
    for each in schema["typed"]:
        add("text", each["name"], places["typed", each["name"]], f"{each['code']} {each['record']}")
    for each in schema["templates"]:
        add("template", each["name"], places["template", each["name"]], each["record"])
    for each in schema["records"]:
        add("record", each["name"], places["record", each["name"]], indexes.summary(each["name"]))
    for each in schema["enumerations"]:
        add("list", each["name"], places["list", each["name"]], each.get("doc", ""))
        for constant in each["constants"]:
            doc = constant.get("doc", "")
            texts = re.match(r'(?:"[^"]*"(?:, )?)*', doc).group()
            add(
                "constant",
                constant["name"],
                f"{places['list', each['name']]}#{constant['name']}",
                f"{constant['value']} {doc}",
            )
            for text in re.findall(r'"([^"]+)"', texts):
                add(
                    "code",
                    text,
                    f"{places['list', each['name']]}#{constant['name']}",
                    f"{constant['value']} {constant['name']}",
                )
    for record in schema["records"]:  # texts of codes without constants
        for field in record["fields"]:
            for code in field.get("codes", []):
                if "constant" not in code and code["name"]:
                    add(
                        "code",
                        code["name"],
                        f"{places['record', record['name']]}#{field['name']}",
                        f"{code['code']} {record['name']}.{field['name']}",
                    )
    for name, title in (
        ("cookbook.html", "Cookbook"),
        ("schema.html", "Schema"),
        ("platforms.html", "Platforms and compatibility"),
        ("python.html", "Python"),
        ("changes.html", "Changes"),
    ):
        add("page", title, name, "")
    numbers = {record["name"]: i for i, record in enumerate(schema["records"])}
    keys = {
        key: [word for record, member in members for word in (numbers[record], member)]
        for key, members in indexes.key_rows().items()
    }
    users = [", ".join(model.commands_of.get(record["name"], [])[:2]) for record in schema["records"]]
    data = {
        "kinds": KINDS,
        "records": [record["name"] for record in schema["records"]],
        "users": users,
        "entries": entries,
        "keys": keys,
    }
    return "window.orreryIndex=" + json.dumps(data, ensure_ascii=False, separators=(",", ":")) + ";\n"
