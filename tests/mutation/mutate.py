#!/usr/bin/env python3
"""Breaks the rooms in one place after the other and sees whether the unit tests notice.

    tests/mutation/mutate.py [--count N] [--seed S]

A mutant changes an operator, a number, a truth or a text, drops a call, or swaps two calls. N mutants that
compile, chosen by the seed, are built in a copy of the tree under build/mutation/ and judged by the unit
tests: those of the mutant's own room first. Prints each survivor as a change of its line, and the sum.
"""

import argparse
import pathlib
import random
import re
import shutil
import subprocess

TREE = pathlib.Path(__file__).resolve().parents[2]
COPY = TREE / "build" / "mutation" / "tree"
BUILD = TREE / "build" / "mutation" / "build"
ROOMS = ["app", "minimize", "settings", "hotkey", "corners", "keepawake", "menubar", "windows"]
TARGETS = [f"test_{room}" for room in ROOMS] + ["test_year"]

OPERATORS = {
    " == ": " != ", " != ": " == ", " < ": " <= ", " <= ": " < ", " > ": " >= ", " >= ": " > ",
    " && ": " || ", " || ": " && ", " + ": " - ", " - ": " + ", " / ": " * ", " * ": " / ",
    "(!": "(", " ? ": " ? !", "true": "false", "false": "true",
}  # fmt: skip
NUMBER = re.compile(r"(?<![\w.\"])(0x[0-9a-fA-F]+|\d+)(?=[\w.]*)")
TEXT = re.compile(r'"([^"\\]+)"')
CALL = re.compile(r"^(\s+)[\w:.>*()-]+\(.*\);$")


def without_comment(line):
    return "" if line.lstrip().startswith(("//", "#", "using ", "namespace ")) else line


def of_operators(line):
    for old, new in OPERATORS.items():
        for match in re.finditer(re.escape(old), line):
            yield line[: match.start()] + new + line[match.end() :]


def of_numbers(line):
    for match in NUMBER.finditer(line):
        number = match.group(1)
        changed = hex(int(number, 16) ^ 1) if number.startswith("0x") else str(int(number) + 1)
        yield line[: match.start()] + changed + line[match.end() :]


def of_texts(line):
    for match in TEXT.finditer(line):
        yield line[: match.end() - 1] + "x" + line[match.end() - 1 :]


def is_call(line):
    return CALL.match(line) and not line.lstrip().startswith(("return", "throw"))


def mutants_of(file):
    """(first line, number of lines, replacement) for each way to break the file."""
    lines = file.read_text().splitlines()
    for number, whole in enumerate(lines):
        line = without_comment(whole)
        for make in (of_operators, of_numbers, of_texts):
            for changed in make(line):
                yield number, 1, [changed]
        if is_call(line):
            yield number, 1, []
            following = lines[number + 1] if number + 1 < len(lines) else ""
            if is_call(following) and CALL.match(line).group(1) == CALL.match(following).group(1):
                yield number, 2, [following, line]


def run(*command):
    return subprocess.run(command, cwd=BUILD, capture_output=True, check=False).returncode == 0


def copy_tree():
    shutil.rmtree(COPY.parent, ignore_errors=True)
    files = subprocess.run(["git", "ls-files"], cwd=TREE, capture_output=True, text=True, check=True)
    for name in files.stdout.splitlines():
        (COPY / name).parent.mkdir(parents=True, exist_ok=True)
        shutil.copy2(TREE / name, COPY / name)
    BUILD.mkdir(parents=True)
    options = ["-DQUELLBAR_HOST=simulated", "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS=-O0 -g0"]
    assert run("cmake", "-G", "Ninja", *options, str(COPY)), "the copy cannot be configured"
    assert run("ninja", *TARGETS), "the copy cannot be built"


def tests_pass(folder):
    return run("ctest", "--test-dir", folder, "--parallel", "2", "--stop-on-failure")


def verdict(room):
    if not run("ninja", *TARGETS):
        return "does not compile"
    folders = [room] + [other for other in ROOMS if other != room] + ["year"]
    return "survives" if all(tests_pass(f"tests/unit/{folder}") for folder in folders) else "caught"


def judge(name, mutant):
    file = COPY / name
    original = file.read_text()
    first, length, replacement = mutant
    lines = original.splitlines()
    before = lines[first : first + length]
    lines[first : first + length] = replacement
    file.write_text("\n".join(lines) + "\n")
    try:
        result = verdict(pathlib.Path(name).parts[0])
    finally:
        file.write_text(original)
    return result, f"{name}:{first + 1}: {' '.join(map(str.strip, before))}  =>  " + (
        " ".join(map(str.strip, replacement)) or "nothing"
    )


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--count", type=int, default=100)
    parser.add_argument("--seed", type=int, default=1)
    wanted = parser.parse_args()
    copy_tree()
    assert verdict("app") == "survives", "the tests do not pass as it is"
    sources = [file for room in ROOMS for file in sorted((COPY / room).glob("*.cpp"))]
    mutants = [(str(file.relative_to(COPY)), m) for file in sources for m in mutants_of(file)]
    random.Random(wanted.seed).shuffle(mutants)
    caught = survivors = 0
    for name, mutant in mutants:
        if caught + survivors == wanted.count:
            break
        result, change = judge(name, mutant)
        caught += result == "caught"
        survivors += result == "survives"
        if result == "survives":
            print(change, flush=True)
    print(f"{caught} of {caught + survivors} mutants caught (of {len(mutants)}, seed {wanted.seed})")


main()
