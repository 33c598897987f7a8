"""Texts made from the schema alone, and what the schema says where each of their values stands in memory."""
import ctypes
import datetime
import struct

FORMATS = {"i8": "b", "u8": "B", "i16": "h", "u16": "H", "i32": "i", "u32": "I", "i64": "q", "u64": "Q", "f32": "f",
           "f64": "d", "ptr": "Q"}
SIZES = {name: struct.calcsize(form) for name, form in FORMATS.items()}
SIZES["char"] = 1


class Lack(Exception):
    """Something that cannot be decided from the schema."""


class Value:
    """A value that must stand at a place: a path of offsets, each but the first behind the pointer before it."""

    def __init__(self, place, kind, value, name):
        self.place, self.kind, self.value, self.name = place, kind, value, name
        self.completed = ""  # the record whose function may have put another value there


class Text:
    """One record's value in JSON, with what must be put in memory before and what must be found there afterwards."""

    def __init__(self):
        self.json = None
        self.reply = {}     # keys relative to the reply, by path
        self.before = []    # Values that the caller sets; of kind "block" those behind a pointer of so many bytes
        self.after = []
        self.functions = []  # names of fields that functions read
        self.removable = []  # of those, the objects in the text that they are told by, and their keys
        self.likely = {}     # of those, the Values that the members' types let expect
        self.stored = []     # of those, Values of kind "moved": the members that change when the key goes
        self.shared = []     # of those whose key another field has, with a value for that one
        self.caller = False


def writes_only(row):
    """Whether nothing is read by the function of a row: its key is there for those who read what it writes."""
    return row.get("function", {}).get("read") is False


def shifted(place, offset):
    return place[:-1] + (place[-1] + offset,)


