#!/usr/bin/env python3
"""json_test.py TOOL: messages as JSON and back, and the form of that JSON.

With UPDATE=1 in the environment, writes docs/message.schema.json anew."""

import json
import os
import pathlib
import re
import subprocess
import sys

import jsonschema

ROOT = pathlib.Path(__file__).resolve().parents[2]
SCHEMA = ROOT / "docs/message.schema.json"


def tool(*arguments, given=b""):
    return subprocess.run([sys.argv[1], *arguments], input=given, capture_output=True, cwd=ROOT, timeout=60).stdout


def decode(wire):
    return [message for message in json.loads(tool("decode", "--json", given=wire)) if "error" not in message]


def encode(messages):
    return tool("encode", "--json", given="\n".join(map(json.dumps, messages)).encode())


def samples():
    """The messages of the project, and one with the example of each header field."""
    for path in sorted(ROOT.glob("*/messages/*.sip")) + sorted(ROOT.glob("tests/tool/messages/*.sip")):
        yield path.name, path.read_bytes()
    for path in sorted(ROOT.glob("source/sipsn/sipsn_header_*.h")):
        for field in re.findall(r"^ \* Example: (.*)", path.read_text(), re.M):
            yield field, f"OPTIONS sip:example.com SIP/2.0\r\n{field}\r\nContent-Length: 0\r\n\r\n".encode()


def typed(messages):
    """The members and items alone, which lists of malformed values and lists without values do not have."""
    for message in messages:
        for header in message["headers"].values():
            values = header.get("items", header.get("members"))
            if values and "malformed" not in json.dumps(values):
                del header["lines"]
        message["headers"] = {name: header for name, header in message["headers"].items() if header.get("items") != []}
        del message["line"]
    return messages


schema = tool("headers", "--json-schema")
if os.environ.get("UPDATE"):
    SCHEMA.write_bytes(schema)
assert schema == SCHEMA.read_bytes(), f"{SCHEMA} is not what the tool prints: run this test with UPDATE=1"
jsonschema.Draft202012Validator.check_schema(json.loads(schema))
validator = jsonschema.Draft202012Validator(json.loads(schema))

count = 0
for name, wire in samples():
    validator.validate(json.loads(tool("decode", "--json", given=wire)))
    wire = tool("encode", given=wire)
    if not wire:
        continue
    count += 1
    messages = decode(wire)
    assert encode(messages) == wire, f"{name}: with lines, the same bytes"
    members = typed(messages)
    validator.validate(members)
    assert typed(decode(encode(members))) == members, f"{name}: without lines, the same members"
assert count > 80, f"only {count} samples"

options = decode((ROOT / "examples/messages/options.sip").read_bytes())[0]
assert options.pop("request") and not validator.is_valid(options), "the schema wants a start line"
options["request"] = {"method": "OPTIONS", "iri": "sip:a"}
options["headers"]["Via"]["items"][0]["prot"] = 1
assert not validator.is_valid(options), "and knows all members"
