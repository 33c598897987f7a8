"""Members that are pointers: texts, lists and rules behind them, and the room that a reply is lent for those."""

from __future__ import annotations

import ctypes
import struct
from typing import Any, Iterator, List, Optional

from ._memory import BaseField, Codec, Field, Flagged, Inside, Record, Rule, T, address_of, at_address, decode, encode

_ADDRESS = struct.Struct("=Q")


def pointer_at(record: Record, offset: int) -> int:
    address: int = _ADDRESS.unpack_from(record._buffer, record._at + offset)[0]
    return address


def point(record: Record, offset: int, buffer: bytearray) -> None:
    _ADDRESS.pack_into(record._buffer, record._at + offset, address_of(buffer))
    record._kept.append(buffer)


class PointedText(BaseField[Optional[str]]):
    def __init__(self, offset: int) -> None:
        self._offset = offset

    def load(self, record: Record) -> Optional[str]:
        address = pointer_at(record, self._offset)
        return decode(ctypes.string_at(address)) if address else None

    def store(self, record: Record, value: Optional[str]) -> None:
        if value is None:
            _ADDRESS.pack_into(record._buffer, record._at + self._offset, 0)
        else:
            point(record, self._offset, bytearray(encode(value) + b"\0"))


class PointedList(BaseField[List[T]]):
    """A list behind a pointer: as many elements as the count says, or one without a count; none for a null."""

    def __init__(self, offset: int, of: Codec[T], count: Optional[Field[int]], room: Optional[Field[int]]) -> None:
        self._offset = offset
        self._of = of
        self._count = count
        self._room = room

    def load(self, record: Record) -> List[T]:
        address = pointer_at(record, self._offset)
        count = self._count.load(record) if self._count is not None else 1
        if self._room is not None:
            count = min(count, self._room.load(record))
        if address == 0 or count <= 0:
            return []
        target = Record.view(at_address(address, count * self._of.size), 0, record._kept)
        return [self._of.get(target, i * self._of.size) for i in range(count)]

    def store(self, record: Record, value: List[T]) -> None:
        target = Record.view(bytearray(len(value) * self._of.size), 0, record._kept)
        for i, element in enumerate(value):
            self._of.put(target, i * self._of.size, element)
        if value:
            point(record, self._offset, target._buffer)  # type: ignore[arg-type]
        else:
            _ADDRESS.pack_into(record._buffer, record._at + self._offset, 0)
        for field in (self._count, self._room):
            if field is not None:
                field.store(record, len(value))

    def lend(self, record: Record, elements: int) -> List[Record]:
        """Room for a reply to be read into; the records in it."""
        if self._room is not None:
            self._room.store(record, elements)
        elif self._count is not None:
            return []
        else:
            elements = 1
        buffer = bytearray(elements * self._of.size)
        point(record, self._offset, buffer)
        if not isinstance(self._of, Inside):
            return []
        target = Record.view(buffer, 0, record._kept)
        return [self._of.get(target, i * self._of.size) for i in range(elements)]

    def element_size(self) -> int:
        return self._of.size

    def is_full(self, record: Record) -> bool:
        return (
            self._count is not None
            and self._room is not None
            and 0 < self._room.load(record) <= self._count.load(record)
        )

    def trim(self, record: Record, is_inner: bool) -> None:
        """What is lent ends where the reply did: some commands write all that there is room for."""
        if self._count is None or self._room is None:
            return
        count = self._count.load(record)
        if count > 0 or is_inner and not isinstance(self._of, Inside):
            self._room.store(record, min(count, self._room.load(record)))

    def records(self, record: Record) -> List[Record]:
        return self.load(record) if isinstance(self._of, Inside) else []  # type: ignore[return-value]


def lend_bytes(record: Record, offset: int, buffer: bytearray, room: Field[int]) -> None:
    if buffer:
        point(record, offset, buffer)
    else:
        _ADDRESS.pack_into(record._buffer, record._at + offset, 0)
    room.store(record, len(buffer))


