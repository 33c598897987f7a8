#!/usr/bin/env python3
"""Reads what the public headers say of records, members and constants.

    header_words.py OUTPUT.cpp COMPILER...    a C++ table of it (HeaderWords.h)
    header_words.py --json COMPILER...        the same as JSON, to standard output

COMPILER with its options preprocesses C++ from standard input and keeps comments, also those of macros (-E -CC).

The form that is read:

    /* What the record is. "Members without a word are as in OTHER_RECORD" takes their comments from there. */
    typedef struct SOME_RECORD {
        /* Of the next member, when nothing stands behind it. */
        int32_t nPort; /* "Port": 1 to 65535, percent */
        HEAD;          /* nOther: of that member of a macro */
    } SOME_RECORD;
    enum { SOME_FIRST = 0, /* "First" */ SOME_SECOND };
    /*
     * nShared, nOther   told once for the members of these names of all event records */

A unit or a range stands alone between the marks of a comment: "seconds", "seconds until ...", "1 to 65535".
"""
import json
import re
import subprocess
import sys

UNITS = [
    "tenths of a degree", "hundredths of a degree", "millionths of a degree", "tenths of a second", "degrees Celsius",
    "kilobits a second", "kilobytes a second", "bytes a second", "pictures a second", "frames a second",
    "kilometres an hour", "km/h", "metres a second", "seconds", "milliseconds", "microseconds", "minutes", "hours",
    "days", "months", "years", "percent", "pixels a second", "pixels", "metres", "centimetres", "millimetres", "kilometres", "megabytes",
    "gigabytes", "kilobytes", "bytes", "degrees", "hertz", "kilohertz", "volts", "millivolts", "amperes",
    "milliamperes", "decibels", "watts", "kilograms", "vehicles an hour",
]
SAME_UNIT = {"km/h": "kilometres an hour"}
RANGE = re.compile(r"(?:from )?(-?\d+) to +(-?\d+)(?: as a rule| (?:" + "|".join(re.escape(unit) for unit in UNITS) + "))?$")
TOKEN = re.compile(r'/\*.*?\*/|^#[^\n]*|"(?:\\.|[^"\\])*"|[{};,\n]|[^{};,\n"/#]+|.', re.DOTALL | re.MULTILINE)


def plain(comment):
    """One line, without the stars that lead its lines."""
    return " ".join(re.sub(r"^\s*\*", "", line).strip() for line in comment[2:-2].split("\n")).strip()


def squeeze(text):
    return re.sub(r"\s+", " ", text).strip()


def last_word(code):
    return (re.findall(r"\w+", code) or [""])[-1]


