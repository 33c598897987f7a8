"""A binding without a line per command: `orrery schema` tells where each member stands and what it is. So it goes in any
language that can call C functions; this is plain ctypes. The companion's name may be given, and the library's."""
import ctypes
import json
import struct
import subprocess
import sys

COMPANION = sys.argv[1] if len(sys.argv) > 1 else "orrery"
LIBRARY = sys.argv[2] if len(sys.argv) > 2 else "liborrery.so.0.1"
FORMS = {"i8": "b", "u8": "B", "i16": "h", "u16": "H", "i32": "i", "u32": "I", "i64": "q", "u64": "Q", "f32": "f", "f64": "d"}

schema = json.loads(subprocess.run([COMPANION, "schema"], stdout=subprocess.PIPE, check=True).stdout)
records = {record["name"]: record for record in schema["records"]}
commands = {command["name"]: command for command in schema["commands"]}
library = ctypes.CDLL(LIBRARY)


def members(name, data, at=0):
    """A record as a dictionary of its members. Lists end where their counts say, pointers are left out."""
    told = {}
    fields = {field["name"]: field for field in records[name]["fields"]}
    for field in fields.values():
        if field.get("role") or field["type"] == "ptr":
            continue
        text = field["type"] == "char"
        dims = field["dims"][:-1] if text else field["dims"]
        size = (field["dims"][-1] if text else records[field["record"]]["size"] if field["type"] == "record"
                else struct.calcsize(FORMS[field["type"]]))
        count = dims[0] if dims else 1
        if "count" in field:
            counter = fields[field["count"]]
            count = min(count, struct.unpack_from(FORMS[counter["type"]], data, at + counter["offset"])[0])
        values = []
        for i in range(count if len(dims) < 2 else 0):  # lists of lists go the same way
            place = at + field["offset"] + i * size
            if text:
                values.append(data[place : place + size].split(b"\0")[0].decode())
            elif field["type"] == "record":
                values.append(members(field["record"], data, place))
            else:
                values.append(struct.unpack_from(FORMS[field["type"]], data, place)[0])
        told[field["name"]] = values if dims else values[0]
    return told


def parse(command, text):
    record = records[commands[command]["record"]]
    buffer = ctypes.create_string_buffer(record["size"])
    if not library.CLIENT_ParseData(command.encode(), text.encode(), buffer, len(buffer), None):
        raise ValueError(f"{command}: refused")
    return members(record["name"], buffer.raw)


clock = parse("NTP", """{ "result" : true, "params" : { "table" : {
  "Enable" : true, "Address" : "time.example", "Port" : 123, "ServerList" : [ { "Port" : 124 } ] } } }""")
print(clock["bEnable"], clock["szAddress"], clock["nPort"])
print(len(clock["stuServers"]), "more on port", clock["stuServers"][0]["nPort"])
