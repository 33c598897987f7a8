"""Device JSON to fixed-layout records and back.

    alarm = orrery.parse("Alarm", reply)      # an AlarmInput; Refused tells why a reply is none
    alarm.enable = False
    text = orrery.pack(alarm)
    for event in orrery.events(notification):
        print(event.name, event.record)

Records are views of the library's own bytes: members are decoded when they are looked at, lists are cut at their
counts, what a flag says is absent is None, codes are members of their enumerations. All calls release the
interpreter's lock."""

from __future__ import annotations

from typing import Any, Iterator, List, NamedTuple, Optional, Union

from . import _library, _records
from ._commands import COMMANDS, EVENTS, NAMES_OF_CODES, RULES, TEMPLATES, TYPED, Reading, Several, Templates
from ._library import Finding, Refused, explain, version
from ._memory import Record, Rule
from ._pointers import Rooms, lend_items, packed_of

__all__ = [
    "Event", "Finding", "Record", "Refused", "Rule", "events", "explain", "explain_record", "pack", "pack_rules", "parse",
    "parse_all", "parse_rules", "parse_template", "typed", "version",
]

Json = Union[str, bytes]
_MOST_ELEMENTS = 1 << 16
_MOST_RULES = 32
Record.rule_types_ = RULES
Record.rule_names_ = NAMES_OF_CODES
_LARGEST_TEXT = 64 << 20


def _bytes(text: Json) -> bytes:
    data = text.encode("utf-8", "surrogateescape") if isinstance(text, str) else text
    if b"\0" in data:
        raise ValueError("a text with a NUL")
    return data


def _parse(command: str, text: Json) -> Record:
    found = COMMANDS.get(command.lower())
    if found is None:
        raise Refused("%r is no command" % command, [])
    name, record_type = found
    data = _bytes(text)
    rooms = Rooms() if record_type.lists_ or record_type.inner_ else None
    while True:
        record = record_type()
        record.command = name
        if rooms is not None:
            rooms.lend(record)
        if record.items_ is not None:
            lend_items(record, _library.rule_bytes(name, data))
        taken = _library.parse(name, data, record._buffer)
        if rooms is None or not rooms.grow([record], taken):
            break
    if not taken:
        raise Refused("%s: the reply is refused" % name, explain(name, data))
    if rooms is not None:
        rooms.trim(record)
    return _with_rules(record, name, data) if record_type.packed_ else record


def _with_rules(record: Record, command: str, data: bytes) -> Record:
    """The rules of groups, which told their types when there was no room for them."""
    elements = 8
    while elements <= _MOST_ELEMENTS:
        full = [(packed, group) for packed, group in packed_of(record) if packed.is_full(group)]
        if not full:
            break
        for packed, group in full:
            packed.lend(group, elements)
        if not _library.parse(command, data, record._buffer):
            raise Refused("%s: the reply is refused" % command, explain(command, data))
        elements *= 8
    return record


parse: Reading = _parse  # type: ignore[assignment]


def _parse_all(command: str, text: Json, most: int = 64) -> List[Record]:
    found = COMMANDS.get(command.lower())
    if found is None:
        raise Refused("%r is no command" % command, [])
    name, record_type = found
    data = _bytes(text)
    rooms = Rooms()
    while True:
        buffer = bytearray(record_type.size_ * most)
        _library.set_size_words(name, buffer)
        kept: List[object] = [buffer]
        records: List[Record] = [record_type.view(buffer, i * record_type.size_, kept) for i in range(most)]
        for record in records:
            record.command = name
            record.ask_()
            rooms.lend(record)
        length = _library.parse_into(name, data, buffer)
        if length is None:
            raise Refused("%s: the reply is refused" % name, explain(name, data))
        records = records[: length // record_type.size_]
        if not rooms.grow(records, True):
            for record in records:
                rooms.trim(record)
            return records


parse_all: Several = _parse_all  # type: ignore[assignment]


def _records_of(record: Union[Record, List[Any]], command: Optional[str]) -> "tuple[str, bytes]":
    records: List[Record] = record if isinstance(record, list) else [record]
    if not records:
        raise ValueError("no record")
    name = command or records[0].command or records[0].only_command_
    if name is None:
        raise ValueError("which command is %s for?" % type(records[0]).__name__)
    return name, b"".join(bytes(one) for one in records)


def pack(record: Union[Record, List[Any]], command: Optional[str] = None) -> str:
    """The text of a record, or of a list of them, to be sent under "params"."table". A record that was parsed knows its
    command; of others it has to be said where several have the record."""
    return _pack(*_records_of(record, command))


def explain_record(record: Union[Record, List[Any]], command: Optional[str] = None) -> List[Finding]:
    """What liborrery-explain says of a record that is to be packed; nothing where that library is not installed."""
    return _library.explain_bytes(*_records_of(record, command))


def _pack(name: str, data: bytes) -> str:
    room = 1 << 16
    while room <= _LARGEST_TEXT:
        text = _library.pack(name, data, room)
        if text is not None:
            return text.decode("utf-8", "surrogateescape")
        room *= 8
    raise Refused("%s: the record is refused" % name, _library.explain_bytes(name, data))


def parse_rules(text: Json, command: str = "VideoAnalyseRule") -> List[Rule]:
    """The rules of a channel, from the reply of "VideoAnalyseRule", "AudioAnalyseRule" or "IVSFramRule"."""
    record = _parse(command, text)
    if not isinstance(record, _records.Analyserules):
        raise ValueError("%r has no rules" % command)
    return record.rule_buf


def pack_rules(rules: List[Rule], command: str = "VideoAnalyseRule") -> str:
    record = _records.Analyserules(rule_buf=rules)  # which has what its pointer leads to: it stays for the call
    return _pack(command, bytes(record))


class Event(NamedTuple):
    """An event, or what else a text carries, with a copy of its record and all that its pointers lead to."""

    code: int
    name: str
    record: Record


def _collect(text: Json, of_typed: bool) -> List[Event]:
    found: List[Event] = []

    def add(code: int, buffer: bytearray, size: int) -> None:
        record_type = (TYPED if of_typed and code in TYPED else EVENTS).get(code)
        if record_type is None:
            return
        count = max(1, size // record_type.size_) if of_typed else 1
        for i in range(count):
            found.append(Event(code, NAMES_OF_CODES.get(code, ""), record_type.view(buffer, i * record_type.size_, [buffer])))

    if not _library.decode(_bytes(text), of_typed, add):
        raise Refused("the text is refused", [])
    return found


def events(text: Json) -> Iterator[Event]:
    """The events of a text of analyzer events. Text that is no JSON has none."""
    return iter(_collect(text, False))


def typed(text: Json) -> Iterator[Event]:
    """What a text carries whose keys tell it, list elements one by one."""
    return iter(_collect(text, True))


def _parse_template(method: str, text: Json, class_type: int = 1) -> Record:
    if method not in TEMPLATES:
        raise Refused("%r is no method with a template" % method, [])
    data = _bytes(text)
    # Nothing tells beforehand how much its rules need: a little first, then as much as any.
    largest = max(kind.size_ for kind in RULES.values())
    for room in (1 << 18, _MOST_RULES * (1024 + largest)):
        record = TEMPLATES[method]()
        lend_items(record, room)
        if _library.parse_template(method, class_type, data, record._buffer):
            return record
        if record.items_ is None:
            break
    raise Refused("%s: the reply is refused" % method, [])


parse_template: Templates = _parse_template  # type: ignore[assignment]