class PackedList(BaseField[List[Record]]):
    """Rules of one type behind a pointer, record behind record: a code beside them tells which."""

    def __init__(self, offset: int, code: Field[int], stride: Field[int], count: Field[int], room: Field[int]) -> None:
        self._offset = offset
        self._code = code
        self._stride = stride
        self._count = count
        self._room = room

    def load(self, record: Record) -> List[Record]:
        kind = Record.rule_types_.get(self._code.load(record))
        address = pointer_at(record, self._offset)
        stride, room = self._stride.load(record), self._room.load(record)
        if kind is None or address == 0 or stride < kind.size_:
            return []
        count = min(self._count.load(record), room // stride)
        buffer = at_address(address, max(room, 0))
        return [kind.view(buffer, i * stride, record._kept) for i in range(count)]

    def store(self, record: Record, value: List[Record]) -> None:
        kind = Record.rule_types_.get(self._code.load(record))
        if value and (kind is None or any(type(rule) is not kind for rule in value)):
            raise TypeError("rules of another type than %d" % self._code.load(record))
        stride = kind.size_ if kind is not None else 0
        buffer = bytearray().join(bytes(rule) for rule in value)
        for rule in value:
            record._kept.extend(rule._kept)
        self._stride.store(record, stride)
        lend_bytes(record, self._offset, buffer, self._room)
        self._count.store(record, len(value))

    def lend(self, record: Record, elements: int) -> None:
        """Room for the rules of a reply that has told their type."""
        lend_bytes(record, self._offset, bytearray(max(0, elements * self._stride.load(record))), self._room)

    def is_full(self, record: Record) -> bool:
        stride = self._stride.load(record)
        return stride > 0 and self._room.load(record) // stride <= self._count.load(record)


_RULE_HEAD = struct.Struct("=IiB3xi512x")  # CFG_RULE_INFO: code, bytes behind it, id, class


class RuleItems(BaseField[List[Rule]]):
    """Rules of any types behind a pointer, a head before each record. A reply may count rules that have no item."""

    def __init__(self, offset: int, count: Field[int], room: Field[int]) -> None:
        self._offset = offset
        self._count = count
        self._room = room

    def load(self, record: Record) -> List[Rule]:
        address, room = pointer_at(record, self._offset), self._room.load(record)
        if address == 0 or room <= 0:
            return []
        buffer = at_address(address, room)
        rules: List[Rule] = []
        at = 0
        while len(rules) < self._count.load(record) and at + _RULE_HEAD.size <= room:
            code, size, number, rule_class = _RULE_HEAD.unpack_from(buffer, at)
            at += _RULE_HEAD.size
            kind = Record.rule_types_.get(code)
            if kind is None or size < kind.size_ or at + size > room:
                break
            rules.append(Rule(code, kind.view(buffer, at, record._kept), number, rule_class))
            at += size
        return rules

    def store(self, record: Record, value: List[Rule]) -> None:
        buffer = bytearray()
        for rule in value:
            kind = Record.rule_types_.get(rule.code)
            if kind is None or type(rule.record) is not kind:
                raise TypeError("%s is no record of rule %d" % (type(rule.record).__name__, rule.code))
            buffer += _RULE_HEAD.pack(rule.code, kind.size_, rule.id, rule.rule_class) + bytes(rule.record)
        for rule in value:
            record._kept.extend(rule.record._kept)
        lend_bytes(record, self._offset, buffer, self._room)
        self._count.store(record, len(value))

    def lend(self, record: Record, size: int) -> None:
        """Room for the rules of a reply."""
        lend_bytes(record, self._offset, bytearray(size), self._room)


def lend_items(record: Record, size: int) -> None:
    """Room for the rules of a reply, where its record is a list of them."""
    field = getattr(type(record), record.items_ or "", None)
    if isinstance(field, RuleItems):
        field.lend(record, size)


def packed_of(record: Record) -> "Iterator[tuple[PackedList, Record]]":
    for name in record.packed_:
        field = getattr(type(record), name)
        if isinstance(field, PackedList):
            yield field, record
            continue
        held = getattr(record, name)
        for inner in held if isinstance(held, list) else [held]:
            yield from packed_of(inner)


def inner_of(record: Record, name: str) -> Iterator[Record]:
    """A record inside another, or all of an array of them, whatever its count says."""
    field = getattr(type(record), name)
    if isinstance(field, Flagged):
        field = field._field
    held = [field._codec.get(record, record._at + field._offset)]
    while held:
        one = held.pop()
        if isinstance(one, list):
            held.extend(one)
        else:
            yield one


def set_size_words(record: Record) -> None:
    """Those of a record behind a pointer, which the library leaves to the caller."""
    if record.size_word_ is not None:
        struct.pack_into("=I", record._buffer, record._at + record.size_word_, record.size_)
    for name in record.sized_:
        for inner in inner_of(record, name):
            set_size_words(inner)


class Rooms:
    """How much a call is lent: as many elements of each list as its replies were seen to need."""

    MOST = 256 << 20  # bytes

    def __init__(self) -> None:
        self._elements: "dict[tuple[type, str], int]" = {}
        self._bytes = 0

    def lend(self, record: Record, depth: int = 0) -> None:
        for name in record.inner_:
            for inner in inner_of(record, name):
                self.lend(inner, depth + 1)
        for name in record.lists_:
            field = getattr(type(record), name)
            elements = self._elements.setdefault((type(record), name), 32 if depth == 0 else 8)
            self._bytes += elements * field.element_size()  # of all calls: it bounds the work too
            for element in field.lend(record, elements):
                set_size_words(element)
                self.lend(element, depth + 1)

    def _full(self, record: Record) -> "Iterator[tuple[type, str]]":
        for name in record.inner_:
            for inner in inner_of(record, name):
                yield from self._full(inner)
        for name in record.lists_:
            field = getattr(type(record), name)
            if field.is_full(record):
                yield type(record), name
            for element in field.records(record):
                yield from self._full(element)

    def trim(self, record: Record, depth: int = 0) -> None:
        for name in record.inner_:
            for inner in inner_of(record, name):
                self.trim(inner, depth + 1)
        for name in record.lists_:
            field = getattr(type(record), name)
            for element in field.records(record):
                self.trim(element, depth + 1)
            field.trim(record, depth > 0)

    def grow(self, records: "List[Any]", taken: bool) -> bool:
        """Whether there is more to lend than a call had. A list that is full may have been cut; where the call was
        refused, it may be for want of room in the first."""
        if taken:
            full = {one for record in records for one in self._full(record)}
        else:
            full = {one for one, elements in self._elements.items() if one[0] is type(records[0]) and elements <= 256}
        if not full or self._bytes * 8 ** len(full) > self.MOST:
            return False
        for one in full:
            self._elements[one] *= 8
        return True
