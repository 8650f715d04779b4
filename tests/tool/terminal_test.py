#!/usr/bin/env python3
"""terminal_test.py TOOL: what the tool writes when standard output is a terminal."""

import os
import pathlib
import pty
import re
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parents[2]
TOOL = sys.argv[1]
COLOUR = re.compile(rb"\x1b\[[0-9]{1,2}m")


def on_terminal(*arguments, status=0, **variables):
    ours, theirs = pty.openpty()
    environment = {name: value for name, value in os.environ.items() if name != "NO_COLOR"}
    environment.update({"TERM": "xterm", **variables})
    process = subprocess.Popen([TOOL, *arguments], cwd=ROOT, env=environment, stdout=theirs, stdin=subprocess.DEVNULL)
    os.close(theirs)
    written = b""
    while True:
        try:
            block = os.read(ours, 65536)
        except OSError:  # how Linux ends a terminal
            break
        if not block:
            break
        written += block
    os.close(ours)
    assert process.wait(timeout=60) == status, (arguments, written)
    return written.replace(b"\r\n", b"\n")  # the terminal's own doing


def controls(text):
    """Whatever acts on a terminal, line ends and C1 controls in UTF-8 included."""
    return set(re.findall(rb"[\x00-\x09\x0b-\x1f\x7f]|\xc2[\x80-\x9f]|\xe2\x80[\xaa-\xae]", text))


hostile = "examples/messages/hostile.sip"

coloured = on_terminal("decode", hostile)
assert COLOUR.search(coloured), "decode has colours on a terminal"
assert not controls(COLOUR.sub(b"", coloured)), "and no control character but those"

for variables in ({"NO_COLOR": "1"}, {"TERM": "dumb"}):
    assert not controls(on_terminal("decode", hostile, **variables)), f"no colours with {variables}"

commands = ((["encode"], 0), (["decode", "--json"], 0), (["check"], 1), (["split"], 0), (["reply", "200"], 0))
for command, status in commands:
    plain = COLOUR.sub(b"", on_terminal(*command, hostile, status=status))
    assert plain and not controls(plain), f"{command} writes no control characters to a terminal"

encoded = on_terminal("encode", hostile).decode()
assert 'From: "\\x1B[2J\\x1B[31mBank\\x07" <sip:mallory@example.org>;tag=h1\n' in encoded, "encode shows them instead"

# Marks stand below what is at fault, whatever its characters take on the screen, and long lines are broken in time.
with tempfile.NamedTemporaryFile() as file:
    file.write("SIP/2.0 200 OK\r\nl: 0\r\nHistory-Info: \"日本 e\u0301\t\" <sip:a@b>;index=1, <sip:c@d>\r\n".encode())
    file.write(f"From: <sip:{'a' * 80}>;tag=x,\r\n\r\n".encode())
    file.flush()
    shown = on_terminal("check", file.name, status=1, NO_COLOR="1").decode().replace(file.name, "FILE")
    assert shown == f"""FILE:3:52: History-Info: expected an index after the URI
    History-Info: "日本 e\u0301\\t" <sip:a@b>;index=1, <sip:c@d>
{"^":>58}
FILE:4:99: From: expected the end or ";" after the tag
    From: <sip:{"a" * 65}
    {"a" * 15}>;tag=x,
{"^":>27}
""", shown
