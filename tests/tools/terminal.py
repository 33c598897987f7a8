"""The companion on a terminal: terminal.py PROGRAM SCRATCH_DIR."""
import fcntl
import os
import pty
import re
import struct
import subprocess
import sys
import termios

program, scratch = sys.argv[1:]
failed = False


def on_terminal(arguments, columns, streams, environment=None):
    """What the program writes to a terminal of so many columns, which the named streams lead to."""
    master, slave = pty.openpty()
    fcntl.ioctl(slave, termios.TIOCSWINSZ, struct.pack("HHHH", 24, columns, 0, 0))
    around = {key: value for key, value in os.environ.items() if key not in ("NO_COLOR", "COLUMNS")}
    around.update({"TERM": "xterm"}, **(environment or {}))
    process = subprocess.Popen([program, *arguments], stdin=subprocess.DEVNULL, env=around,
                               stdout=slave if "out" in streams else subprocess.DEVNULL,
                               stderr=slave if "err" in streams else subprocess.DEVNULL)
    os.close(slave)
    told = b""
    while True:
        try:
            part = os.read(master, 65536)
        except OSError:  # the other end is closed
            break
        if not part:
            break
        told += part
    os.close(master)
    process.wait()
    return told.decode().replace("\r\n", "\n")


def expect(holds, what, told):
    global failed
    if not holds:
        failed = True
        print("%s; the terminal shows: %r" % (what, told[:400]), file=sys.stderr)


events = os.path.join(scratch, "one.jsonl")
told = on_terminal(["events", "--fields", "szCardNo", events], 80, ["out"])
expect("\033[36m\"szCardNo\"\033[0m: \033[32m\"47\"\033[0m" in told, "no colours", told)
told = on_terminal(["events", "--fields", "szCardNo", events], 80, ["out"], {"NO_COLOR": "1"})
expect("\033" not in told and '"szCardNo": "47"' in told, "colours in spite of NO_COLOR", told)
told = on_terminal(["events", "--fields", "szCardNo", events], 80, ["out"], {"TERM": "dumb"})
expect("\033" not in told, "colours on a terminal that has none", told)

for columns in (40, 72):
    told = on_terminal(["events", "--format", "table", "--fields", "szCardNo,szDoorName,stuObject.nObjectID", events],
                       columns, ["out"])
    lines = told.splitlines()
    expect(len(lines) == 2 and all(len(line) <= columns for line in lines), "lines wider than the terminal", told)
    told = on_terminal(["describe", "NTP"], columns, ["out"])
    indented = [line for line in told.splitlines() if line.startswith("          ")]
    expect(indented and all(len(line) <= columns for line in indented), "descriptions wider than the terminal", told)


# Long enough that its reading shows.
long = os.path.join(scratch, "long.jsonl")
with open(events) as one, open(long, "w") as file:
    line = one.read()
    file.write(line * (12_000_000 // len(line)))
told = on_terminal(["events", "--filter", "name=None", long], 60, ["err"])
bars = re.findall(r"\r([^\r\033]*% [^\r\033]*MB)", told)
expect(bars and all(len(bar) < 60 for bar in bars), "no bar that fits", told)
*_, behind = told.rpartition("\r\033[K")  # notes may follow where the last bar was wiped off
expect("\033[K" in told and "%" not in behind, "the bar stays", told[-200:])
told = on_terminal(["events", "--filter", "name=None", long], 60, ["out", "err"])
expect("%" not in told, "a bar among what is printed", told)
os.remove(long)
sys.exit(failed)
