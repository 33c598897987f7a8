"""Records as views of the bytes that the library reads and writes: a member is decoded when it is looked at."""

from __future__ import annotations

import ctypes
import locale
import struct
from enum import IntEnum, IntFlag
from typing import (TYPE_CHECKING, Any, Callable, ClassVar, Generic, List, NamedTuple, Optional, Type, TypeVar, Union,
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
