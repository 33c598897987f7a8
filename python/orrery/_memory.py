"""Records as views of the bytes that the library reads and writes: a member is decoded when it is looked at."""

from __future__ import annotations

import ctypes
import locale
import struct
from enum import IntEnum, IntFlag
from typing import (TYPE_CHECKING, Any, Callable, ClassVar, Generic, Iterator, List, NamedTuple, Optional, Type, TypeVar, Union,
                    overload)

T = TypeVar("T")
R = TypeVar("R", bound="Record")
E = TypeVar("E", bound=IntEnum)
B = TypeVar("B", bound=IntFlag)
F = TypeVar("F", bound="BaseField[Any]")

Buffer = Union[bytearray, memoryview]


def _encoding() -> str:
    """The encoding of texts in records: that of the process's locale, as the library has it."""
    name = locale.nl_langinfo(locale.CODESET) if hasattr(locale, "nl_langinfo") else "mbcs"
    return "utf-8" if name in ("", "ANSI_X3.4-1968", "US-ASCII") else name


def decode(data: bytes) -> str:
    """A text of a record. Bytes that are none in the encoding survive the way back."""
    return data.decode(_encoding(), "surrogateescape")


def encode(text: str) -> bytes:
    return text.encode(_encoding(), "surrogateescape")


def address_of(buffer: Buffer) -> int:
    return ctypes.addressof(ctypes.c_char.from_buffer(buffer)) if len(buffer) else 0


def at_address(address: int, size: int) -> memoryview:
    return memoryview((ctypes.c_char * size).from_address(address)).cast("B")


class Record:
    """A record of the library. Made empty, or with some members; size words are set where the record has them."""

    size_: ClassVar[int] = 0
    c_name_: ClassVar[str] = ""
    fields_: ClassVar[List[str]] = []
    command_: ClassVar[Optional[str]] = None  # one whose record it is, for its size words
    only_command_: ClassVar[Optional[str]] = None  # the one that writes it
    is_written_: ClassVar[bool] = False
    lists_: ClassVar[List[str]] = []  # members that are lists in the caller's memory
    inner_: ClassVar[List[str]] = []  # members that are records with such lists
    sized_: ClassVar[List[str]] = []  # members that are records with size words
    size_word_: ClassVar[Optional[int]] = None  # its offset
    asked_: ClassVar["List[tuple[int, int]]"] = []  # where a record says how many elements it wants: all that it can hold
    packed_: ClassVar[List[str]] = []  # members that are packed records or hold such
    items_: ClassVar[Optional[str]] = None  # the member that is a list of rules of any types
    rule_types_: ClassVar["dict[int, Type[Record]]"] = {}
    rule_names_: ClassVar["dict[int, str]"] = {}
    prepare_: ClassVar[Optional[Callable[[str, Buffer], None]]] = None

    __slots__ = ("_buffer", "_at", "_kept", "command")

    def __init__(self, **members: object) -> None:
        self._buffer: Buffer = bytearray(self.size_)
        self._at = 0
        self._kept: List[object] = []
        self.command: Optional[str] = None
        if self.command_ is not None and Record.prepare_ is not None:
            Record.prepare_(self.command_, self._buffer)
        self.ask_()
        for name, value in members.items():
            if name not in self.fields_:
                raise TypeError("%s has no member %r" % (type(self).__name__, name))
            setattr(self, name, value)

    @classmethod
    def view(cls: Type[R], buffer: Buffer, at: int, kept: List[object]) -> R:
        """The record at a place of a buffer; `kept` lives as long as it does."""
        self = cls.__new__(cls)
        self._buffer, self._at, self._kept, self.command = buffer, at, kept, None
        return self

    def ask_(self) -> None:
        for offset, most in self.asked_:
            struct.pack_into("=i", self._buffer, self._at + offset, most)

    if not TYPE_CHECKING:  # a checker tells by itself

        def __setattr__(self, name, value):
            if name not in self.fields_ and name not in Record.__slots__:
                raise AttributeError("%s has no member %r" % (type(self).__name__, name))
            super().__setattr__(name, value)

    def __bytes__(self) -> bytes:
        return bytes(self._buffer[self._at : self._at + self.size_])

    def __eq__(self, other: object) -> bool:
        return type(self) is type(other) and isinstance(other, Record) and self.as_dict() == other.as_dict()

    __hash__ = None  # type: ignore[assignment]

    def __repr__(self) -> str:
        return "%s(%s)" % (type(self).__name__, ", ".join("%s=%r" % item for item in self.as_dict(False).items()))

    def as_dict(self, all_members: bool = True) -> "dict[str, Any]":
        """Members by name, records inside as dictionaries too; without `all_members` only those that say something."""
        out = {}
        for name in self.fields_:
            value = _plain(getattr(self, name), all_members)
            if all_members or value not in (None, 0, "", [], {}):
                out[name] = value
        return out


class Rule(NamedTuple):
    """A rule of a channel: its code (RULE of enumerations), id, class and record."""

    code: int
    record: Record
    id: int = 0
    rule_class: int = 1

    @property
    def name(self) -> str:
        return Record.rule_names_.get(self.code, "")


def _plain(value: Any, all_members: bool) -> Any:
    if isinstance(value, Record):
        return value.as_dict(all_members)
    if isinstance(value, Rule):
        return {**value._asdict(), "record": value.record.as_dict(all_members)}
    if isinstance(value, list):
        return [_plain(element, all_members) for element in value]
    return value


class Codec(Generic[T]):
    """How the bytes at a place become a value, and back."""

    size: int

    def get(self, record: Record, at: int) -> T:
        raise NotImplementedError

    def put(self, record: Record, at: int, value: T) -> None:
        raise NotImplementedError


