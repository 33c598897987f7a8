"""What the words of a field say, in sentences. Words without a value of their own say what the schema's description
says of them; a word that neither knows ends the build."""

INTS = {
    "i8": "int8_t",
    "u8": "uint8_t",
    "i16": "int16_t",
    "u16": "uint16_t",
    "i32": "int32_t",
    "u32": "uint32_t",
    "i64": "int64_t",
    "u64": "uint64_t",
    "f32": "float",
    "f64": "double",
    "char": "char",
}

KINDS = {
    "none": "",
    "size": "number",
    "presence": "any value",
    "memberName": "member's name",
    "memberCode": "member's name",
    "bool": "true or false",
    "int": "number",
    "uint": "number",
    "real": "number",
    "text": "text",
    "rawText": "text",
    "fullText": "text",
    "names": "text of a code",
    "record": "object",
    "timeSection": 'text: "1 08:00:00-17:30:00"',
    "schedule": "list of lists of time sections",
    "sectionList": "list of time sections",
    "holidaySchedule": "7 or 8 lists of time sections",
    "netTime": 'text: "2026-11-20 09:30:00"',
    "netTimeEx": 'text: "2026-11-20 09:30:00.250"',
    "clockTime": 'text: "09:30:00"',
    "date": 'text: "2026-11-20"',
    "utcTime": "number: seconds since 1970",
    "splitMode": 'text: "Split9"',
    "bitMask": "list of bit numbers",
    "bitMaskLoose": "list of bit numbers",
    "switches": "list of places that are 1",
    "supplied": "",
    "custom": "",
}
SHAPES = {"object": "object", "tuple": "list", "longTuple": "list", "looseTuple": "list"}
SUPPLIED = {
    "action": "the event's action",
    "group": "the event's picture group",
    "notification": "the notification around the event",
}
ELEMENTS = {
    "leavesHole": "keeps its place and does not count",
    "closesUp": "is passed over",
    "ends": "ends the list",
    "endsList": "ends the list",
    "stops": "ends the list",
    "stop": "ends the list",
    "named": "is an element by its name",
}
ROLES = {
    "size": "bytes of the record",
    "count": "elements in use of {of}",
    "capacity": "room for {of}",
    "flag": "1 when {of} was there, and written only then",
    "condition": "decides about {of}",
    "reserved": "reserved",
}

# Shown in columns of their own, or by `sentences` below.
SHOWN = {
    "name",
    "type",
    "to",
    "record",
    "form",
    "offset",
    "dims",
    "key",
    "relativeTo",
    "kind",
    "writtenAs",
    "codes",
    "codesAre",
    "compare",
    "lastWins",
    "unknownText",
    "unknownCode",
    "unknownCodeText",
    "enumeration",
    "doc",
    "unit",
    "range",
    "default",
    "role",
    "of",
    "count",
    "countUncapped",
    "pointer",
    "function",
    "sample",
    "supplied",
    "terminator",
    "flag",
    "only",
    "readIf",
    "writeIf",
    "firstBytes",
    "atLeast",
    "atMost",
    "unless",
    "nullElement",
    "refusedElement",
    "writeEmpty",
    "writeSkipped",
    "asked",
    "room",
}
ONLY = {
    "string": "texts",
    "bool": "true and false",
    "integer": "whole numbers",
    "unsigned": "whole numbers above 2147483647",
    "integral": "whole numbers, true and false",
    "array": "lists",
}


def c_type(row):
    """The C type of a row's elements."""
    if row["type"] == "record":
        return row["record"]
    if row["type"] == "ptr":
        return (
            "uint8_t"
            if row.get("bytes")
            else row["record"]
            if "record" in row
            else INTS[row["to"]]
            if "to" in row
            else "void"
        ) + "*"
    return INTS.get(row["type"], "")  # a key without a member has none


def json_type(row, model):
    """What stands in the text."""
    if "key" not in row:
        return ""
    kind = row["kind"]
    levels = row["dims"][:-1] if row["type"] == "char" else row["dims"]
    if kind == "record":
        shape = SHAPES[model.form(row)["shape"]] if "record" in row else "object"
        if row.get("keyed"):
            return "object of objects"
        pointer = row.get("pointer", {}).get("elements")
        return f"list of {shape}s" if levels or pointer == "list" else shape
    if kind == "custom":
        codec = row.get("function", {}).get("codec")
        return {
            "namedBits": "list of texts",
            "byKeys": "object",
            "ownedText": "text",
            "packedColor": "[r, g, b, a]",
            "degrees": "[degrees, minutes, seconds]",
            "splitName": "text",
            "ownedRecord": "object",
        }.get(codec, "number" if codec else "")
    word = KINDS[kind]
    if kind in ("schedule", "sectionList", "holidaySchedule", "bitMask", "bitMaskLoose", "switches") or not word:
        return word
    if row["type"] == "ptr" and row.get("pointer", {}).get("elements") == "list":
        return f"list of {word}s"
    for _ in levels:
        word = f"list of {word.replace('true or false', 'bool')}s" if not word.startswith("list") else f"list of {word}"
    return word


