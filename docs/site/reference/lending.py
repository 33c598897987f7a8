"""What a program in C provides before it reads: size words, and room behind the pointers of a record."""


class Lending:
    def __init__(self, model):
        self.model = model

    def has_sizes(self, record, seen=()):
        for row in self.model.records[record]["fields"]:
            if row["kind"] == "size":
                return True
            if row["type"] == "record" and row["record"] not in seen and self.has_sizes(row["record"], (*seen, record)):
                return True
        return False

    def sizes(self, record, place):
        """Size words of a record and of those inside it."""
        for row in self.model.records[record]["fields"]:
            here = f"{place}.{row['name']}"
            if row["kind"] == "size":
                yield f"{here} = sizeof {place};"
            elif row["type"] == "record" and row["kind"] != "none" and not row["dims"]:
                yield from self.sizes(row["record"], here)

    def lent(self, record, place, value, lines, statics):
        """Room behind the pointers of the caller's in a record, for as many elements as the example has."""
        value = value if isinstance(value, dict) else {}
        for row in self.model.records[record]["fields"]:
            told = value.get(row["name"])
            if row["type"] == "record" and row["kind"] != "none":
                few = [("", told)]
                for extent in row["dims"]:
                    few = [
                        (f"{index}[{i}]", each[i] if isinstance(each, list) and i < len(each) else None)
                        for index, each in few
                        for i in range(min(2, extent))
                    ]
                if "asked" in row:
                    lines.append(f"{place}.{row['asked']} = {len(told) if isinstance(told, list) else 2};")
                for index, each in few:
                    self.lent(row["record"], f"{place}.{row['name']}{index}", each, lines, statics)
                continue
            pointer = row.get("pointer", {})
            if pointer.get("owner") != "caller" or row.get("items"):
                continue
            name = f"room{len(statics) or ''}"
            if pointer["elements"] == "bytes":
                statics.append(f"static uint8_t {name}[1 << 20];")
                lines += [f"{place}.{row['name']} = {name};", f"{place}.{pointer['bytes']} = sizeof {name};"]
                continue
            kind = row["record"] if "record" in row else {"i32": "int32_t", "u32": "uint32_t", "u8": "uint8_t"}[row["to"]]
            elements = told if isinstance(told, list) else [told] if isinstance(told, dict) else []
            count = len(elements) or (1 if pointer["elements"] == "one" else 2)
            statics.append(f"static {kind} {name}[{count}];")
            lines.append(f"{place}.{row['name']} = {name};")
            if pointer.get("room"):
                lines.append(f"{place}.{pointer['room']} = {count};")
            for i in range(count if "record" in row else 0):
                lines += self.sizes(row["record"], f"{name}[{i}]")
                self.lent(row["record"], f"{name}[{i}]", elements[i] if i < len(elements) else None, lines, statics)

    def writes_room(self, record):
        """Whether a text tells all elements that there is room for: it then changes with the room."""
        return any(
            row.get("writesCapacity") or ("record" in row and row["type"] == "record" and self.writes_room(row["record"]))
            for row in self.model.records[record]["fields"]
        )