class Number(Codec[T]):
    def __init__(self, form: str) -> None:
        self._form = struct.Struct("=" + form)
        self.size = self._form.size

    def get(self, record: Record, at: int) -> T:
        value: T = self._form.unpack_from(record._buffer, at)[0]
        return value

    def put(self, record: Record, at: int, value: T) -> None:
        try:
            self._form.pack_into(record._buffer, at, value)
        except struct.error as why:
            raise ValueError("%r does not fit: %s" % (value, why)) from None


class Bool(Codec[bool]):
    def __init__(self, form: str) -> None:
        self._number = Number[int](form)
        self.size = self._number.size

    def get(self, record: Record, at: int) -> bool:
        return self._number.get(record, at) != 0

    def put(self, record: Record, at: int, value: bool) -> None:
        self._number.put(record, at, 1 if value else 0)


class Code(Codec[Union[E, int]]):
    """A code as its enumeration's member; a code of none stays a number."""

    def __init__(self, form: str, enumeration: Type[E]) -> None:
        self._number = Number[int](form)
        self._members = {member.value: member for member in enumeration}
        self.size = self._number.size

    def get(self, record: Record, at: int) -> Union[E, int]:
        number = self._number.get(record, at)
        return self._members.get(number, number)

    def put(self, record: Record, at: int, value: Union[E, int]) -> None:
        self._number.put(record, at, int(value))


class Mask(Codec[B]):
    """Bits that stand for codes."""

    def __init__(self, form: str, enumeration: Type[B]) -> None:
        self._number = Number[int](form.upper())
        self._enumeration = enumeration
        self.size = self._number.size

    def get(self, record: Record, at: int) -> B:
        return self._enumeration(self._number.get(record, at))

    def put(self, record: Record, at: int, value: B) -> None:
        self._number.put(record, at, int(value))


class Text(Codec[str]):
    def __init__(self, capacity: int, terminated: bool = True) -> None:
        self.size = capacity
        self._most = capacity - 1 if terminated else capacity

    def get(self, record: Record, at: int) -> str:
        data = bytes(record._buffer[at : at + self.size])
        return decode(data.split(b"\0", 1)[0])

    def put(self, record: Record, at: int, value: str) -> None:
        data = encode(value)
        if len(data) > self._most:
            raise ValueError("a text of %d bytes for a field of %d" % (len(data), self._most))
        if b"\0" in data:
            raise ValueError("a text with a NUL")
        record._buffer[at : at + self.size] = data + bytes(self.size - len(data))


class Inside(Codec[R]):
    """A record inside another: a view, so that setting its members sets them there."""

    def __init__(self, of: Type[R]) -> None:
        self._of = of
        self.size = of.size_

    def get(self, record: Record, at: int) -> R:
        return self._of.view(record._buffer, at, record._kept)

    def put(self, record: Record, at: int, value: R) -> None:
        if not isinstance(value, self._of):
            raise TypeError("%r is no %s" % (value, self._of.__name__))
        record._buffer[at : at + self.size] = bytes(value)
        record._kept.extend(value._kept)


class Array(Codec[List[T]]):
    def __init__(self, of: Codec[T], length: int) -> None:
        self._of = of
        self._length = length
        self.size = of.size * length

    def get(self, record: Record, at: int) -> List[T]:
        return self.first(record, at, self._length)

    def first(self, record: Record, at: int, count: int) -> List[T]:
        return [self._of.get(record, at + i * self._of.size) for i in range(min(max(count, 0), self._length))]

    def put(self, record: Record, at: int, value: List[T]) -> None:
        if len(value) > self._length:
            raise ValueError("%d elements for an array of %d" % (len(value), self._length))
        record._buffer[at : at + self.size] = bytes(self.size)
        for i, element in enumerate(value):
            self._of.put(record, at + i * self._of.size, element)


class BaseField(Generic[T]):
    """A member of a record."""

    def load(self, record: Record) -> T:
        raise NotImplementedError

    def store(self, record: Record, value: T) -> None:
        raise NotImplementedError

    @overload
    def __get__(self: F, record: None, owner: Type[Record]) -> F: ...

    @overload
    def __get__(self, record: Record, owner: Type[Record]) -> T: ...

    def __get__(self, record: Optional[Record], owner: Type[Record]) -> Any:
        return self if record is None else self.load(record)

    def __set__(self, record: Record, value: T) -> None:
        self.store(record, value)


class Field(BaseField[T]):
    def __init__(self, offset: int, codec: Codec[T]) -> None:
        self._offset = offset
        self._codec = codec

    def load(self, record: Record) -> T:
        return self._codec.get(record, record._at + self._offset)

    def store(self, record: Record, value: T) -> None:
        self._codec.put(record, record._at + self._offset, value)


class Listed(BaseField[List[T]]):
    """An array of which another member counts the elements in use."""

    def __init__(self, offset: int, codec: Array[T], count: Field[int]) -> None:
        self._offset = offset
        self._codec = codec
        self._count = count

    def load(self, record: Record) -> List[T]:
        return self._codec.first(record, record._at + self._offset, self._count.load(record))

    def store(self, record: Record, value: List[T]) -> None:
        self._codec.put(record, record._at + self._offset, value)
        self._count.store(record, len(value))


class Flagged(BaseField[Optional[T]]):
    """A member that is there when its flag is set, and None otherwise."""

    def __init__(self, field: BaseField[T], flag: Field[int]) -> None:
        self._field = field
        self._flag = flag

    def load(self, record: Record) -> Optional[T]:
        return self._field.load(record) if self._flag.load(record) else None

    def store(self, record: Record, value: Optional[T]) -> None:
        self._flag.store(record, 0 if value is None else 1)
        if value is not None:
            self._field.store(record, value)


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
