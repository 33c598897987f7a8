"""The calls of the shared library, by ctypes, which releases the interpreter's lock during each."""

from __future__ import annotations

import ctypes
import os
import threading
from typing import Any, Callable, List, NamedTuple, Optional

from ._memory import Buffer, Record, address_of
from ._version import FILE_VERSION


def _load(name: str) -> ctypes.CDLL:
    folder = os.environ.get("ORRERY_LIBRARY_PATH", "")  # for tests: a build that is not installed
    return ctypes.CDLL(os.path.join(folder, "%s.so.%s" % (name, FILE_VERSION)))


_orrery = _load("liborrery")
_bytes, _address, _u32, _i32 = ctypes.c_char_p, ctypes.c_void_p, ctypes.c_uint32, ctypes.c_int32
_EVENT = ctypes.CFUNCTYPE(_i32, _u32, _address, _u32, _address, _i32, _address)


def _function(library: ctypes.CDLL, name: str, result: Any, *arguments: Any) -> Any:
    function = getattr(library, name)
    function.restype = result
    function.argtypes = arguments
    return function


_version = _function(_orrery, "ORRERY_Version", _u32)
_parse_data = _function(_orrery, "CLIENT_ParseData", _i32, _bytes, _bytes, _address, _u32, _address)
_packet_data = _function(_orrery, "CLIENT_PacketData", _i32, _bytes, _address, _u32, _address, _u32)
_parse_events = _function(_orrery, "CLIENT_ParseAnalyzerEventData", _i32, _bytes, _u32, _EVENT, _address)
_parse_typed = _function(_orrery, "CLIENT_ParseDataByCallback", _i32, _bytes, _u32, _EVENT, _address)
_parse_template = _function(_orrery, "CLIENT_ParseVideoInAnalyse", _i32, _bytes, _i32, _bytes, _bytes, _address, _u32)
_size_words = _function(_orrery, "ORRERY_SetSizeWords", _i32, _bytes, _address, _u32)
_rule_bytes = _function(_orrery, "ORRERY_RuleBytes", _u32, _bytes, _bytes)
_copy_event = _function(_orrery, "ORRERY_CopyEvent", _u32, _u32, _address, _u32, _address, _u32)


def version() -> str:
    """The version of the library that runs."""
    number = _version()
    return "%d.%d.%d" % (number // 10000, number // 100 % 100, number % 100)


def parse_into(command: str, text: bytes, buffer: Buffer) -> Optional[int]:
    """The bytes of record data; None when the call is refused."""
    length = _u32(0)
    taken = _parse_data(command.encode(), text, address_of(buffer), len(buffer), ctypes.byref(length))
    return length.value if taken else None


def parse(command: str, text: bytes, buffer: Buffer) -> bool:
    return parse_into(command, text, buffer) is not None


def pack(command: str, record: bytes, room: int) -> Optional[bytes]:
    """The text; None when it is refused or does not fit with its newline."""
    text = ctypes.create_string_buffer(room)
    if not _packet_data(command.encode(), record, len(record), text, room):
        return None
    value = text.value
    return value if len(value) + 1 < room else None


def parse_template(method: str, class_type: int, text: bytes, buffer: Buffer) -> bool:
    return bool(_parse_template(method.encode(), class_type, text, b"", address_of(buffer), len(buffer)))


def set_size_words(command: str, buffer: Buffer) -> None:
    _size_words(command.encode(), address_of(buffer), len(buffer))


Record.prepare_ = set_size_words


def rule_bytes(command: str, text: bytes) -> int:
    size: int = _rule_bytes(command.encode(), text)
    return size


def decode(text: bytes, of_typed: bool, add: Callable[[int, bytearray, int], None]) -> bool:
    """Hands a copy of each event on, which lives for itself."""
    failed: List[BaseException] = []

    def taken(code: int, record: int, size: int, _reserved: object, _sequence: int, _user: object) -> int:
        try:
            copy = bytearray(_copy_event(code, record, size, None, 0))
            _copy_event(code, record, size, address_of(copy), len(copy))
            add(code, copy, size)
        except BaseException as why:  # it must not leave a callback
            failed.append(why)
        return 0

    result = (_parse_typed if of_typed else _parse_events)(text, len(text), _EVENT(taken), None)
    if failed:
        raise failed[0]
    return bool(result)


class Finding(NamedTuple):
    """What the translation of a text refuses or passes over, and where."""

    kind: str
    gravity: int  # 1 a note, 2 lost, 3 the call is refused
    line: int
    column: int
    path: str
    field: str
    message: str


class _FINDING(ctypes.Structure):
    _fields_ = [(name, kind) for name, kind in (
        ("dwSize", _u32), ("nKind", _i32), ("nGravity", _i32), ("nLine", _u32), ("nColumn", _u32), ("nLost", _u32),
        ("nOffset", ctypes.c_uint64), ("nLength", ctypes.c_uint64), ("szKind", _bytes), ("szPath", _bytes),
        ("szField", _bytes), ("szMessage", _bytes), ("szNearest", _bytes))]


_TAKES_FINDING = ctypes.CFUNCTYPE(_i32, ctypes.POINTER(_FINDING), _address)
_loading = threading.Lock()
_explaining: List[Any] = []


def _explanations() -> "tuple[Any, Any]":
    """Those of replies and of records; none of either where that library is not installed."""
    with _loading:
        if not _explaining:
            try:
                library = _load("liborrery-explain")
            except OSError:
                return None, None
            size = ctypes.c_size_t
            _explaining.append((
                _function(library, "ORRERY_ExplainReply", _i32, _bytes, _bytes, size, _u32, _TAKES_FINDING, _address),
                _function(library, "ORRERY_ExplainRecord", _i32, _bytes, _bytes, _u32, _TAKES_FINDING, _address)))
        replies, records = _explaining[0]
        return replies, records


def _findings(function: Any, *arguments: Any) -> List[Finding]:
    found: List[Finding] = []

    def taken(finding: Any, _user: object) -> int:
        one = finding.contents
        found.append(Finding(one.szKind.decode(), one.nGravity, one.nLine, one.nColumn,
                             one.szPath.decode("utf-8", "replace"), one.szField.decode(),
                             one.szMessage.decode("utf-8", "replace")))
        return 1

    if function is not None:
        function(*arguments, _TAKES_FINDING(taken), None)
    return found


def explain(command: str, text: "str | bytes") -> List[Finding]:
    """What liborrery-explain says of a reply; nothing where that library is not installed."""
    data = text.encode("utf-8", "surrogateescape") if isinstance(text, str) else text
    return _findings(_explanations()[0], command.encode(), data, len(data), 0)


def explain_bytes(command: str, records: bytes) -> List[Finding]:
    """The same of records: why they are refused, and what of them leaves no trace in the text."""
    return _findings(_explanations()[1], command.encode(), records, len(records))


class Refused(Exception):
    """A call that was refused, with what explains it."""

    def __init__(self, message: str, findings: List[Finding]) -> None:
        self.findings = findings
        worst = [finding for finding in findings if finding.gravity == 3] or findings
        if worst:
            place = "%d:%d " % (worst[0].line, worst[0].column) if worst[0].line > 0 else ""
            message += ": %s%s: %s" % (place, worst[0].path, worst[0].message)
        super().__init__(message)