def absent(row):
    """What an absent key gives; empty where there is no key."""
    if "default" in row:
        return str(row["default"])
    if "key" not in row or not row["type"] or row["kind"] == "presence":
        return "0" if row["kind"] == "presence" else ""
    if row.get("writeOnly") or row.get("function", {}).get("read"):
        return ""
    if row["type"] == "char" and len(row["dims"]) == 1:
        return "empty"
    if row["type"] == "ptr":
        return "null" if row.get("pointer", {}).get("owner") == "library" else "as it was"
    levels = row["dims"][:-1] if row["type"] == "char" else row["dims"]
    if row["type"] == "record":
        return ("its own defaults" if row["kind"] == "record" else "0s") if not levels else "none"
    return "0" if not levels else "none" if "count" in row else "0s"


def sentences(row, model):
    """The rest of what a row's words say."""
    said = []
    relative = row.get("relativeTo")
    if relative == "reply":
        said.append("its key starts at the whole reply")
    elif relative == "value" and row.get("key") == "":
        said.append("the record's value itself")
    elif relative == "members":
        said.append("all members of the record's object")
    if row["kind"] == "supplied":
        said.append(f"from {SUPPLIED[row['supplied']]}")
    doc = row.get("doc", "")
    told = row.get("role") == "count" and " in use" in doc and all(name in doc for name in row.get("of", []))
    if "role" in row and not told:
        said.append(ROLES[row["role"]].format(of=", ".join(row.get("of", [])) or "others"))
    if "writtenAs" in row:
        said.append(
            "nothing is written"
            if row["writtenAs"] == "none"
            else f"written as {KINDS[row['writtenAs']] or row['writtenAs']}"
        )
    function = row.get("function", {})
    if "codec" not in function and function:
        ways = [word for word, has in (("read", function.get("read")), ("written", function.get("write"))) if has]
        if ways:
            said.append(f"{' and '.join(ways)} by a function of its own")
    if row["kind"] in ("text", "rawText") and row["type"] == "char":
        said.append(f"at most {row['dims'][-1] - 1} bytes" + (", not converted" if row["kind"] == "rawText" else ""))
    elif row["kind"] == "fullText":
        said.append(
            f"at most {row['dims'][-1]} bytes, then without a terminator"
            if not row.get("terminator")
            else f"at most {row['dims'][-1] - 1} bytes"
        )
    if "flag" in row:
        said.append(f"sets {row['flag']}; written only when {row['flag']} is set")
    if "count" in row:
        said.append(f"elements in use: {row['count']}" + (", which may exceed the room" if row.get("countUncapped") else ""))
    said += pointers(row)
    for word in ("asked", "room"):
        if word in row:
            said.append(f"{word} for: {row[word]}")
    if "only" in row:
        said.append(f"read from {ONLY[row['only']]} only")
    for word, sentence in (
        ("readIf", "read only when {} is set"),
        ("writeIf", "written only when {} is set"),
        ("firstBytes", "cut at {} bytes before it is converted"),
        ("atLeast", "read only with at least {} elements"),
        ("unless", "not written at {}"),
        ("atMost", "written as {} when larger"),
        ("nullElement", "a null element {}"),
        ("refusedElement", "an element of the wrong shape {}"),
    ):
        if word in row:
            value = ELEMENTS.get(row[word], row[word]) if word.endswith("Element") else row[word]
            said.append(sentence.format(value))
    if "writeEmpty" in row:
        said.append(
            "written as [] when empty"
            if row["writeEmpty"] in ("array", "list")
            else f"written as {row['writeEmpty']} when empty"
        )
    if "writeSkipped" in row:
        said.append(
            "elements not written leave a null, but none at the end"
            if row["writeSkipped"] == "hole"
            else "elements not written leave no place"
        )
    for word in row:
        if word not in SHOWN:
            said.append(model.described[("field", word)])
    return said


def pointers(row):
    pointer = row.get("pointer")
    if not pointer:
        return []
    owner = "room of the caller's" if pointer["owner"] == "caller" else "the library's memory, which lives during the call"
    said = [owner]
    if "room" in pointer:
        said.append(f"room for {pointer['room']} elements")
    if "items" in pointer:
        said.append(f"{pointer['items']} items in {pointer['bytes']} bytes")
    return said


def codes(row):
    """Codes, and what others do: (code, text, constant) and a sentence."""
    if "codes" not in row:
        return [], ""
    rest = []
    unknown = row["unknownText"]
    rest.append("other texts leave the member" if unknown == "leaves" else f"other texts read as {unknown}")
    other = row["unknownCode"]
    rest.append(
        {"noKey": "other codes are not written", "null": "other codes write null"}.get(
            other, f"other codes write \"{row.get('unknownCodeText', '')}\""
        )
    )
    if row["compare"] == "exact":
        rest.append("texts compare with case")
    if "codesAre" in row:
        rest.append(
            "codes are masks of bits, a text each"
            if row["codesAre"] == "bits"
            else "codes are places of elements, a key each"
        )
    return [(each["code"], each["name"], each.get("constant")) for each in row["codes"]], "; ".join(rest)
