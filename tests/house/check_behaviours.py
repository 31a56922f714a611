#!/usr/bin/env python3
"""Checks tests/behaviours.md against the tests. check_behaviours.py <tree>

Every test that the list names has to exist, and every line of it has to name one. The number of lines is
written here, so that none gets lost.
"""

import pathlib
import re
import sys

BEHAVIOURS = 97
TEST = re.compile(r"^TEST(?:_F|_P)?\(\s*(\w+),\s*(\w+)\s*\)", re.MULTILINE)
NAME = re.compile(r"`(\w+\.\w+)`")


def existing_tests(folder):
    for source in folder.rglob("*.cpp"):
        for suite, test in TEST.findall(source.read_text()):
            yield f"{suite}.{test}"


def faults(tests):
    existing = set(existing_tests(tests))
    text = (tests / "behaviours.md").read_text()
    lines = [line for line in text.splitlines() if line.startswith("- ")]
    if len(lines) != BEHAVIOURS:
        yield f"{len(lines)} behaviours instead of {BEHAVIOURS}"
    for line in lines:
        named = NAME.findall(line)
        if not named:
            yield f"no test: {line}"
        yield from (f"no such test: {name}" for name in named if name not in existing)


found = list(faults(pathlib.Path(sys.argv[1]) / "tests"))
print("\n".join(found))
sys.exit(bool(found))