class Maker:
    def __init__(self, schema, second=False, unknown=False, ranged=False):
        """`second`: members that have a second key are told by it. `unknown`: texts of codes are none that is known.
        `ranged`: numbers keep within the ranges that the schema tells."""
        self.records = {record["name"]: record for record in schema["records"]}
        self.second, self.unknown, self.ranged = second, unknown, ranged
        self.number = 0

    def next(self):
        # None is the value of a flag or the count of a list.
        self.number = 3 if self.number in (0, 97) else self.number + 1
        return self.number

    def form(self, node, record="record", form="form"):
        known = self.records[node[record]]
        if form in node:
            return next(each for each in known["forms"] if each["name"] == node[form])
        return known

    def size(self, name):
        return self.records[name]["size"]

    def element_size(self, field):
        if field["type"] == "record":
            return self.size(field["record"])
        return SIZES[field["type"]] * (field["dims"][-1] if field["type"] == "char" and field["dims"] else 1)

    def bytes_of(self, field):
        if "pointer" in field:
            return SIZES["ptr"]
        size = self.element_size(field)
        for extent in field.get("dims", [])[:-1] if field["type"] == "char" else field.get("dims", []):
            size *= extent
        return size

    def field_of(self, form, name):
        for field in form["fields"]:
            if field["name"] == name:
                return field
        raise Lack(f"no member {name}")

    # ---- Records ----------------------------------------------------------------------------------------------------

    def record(self, form, place, text, caller=False, member=None, path=""):
        """The value of a record at a place. `caller`: it is the caller's memory, whose size words the caller sets."""
        was, text.caller, first = text.caller, text.caller or caller, len(text.after)
        value = self.value_of(form, place, text, text.caller, member, path)
        text.caller = was
        if form.get("afterRead"):
            for each in text.after[first:]:
                each.completed = each.completed or form["name"]
        return value

    def value_of(self, form, place, text, caller, member, path):
        rows = self.rows_of(form)
        for field in form["fields"]:
            if field["kind"] == "size":
                size = self.own_size(form)
                text.after.append(Value(shifted(place, field["offset"]), field["type"], size, path + field["name"]))
                if caller:
                    text.before.append(Value(shifted(place, field["offset"]), field["type"], size, ""))
            if field["kind"] in ("memberName", "memberCode") and member is not None:
                at = shifted(place, field["offset"])
                if field["kind"] == "memberName":
                    text.after.append(Value(at, "text", member.encode(), path + field["name"]))
                else:
                    text.after.append(Value(at, field["type"], self.code_of(field, member), path + field["name"]))
        if form["shape"] != "object":
            return [self.one(row, shifted(place, row["offset"]), text, path) for row in rows
                    if row["relativeTo"] == "element"]
        whole = [row for row in rows if row["relativeTo"] == "value"]
        if whole and not any(row["relativeTo"] in ("record", "members") for row in rows):
            value = self.field(whole[0], form, place, text, path)
            for row in whole[1:]:
                self.read(row, value, form, place, text, path)
            return value
        value = {}
        # Of several rows with one key the one that says most makes the value; the others read it too.
        made = sorted((row for row in rows if row not in whole), key=lambda row: (row["kind"] == "presence", row["kind"] == "custom",
                                             row["kind"] != "record" or "pointer" in row or bool(row.get("dims"))))
        later = []
        for row in made:
            if row["relativeTo"] == "members":
                later.append(row)
                continue
            holder = value if row["relativeTo"] == "record" else text.reply
            parts = row["key"].split("/")
            fits = True
            for part in parts[:-1]:
                holder = holder.setdefault(part, {})
                fits = fits and isinstance(holder, dict)
                if not fits:
                    break
            if not fits:
                text.shared.append(path + row.get("name", row["key"]))  # another row has the object's place
            elif parts[-1] in holder:
                self.read(row, holder[parts[-1]], form, place, text, path)
            else:
                before = len(text.functions)
                holder[parts[-1]] = self.field(row, form, place, text, path)
                if len(text.functions) > before:
                    text.removable.append((holder, parts[-1]))
        for row in later:
            value.update(self.field(row, form, place, text, path))
        for row in whole:  # the object itself
            self.read(row, value, form, place, text, path)
        return value

    def rows_of(self, form):
        """The rows that a text tells of: of a member's several keys one."""
        def keyed(rows):
            return [row for row in rows if "key" in row and not row.get("writeOnly")]
        first, second = keyed(form["fields"]), keyed(form.get("secondKeys", []))
        beside = keyed(form.get("otherKeys", [])) + [row for row in second if "function" in row]
        second = [row for row in second if "function" not in row]
        same = lambda row, rows: any(row["offset"] == other["offset"] and row["type"] == other["type"]
                                     and row["key"] != other["key"] for other in rows)
        if self.second:
            first = [row for row in first if not same(row, second)]
        else:
            second = [row for row in second if not same(row, first)]
        taken, rows = set(), []
        for row in second:  # of several second keys of a member the first
            if (row["offset"], row["type"]) not in taken:
                taken.add((row["offset"], row["type"]))
                rows.append(row)
        return first + rows + beside

    def own_size(self, form):
        for record in self.records.values():
            if record is form or form in record.get("forms", []):
                return record["size"]
        raise Lack("a form of no record")

    # ---- Fields -----------------------------------------------------------------------------------------------------

    def field(self, row, form, place, text, path):
        """Makes a value for a row's key, and notes what the row reads of it."""
        name = path + row.get("name", "")
        if "codec" in row.get("function", {}) and "writtenAs" not in row:
            self.flagged(row, form, place, text, path)
            return self.coded(row, shifted(place, row["offset"]), text, name)
        if row["kind"] == "custom" or (row.get("function") or {}).get("read"):
            return self.by_function(row, form, place, text, name or path + row["key"])
        at = shifted(place, row["offset"])
        if row["kind"] == "presence":
            text.after.append(Value(at, row["type"], 1, name))
            return self.next()
        self.flagged(row, form, place, text, path)
        if row["kind"] in ("schedule", "sectionList", "bitMask", "bitMaskLoose", "switches"):
            return self.whole(row, at, text, name)
        if "pointer" in row:
            return self.pointed(row, form, place, at, text, name)
        levels = row["dims"][:-1] if row["type"] == "char" else row["dims"]
        if not levels:
            return self.one(row, at, text, path)
        room = levels[0]
        for word in ("asked", "room"):
            if word in row:
                self.set_member(form, row[word], place, room, text)
        count = room if row.get("exactly") else min(room, max(2, row.get("atLeast", 0)))
        value = self.level(row, levels, at, text, path, count)
        if "count" in row:
            self.counted(row, form, place, count, text, path)
        return value

    def by_function(self, row, form, place, text, name):
        """A value for a function of a row's own: what it makes of it is told by the member's type, as a rule."""
        if writes_only(row):
            return row.get("sample", self.next())
        text.functions.append(name)
        likely = []
        value = row.get("sample", self.next())
        if "offset" in row and "type" in row:
            at = shifted(place, row["offset"])
            number = type(value) in (int, float) and not row.get("dims") and row["type"] in SIZES
            if row["type"] == "record" and "sample" not in row and not row["dims"]:
                inner = Text()
                inner.caller = text.caller
                value = self.record(self.form(row), at, inner, text.caller, None, name + ".")
                likely = inner.after if not inner.reply else []
                text.before += inner.before
                text.functions += inner.functions
                text.removable += inner.removable
                text.stored += inner.stored
                text.likely.update(inner.likely)
            elif row["type"] == "char" and len(row["dims"]) == 1:
                value = value if "sample" in row else f"F{value}"
                likely = [Value(at, "text", value.encode(), name)] if isinstance(value, str) else []
            elif row.get("codes") and "sample" not in row and not row["dims"]:
                value = row["codes"][value % len(row["codes"])]["name"]
                likely = [Value(at, row["type"], self.code_of(row, value), name)]
            elif number and row["type"] not in ("record", "char", "ptr"):
                likely = [Value(at, row["type"], value, name)]
            text.stored.append(Value(at, "moved", self.bytes_of(row), name))
        text.likely[name] = likely
        if row.get("pointer", {}).get("owner") == "caller":
            self.lend(row, form, place, 8, text)
        return value

    def coded(self, row, at, text, name):
        """A value for a function that many fields share."""
        codec, number = row["function"]["codec"], self.next()
        put = lambda where, kind, value: text.after.append(Value(where, kind, value, name))
        plain = {"fromOne": (number, number - 1), "countedFromOne": (number, number + 1),
                 "wholeReal": (number + 0.5, number), "anyInteger": (number, number),
                 "degrees": ([number, 0, 0], number * 1000000), "thousandths": (number * 1000 + 500, number + 0.5),
                 "signedThousandths": (-number * 1000 - 500, -number - 0.5), "splitName": (f"PIP{number}", 1000 + number),
                 "packedColor": ([number, 2, 3, 4], (number << 24) + (2 << 16) + (3 << 8) + 4),
                 "firstNumber": ([number, number + 1], number), "secondNumber": ([number - 1, number], number)}
        if codec in plain:
            put(at, row["type"], plain[codec][1])
            return plain[codec][0]
        if codec == "ownedText":
            put(at + (0,), "text", f"owned {number}".encode())
            return f"owned {number}"
        if codec == "ownedRecord":
            return self.record(self.form(row), at + (0,), text, False, None, name + ".")
        codes = row["codes"]
        if codec == "namedBits":
            mask = 0
            for code in codes[:3]:
                mask |= self.code_of(row, code["name"])
            put(at, row["type"], mask)
            return [code["name"] for code in codes[:3]]
        if codec == "byKeys":
            values = {}
            for code in codes:
                if 0 <= code["code"] < row["dims"][0] and code["name"]:
                    values[code["name"]] = self.next()
                    put(shifted(at, code["code"] * SIZES[row["type"]]), row["type"], values[code["name"]])
            return values
        raise Lack(f"{name}: a function {codec}")

    def flagged(self, row, form, place, text, path):
        if "flag" in row:
            flag = self.field_of(form, row["flag"])
            text.after.append(Value(shifted(place, flag["offset"]), flag["type"], 1, path + flag["name"]))

    def counted(self, row, form, place, count, text, path):
        member = self.field_of(form, row["count"])
        text.after.append(Value(shifted(place, member["offset"]), member["type"], count, path + member["name"]))

    def set_member(self, form, name, place, value, text):
        member = self.field_of(form, name)
        text.before.append(Value(shifted(place, member["offset"]), member["type"], value, ""))

    def level(self, row, levels, at, text, path, count):
        size = self.element_size(row)
        for extent in levels[1:]:
            size *= extent
        if row.get("keyed"):
            return self.members(row, at, size, text, path, count)
        values = []
        for i in range(count):
            here = shifted(at, i * size)
            if len(levels) > 1:
                inner = levels[1] if row.get("exactly") else min(levels[1], 2)
                values.append(self.level(row, levels[1:], here, text, f"{path}[{i}]", inner))
            else:
                values.append(self.one(row, here, text, f"{path}[{i}]"))
        return values

    def members(self, row, at, size, text, path, count):
        return {name: self.one(row, shifted(at, i * size), text, f"{path}[{i}]", name)
                for i, name in enumerate(self.member_names(self.form(row), count))}

    def member_names(self, form, count):
        """Names of an object's members that are records, in the order in which they are read."""
        for field in form["fields"]:
            if field["kind"] == "memberCode":
                names = sorted({code["name"] for code in field["codes"] if code["name"]})[:count]
                if len(names) < count:
                    raise Lack("fewer names than elements")
                return names
        return [f"Item{i}" for i in range(count)]

    def pointed(self, row, form, place, at, text, name):
        pointer = row["pointer"]
        to = pointer["elements"]
        inner = at + (0,)
        if to == "text":
            value = f"behind {self.next()}"
            text.after.append(Value(inner, "text", value.encode(), name))
            return value
        if to == "bytes":
            raise Lack(f"{name}: bytes behind a key")
        size = SIZES[row["to"]] if "to" in row else self.size(row["record"])
        count = 1 if to == "one" else 2
        caller = pointer["owner"] == "caller"
        if caller:
            self.lend(row, form, place, count, text)
        if "count" in row:
            self.counted(row, form, place, count, text, name)
        if row.get("keyed"):
            names = self.member_names(self.form(row), count)
            return {each: self.record(self.form(row), shifted(inner, i * size), text, caller, each, f"{name}[{i}].")
                    for i, each in enumerate(names)}
        values = [self.behind(row, shifted(inner, i * size), text, f"{name}[{i}].", caller) for i in range(count)]
        return values[0] if to == "one" else values

    def lend(self, row, form, place, count, text):
        """Room behind a pointer of the caller's."""
        size = SIZES[row["to"]] if "to" in row else self.size(row["record"])
        text.before.append(Value(shifted(place, row["offset"]), "block", count * size, row["name"]))
        if "room" in row["pointer"]:
            self.set_member(form, row["pointer"]["room"], place, count, text)

    def behind(self, row, at, text, path, caller):
        if "to" in row:
            number = self.next()
            text.after.append(Value(at, row["to"], number, path))
            return number
        return self.record(self.form(row), at, text, caller, None, path)

    def read(self, row, value, form, place, text, path):
        """What a further row reads of a value that another has made."""
        name = path + row.get("name", row["key"])
        natural = {"bool": bool, "int": int, "uint": int, "text": str, "rawText": str, "names": str}.get(row["kind"])
        if row["kind"] == "presence":
            text.after.append(Value(shifted(place, row["offset"]), row["type"], 1, name))
        elif row.get("function", {}).get("codec") in ("firstNumber", "secondNumber") and isinstance(value, list):
            wanted = value[row["function"]["codec"] == "secondNumber"]
            text.after.append(Value(shifted(place, row["offset"]), row["type"], wanted, name))
        elif writes_only(row):
            pass  # what it writes, the others read
        elif row.get("function"):
            text.functions.append(name)
        elif natural in (int, bool) and type(value) in (int, bool) and "only" not in row and not row.get("dims"):
            wanted = int(bool(value)) if natural is bool else int(value)
            text.after.append(Value(shifted(place, row["offset"]), row["type"], wanted, name))
            self.flagged(row, form, place, text, path)
        elif natural is str and isinstance(value, str) and "codes" not in row and len(row["dims"]) == 1:
            # Of two rows of one place the later one prevails.
            at = shifted(place, row["offset"])
            text.after = [each for each in text.after if each.place != at]
            room = row["dims"][-1] - (1 if row["terminator"] else 0)
            text.after.append(Value(at, "text" if row["terminator"] else "full", value.encode()[:room], name))
        else:
            text.shared.append(name)

    def absent(self, form, place, text, path=""):
        """What a record without keys holds."""
        for field in form["fields"]:
            if form.get("afterRead") or field.get("function") or "pointer" in field or field["kind"] == "size":
                continue
            if field.get("relativeTo") == "members":
                continue  # elements start when they are read
            levels = field["dims"][:-1] if field["type"] == "char" else field["dims"]
            count = 1
            for extent in levels:
                count *= extent
            for i in range(min(count, 3)):
                at = shifted(place, field["offset"] + i * self.element_size(field))
                name = f"{path}{field['name']}"
                if field["type"] == "record":
                    inner = self.form(field)
                    # A record that starts when it is read stays zero until then.
                    if field["kind"] == "record" and not inner.get("startsWhenRead") and not field.get("always"):
                        self.absent(inner, at, text, name + ".")
                    continue
                value = field.get("default", 0)
                if field.get("always") and field["kind"] == "names":
                    told = self.code_of(field, "")
                    value = value if told is None else told
                elif field.get("always"):
                    value = 0
                roles = field["kind"] in ("supplied", "memberName", "memberCode") or form["shape"] != "object"
                if not roles and "role" not in field:
                    text.after.append(Value(at, "text" if field["type"] == "char" else field["type"],
                                            b"" if field["type"] == "char" else value, name))

    def words(self, row, room):
        """A text that fills the member's room."""
        return (f"T{self.next()} of {row['name']} " * 40)[:room]

    # ---- Single values ------------------------------------------------------------------------------------------------

    def code_of(self, field, name):
        """The code that a text reads as, by the words of the field."""
        def same(code):
            exact = code.get("exact", field["compare"] == "exact")
            return code["name"] == name if exact else code["name"].lower() == name.lower()
        found = [code["code"] for code in field["codes"] if same(code)]
        if found:
            return found[-1] if field.get("lastWins") else found[0]
        return None if field["unknownText"] == "leaves" else field["unknownText"]

    def one(self, row, at, text, path, member=None):
        kind, name = row["kind"], path + ("" if path.endswith("]") else row["name"])
        put = lambda where, form, value, what="": text.after.append(Value(where, form, value, name + what))
        if kind == "custom":
            if not writes_only(row):
                text.functions.append(name)
            return row.get("sample", self.next())
        if kind == "record":
            return self.record(self.form(row), at, text, False, member, name + ".")
        if kind == "bool" or row.get("only") == "bool":
            put(at, row["type"], 1)
            return True
        if kind in ("int", "uint"):
            number = self.next()
            if row.get("only") == "unsigned":
                number += 1 << 31
            if self.ranged and "range" in row:
                low, high = row["range"]
                number = low + number % (high - low + 1)
            put(at, row["type"], number)
            return number
        if kind == "real":
            number = self.next() + 0.25
            if self.ranged and "range" in row:
                low, high = row["range"]
                number = low + (high - low) * (1 + number // 1 % 3) / 4
            put(at, row["type"], number)
            return number
        if kind in ("text", "rawText", "fullText"):
            room = row["dims"][-1] - (1 if row["terminator"] else 0)
            room = min(room, row.get("firstBytes", room), 400)
            value = self.words(row, room)
            put(at, "text" if room < row["dims"][-1] else "full", value.encode())
            return value
        if kind == "names":
            name_of = row["codes"][self.next() % len(row["codes"])]["name"]
            if self.unknown:
                name_of = "no such text"
            put(at, row["type"], self.code_of(row, name_of))
            return name_of
        if kind == "splitMode":
            code = row["codes"][self.next() % len(row["codes"])]
            put(at, row["type"], code["code"])
            return code["name"]
        return self.moment(row, kind, at, put)

    def moment(self, row, kind, at, put):
        parts = {field["name"]: field for field in self.form(row)["fields"]} if "record" in row else {}
        number = self.next()

        def member(end, value):
            names = [name for name in parts if name.endswith(end)]
            if len(names) != 1:
                raise Lack(f"{row['name']}: no part {end}")
            put(shifted(at, parts[names[0]]["offset"]), parts[names[0]]["type"], value, "." + names[0])

        minute, second = number % 60, (number * 7) % 60
        if kind == "timeSection":
            values = dict(zip(("dwMask", "nBeginHour", "nBeginMin", "nBeginSec", "nEndHour", "nEndMin", "nEndSec"),
                              (number % 10, 8, minute, second, 17, second, minute)))
            for end, value in values.items():
                member(end, value)
            return "{} {:02}:{:02}:{:02}-{:02}:{:02}:{:02}".format(*values.values())
        day = {"Year": 2026, "Month": 11, "Day": 1 + number % 28}
        clock = {"Hour": number % 24, "Minute": minute, "Second": second}
        told = {"netTime": {**day, **clock}, "netTimeEx": {**day, **clock, "Millisecond": 250}, "clockTime": clock,
                "date": day, "utcTime": {**day, **clock}}.get(kind)
        if told is None:
            if kind == "holidaySchedule":
                return self.holiday(row, parts, at, put)
            raise Lack(f"{row['name']}: nothing tells how a {kind} is written")
        for end, value in told.items():
            member(end, value)
        moment = datetime.datetime(2026, 11, day["Day"], clock["Hour"], minute, second, tzinfo=datetime.timezone.utc)
        return {"netTime": moment.strftime("%Y-%m-%d %H:%M:%S"), "netTimeEx": moment.strftime("%Y-%m-%d %H:%M:%S.250"),
                "clockTime": moment.strftime("%H:%M:%S"), "date": moment.strftime("%Y-%m-%d"),
                "utcTime": int(moment.timestamp())}[kind]

    def sections(self, row, at, rows, columns, put_text, name):
        section = {**row, "kind": "timeSection"}
        size = self.size(row["record"])
        return [[self.one(section, shifted(at, (i * row["dims"][-1] + k) * size), put_text, f"{name}[{i}][{k}]")
                 for k in range(columns)] for i in range(rows)]

    def holiday(self, row, parts, at, put):
        whole = next(field for field in parts.values() if field["type"] == "record")
        flag = next(field for field in parts.values() if field["type"] != "record")
        put(shifted(at, flag["offset"]), flag["type"], 1, "." + flag["name"])
        rows, columns = whole["dims"]
        inner = Text()
        value = self.sections(whole, shifted(at, whole["offset"]), rows, columns, inner, "." + whole["name"])
        for each in inner.after:
            put(each.place, each.kind, each.value, each.name)
        return value

    def whole(self, row, at, text, name):
        """Kinds that take a member's arrays at once."""
        kind, dims = row["kind"], row["dims"]
        if kind == "schedule":
            return self.sections(row, at, dims[0], dims[1], text, name)
        if kind == "sectionList":
            flat = {**row, "dims": [1, dims[0]]}
            return self.sections(flat, at, 1, min(dims[0], 3), text, name)[0]
        if kind == "switches":
            numbers = sorted({self.next() % dims[0] for _ in range(3)})
            for i in range(dims[0]):
                text.after.append(Value(shifted(at, 4 * i), row["type"], int(i in numbers), f"{name}[{i}]"))
            return numbers
        numbers = sorted({(self.next() * 31) % (dims[0] * 32) for _ in range(5)})
        for i in range(dims[0]):
            word = sum(1 << (number % 32) for number in numbers if number // 32 == i)
            text.after.append(Value(shifted(at, 4 * i), row["type"], word, f"{name}[{i}]"))
        return numbers


# ---- Memory ---------------------------------------------------------------------------------------------------------


class Memory:
    """The caller's buffer and the blocks that its pointers lead to."""

    def __init__(self, size):
        self.blocks = []
        self.size = size
        self.base = self.block(size)

    def block(self, size):
        block = ctypes.create_string_buffer(max(size, 1) + 64)
        self.blocks.append(block)
        return ctypes.addressof(block)

    def prepare(self, values):
        for value in values:
            address = resolve(self.base, value.place)
            if value.kind == "block":
                ctypes.memmove(address, struct.pack("Q", self.block(value.value)), 8)
            else:
                data = pack(value)
                ctypes.memmove(address, data, len(data))


def pack(value):
    form = FORMATS[value.kind]
    if value.kind in ("f32", "f64"):
        return struct.pack(form, value.value)
    bits = 8 * SIZES[value.kind]
    number = int(value.value) & ((1 << bits) - 1)
    return number.to_bytes(bits // 8, "little")


def resolve(base, place):
    address = base
    for i, offset in enumerate(place):
        address += offset
        if i + 1 < len(place):
            address = struct.unpack("Q", ctypes.string_at(address, 8))[0]
            if address == 0:
                return 0
    return address


def images(base, values):
    """The bytes of the members that functions read, by name."""
    found = {}
    for value in values:
        address = resolve(base, value.place)
        if address:
            found[value.name] = ctypes.string_at(address, value.value)
    return found


def differences(base, values, completed=None):
    """What of the values does not stand in its place. What functions complete goes to `completed`, by its record."""
    wrong = []
    for value in values:
        if value.value is None:
            continue  # a text that leaves the field
        address = resolve(base, value.place)
        if address == 0:
            wrong.append(f"{value.name}: a null pointer")
            continue
        if value.kind in ("text", "full"):
            wanted = value.value + (b"\0" if value.kind == "text" else b"")
            found = ctypes.string_at(address, len(wanted))
        else:
            wanted = pack(value)
            found = ctypes.string_at(address, len(wanted))
        if found != wanted and value.completed and completed is not None:
            completed.add(f"{value.completed}.{value.name.split('.')[-1]}")
        elif found != wanted:
            wrong.append(f"{value.name} ({value.kind}): {found!r} for {wanted!r}")
    return wrong