class Scanner:
    def __init__(self, text):
        self.records, self.enumerations, self.shared = [], [], {}
        self.code, self.above, self.inside = "", "", ""
        self.behind = None  # who takes a comment behind it on its line
        self.depth, self.lines, self.apart, self.is_first = 0, 0, "", True
        self.record = self.enumeration = None
        ours = True
        for match in TOKEN.finditer(text):
            token = match.group()
            if token.startswith("#"):
                marker = re.match(r'#\s*(?:line )?\d+ "(.*)"( [12])?', token)
                if marker:
                    if marker.group(2):  # a file begins, or goes on
                        self.above, self.apart, self.is_first = "", "", marker.group(2) == " 1"
                    ours = "orrery/" in marker.group(1).replace("\\", "/") or marker.group(1) == "<stdin>"
            elif not ours:
                continue
            elif token.startswith("/*"):
                self.comment(token)
            elif token == "\n":
                self.behind = None
                self.lines += 1
                if self.lines > 1 and self.depth == 0 and not self.code.strip() and self.above:
                    # Not right above: of a macro between, of a part of the file, or of the whole file.
                    self.apart, self.above = squeeze(self.apart + " " + self.above), ""
                self.code += " "
            elif not token.isspace():
                self.take(token)
            elif self.code:
                self.code += " "

    def comment(self, token):
        word = squeeze(plain(token))
        self.told_once(token)
        if self.enumeration is not None:
            if self.code.strip():
                self.inside = squeeze(self.inside + " " + word)
            elif self.behind is not None:
                self.behind["doc"] = squeeze(self.behind["doc"] + " " + word)
        elif self.code.strip():
            # Inside a declaration: of the member that a macro's last line declares, or of a constant of its.
            if self.code.count("[") <= self.code.count("]"):
                self.inside = word
        elif self.behind is not None:
            self.behind["behind"] = squeeze(self.behind["behind"] + " " + word)
        elif not word.startswith("----"):  # the title of a part of the file
            self.lines = 0
            self.above = squeeze(self.above + " " + word)

    def take(self, token):
        if token == "{":
            code = squeeze(self.code)
            if self.depth == 0 and re.search(r"\bstruct\b", code):
                self.record = {"name": last_word(code), "comment": self.above or self.apart, "members": []}
                self.records.append(self.record)
            elif self.depth == 0 and re.search(r"\benum\b", code):
                name = last_word(code)
                # A file that begins with its codes tells what they are at its head.
                doc = self.above or (self.apart if self.is_first else "")
                self.enumeration = {"name": "" if name == "enum" else name, "doc": doc, "constants": []}
                self.enumerations.append(self.enumeration)
            if not code.startswith("extern"):
                self.depth += 1
            self.is_first = False
            self.above, self.apart, self.code, self.behind = "", "", "", None
        elif token == "}":
            if self.enumeration is not None:
                self.constant()
            if self.depth > 0:
                self.depth -= 1
            if self.depth == 0:
                self.record = self.enumeration = None
            self.above, self.apart, self.code, self.inside, self.behind = "", "", "", "", None
        elif token == "," and self.enumeration is not None:
            self.constant()
        elif token == ";":
            if self.record is not None and self.code.strip():
                declared = self.code.split("[")[0]
                # A pointer to a function is named inside its brackets.
                called = re.match(r".*\(\s*\*\s*(\w+)\s*\)", self.code)
                member = {"name": called.group(1) if called else last_word(declared),
                          "type": squeeze(declared.rsplit(last_word(declared), 1)[0]),
                          "behind": self.inside, "above": self.above}
                self.record["members"].append(member)
                self.behind = member
            self.above, self.apart, self.inside, self.code = "", "", "", ""
        else:
            self.behind = None
            self.code += token

    def constant(self):
        name, _, value = self.code.partition("=")
        if name.strip():
            constants = self.enumeration["constants"]
            known = {each["name"]: each["value"] for made in self.enumerations for each in made["constants"]}
            number = int(eval(value, {"__builtins__": {}}, known)) if value.strip() \
                else constants[-1]["value"] + 1 if constants else 0
            constants.append({"name": name.strip(), "value": number, "doc": self.inside})
            self.behind = constants[-1]
        self.code = self.inside = ""

    def told_once(self, comment):
        last = []
        for line in comment[2:-2].split("\n")[1:]:
            star = line.find("*")
            if star < 0:
                continue
            line = line[star + 2:]
            gap = line.find("  ")
            if gap == 0:
                for name in last:
                    self.shared[name] = squeeze(self.shared[name] + " " + line)
            elif gap > 0:
                last = line[:gap].split(", ")
                for name in last:
                    self.shared[name] = squeeze(line[gap:])
            else:
                last = []


def doc_of(records, shared, record, member):
    """Behind or above the member; else in the record that the comment above its own names; else, of an event, among
    what is told once of its head and its closing fields."""
    members = record["members"]
    for each in members:  # "byName: ..." behind a macro that declares byName
        if each["behind"].startswith(member["name"] + ": "):
            return each["behind"][len(member["name"]) + 2:]
    of_another = any(each["name"] == member["behind"].split(":")[0] for each in members)
    if member["behind"] and not of_another:
        return member["behind"]
    as_in = re.search(r"as in ([A-Z_0-9]+)", record["comment"])
    if as_in and as_in.group(1) in records:
        other = records[as_in.group(1)]
        for same in other["members"]:
            if same["name"] == member["name"]:
                return doc_of(records, shared, other, same)
    if record["name"].startswith("DEV_EVENT_") and member["name"] in shared:
        return shared[member["name"]]
    return member["above"]


def marks(doc):
    """What stands between the marks of a comment, without keys and what brackets add."""
    bare = re.sub(r"\([^()]*\)", "", re.sub(r'"[^"]*"', '"', doc))
    return [part.strip() for part in re.split(r"[;:,]|\.(?:\s|$)", bare)]


