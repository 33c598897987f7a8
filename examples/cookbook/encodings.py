"""Texts of records are in the encoding of the process, those of devices always UTF-8; in Python both are str."""
import locale
import sys

import orrery

REPLY = '{ "result" : true, "params" : { "table" : { "Name" : "T\u00fcr" } } }'

locale.setlocale(locale.LC_ALL, "")  # the user's
output = orrery.parse("AlarmOut", REPLY)
print("".join(f"{byte:02x} " for byte in bytes(output)[: len(output.name.encode(locale.nl_langinfo(locale.CODESET)))]))
sys.stdout.flush()
sys.stdout.buffer.write(orrery.pack(output).encode())  # UTF-8 again
