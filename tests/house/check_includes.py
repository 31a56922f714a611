#!/usr/bin/env python3
"""Checks who knows whom, by the include lines of the tree.

A room includes the standard library, the JSON library, the seam and the rooms that it builds on,
never a host, a toolkit or a system header. A seam header includes the standard library and the seam.
A host includes no room. No conditional on an operating system stands outside a host.
"""
import re
import sys
from pathlib import Path

ROOMS = {"app", "minimize", "settings", "hotkey", "corners", "keepawake", "menubar", "windows"}

# Which rooms a room may know: those it builds on.
BUILDS_ON = {
    "app": ROOMS,
    "minimize": set(),
    "settings": set(),
    "hotkey": {"settings"},
    "corners": {"minimize", "settings"},
    "keepawake": {"settings"},
    "menubar": ROOMS,
    "windows": {"app", "hotkey", "settings"},
}

INCLUDE = re.compile(r'^\s*#\s*(?:include|import)\s*([<"])([^>"]+)[>"]')
SYSTEM_CONDITION = re.compile(r"^\s*#\s*(?:el)?if\w*\s.*\b(__APPLE__|__linux__|_WIN32|__unix__|QT_VERSION)\b")
SOURCES = {".h", ".cpp", ".mm", ".c"}


def is_standard(name):
    """Standard C++ headers have no folder, no suffix and no capital letter; toolkits' have."""
    return "/" not in name and "." not in name and name == name.lower()


def room_may_include(room, quoted, name):
    folder, _, rest = name.partition("/")
    if not quoted:
        return is_standard(name) or folder == "nlohmann"
    if folder == "platform":
        return "/" not in rest
    return folder == room or folder in BUILDS_ON[room]


def seam_may_include(quoted, name):
    if not quoted:
        return is_standard(name)
    folder, _, rest = name.partition("/")
    return folder == "platform" and "/" not in rest


def host_may_include(host, quoted, name):
    if not quoted:
        return True
    parts = name.split("/")
    return parts[0] == "platform" and (len(parts) == 2 or parts[1] == host)


def rule_for(path):
    """The rule of a file, as a function of how and what it includes; None where anything goes."""
    parts = path.parts
    if parts[0] in ROOMS:
        return lambda quoted, name: room_may_include(parts[0], quoted, name)
    if parts[0] != "platform":
        return None
    if len(parts) == 2:
        return seam_may_include
    return lambda quoted, name: host_may_include(parts[1], quoted, name)


def complaints(root, path):
    rule = rule_for(path)
    if rule is None or (path.parts[0] == "platform" and "sdk" in path.parts):
        return
    is_host = path.parts[0] == "platform" and len(path.parts) > 2
    for number, line in enumerate((root / path).read_text().splitlines(), 1):
        include = INCLUDE.match(line)
        if include and not rule(include[1] == '"', include[2]):
            yield f"{path}:{number}: must not include {include[2]}"
        if not is_host and SYSTEM_CONDITION.match(line):
            yield f"{path}:{number}: must not ask for an operating system"


def main():
    root = Path(sys.argv[1])
    files = [path.relative_to(root) for folder in sorted(ROOMS | {"platform"})
             for path in sorted((root / folder).rglob("*")) if path.suffix in SOURCES]
    found = [complaint for path in files for complaint in complaints(root, path)]
    print("\n".join(found) or f"{len(files)} files know only whom they may know")
    return 1 if found or not files else 0


if __name__ == "__main__":
    sys.exit(main())