def unit_of(doc):
    if "as they stand" in doc:
        return ""  # a text's bytes
    for part in marks(doc):
        for unit in sorted(UNITS, key=len, reverse=True):
            if part.startswith(unit + " or "):
                return ""
            if part == unit or part.startswith(unit + " ") or part.endswith(" " + unit):
                return SAME_UNIT.get(unit, unit)
            if re.search(r"\b\d+ " + re.escape(unit) + r"\b", part):
                break  # "the first 16 bytes": an amount, no unit
    return ""


def range_of(doc):
    parts = marks(doc)
    for i, part in enumerate(parts):
        match = RANGE.match(part)
        if not match or int(match.group(1)) >= int(match.group(2)):
            continue
        low, high = int(match.group(1)), int(match.group(2))
        # "1 to 4, -1 the last": more values than the range.
        more = re.match(r"(-?\d+) ", parts[i + 1] + " ") if i + 1 < len(parts) else None
        return None if more and not low <= int(more.group(1)) <= high else [low, high]
    return None


def words_of(text):
    # Some compilers keep the ends of a macro's lines within its comments.
    scanner = Scanner(text.replace("\\\n", "\n"))
    records = {record["name"]: record for record in scanner.records}
    out = []
    for record in scanner.records:
        members = []
        for member in record["members"]:
            doc = doc_of(records, scanner.shared, record, member)
            numeric = member["type"].split()[-1:] != ["char"] and member["type"] not in records
            limits = range_of(doc) if numeric else None
            members.append({"name": member["name"], "type": member["type"], "doc": doc,
                            "unit": unit_of(doc) if numeric else "", "range": limits})
        out.append({"name": record["name"], "doc": record["comment"], "members": members})
    return {"records": sorted(out, key=lambda record: record["name"]),
            "enumerations": [each for each in scanner.enumerations if each["constants"]]}


def quoted(text):
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"').replace("?", "\\?") + '"'


def cpp(words):
    lines = ["// Made from the public headers by header_words.py.", '#include "explain/headers/HeaderWords.h"', "",
             "namespace orrery::headers {", "", "namespace {", "", "constexpr Member kMembers[] = {"]
    first = 0
    records = []
    for record in words["records"]:
        for member in record["members"]:
            low, high = member["range"] or (0, 0)
            lines.append("    {%s, %s, %s, %s, %s, %d, %d}," % (
                quoted(member["name"]), quoted(member["type"]), quoted(member["doc"]), quoted(member["unit"]),
                "true" if member["range"] else "false", low, high))
        count = len(record["members"])
        records.append("    {%s, %s, std::span(kMembers).subspan(%d, %d)}," % (
            quoted(record["name"]), quoted(record["doc"]), first, count))
        first += count
    lines += ["};", "", "constexpr Record kRecords[] = {"] + records + ["};", "", "constexpr Constant kConstants[] = {"]
    first = 0
    enumerations = []
    for each in words["enumerations"]:
        for constant in each["constants"]:
            lines.append("    {%s, %d, %s}," % (quoted(constant["name"]), constant["value"], quoted(constant["doc"])))
        count = len(each["constants"])
        enumerations.append("    {%s, %s, std::span(kConstants).subspan(%d, %d)}," % (
            quoted(each["name"]), quoted(each["doc"]), first, count))
        first += count
    lines += ["};", "", "constexpr Enumeration kEnumerations[] = {"] + enumerations + ["};", "", "} // namespace", ""]
    lines += ["std::span<const Record> Records() noexcept {", "    return kRecords;", "}",
              "std::span<const Enumeration> Enumerations() noexcept {", "    return kEnumerations;", "}", "",
              "} // namespace orrery::headers", ""]
    return "\n".join(lines)


def main(arguments):
    output, compiler = arguments[0], arguments[1:]
    made = subprocess.run(compiler, input=b'#include "orrery/orrery.h"\n', stdout=subprocess.PIPE, check=True)
    words = words_of(made.stdout.decode("utf-8"))
    if len(words["records"]) < 100:
        sys.exit("header_words.py: the compiler showed no records")
    if output == "--json":
        json.dump(words, sys.stdout, indent=1)
        return
    text = cpp(words)
    with open(output, "w", encoding="utf-8") as file:
        file.write(text)


if __name__ == "__main__":
    main(sys.argv[1:])
