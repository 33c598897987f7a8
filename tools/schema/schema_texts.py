"""Whole texts of commands, rules, events, typed texts and templates, made from the schema alone."""
from schema_values import Text, Value


class Made:
    """A text, and what the caller has to hand over with it."""

    def __init__(self, reply, text, size, count=1, code=0):
        self.reply, self.text = reply, text
        self.size, self.count = size, count  # bytes of the caller's buffer, and records in it
        self.code = code                     # of a template's class


def put(reply, path, value):
    parts = path.split("/")
    for part in parts[:-1]:
        reply = reply.setdefault(part, {})
    reply[parts[-1]] = value


def result_of(reading):
    return 1 if reading["result"] == "integerNonZero" else True


class Texts:
    def __init__(self, schema, maker):
        self.schema, self.maker = schema, maker

    def command(self, command):
        """A reply of a command whose record is no buffer of packed items."""
        reading, form = command["reading"], self.maker.form(command)
        size, text, shapes = self.maker.size(command["record"]), Text(), reading["shapes"]
        # The caller's own input stays: its size words are among it.
        sized = reading["stride"] != "record" or reading["clears"] == "kept"
        count = 2 if "records" in (shapes["array"],) or shapes["object"] == "members" else 1
        values = []
        for i in range(count):
            member = None
            if shapes["object"] == "members":
                member = self.maker.member_names(form, count)[i]
            values.append((member, self.maker.record(form, (i * size,), text, sized, member, f"[{i}]." if i else "")))
        value = values[0][1]
        if shapes["object"] == "members":
            value = dict(values)
        elif shapes["array"] == "records":
            value = [each for _, each in values]
        reply = {"result": result_of(reading), **text.reply}
        put(reply, reading["value"][0], value)
        return Made(reply, text, count * size, count)

    def rules_of(self, command):
        """Rules that stand among the packed items of a command's record."""
        return [rule for rule in self.schema["rules"]
                if rule["descriptor"] == command["record"] and not rule.get("writeOnly")]

    def item(self, form, rule):
        """A packed item: its text, and the memory behind the descriptor's pointer."""
        items, text = form["items"], Text()
        pointer = next(field for field in form["fields"] if "items" in field.get("pointer", {}))
        member = lambda word: self.maker.field_of(form, pointer["pointer"][word])
        head = self.maker.records[items["head"]]
        value = self.maker.record(self.maker.form(rule), (pointer["offset"], head["size"]), text)
        value[items["typeKey"]] = rule["name"]
        room = head["size"] + rule["size"]
        if pointer["pointer"]["owner"] == "caller":
            text.before = [Value((pointer["offset"],), "block", room, ""),
                           Value((member("bytes")["offset"],), member("bytes")["type"], room, "")] + text.before
        for name, wanted in ((items["code"], rule["code"]), (items["size"], rule["size"])):
            field = self.maker.field_of(head, name)
            text.after.append(Value((pointer["offset"], field["offset"]), field["type"], wanted, name))
        text.after.append(Value((member("items")["offset"],), member("items")["type"], 1, member("items")["name"]))
        return text, value

    def rule(self, command, rule):
        """A reply of one rule."""
        text, value = self.item(self.maker.form(command), rule)
        reply = {"result": True, **text.reply}
        put(reply, command["reading"]["value"][0], [value])
        return Made(reply, text, self.maker.size(command["record"]))

    def event(self, event):
        form, keys, text = self.maker.form(event), self.schema["texts"]["events"], Text()
        value = self.maker.record(form, (0,), text)
        for field in form["fields"]:
            if field.get("supplied") == "action":
                text.after.append(Value((field["offset"],), field["type"], 2, field["name"]))
        one = {keys["name"]: event["name"], keys["action"]: "Stop", keys["data"]: value, **text.reply}
        return Made({keys["list"][0]: [one]}, text, event["recordSize"])

    def typed(self, typed):
        form, text = self.maker.form(typed), Text()
        value = self.maker.record(form, (0,), text)
        reply = {typed["name"]: [value] if typed["list"] else value, **text.reply}
        return Made(reply, text, self.maker.size(typed["record"]))

    def typed_rule(self, typed, rule):
        """A typed text of one rule."""
        text, value = self.item(self.maker.form(typed), rule)
        return Made({typed["name"]: [value]}, text, self.maker.size(typed["record"]))

    def place_of(self, template):
        around = self.schema["texts"]["templates"]
        if not template["class"]:
            return around["value"][0], 0
        chosen = next(each for each in around["classes"] if each["name"])
        return f"{around['value'][0]}/{chosen['name']}", chosen["code"]

    def template(self, template):
        place, code = self.place_of(template)
        reply, text = {"result": True}, Text()
        put(reply, place, self.maker.record(self.maker.form(template), (0,), text))
        return Made(reply, text, self.maker.size(template["record"]), code=code)

    def template_rule(self, template, rule):
        form = self.maker.form(template)
        place, code = self.place_of(template)
        text, value = self.item(form, rule)
        value[form["items"]["classKey"]] = place.split("/")[-1]
        reply = {"result": True}
        put(reply, place, {"Some rule": value})
        return Made(reply, text, self.maker.size(template["record"]), code=code)
